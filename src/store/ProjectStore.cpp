#include "store/ProjectStore.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "project/RoomEntry.h"
#include "store/DatabaseFile.h"
#include "store/FileIdentity.h"
#include "store/Journal.h"
#include "store/Names.h"
#include "store/OrderRows.h"
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
                        Words("The database takes no change"));
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
                        Words("The change cannot be stored"));
        kept_ = true;
    }

  private:
    void TakeBack() noexcept {
        constexpr auto Failing = Words("The change cannot be taken back");
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

void RequireNoControlCharacter(std::string_view kind, std::string_view name) {
    if (HoldsControlCharacter(name)) {
        throw DatabaseError(ControlCharacterText(kind));
    }
}

/// The stored form of a name that is to be added. `kind` is what it names.
std::string NewName(std::string_view kind, std::string_view name) {
    std::string stored = StoredName(name);
    if (stored.empty()) {
        throw DatabaseError(NoNameText(kind));
    }
    if (Len(stored) > MaxNameLength) {
        throw DatabaseError(NameTooLongText(kind, stored));
    }
    RequireNoControlCharacter(kind, name);
    return stored;
}

std::string NewProjectName(std::string_view project) {
    std::string name = NewName("project", project);
    if (name.find_first_of(ForbiddenInProjectName) != std::string::npos) {
        throw DatabaseError(Words("The project name %1 holds one of the characters %2.", name,
                                  ForbiddenInProjectName));
    }
    return name;
}

/// The one rule on names with a double quote.
void RequireUsable(std::string_view name) {
    if (name.find('"') != std::string_view::npos) {
        throw DatabaseError(
            Words("The name %1 cannot be used: a double quote stands inside it.", name));
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

/// Give every row of the table whose `field` reads as `oldName` the new one.
void Rename(Connection& connection, std::string_view table, std::string_view field,
            std::string_view oldName, const std::string& newName) {
    Table rows(connection, table);
    for (const StoredRow& row : rows.RowsShowing(field, oldName)) {
        rows.Change(row, field, TextValue(newName));
    }
}

/// Delete every row of the table whose `field` reads as `name`; gives them back.
std::vector<StoredRow> DeleteNamed(Connection& connection, std::string_view table,
                                   std::string_view field, std::string_view name) {
    Table rows(connection, table);
    auto named = rows.RowsShowing(field, name);
    rows.Delete(named);
    return named;
}

StoredMark MarkOf(const StoredProject& stored) {
    StoredMark mark;
    const auto add = [&mark](std::string_view table, const std::vector<StoredRow>& rows) {
        for (const StoredRow& row : rows) {
            mark.Content.append(table).append(row.Content());
        }
    };
    add(MainTab, stored.Sheets);
    add(InputData, stored.Rooms);
    add(OrderData, stored.Orders);
    return mark;
}

/// Take what is stored of a project that has a sheet into `loaded`.
void LoadSheet(Connection& connection, const StoredProject& stored, LoadedProject& loaded) {
    Project& project = loaded.Value;
    const StoredRow& sheet = stored.Sheets.front();
    project.Sheet = SheetNumberOf(sheet, project.Name);
    const SheetContent content = ContentOf(sheet);
    const auto rows = ReadRoomRows(stored.Rooms);
    project.EnteredIn = EnteredUnitsOf(sheet);
    project.Scale = content.Scale;
    project.Rooms = RoomsOf(rows, content.Rooms);
    loaded.Findings = SheetFindings(stored.Sheets, project.Sheet);
    const auto others = OtherProjectsUnder(connection, project.Sheet, project.Name);
    for (std::string& finding : RoomFindings(rows, content.Rooms, others)) {
        loaded.Findings.push_back(std::move(finding));
    }
    StoredRequests requests = RequestsOf(stored.Orders);
    project.Orders = std::move(requests.Requests);
    for (std::string& finding : requests.Findings) {
        loaded.Findings.push_back(std::move(finding));
    }
}

/// The project as a save stores it: with texts that may be stored.
Project StorableProject(Project project) {
    project.IsNew = false;
    for (Room& room : project.Rooms) {
        room.Number = ShownText(room.Number);
        room.Remark = ShownText(room.Remark);
    }
    if (project.Rooms.empty()) {
        project.EnteredIn = Units::Imperial;
    }
    return project;
}

} // namespace

class ProjectStore::Impl {
  public:
    /// Where the database is, and how it is opened.
    struct Source {
        std::string Path;
        DatabaseAccess Access = DatabaseAccess::ReadOnly;
        int BusyWait = DefaultBusyWait;
        std::string Advice; ///< ends the text of an error in opening
    };

    explicit Impl(std::string reason)
        : reason_(std::move(reason)) {}
    explicit Impl(Source source)
        : source_(std::move(source)) {}

    /// The database. It is opened first where no action is running, and it is not open yet or
    /// another file stands at its path by now. Raises DatabaseError when there is none.
    Connection& Database() {
        if (!inTransaction_) {
            OpenIfNeeded();
        }
        return *connection_;
    }

    /// The same, before a change.
    Connection& DatabaseToChange() {
        Connection& database = Database();
        if (inTransaction_ || !beforeFirstChange_ || source_->Access == DatabaseAccess::ReadOnly) {
            return database;
        }
        std::exchange(beforeFirstChange_, {})();
        return Database();
    }
    void SetBeforeFirstChange(std::function<void()> action) {
        beforeFirstChange_ = std::move(action);
    }

    /// What saves stored, or tried to, whose end is not known to be good: it may be there all the
    /// same, and is no other program's then.
    std::vector<StoredMark> Unsure;

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
    void OpenIfNeeded() {
        if (!source_) {
            throw DatabaseError(reason_);
        }
        const auto found = IdentityOf(source_->Path);
        if (connection_ && found && found == opened_) {
            // The engine looks for a journal at each reading, not only at the first.
            RequireOwnJournal(source_->Path);
            return;
        }
        // What is open is no longer the database: not a byte is written to it any more.
        connection_.reset();
        opened_ = found;
        try {
            connection_ = OpenDatabaseFile(source_->Path, source_->Access, source_->BusyWait);
        } catch (const DatabaseError& error) {
            throw DatabaseError(error.what() + source_->Advice);
        }
    }
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

    std::optional<Source> source_; ///< nothing for a store without a database
    std::string reason_;           ///< why there is none
    std::unique_ptr<Connection> connection_;
    std::optional<FileIdentity> opened_; ///< the file that connection_ leads to
    std::function<void()> beforeFirstChange_;
    bool inTransaction_ = false;
};

ProjectStore::ProjectStore(std::unique_ptr<Impl> impl)
    : impl_(std::move(impl)) {}

ProjectStore::ProjectStore()
    : ProjectStore(Unavailable(Words("No database is open."))) {}

ProjectStore ProjectStore::Unavailable(std::string reason) {
    return ProjectStore(std::make_unique<Impl>(std::move(reason)));
}

ProjectStore ProjectStore::OpenedWhenUsed(std::string path, DatabaseAccess access,
                                          std::string advice) {
    return ProjectStore(std::make_unique<Impl>(
        Impl::Source{std::move(path), access, DefaultBusyWait, std::move(advice)}));
}

ProjectStore::ProjectStore(const std::string& path, DatabaseAccess access, int busyWait)
    : impl_(std::make_unique<Impl>(Impl::Source{path, access, busyWait, {}})) {
    impl_->Database();
}

ProjectStore::~ProjectStore() = default;
ProjectStore::ProjectStore(ProjectStore&&) noexcept = default;
ProjectStore& ProjectStore::operator=(ProjectStore&&) noexcept = default;

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
    RequireNoControlCharacter("directory", newName);
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
        for (const StoredRow& row : DeleteNamed(database, ProjTab, "Dir", name)) {
            const std::string project = row.TextIn("ProjName");
            // One that is stored in another directory too keeps its rooms there.
            if (Table(database, ProjTab).RowsShowing("ProjName", project).empty()) {
                DeleteSheetsOf(database, project);
            }
        }
        DeleteNamed(database, DirTab, "Directory", name);
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
    std::optional<std::string> found;
    impl_->Read([&] {
        // By its row where that is written alike: to compare every name of a large database with
        // every other takes minutes.
        for (const std::string_view written : {project, std::string_view(wanted)}) {
            const auto rows = Table(impl_->Database(), ProjTab).RowsShowing("ProjName", written);
            if (!rows.empty()) {
                found = rows.front().TextIn("Dir");
                return;
            }
        }
        for (const auto& [directory, name] : AllProjects()) {
            if (StoredName(name) == wanted) {
                found = directory;
                return;
            }
        }
    });
    return found;
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
    RequireNoControlCharacter("project", newName);
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
        DeleteSheetsOf(database, name);
        DeleteNamed(database, ProjTab, "ProjName", name);
    });
}

