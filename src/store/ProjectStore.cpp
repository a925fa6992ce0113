#include "store/ProjectStore.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "project/RoomEntry.h"
#include "store/DatabaseFile.h"
#include "store/Names.h"
#include "store/RoomRows.h"
#include "store/Schema.h"
#include "store/Sheets.h"
#include "store/Tables.h"

#include <algorithm>

namespace tarn {

namespace {

/// A transaction, or a part of one: taken back when it goes, unless it was kept.
class Step {
  public:
    enum class Kind {
        Reading, ///< a transaction that changes nothing
        Change,  ///< a transaction that takes the lock for writing first: what it reads cannot
                 ///< change until it is kept
        Part,    ///< a part of a transaction that is running
    };

    Step(Connection& connection, Kind kind)
        : connection_(connection)
        , kind_(kind) {
        connection_.Run(kind == Kind::Reading  ? "BEGIN"
                        : kind == Kind::Change ? "BEGIN IMMEDIATE"
                                               : "SAVEPOINT part",
                        "The database takes no change");
    }
    ~Step() {
        if (!kept_) {
            TakeBack();
        }
    }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

    void Keep() {
        connection_.Run(kind_ == Kind::Part ? "RELEASE part" : "COMMIT",
                        "The change cannot be stored");
        kept_ = true;
    }

  private:
    void TakeBack() noexcept {
        constexpr std::string_view Failing = "The change cannot be taken back";
        try {
            if (kind_ == Kind::Part) {
                connection_.Run("ROLLBACK TO part", Failing);
                connection_.Run("RELEASE part", Failing);
            } else {
                connection_.Run("ROLLBACK", Failing);
            }
        } catch (const DatabaseError&) {
            // The database engine took it back itself, as it does when the disk fails.
        }
    }

    Connection& connection_;
    Kind kind_;
    bool kept_ = false;
};

/// The stored form of a name that is to be added. `kind` is what it names.
std::string NewName(std::string_view kind, std::string_view name) {
    std::string stored = StoredName(name);
    if (stored.empty()) {
        throw DatabaseError("The " + std::string(kind) + " needs a name.");
    }
    if (Len(stored) > MaxNameLength) {
        throw DatabaseError(NameTooLongText(kind, stored));
    }
    return stored;
}

std::string NewProjectName(std::string_view project) {
    std::string name = NewName("project", project);
    if (name.find_first_of(ForbiddenInProjectName) != std::string::npos) {
        throw DatabaseError("The project name " + name + " holds one of the characters " +
                            std::string(ForbiddenInProjectName) + ".");
    }
    if (HoldsControlCharacter(name)) {
        throw DatabaseError("The project name holds a line break or another control character.");
    }
    return name;
}

/// The one rule on names with a double quote.
void RequireUsable(std::string_view name) {
    if (name.find('"') != std::string_view::npos) {
        throw DatabaseError("The name " + std::string(name) +
                            " cannot be used: a double quote stands inside it.");
    }
}

std::vector<std::string> TextsIn(const std::vector<StoredRow>& rows, std::string_view field) {
    std::vector<std::string> texts;
    texts.reserve(rows.size());
    for (const StoredRow& row : rows) {
        texts.push_back(row.TextIn(field));
    }
    return texts;
}

/// Give every row of the table whose `field` is `oldName` the new one.
void Rename(Connection& connection, std::string_view table, std::string_view field,
            const std::string& oldName, const std::string& newName) {
    Table rows(connection, table);
    for (const StoredRow& row : rows.RowsWhere(field, TextValue(oldName))) {
        rows.Change(row, field, TextValue(newName));
    }
}

/// What stands in the file of a project that has a sheet; empty for one that has none.
StoredMark MarkOf(Connection& connection, std::string_view project) {
    StoredMark mark;
    const auto sheets = Table(connection, MainTab).RowsWhere("ProjName", TextValue(project));
    for (const StoredRow& sheet : sheets) {
        mark.Content += MainTab;
        mark.Content += sheet.Content();
    }
    if (!sheets.empty()) {
        const QVariant& number = sheets.front().ValueIn("TabIndex");
        for (const StoredRow& room :
             Table(connection, InputData).RowsWhere("TabIndex", number, "ObjNum")) {
            mark.Content += InputData;
            mark.Content += room.Content();
        }
    }
    return mark;
}

/// Read the project's sheet of that number and its rooms into `loaded`.
void LoadSheet(Connection& connection, Integer number, LoadedProject& loaded) {
    Project& project = loaded.Value;
    const SheetsUnder sheets(connection, number, project.Name);
    const StoredRow* sheet = sheets.Own();
    if (sheet == nullptr) {
        throw DatabaseError("The project's sheet, number " + TrimStr(number) + ", is missing.");
    }
    const SheetContent content = ContentOf(*sheet);
    const auto rows = ReadRoomRows(connection, number);
    const auto count = static_cast<std::size_t>(content.Rooms);
    project.EnteredIn = EnteredUnitsOf(*sheet);
    project.Sheet = content.Number;
    project.Scale = content.Scale;
    project.Rooms = RoomsOf(rows, count);
    loaded.Findings = RoomFindings(rows, count, sheets.OtherProjects());
}

} // namespace

class ProjectStore::Impl {
  public:
    explicit Impl(std::string reason)
        : reason_(std::move(reason)) {}
    Impl(std::unique_ptr<Connection> connection, DatabaseAccess access)
        : connection_(std::move(connection))
        , access_(access) {}

