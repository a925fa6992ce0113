#pragma once

#include "store/Drafts.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Drafts that could not be written when their project was left: held in memory, so that they can
/// be taken back as long as the program runs, and written as soon as that works again.
class HeldDrafts {
  public:
    bool IsEmpty() const { return held_.empty(); }

    /// Hold a draft of that project. Of more than MostDrafts of one the oldest goes.
    void Hold(const std::string& project, const Draft& draft, const QDateTime& written);
    /// The project's drafts, the last one first. They have no file.
    std::vector<KeptDraft> Of(std::string_view project) const;
    /// Let go of the project's drafts with that content: it is in use again.
    void Release(std::string_view project, const Draft& draft) noexcept;
    /// Write what can be written, and hold it no longer.
    void Write(Drafts& drafts) noexcept;

    /// The project has another name now, one that no project had.
    void Move(std::string_view project, std::string_view newName);
    /// End all drafts of a project.
    void End(std::string_view project) noexcept;

  private:
    std::vector<KeptDraft> held_; ///< the last one first
};

} // namespace tarn
