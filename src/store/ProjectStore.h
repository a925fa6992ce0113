#pragma once

#include "base/Units.h"
#include "project/Project.h"
#include "store/DatabaseAccess.h"
#include "store/DatabaseError.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// What stood in the file of one project, its sheet and its rooms, before any reading of odd
/// values: of two marks that are equal nothing was changed in between. The directory does not
/// count, since a save leaves it alone: a project that was moved is still the same.
struct StoredMark {
    std::string Content;

    bool operator==(const StoredMark&) const = default;
};

/// A project as it was found in the database.
struct LoadedProject {
    Project Value; ///< with its directory where it has one
    StoredMark Mark;
    /// Rows that are missing, surplus or odd: one line for each kind, with the rooms counted
    /// from 1.
    std::vector<std::string> Findings;
};

/// What became of a save.
struct SaveResult {
    enum class Outcome {
        Saved,
        Changed, ///< nothing was stored: another program changed the project since it was read
        Gone,    ///< nothing was stored: no row has the project's name, which another program
                 ///< renamed or deleted
    };
    Outcome What = Outcome::Saved;
    Project Value;   ///< as it is stored now; for Changed and Gone as it was given
    StoredMark Mark; ///< that of the next load; for Changed and Gone the one given, if any

    bool IsSaved() const { return What == Outcome::Saved; }
};

/// The directories and projects of one database file. Whole values go in and come out, each change
/// in one transaction: done whole, or not at all. Everything is read afresh, so that what other
/// programs stored is seen; no lock stays behind.
///
/// HasDirectory, Projects and DirectoryOf take a name as a user may write it: it is compared in
/// full upper case and without the blanks at both ends (StoredName). What is added, and the new
/// name of a renaming, is stored so. The other functions find a name as these gave it, or as
/// StoredName makes it. A name with a double quote can be found in a list, but not be used:
/// neither renamed, deleted, loaded nor saved.
///
/// A text that another program stored with a TextFault is given as ShownText, and a name is found
/// by that. What is stored holds none: of rooms it is stored as it is shown, names are refused.
///
/// Before each action that is no part of a transaction the store looks whether the file at its path
/// is still the one that it opened. Where another one was put in its place, or it was gone for a
/// while, it is opened again, as at first: what stands there is what counts.
///
/// Every function raises DatabaseError when the database fails or refuses, with nothing changed.
class ProjectStore {
  public:
    /// A store without a database: every function raises DatabaseError with `reason`.
    static ProjectStore Unavailable(std::string reason);
    /// Unavailable until another store is moved into it.
    ProjectStore();
    /// A store whose file, as below, is opened by its first use, or the next one when that failed.
    /// `advice` ends the text of the error then.
    static ProjectStore OpenedWhenUsed(std::string path, DatabaseAccess access, std::string advice);
    /// Open an existing file, which is never made or written over. `path` may hold any character.
    /// Raises DatabaseError, naming the file, the cause and what to do, for a file that is missing,
    /// a folder, empty, of the older Jet format, no database, damaged, locked by another program
    /// for longer than `busyWait`, or, for ReadWrite, read-only.
    explicit ProjectStore(const std::string& path, DatabaseAccess access,
                          int busyWait = DefaultBusyWait);
    ~ProjectStore();
    ProjectStore(ProjectStore&&) noexcept;
    ProjectStore& operator=(ProjectStore&&) noexcept;

    // --- directories; the months have no row ---

    /// The names by name.
    std::vector<std::string> Directories();
    bool HasDirectory(std::string_view name);
    /// Add a directory. Whether the name is taken is the caller's to check. Raises DatabaseError
    /// for a name that is empty, longer than MaxNameLength or HoldsControlCharacter.
    void AddDirectory(std::string_view name);
    /// Rename a directory and move its projects with it. Raises DatabaseError for a new name that
    /// HoldsControlCharacter.
    void RenameDirectory(const std::string& oldName, const std::string& newName);
    /// Delete a directory, its projects and all their data; of a project that has a row in another
    /// directory too, the row alone. Raises and spares as DeleteProject.
    void DeleteDirectory(const std::string& name);

    // --- projects ---

    /// The names of the projects in a directory (or month), in the order of the rows.
    std::vector<std::string> Projects(std::string_view directory);
    /// Directory and name of every project, as stored, in the order of the rows.
    std::vector<std::pair<std::string, std::string>> AllProjects();
    /// The directory of a project; nothing when there is no such project.
    std::optional<std::string> DirectoryOf(std::string_view project);
    /// Add a project without a sheet. As AddDirectory, for either name; raises DatabaseError also
    /// for a project name with a character of ForbiddenInProjectName.
    void AddProject(std::string_view directory, std::string_view project);
    /// Rename a project and its sheets. Raises as RenameDirectory.
    void RenameProject(const std::string& oldName, const std::string& newName);
    /// Delete a project and all its data. Where it shares its sheet number with another project,
    /// the rooms stay: they do not tell whose they are. Raises DatabaseError for a sheet without a
    /// number, a view in the place of a table and a row that the database keeps, and "Overflow" for
    /// a sheet number past 32767.
    void DeleteProject(const std::string& name);

    /// The project of that name with its rooms, all as it stands at one moment. One that was never
    /// saved comes back IsNew, without rooms, with a free sheet number. Raises DatabaseError when
    /// it has a sheet but cannot be loaded whole, and "Overflow" for a number that does not fit and
    /// when no number is free.
    LoadedProject Load(std::string_view project);
    /// The number of the project's sheet; nothing when it has none. Raises as Load.
    std::optional<Integer> SheetOf(std::string_view project);
    /// Store the project, its sheet and its rooms, unless no row has its name, or what is stored of
    /// it is no longer what `read` says; without `read` it replaces whatever is stored. `shown` are
    /// the units in force; that the rooms were entered in metric is stored as Project::EnteredIn
    /// says, a project without rooms as one in feet and inches. A project that has a sheet keeps
    /// its number, a new one takes Project::Sheet; where that is in use by now, what uses it is
    /// left alone and the next free number is taken. Raises "Overflow" past sheet 32767 and
    /// "Subscript out of range" for more than RoomCapacity rooms.
    SaveResult Save(const Project& project, Units shown,
                    const std::optional<StoredMark>& read = std::nullopt);

    /// Run `changes` as one transaction: when it raises, nothing of it is stored.
    void InOneTransaction(const std::function<void()>& changes);

    /// Have `action` run once, before this store's first change: while the file is as it was, and
    /// no transaction runs. It goes with the store when that is moved, may use other stores, and
    /// must not raise. A store that is opened for reading never runs it.
    void SetBeforeFirstChange(std::function<void()> action);

  private:
    class Impl;
    explicit ProjectStore(std::unique_ptr<Impl> impl);

    std::unique_ptr<Impl> impl_;
};

} // namespace tarn
