#pragma once

#include "screens/HeldDrafts.h"
#include "screens/OpenProject.h"
#include "store/Drafts.h"

#include <QDateTime>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Keeps what is unsaved of the open project in a draft: within KeepingDelay of a change, and at
/// once where Flush says so. A draft that is the same as what is stored is none, and its file goes.
class DraftKeeper {
  public:
    /// How long a change waits for those that follow it, and a draft that could not be written for
    /// the next try, in milliseconds.
    static constexpr int KeepingDelay = 1500;
    static constexpr int RetryDelay = 10000;

    /// `project` must outlive the keeper. `now` is the clock.
    explicit DraftKeeper(OpenProject& project, std::function<QDateTime()> now = NowInUtc);

    /// Where drafts are kept from now on.
    void SetDrafts(Drafts drafts);

    /// A project has another name now, one that no project had: its drafts go with it.
    void Move(std::string_view project, std::string_view newName);
    /// End all drafts of a project: it was deleted, or is a new one.
    void End(std::string_view project) noexcept;

    /// The rooms or what stands in their fields may have changed.
    void NoteChange();
    /// Write the draft now, if anything changed.
    void Flush() noexcept;
    /// The open project makes way for another: its draft stays as it is, and one that could not be
    /// written stays in memory as long as the program runs. `Flush` comes before.
    void LetGo() noexcept;
    /// The project was saved: ends its draft, and those that were taken back into it, but what
    /// stands in the fields stays in a draft.
    void NoteSaved() noexcept;
    /// As NoteSaved, after a save as a new project; it was called `former` before. No other draft
    /// of the new name is left.
    void NoteSavedAs(const std::string& former) noexcept;

    /// The project's drafts that are worth taking back, the last written first.
    std::vector<KeptDraft> WorthTakingBack() const;
    /// Put a draft in place of what is in memory, which stays in a draft of its own. Raises
    /// OutputFileError when that cannot be written, and as tarn::TakeBack, with nothing changed.
    void TakeBack(const KeptDraft& draft);

    /// Why the draft could not be written; empty when it was, or there was nothing to write.
    const std::string& Trouble() const { return trouble_; }
    /// Have `told` called whenever the trouble changes, until `context` is gone or another takes
    /// its place.
    void OnTrouble(QObject& context, std::function<void()> told);

  private:
    static QDateTime NowInUtc() { return QDateTime::currentDateTimeUtc(); }
    void Keep(const Draft& draft);
    /// Try again to write what could not be written of projects that were left.
    void WriteHeld() noexcept;
    /// The project's drafts, written or held, the last one first.
    std::vector<KeptDraft> AllDrafts() const;
    void SetTrouble(std::string trouble);
    void Forget() noexcept;
    void Part() noexcept;

    OpenProject& project_;
    Drafts drafts_;
    std::function<QDateTime()> now_;
    QTimer timer_;
    std::string file_;          ///< of the draft in use; empty before there is one
    std::optional<Draft> kept_; ///< what is in it; nothing while it is not written
    std::vector<KeptDraft> taken_;
    std::optional<Draft> failed_; ///< what could not be written
    HeldDrafts held_;
    std::string trouble_;
    QPointer<QObject> context_;
    std::function<void()> told_;
};

} // namespace tarn
