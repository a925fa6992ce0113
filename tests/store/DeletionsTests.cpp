#include "Sanitized.h"
#include "base/RunTimeError.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

using namespace tarn::testing;

class Deletions : public ::testing::Test {
  protected:
    Deletions() {
        file_.AddDirectory("KEEP");
        AddFullProject("KEEP", "KEPT", 2);
    }

    /// A project with its sheet, two rooms, and a row in every other table of the sheet.
    void AddFullProject(const std::string& directory, const std::string& project, int number) {
        file_.AddProject(directory, project, number, 2);
        for (const std::string_view table : SheetTables) {
            if (table != MainTab && table != InputData) {
                const std::string value = std::to_string(number);
                file_.Run("INSERT INTO " + std::string(table) + " VALUES (" + value + ")");
            }
        }
    }

    /// Sheet numbers in use, table by table, in the order of deletion.
    Lines NumbersInUse() const {
        Lines numbers;
        RawDatabase raw(file_.Path());
        for (const std::string_view table : SheetTables) {
            const Lines in = raw.Rows("SELECT DISTINCT TabIndex FROM " + std::string(table) +
                                      " ORDER BY TabIndex");
            std::string line(table);
            for (const std::string& number : in) {
                line += " " + number;
            }
            numbers.push_back(line);
        }
        return numbers;
    }

    /// NumbersInUse when every table holds just these.
    static Lines EveryTableHolds(const std::string& numbers) {
        Lines lines;
        for (const std::string_view table : SheetTables) {
            lines.push_back(std::string(table) + numbers);
        }
        return lines;
    }

    /// Every row of every table, with its number.
    Lines Everything() const {
        Lines all;
        RawDatabase raw(file_.Path());
        for (const std::string& table :
             raw.Rows("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name")) {
            for (const std::string& row : raw.Rows("SELECT rowid, * FROM " + table)) {
                all.emplace_back(table).append("|").append(row);
            }
        }
        return all;
    }

    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
};

TEST_F(Deletions, ThereAreTenTablesInAFixedOrder) {
    EXPECT_EQ((Lines(SheetTables.begin(), SheetTables.end())),
              (Lines{"AFillTab", "AngleMCut", "AInputData", "ESTTab", "FillCut", "InputData",
                     "MasterCut", "SAFill", "SFillCut", "MainTab"}));
}

TEST_F(Deletions, AMissingTableIsPassedOver) {
    for (const std::string_view table : SheetTables) {
        if (table != MainTab) {
            file_.Run("DROP TABLE " + std::string(table));
        }
    }
    store_.DeleteProject("KEPT");
    EXPECT_EQ(file_.Rows("SELECT * FROM MainTab"), Lines{});
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
}

TEST_F(Deletions, ATableInAnotherLetterCaseIsEmptied) {
    file_.Run("ALTER TABLE ESTTab RENAME TO X");
    file_.Run("ALTER TABLE X RENAME TO ESTTAB");
    store_.DeleteProject("KEPT");
    EXPECT_EQ(file_.Rows("SELECT * FROM ESTTAB"), Lines{});
}

TEST_F(Deletions, DeletingADirectoryDeletesItsProjectsAndAllTheirData) {
    file_.AddDirectory("GONE");
    AddFullProject("GONE", "A", 5);
    AddFullProject("GONE", "B", 6);
    file_.Run("INSERT INTO ProjTab VALUES ('GONE', 'WITHOUT SHEET', 0)");
    store_.DeleteDirectory("GONE");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    EXPECT_EQ(file_.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), Lines{"KEPT"});
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"KEEP"});
}

TEST_F(Deletions, DeletingADirectoryThatDoesNotExistDeletesNothing) {
    store_.DeleteDirectory("NOWHERE");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"KEEP"});
}

TEST_F(Deletions, ProjectsWithAnyNameAreDeletedAlone) {
    const Lines names = {"DIR", "PROJNAME", "TABINDEX", "O'HARA", "100%", "A;B", "КВАРТИРА"};
    int number = 10;
    for (const std::string& name : names) {
        file_.AddProject("KEEP", name, number++);
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        store_.DeleteProject(names[i]);
        Lines left = {"KEPT"};
        left.insert(left.end(), names.begin() + static_cast<long>(i) + 1, names.end());
        EXPECT_EQ(file_.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), left);
        EXPECT_EQ(file_.Rows("SELECT ProjName FROM MainTab ORDER BY rowid"), left);
    }
}