    bool IsOpen() const { return connection_ != nullptr; }
    /// The database. Raises DatabaseError, with the reason why, when there is none.
    Connection& Database() {
        if (!connection_) {
            throw DatabaseError(reason_);
        }
        return *connection_;
    }

    /// The same, before a change.
    Connection& DatabaseToChange() {
        Connection& database = Database();
        if (access_ == DatabaseAccess::ReadOnly || inTransaction_ || !beforeFirstChange_) {
            return database;
        }
        std::exchange(beforeFirstChange_, {})();
        return Database();
    }
    void SetBeforeFirstChange(std::function<void()> action) {
        beforeFirstChange_ = std::move(action);
    }

    /// Run `changes` as a transaction, or as a part of the one that is running.
    void Change(const std::function<void()>& changes) {
        DatabaseToChange();
        Run(inTransaction_ ? Step::Kind::Part : Step::Kind::Change, changes);
    }
    /// Run `reading`, all of it on the database as it stands at one moment.
    void Read(const std::function<void()>& reading) {
        Run(inTransaction_ ? Step::Kind::Part : Step::Kind::Reading, reading);
    }

  private:
    void Run(Step::Kind kind, const std::function<void()>& body) {
        Step step(Database(), kind);
        const bool before = std::exchange(inTransaction_, true);
        try {
            body();
        } catch (...) {
            inTransaction_ = before;
            throw;
        }
        inTransaction_ = before;
        step.Keep();
    }

