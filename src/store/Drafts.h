// The files in which unsaved rooms are kept, so that neither a lost power nor a slip of the hand
// costs what was typed.

#pragma once

#include "base/Words.h"
#include "store/DraftRecord.h"

#include <QDateTime>
#include <QString>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// How many drafts of a project are kept.
inline constexpr std::size_t MostDrafts = 5;
/// How long a draft is kept after something newer took its place.
inline constexpr int DraftDays = 30;

/// The user's own state folder: $XDG_STATE_HOME/tarn, or ~/.local/state/tarn when that variable is
/// unset, empty or relative. Nothing when the environment names no home.
std::optional<std::filesystem::path> UserStateDirectory();

/// A draft in its file.
struct KeptDraft {
    std::string File;
    DraftRecord Record;
};

/// The drafts of one database's projects, in the user's state folder. A run of the program writes
/// files of its own, each replaced whole; several runs never write the same one. Names of projects
/// are taken in any form that StoredName makes equal. A file that is damaged, or is none, is passed
/// over and stays.
class Drafts {
  public:
    /// Keeps nothing, for the reason given.
    explicit Drafts(std::string reason = Words("There is no folder for drafts."));
    /// `folder` is made by the first draft. `database` is the path of the database file.
    Drafts(const std::filesystem::path& folder, const std::string& database);

    /// The name of a file that no draft has had, for a new draft of the project.
    std::string NewFile(std::string_view project);
    /// Write a draft into a file that NewFile named. Raises OutputFileError.
    void Write(const std::string& file, std::string_view project, const Draft& draft,
               const QDateTime& now) const;
    /// What a draft's file says; nothing when it is not there or damaged.
    std::optional<DraftRecord> Read(const std::string& file) const;
    /// The project's drafts, the last written first.
    std::vector<KeptDraft> Of(std::string_view project) const;

    // What follows does what it can, and leaves a file that cannot be changed as it is.

    /// End a draft.
    void Remove(const std::string& file) const noexcept;
    /// Mark the project's drafts, but that one, as superseded, and end the oldest beyond
    /// MostDrafts.
    void Supersede(std::string_view project, const std::string& except,
                   const QDateTime& now) const noexcept;
    /// The project has another name now, one that no project had.
    void Move(std::string_view project, std::string_view newName) noexcept;
    /// End all drafts of a project: it was deleted, or is a new one.
    void End(std::string_view project) const noexcept;
    /// End every draft, of whatever database, that was superseded more than DraftDays ago.
    void EndExpired(const QDateTime& now) const noexcept;

  private:
    std::vector<std::string> FilesLike(const QString& pattern) const;
    std::vector<std::string> FilesOf(std::string_view project) const;

    std::string reason_; ///< why nothing is kept; empty while it is
    std::filesystem::path folder_;
    std::string database_;
    QString run_;
    int count_ = 0;
};

/// The drafts in the user's own state folder.
Drafts UserDrafts(const std::string& database);

} // namespace tarn