TEST_F(Deletions, DirectoriesWithAnyNameAreDeletedAlone) {
    const Lines names = {"DIR", "PROJNAME", "TABINDEX", "O'HARA", "100%", "A;B", "КВАРТИРА"};
    int number = 10;
    for (const std::string& name : names) {
        file_.AddDirectory(name);
        file_.AddProject(name, std::string("P").append(std::to_string(number)), number);
        ++number;
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        store_.DeleteDirectory(names[i]);
        Lines left = {"KEEP"};
        left.insert(left.end(), names.begin() + static_cast<long>(i) + 1, names.end());
        EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), left);
        EXPECT_EQ(file_.Rows("SELECT Dir FROM ProjTab ORDER BY rowid"), left);
        EXPECT_EQ(file_.Rows("SELECT count(*) FROM MainTab"), Lines{std::to_string(left.size())});
    }
}

TEST_F(Deletions, ADirectoryWithADoubleQuoteCannotBeDeletedAndNoRowChanges) {
    file_.AddDirectory("A\"B");
    AddFullProject("A\"B", "P", 5);
    EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteDirectory("A\"B"); }),
              "The name A\"B cannot be used: a double quote stands inside it.");
    EXPECT_THROW(store_.DeleteDirectory("X\" or \"1\"=\"1"), DatabaseError);
    EXPECT_THROW(store_.DeleteProject("X\" or \"1\"=\"1"), DatabaseError);
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2 5"));
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), (Lines{"KEEP", "A\"B"}));
}

TEST_F(Deletions, DeletingAProjectDeletesItsRowAndAllItsData) {
    AddFullProject("KEEP", "GONE", 5);
    store_.DeleteProject("GONE");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    EXPECT_EQ(file_.Rows("SELECT Dir, ProjName FROM ProjTab"), Lines{"KEEP|KEPT"});
}

TEST_F(Deletions, DeletingAProjectDeletesEverySheetOfItsName) {
    AddFullProject("KEEP", "GONE", 5);
    AddFullProject("KEEP", "GONE", 6);
    store_.DeleteProject("GONE");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

TEST_F(Deletions, AProjectIsFoundAsItStandsAndInAnotherCaseOfAToZ) {
    file_.AddProject("KEEP", "дом", 5);
    store_.DeleteProject("дом");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    store_.DeleteProject("kept");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(""));
}

/// What a deletion goes through, in its order.
const Lines TablesOfADeletion = {"AFillTab", "AngleMCut", "AInputData", "ESTTab",
                                 "FillCut",  "InputData", "MasterCut",  "SAFill",
                                 "SFillCut", "MainTab",   "ProjTab"};

TEST_F(Deletions, OfAProjectChangeNothingWhenATableRefuses) {
    AddFullProject("KEEP", "GONE", 5);
    const Lines before = Everything();
    for (const std::string& table : TablesOfADeletion) {
        file_.Run("CREATE TRIGGER Stop BEFORE DELETE ON " + table +
                  " BEGIN SELECT RAISE(ABORT, 'stop'); END");
        EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteProject("GONE"); }),
                  table + " cannot be deleted from: stop.");
        EXPECT_EQ(Everything(), before) << table;
        file_.Run("DROP TRIGGER Stop");
    }
    store_.DeleteProject("GONE");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

TEST_F(Deletions, OfADirectoryChangeNothingWhenATableRefuses) {
    file_.AddDirectory("GONE");
    AddFullProject("GONE", "A", 5);
    AddFullProject("GONE", "B", 6);
    const Lines before = Everything();
    Lines tables = TablesOfADeletion;
    tables.emplace_back("DirTab");
    for (const std::string& table : tables) {
        file_.Run("CREATE TRIGGER Stop BEFORE DELETE ON " + table +
                  " BEGIN SELECT RAISE(ABORT, 'stop'); END");
        EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteDirectory("GONE"); }),
                  table + " cannot be deleted from: stop.");
        EXPECT_EQ(Everything(), before) << table;
        file_.Run("DROP TRIGGER Stop");
    }
    store_.DeleteDirectory("GONE");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

TEST_F(Deletions, ATableThatCannotBeReadChangesNothing) {
    file_.Run("ALTER TABLE SFillCut RENAME COLUMN TabIndex TO Other");
    const Lines before = Everything();
    EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteProject("KEPT"); }),
              "SFillCut cannot be read: no such column: TabIndex.");
    EXPECT_EQ(Everything(), before);
}

TEST_F(Deletions, ADirectoryNeedsEachOfTheTablesOfNames) {
    for (const char* table : {"DirTab", "ProjTab", "MainTab"}) {
        file_.Run("ALTER TABLE " + std::string(table) + " RENAME TO Hidden");
        EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteDirectory("KEEP"); }),
                  std::string(table) + " cannot be read: no such table: " + table + ".");
        file_.Run("ALTER TABLE Hidden RENAME TO " + std::string(table));
        EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
        EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"KEEP"});
    }
}