LoadedProject ProjectStore::Load(std::string_view project) {
    RequireUsable(project);
    LoadedProject loaded;
    loaded.Value.Name = project;
    impl_->Unsure.clear(); // from now on what is loaded counts
    impl_->Read([&] {
        Connection& database = impl_->Database();
        const StoredProject stored = ReadStored(database, project);
        if (stored.Sheets.empty()) {
            loaded.Value.IsNew = true;
            loaded.Value.Sheet = NewSheetNumber(database);
        } else {
            LoadSheet(database, stored, loaded);
        }
        loaded.Mark = MarkOf(stored);
        loaded.Value.Directory = DirectoryOf(project).value_or(std::string());
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
        const StoredProject before = ReadStored(database, project.Name);
        const StoredMark found = MarkOf(before);
        const bool isOwn = std::count(impl_->Unsure.begin(), impl_->Unsure.end(), found) > 0;
        if (!DirectoryOf(project.Name)) {
            result.What = SaveResult::Outcome::Gone;
        } else if (read && *read != found && !isOwn) {
            result.What = SaveResult::Outcome::Changed;
        } else {
            Project stored = StorableProject(project);
            stored.Sheet = SheetNumberToSave(database, project, before.Sheets);
            StoreSheet(database, stored, before.Sheets, shown);
            StoreRoomRows(database, stored.Sheet, stored.Rooms);
            StoreOrderRows(database, stored.Sheet, stored.Orders);
            result.Value = std::move(stored);
            result.Mark = MarkOf(ReadStored(database, project.Name));
            impl_->Unsure.push_back(result.Mark);
        }
    });
    impl_->Unsure.clear();
    return result;
}

void ProjectStore::InOneTransaction(const std::function<void()>& changes) {
    impl_->Change(changes);
}

void ProjectStore::SetBeforeFirstChange(std::function<void()> action) {
    impl_->SetBeforeFirstChange(std::move(action));
}

} // namespace tarn
