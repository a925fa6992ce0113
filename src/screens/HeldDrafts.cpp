#include "screens/HeldDrafts.h"

#include "files/OutputFile.h"
#include "store/Names.h"

#include <exception>
#include <utility>

namespace tarn {

void HeldDrafts::Hold(const std::string& project, const Draft& draft, const QDateTime& written) {
    KeptDraft held;
    held.Record.Project = StoredName(project);
    held.Record.Written = written;
    held.Record.Content = draft;
    held_.insert(held_.begin(), std::move(held));
    std::size_t count = 0;
    std::erase_if(held_, [&](const KeptDraft& each) {
        return each.Record.Project == StoredName(project) && ++count > MostDrafts;
    });
}

std::vector<KeptDraft> HeldDrafts::Of(std::string_view project) const {
    std::vector<KeptDraft> drafts;
    for (const KeptDraft& each : held_) {
        if (each.Record.Project == StoredName(project)) {
            drafts.push_back(each);
        }
    }
    return drafts;
}

void HeldDrafts::Release(std::string_view project, const Draft& draft) noexcept {
    std::erase_if(held_, [&](const KeptDraft& each) {
        return each.Record.Project == StoredName(project) && each.Record.Content == draft;
    });
}

void HeldDrafts::Write(Drafts& drafts) noexcept {
    std::erase_if(held_, [&](const KeptDraft& each) {
        const DraftRecord& record = each.Record;
        try {
            drafts.Write(drafts.NewFile(record.Project), record.Project, record.Content,
                         record.Written);
            return true;
        } catch (const std::exception&) {
            return false; // the next time, perhaps
        }
    });
}

void HeldDrafts::Move(std::string_view project, std::string_view newName) {
    End(newName);
    for (KeptDraft& each : held_) {
        if (each.Record.Project == StoredName(project)) {
            each.Record.Project = StoredName(newName);
        }
    }
}

void HeldDrafts::End(std::string_view project) noexcept {
    std::erase_if(
        held_, [&](const KeptDraft& each) { return each.Record.Project == StoredName(project); });
}

} // namespace tarn