TEST_F(Deletions, WaitForALockOnceAndChangeNothing) {
    AddFullProject("KEEP", "OTHER", 5);
    const Lines before = Everything();
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    const std::string busy = "The database takes no change: another program is using the database. "
                             "Close that program and try again.";
    EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteDirectory("KEEP"); }), busy);
    EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteProject("OTHER"); }), busy);
    other.Run("ROLLBACK");
    EXPECT_EQ(Everything(), before);
    store_.DeleteProject("OTHER");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

TEST_F(Deletions, ThatFailAtTheVeryEndChangeNothing) {
    const Lines before = Everything();
    RawDatabase reader(file_.Path());
    reader.Run("BEGIN");
    reader.Rows("SELECT * FROM MainTab"); // keeps the change out of the file
    EXPECT_NE(DatabaseErrorOf([&] { store_.DeleteDirectory("KEEP"); }).find("another program"),
              std::string::npos);
    reader.Run("COMMIT");
    EXPECT_EQ(Everything(), before);
    store_.DeleteDirectory("KEEP");
    EXPECT_EQ(Everything(), Lines{});
}

TEST_F(Deletions, ASheetWithoutANumberStopsTheDeletion) {
    file_.AddProject("KEEP", "ODD", 5);
    file_.Run("UPDATE MainTab SET TabIndex = NULL WHERE ProjName = 'ODD'");
    const Lines before = Everything();
    for (const auto& action : std::vector<std::function<void()>>{
             [&] { store_.DeleteProject("ODD"); }, [&] { store_.DeleteDirectory("KEEP"); }}) {
        EXPECT_EQ(DatabaseErrorOf(action),
                  "A project's sheet has no number; its data cannot be deleted.");
    }
    EXPECT_EQ(Everything(), before);
}

TEST_F(Deletions, ASheetNumberPast32767OverflowsAndChangesNothing) {
    file_.AddProject("KEEP", "ODD", 32768);
    const Lines before = Everything();
    EXPECT_THROW(store_.DeleteProject("ODD"), RunTimeError);
    EXPECT_THROW(store_.DeleteDirectory("KEEP"), RunTimeError);
    EXPECT_EQ(Everything(), before);
}

/// VILLA, in the directory HOUSES, and HUT, elsewhere, have a sheet numbered 1.
struct SharedNumbers : ::testing::Test {
    SharedNumbers() {
        file.AddDirectory("HOUSES");
        file.AddProject("HOUSES", "VILLA", 1, 2);
        file.AddProject("MAY", "CABIN", 2, 1);
        file.AddProject("MAY", "HUT", 1, 4);
    }
    Lines Sheets() const {
        return file.Rows("SELECT TabIndex, ProjName, ObjNum FROM MainTab ORDER BY rowid");
    }
    Lines Rooms() const {
        return file.Rows("SELECT TabIndex, count(*) FROM InputData GROUP BY TabIndex");
    }

    TestDatabase file;
    ProjectStore store = file.Open(ShortWait);
};

TEST_F(SharedNumbers, ADeletedProjectLeavesTheSheetAndTheRoomsOfTheOther) {
    store.DeleteProject("VILLA");
    EXPECT_EQ(Sheets(), (Lines{"2|CABIN|1", "1|HUT|4"}));
    EXPECT_EQ(Rooms(), (Lines{"1|6", "2|1"})) << "whose the rows are cannot be told";
    store.DeleteProject("hut");
    EXPECT_EQ(Sheets(), Lines{"2|CABIN|1"});
    EXPECT_EQ(Rooms(), Lines{"2|1"}) << "with the last project of the number they go";
}

TEST_F(SharedNumbers, ADeletedDirectoryLeavesTheSheetsAndTheRoomsOfOthers) {
    file.AddProject("HOUSES", "TOWER", 1, 1);
    store.DeleteDirectory("HOUSES");
    EXPECT_EQ(Sheets(), (Lines{"2|CABIN|1", "1|HUT|4"}));
    EXPECT_EQ(Rooms(), (Lines{"1|7", "2|1"}));
    EXPECT_EQ(file.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), (Lines{"CABIN", "HUT"}));
}