    std::unique_ptr<Connection> connection_;
    DatabaseAccess access_ = DatabaseAccess::ReadOnly;
    std::string reason_;
    std::function<void()> beforeFirstChange_;
    bool inTransaction_ = false;
};

ProjectStore::ProjectStore(std::unique_ptr<Impl> impl)
    : impl_(std::move(impl)) {}

ProjectStore::ProjectStore()
    : ProjectStore(Unavailable("No database is open.")) {}

ProjectStore ProjectStore::Unavailable(std::string reason) {
    return ProjectStore(std::make_unique<Impl>(std::move(reason)));
}

ProjectStore::ProjectStore(const std::string& path, DatabaseAccess access, int busyWait)
    : impl_(std::make_unique<Impl>(OpenDatabaseFile(path, access, busyWait), access)) {}

ProjectStore::~ProjectStore() = default;
ProjectStore::ProjectStore(ProjectStore&&) noexcept = default;
ProjectStore& ProjectStore::operator=(ProjectStore&&) noexcept = default;

bool ProjectStore::IsOpen() const {
    return impl_->IsOpen();
}

std::vector<std::string> ProjectStore::Directories() {
    return TextsIn(Table(impl_->Database(), DirTab).Rows("Directory"), "Directory");
}

bool ProjectStore::HasDirectory(std::string_view name) {
    const auto names = Directories();
    return std::any_of(names.begin(), names.end(), [wanted = StoredName(name)](const auto& each) {
        return StoredName(each) == wanted;
    });
}

void ProjectStore::AddDirectory(std::string_view name) {
    Table(impl_->DatabaseToChange(), DirTab)
        .Add({{"Directory", TextValue(NewName("directory", name))}});
}

void ProjectStore::RenameDirectory(const std::string& oldName, const std::string& newName) {
    RequireUsable(oldName);
    impl_->Change([&] {
        Connection& database = impl_->Database();
        Rename(database, DirTab, "Directory", oldName, StoredName(newName));
        Rename(database, ProjTab, "Dir", oldName, StoredName(newName));
    });
}

void ProjectStore::DeleteDirectory(const std::string& name) {
    RequireUsable(name);
    impl_->Change([&] {
        Connection& database = impl_->Database();
        LeaveSharedNumbers(database, Projects(name));
        Table projects(database, ProjTab);
        for (const StoredRow& project : projects.RowsWhere("Dir", TextValue(name))) {
            DeleteSheetsOf(database, project.ValueIn("ProjName"));
        }
        projects.DeleteWhere("Dir", TextValue(name));
        Table(database, DirTab).DeleteWhere("Directory", TextValue(name));
    });
}

std::vector<std::string> ProjectStore::Projects(std::string_view directory) {
    const std::string wanted = StoredName(directory);
    std::vector<std::string> names;
    for (const auto& [own, project] : AllProjects()) {
        if (StoredName(own) == wanted) {
            names.push_back(project);
        }
    }
    return names;
}

std::vector<std::pair<std::string, std::string>> ProjectStore::AllProjects() {
    std::vector<std::pair<std::string, std::string>> projects;
    for (const StoredRow& row : Table(impl_->Database(), ProjTab).Rows()) {
        projects.emplace_back(row.TextIn("Dir"), row.TextIn("ProjName"));
    }
    return projects;
}

std::optional<std::string> ProjectStore::DirectoryOf(std::string_view project) {
    const std::string wanted = StoredName(project);
    for (const auto& [directory, name] : AllProjects()) {
        if (StoredName(name) == wanted) {
            return directory;
        }
    }
    return std::nullopt;
}

void ProjectStore::AddProject(std::string_view directory, std::string_view project) {
    const std::string name = NewProjectName(project);
    Table(impl_->DatabaseToChange(), ProjTab)
        .Add({{"Dir", TextValue(NewName("directory", directory))},
              {"ProjName", TextValue(name)},
              {"DrawingNum", 0}});
}

void ProjectStore::RenameProject(const std::string& oldName, const std::string& newName) {
    RequireUsable(oldName);
    impl_->Change([&] {
        Connection& database = impl_->Database();
        Rename(database, MainTab, "ProjName", oldName, StoredName(newName));
        Rename(database, ProjTab, "ProjName", oldName, StoredName(newName));
    });
}

void ProjectStore::DeleteProject(const std::string& name) {
    RequireUsable(name);
    impl_->Change([&] {
        Connection& database = impl_->Database();
        LeaveSharedNumbers(database, {name});
        DeleteSheetsOf(database, TextValue(name));
        Table(database, ProjTab).DeleteWhere("ProjName", TextValue(name));
    });
}

LoadedProject ProjectStore::Load(std::string_view project) {
    RequireUsable(project);
    LoadedProject loaded;
    loaded.Value.Name = project;
    impl_->Read([&] {
        Connection& database = impl_->Database();
        if (const auto number = FindSheetNumber(database, project)) {
            LoadSheet(database, *number, loaded);
            loaded.Mark = MarkOf(database, project);
        } else {
            loaded.Value.IsNew = true;
            loaded.Value.Sheet = NewSheetNumber(database);
        }
        // By its row where that is written alike: to compare every name of a large database with
        // every other takes minutes.
        const auto rows = Table(database, ProjTab).RowsWhere("ProjName", TextValue(project));
        loaded.Value.Directory = rows.empty() ? DirectoryOf(project).value_or(std::string())
                                              : rows.front().TextIn("Dir");
    });
    return loaded;
}

std::optional<Integer> ProjectStore::SheetOf(std::string_view project) {
    RequireUsable(project);
    return FindSheetNumber(impl_->Database(), project);
}

SaveResult ProjectStore::Save(const Project& project, Units shown,
                              const std::optional<StoredMark>& read) {
    RequireUsable(project.Name);
    if (project.Rooms.size() > RoomCapacity) {
        RaiseSubscript(std::string(ProjectFullText));
    }
    SaveResult result{SaveResult::Outcome::Saved, project, read.value_or(StoredMark{})};
    impl_->Change([&] {
        Connection& database = impl_->Database();
        if (!DirectoryOf(project.Name)) {
            result.What = SaveResult::Outcome::Gone;
        } else if (read && *read != MarkOf(database, project.Name)) {
            result.What = SaveResult::Outcome::Changed;
        } else {
            Project& stored = result.Value;
            stored.IsNew = false;
            stored.Sheet = SheetNumberToSave(database, project);
            stored.EnteredIn = project.Rooms.empty() ? Units::Imperial : project.EnteredIn;
            StoreSheet(database, stored, shown);
            StoreRoomRows(database, stored.Sheet, stored.Rooms);
            result.Mark = MarkOf(database, project.Name);
        }
    });
    return result;
}

void ProjectStore::InOneTransaction(const std::function<void()>& changes) {
    impl_->Change(changes);
}

void ProjectStore::SetBeforeFirstChange(std::function<void()> action) {
    impl_->SetBeforeFirstChange(std::move(action));
}

} // namespace tarn
