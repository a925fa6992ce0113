#include "screens/DraftKeeper.h"

#include "base/Words.h"
#include "files/OutputFile.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>

namespace tarn {

DraftKeeper::DraftKeeper(OpenProject& project, std::function<QDateTime()> now)
    : project_(project)
    , now_(std::move(now)) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Flush(); });
}

void DraftKeeper::SetDrafts(Drafts drafts) {
    drafts_ = std::move(drafts);
    drafts_.EndExpired(now_());
}

void DraftKeeper::NoteChange() {
    // Not from the last change on: whoever types without a pause is kept too.
    if (!timer_.isActive() || timer_.remainingTime() > KeepingDelay) {
        timer_.start(KeepingDelay);
    }
}

void DraftKeeper::Flush() noexcept {
    timer_.stop();
    try {
        const Draft draft = DraftOf(project_);
        if (draft.IsEmpty()) {
            Forget();
        } else if (kept_ != draft) {
            Keep(draft);
        }
        failed_.reset();
        SetTrouble({});
    } catch (const std::exception& error) {
        failed_ = DraftOf(project_);
        timer_.start(RetryDelay);
        SetTrouble(error.what());
    }
    WriteHeld();
}

void DraftKeeper::WriteHeld() noexcept {
    held_.Write(drafts_);
    if (!held_.IsEmpty() && !timer_.isActive()) {
        timer_.start(RetryDelay);
    }
}

void DraftKeeper::Keep(const Draft& draft) {
    const QDateTime now = now_();
    const std::string& project = project_.Now.Name;
    if (file_.empty()) {
        file_ = drafts_.NewFile(project);
    }
    drafts_.Write(file_, project, draft, now);
    if (!std::exchange(kept_, draft)) {
        drafts_.Supersede(project, file_, now);
    }
}

/// End the draft in use: nothing is unsaved.
void DraftKeeper::Forget() noexcept {
    if (kept_) {
        drafts_.Remove(file_);
    }
    Part();
}

/// What is unsaved from now on goes into another draft.
void DraftKeeper::Part() noexcept {
    file_.clear();
    kept_.reset();
}

void DraftKeeper::LetGo() noexcept {
    timer_.stop();
    if (failed_) {
        held_.Hold(project_.Now.Name, *failed_, now_());
        failed_.reset();
        timer_.start(RetryDelay);
    }
    Part();
    taken_.clear();
    trouble_.clear();
}

void DraftKeeper::NoteSaved() noexcept {
    Flush();
    for (const KeptDraft& taken : taken_) {
        const auto now = drafts_.Read(taken.File);
        if (now && now->Content == taken.Record.Content) { // no other run has gone on with it
            drafts_.Remove(taken.File);
        }
    }
    taken_.clear();
    drafts_.Supersede(project_.Now.Name, file_, now_());
}

void DraftKeeper::NoteSavedAs(const std::string& former) noexcept {
    if (former != project_.Now.Name) {
        Forget(); // it is told by its name whose it is
        End(project_.Now.Name);
        Move(former, project_.Now.Name);
    }
    NoteSaved();
}

void DraftKeeper::Move(std::string_view project, std::string_view newName) {
    held_.Move(project, newName);
    drafts_.Move(project, newName);
}

void DraftKeeper::End(std::string_view project) noexcept {
    held_.End(project);
    drafts_.End(project);
}

std::vector<KeptDraft> DraftKeeper::AllDrafts() const {
    std::vector<KeptDraft> drafts = held_.Of(project_.Now.Name);
    std::vector<KeptDraft> written = drafts_.Of(project_.Now.Name);
    std::move(written.begin(), written.end(), std::back_inserter(drafts));
    std::stable_sort(drafts.begin(), drafts.end(), [](const KeptDraft& a, const KeptDraft& b) {
        return a.Record.Written > b.Record.Written;
    });
    return drafts;
}

std::vector<KeptDraft> DraftKeeper::WorthTakingBack() const {
    std::vector<KeptDraft> worth;
    for (KeptDraft& draft : AllDrafts()) {
        const Draft& content = draft.Record.Content;
        const bool isKnown = std::any_of(worth.begin(), worth.end(), [&](const KeptDraft& each) {
            return each.Record.Content == content;
        });
        const bool isInUse = !file_.empty() && draft.File == file_;
        if (!isInUse && !isKnown && worth.size() < MostDrafts &&
            IsWorthTakingBack(content, project_)) {
            worth.push_back(std::move(draft));
        }
    }
    return worth;
}

void DraftKeeper::TakeBack(const KeptDraft& draft) {
    Flush();
    if (!trouble_.empty()) {
        throw OutputFileError(Words("What is not saved could not be kept. %1", trouble_));
    }
    tarn::TakeBack(project_, draft.Record.Content);
    Part();
    held_.Release(project_.Now.Name, draft.Record.Content);
    for (KeptDraft& each : drafts_.Of(project_.Now.Name)) {
        // Those that are alike are offered as one.
        if (each.Record.Content == draft.Record.Content) {
            taken_.push_back(std::move(each));
        }
    }
    Flush();
}

void DraftKeeper::SetTrouble(std::string trouble) {
    if (trouble == trouble_) {
        return;
    }
    trouble_ = std::move(trouble);
    if (context_ && told_) {
        told_();
    }
}

void DraftKeeper::OnTrouble(QObject& context, std::function<void()> told) {
    context_ = &context;
    told_ = std::move(told);
}

} // namespace tarn