TEST_F(SharedNumbers, ADirectoryWhoseProjectsShareANumberAmongThemselvesIsDeletedWhole) {
    store.DeleteDirectory("MAY"); // HUT leaves number 1 to VILLA
    ASSERT_EQ(Sheets(), Lines{"1|VILLA|2"});
    file.AddProject("HOUSES", "TOWER", 1, 1);
    store.DeleteDirectory("HOUSES");
    EXPECT_EQ(Sheets(), Lines{});
    EXPECT_EQ(Rooms(), Lines{});
}

TEST_F(SharedNumbers, AnotherSheetsBadNumberStopsNoDeletion) {
    for (const char* bad : {"NULL", "'many'"}) {
        SCOPED_TRACE(bad);
        file.AddProject("MAY", "SHED", 9);
        file.Run("UPDATE MainTab SET TabIndex = " + std::string(bad) + " WHERE ProjName = 'HUT'");
        store.DeleteProject("SHED");
        EXPECT_EQ(file.Rows("SELECT ProjName FROM MainTab ORDER BY rowid"),
                  (Lines{"VILLA", "CABIN", "HUT"}));
    }
}

TEST_F(SharedNumbers, ADeletionNeedsNoNumber) {
    file.AddProject("HOUSES", "TOWER", 1, 1);
    file.AddProject("MAY", "LAST", 32767);
    store.DeleteDirectory("HOUSES");
    EXPECT_EQ(Sheets(), (Lines{"2|CABIN|1", "1|HUT|4", "32767|LAST|0"}));
    EXPECT_EQ(Rooms(), (Lines{"1|7", "2|1"}));
}

TEST_F(SharedNumbers, ARefusedDeletionChangesNothing) {
    file.AddDirectory("A\"B");
    file.AddProject("A\"B", "TOWER", 1, 1);
    file.AddProject("MAY", "X\"Y", 1, 1);
    const auto everything = [&] {
        Lines all = Sheets();
        for (const char* table : {"InputData", "ProjTab", "DirTab"}) {
            for (const std::string& row : file.Rows("SELECT rowid, * FROM " + std::string(table))) {
                all.push_back(row);
            }
        }
        return all;
    };
    const Lines before = everything();
    EXPECT_THROW(store.DeleteDirectory("A\"B"), DatabaseError);
    EXPECT_THROW(store.DeleteProject("X\"Y"), DatabaseError);
    EXPECT_EQ(everything(), before);
}

TEST_F(SharedNumbers, ADeletionThatFailsLeavesTheNumbersAsTheyWere) {
    file.Run("CREATE TRIGGER Stop BEFORE DELETE ON DirTab BEGIN SELECT RAISE(ABORT, 'stop'); END");
    const Lines sheets = Sheets();
    EXPECT_THROW(store.DeleteDirectory("HOUSES"), DatabaseError);
    EXPECT_EQ(Sheets(), sheets);
    EXPECT_EQ(Rooms(), (Lines{"1|6", "2|1"}));
}

TEST_F(Deletions, ANumberWithAFractionTakesNoRowOfAnother) {
    AddFullProject("KEEP", "ODD", 5);
    for (const std::string_view table : SheetTables) {
        file_.Run("UPDATE " + std::string(table) + " SET TabIndex = 2.4 WHERE TabIndex = 5");
    }
    store_.DeleteProject("ODD");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

TEST_F(Deletions, AProjectThatIsInAnotherDirectoryTooKeepsItsRooms) {
    file_.AddDirectory("GONE");
    file_.Run("INSERT INTO ProjTab VALUES ('GONE', 'KEPT', 0)");
    store_.DeleteDirectory("GONE");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    EXPECT_EQ(file_.Rows("SELECT Dir, ProjName FROM ProjTab"), Lines{"KEEP|KEPT"});
    store_.DeleteDirectory("KEEP");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(""));
}

TEST_F(Deletions, EmptyTheTableOfOrdersWhereThereIsOne) {
    file_.Run("CREATE TABLE OrderData (TabIndex INTEGER, Carpet INTEGER)");
    file_.Run("INSERT INTO OrderData VALUES (2, 0), (2, 1), (3, 0)");
    store_.DeleteProject("KEPT");
    EXPECT_EQ(file_.Rows("SELECT * FROM OrderData"), Lines{"3|0"});
}

TEST_F(Deletions, ChangeNothingWhereARowIsSilentlyKept) {
    const Lines before = Everything();
    Lines tables = TablesOfADeletion;
    tables.emplace_back("DirTab");
    for (const std::string& table : tables) {
        file_.Run("CREATE TRIGGER Keep BEFORE DELETE ON " + table +
                  " BEGIN SELECT RAISE(IGNORE); END");
        EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteDirectory("KEEP"); }),
                  table + " cannot be deleted from: the database keeps a row as it was.");
        EXPECT_EQ(Everything(), before) << table;
        file_.Run("DROP TRIGGER Keep");
    }
    store_.DeleteDirectory("KEEP");
    EXPECT_EQ(Everything(), Lines{});
}

TEST_F(Deletions, ChangeNothingWhereARowComesBack) {
    const Lines before = Everything();
    Lines tables = TablesOfADeletion;
    tables.emplace_back("DirTab");
    for (const std::string& table : tables) {
        const std::string field = table == "ProjTab"  ? "ProjName"
                                  : table == "DirTab" ? "Directory"
                                                      : "TabIndex";
        std::string trigger = "CREATE TRIGGER Again AFTER DELETE ON ";
        trigger.append(table).append(" BEGIN INSERT INTO ").append(table).append(" (");
        trigger.append(field).append(") VALUES (OLD.").append(field).append("); END");
        file_.Run(trigger);
        EXPECT_EQ(DatabaseErrorOf([&] { store_.DeleteDirectory("KEEP"); }),
                  table + " cannot be deleted from: the database keeps a row as it was.");
        EXPECT_EQ(Everything(), before) << table;
        file_.Run("DROP TRIGGER Again");
    }
}

TEST_F(Deletions, ChangeNothingWhereAViewStandsInThePlaceOfATable) {
    for (const std::string_view table : SheetTables) {
        const std::string name(table);
        SCOPED_TRACE(name);
        file_.Run("ALTER TABLE " + name + " RENAME TO Hidden");
        file_.Run("CREATE VIEW " + name + " AS SELECT * FROM Hidden");
        const Lines before = Everything();
        EXPECT_THROW(store_.DeleteProject("KEPT"), DatabaseError);
        EXPECT_THROW(store_.DeleteDirectory("KEEP"), DatabaseError);
        file_.Run("CREATE TRIGGER Take INSTEAD OF DELETE ON " + name + " BEGIN SELECT 1; END");
        EXPECT_THROW(store_.DeleteProject("KEPT"), DatabaseError);
        EXPECT_EQ(Everything(), before);
        file_.Run("DROP VIEW " + name);
        file_.Run("ALTER TABLE Hidden RENAME TO " + name);
    }
    store_.DeleteProject("KEPT");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(""));
}

TEST_F(Deletions, TakeNoLongForVeryManyRows) {
    AddFullProject("KEEP", "FULL", 5);
    RawDatabase raw(file_.Path());
    raw.Run("WITH RECURSIVE n(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM n WHERE i < 200000) "
            "INSERT INTO InputData (ObjNum, TabIndex) SELECT i, 5 FROM n");
    store_.DeleteProject("FULL");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

/// What a child process that deletes the directory KEEP comes to, when no file may grow beyond
/// `limit` bytes: true for done, false for a DatabaseError.
bool DeletesWithin(const TestDatabase& file, rlim_t limit) {
    constexpr int NotBounded = 2;
    const pid_t child = fork();
    if (child == 0) {
        ProjectStore store = file.Open();
        const rlimit bounds{limit, limit};
        if (signal(SIGXFSZ, SIG_IGN) == SIG_ERR || setrlimit(RLIMIT_FSIZE, &bounds) != 0) {
            _exit(NotBounded);
        }
        try {
            store.DeleteDirectory("KEEP");
            _exit(0);
        } catch (const DatabaseError&) {
            _exit(1);
        }
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), NotBounded);
    return WEXITSTATUS(status) == 0;
}

TEST_F(Deletions, ChangeNothingWhereverTheDiskFails) {
    for (int project = 0; project < 20; ++project) {
        AddFullProject("KEEP", "P" + std::to_string(project), 10 + project);
    }
    const Lines before = Everything();
    constexpr rlim_t Step = testing::UnlessSanitized(1400, 5600);
    int failures = 0;
    rlim_t limit = 0;
    while (!DeletesWithin(file_, limit)) {
        EXPECT_EQ(Everything(), before) << limit;
        ++failures;
        limit += Step;
    }
    EXPECT_GT(failures, testing::UnlessSanitized(10, 3));
    EXPECT_EQ(Everything(), Lines{});
}

TEST_F(Deletions, ThatAreCutOffChangeNothing) {
    AddFullProject("KEEP", "P", 5);
    const Lines before = Everything();
    store_ = ProjectStore();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ProjectStore store = file_.Open();
        store.InOneTransaction([&] {
            store.DeleteDirectory("KEEP");
            _exit(0);
        });
        _exit(1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0) << "the child did not get as far as it should";
    EXPECT_EQ(Everything(), before);
}

} // namespace
} // namespace tarn
