#include "Sanitized.h"
#include "store/Check.h"
#include "store/OtherProgram.h"
#include "store/Repair.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

class ARepair : public ::testing::Test {
  protected:
    ARepair() {
        file_.AddHouses();
        file_.Run("UPDATE InputData SET RoomW = 300 WHERE TabIndex = 2");
        file_.Run("INSERT INTO FillCut VALUES (1), (2)");
    }

    std::string Target() const { return target_.Path("Repaired.mdb"); }
    /// Run the statements, repair, and see that the copy is sound and the source as it was.
    Lines Repair(const Lines& statements = {}) {
        for (const std::string& statement : statements) {
            file_.Run(statement);
        }
        const std::string before = ReadFile(file_.Path());
        fs::remove(Target());
        Lines changes = RepairDatabaseFile(file_.Path(), Target(), ShortWait);
        EXPECT_EQ(ReadFile(file_.Path()), before);
        EXPECT_EQ(file_.Folder().Content(), Lines{"Tarn.mdb"});
        EXPECT_EQ(CheckDatabaseFile(Target()), Lines{});
        return changes;
    }
    Lines Rows(const std::string& query) const { return RawDatabase(Target()).Rows(query); }
    Lines Projects() const { return Rows("SELECT Dir, ProjName FROM ProjTab ORDER BY rowid"); }
    /// The widths of the rooms of a project by their places.
    Lines Widths(const std::string& project) const {
        return Rows("SELECT RoomW FROM InputData JOIN MainTab USING (TabIndex) WHERE ProjName = " +
                    Literal(project) + " ORDER BY InputData.ObjNum");
    }

    TestDatabase file_;
    TestFolder target_;
};

TEST_F(ARepair, OfASoundFileCopiesEveryRow) {
    EXPECT_EQ(Repair({"UPDATE MainTab SET EnteredMetric = 1, TileLabelNUm = 1 WHERE TabIndex = 2",
                      "UPDATE InputData SET RoomRemark = 'Bär, 床', BaseSty = 8, CTType = 11"}),
              Lines{});
    for (const char* table : {"DirTab", "ProjTab", "MainTab", "InputData", "FillCut"}) {
        const std::string query = "SELECT rowid, * FROM " + std::string(table);
        EXPECT_EQ(Rows(query), file_.Rows(query)) << table;
    }
}

TEST_F(ARepair, NeverTouchesAnExistingTarget) {
    WriteFile(Target(), "in the way");
    EXPECT_THROW(RepairDatabaseFile(file_.Path(), Target()), DatabaseError);
    EXPECT_THROW(RepairDatabaseFile(file_.Path(), file_.Path()), DatabaseError);
    EXPECT_EQ(ReadFile(Target()), "in the way");
}

TEST_F(ARepair, GivesASheetWithoutAProjectOne) {
    EXPECT_EQ(Repair({"DELETE FROM ProjTab WHERE ProjName = 'JONES'"}),
              (Lines{"Directories that were made for projects which no screen showed: REPAIRED.",
                     "Sheets without a project, for which one was made: number 2 of \"JONES\", now "
                     "JONES in REPAIRED."}));
    EXPECT_EQ(Projects(), (Lines{"HOUSES|SMITH", "MARCH|NEW", "REPAIRED|JONES"}));
    EXPECT_EQ(Widths("JONES"), Lines{"300"});
}

TEST_F(ARepair, MakesAProjectOfRoomsWithoutASheet) {
    EXPECT_EQ(Repair({"DELETE FROM MainTab WHERE ProjName = 'SMITH'",
                      "UPDATE InputData SET TabIndex = NULL WHERE TabIndex = 2",
                      "UPDATE MainTab SET ObjNum = 0"})
                  .size(),
              4U);
    EXPECT_EQ(Projects(), (Lines{"HOUSES|SMITH", "HOUSES|JONES", "MARCH|NEW",
                                 "REPAIRED|ROOMS OF SHEET 1", "REPAIRED|ROOMS WITHOUT A SHEET"}));
    EXPECT_EQ(Widths("ROOMS OF SHEET 1"), (Lines{"100", "101", "102"}));
    EXPECT_EQ(Widths("ROOMS WITHOUT A SHEET"), Lines{"300"});
}

TEST_F(ARepair, MakesAProjectOfASecondSheetThatHasRooms) {
    const Lines changes =
        Repair({"INSERT INTO MainTab VALUES (3, 'smith', 1, NULL, 0.01, 0, 1, -500, -500, 1)",
                "INSERT INTO InputData VALUES (0, 400, 1, '', '', 0, 0, 3)",
                "INSERT INTO MainTab VALUES (4, 'SMITH', 0, NULL, 0.01, 0, 1, -500, -500, 0)"});
    EXPECT_EQ(changes,
              (Lines{"Second sheets of a project, which became projects of their own: number 3 of "
                     "\"smith\", now SMITH 2 in HOUSES.",
                     "Sheets without rooms that were left out: number 4 of \"SMITH\"."}));
    EXPECT_EQ(Widths("SMITH 2"), Lines{"400"});
    EXPECT_EQ(Rows("SELECT EnteredMetric FROM MainTab WHERE ProjName = 'SMITH 2'"), Lines{"1"});
}

TEST_F(ARepair, GivesProjectsUnderOneNumberEachTheRooms) {
    EXPECT_EQ(
        Repair({"UPDATE MainTab SET TabIndex = 1", "DELETE FROM InputData WHERE TabIndex = 2"}),
        (Lines{"Projects that shared their rooms with others, and have them all now: SMITH.",
               "Projects that shared their rooms with others, and have them all now: JONES.",
               "Rows of sheets that are not there, left out: FillCut, row 2."}));
    EXPECT_EQ(Widths("SMITH"), (Lines{"100", "101", "102"}));
    EXPECT_EQ(Widths("JONES"), Lines{"100"});
}

TEST_F(ARepair, LosesNoRoomThatNothingShowed) {
    const Lines changes =
        Repair({"INSERT INTO InputData VALUES (1, 500, 1, '', '', 0, 0, 1)",   // the last counts
                "INSERT INTO InputData VALUES (2, 102, 202, '', '', 0, 0, 1)", // the same again
                "INSERT INTO InputData VALUES (7, 507, 1, '', '', 0, 0, 1)",
                "INSERT INTO InputData VALUES (NULL, 508, 1, '', '', 0, 0, 1)",
                "UPDATE InputData SET ObjNum = 600 WHERE TabIndex = 2"});
    EXPECT_EQ(Widths("SMITH"), (Lines{"100", "500", "102"}));
    EXPECT_EQ(Widths("SMITH 2"), (Lines{"101", "507", "508"}));
    EXPECT_EQ(Widths("JONES"), Lines{"0"});
    EXPECT_EQ(Widths("JONES 2"), Lines{"300"});
    EXPECT_EQ(changes,
              (Lines{"Rooms that were stored twice alike: SMITH, room 3.",
                     "Rooms that their project did not show, which are in one of their own now: 3, "
                     "now SMITH 2 in HOUSES.",
                     "Rooms that their project did not show, which are in one of their own now: 1, "
                     "now JONES 2 in HOUSES.",
                     "Rooms that could not be found and are empty now: JONES, room 1."}));
}

TEST_F(ARepair, KeepsEveryRoomOfASheetOfThousands) {
    Repair({"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1200) "
            "INSERT INTO InputData SELECT 0, 1000 + i, 1, '', '', 0, 0, 9 FROM n"});
    EXPECT_EQ(Rows("SELECT count(DISTINCT RoomW) FROM InputData WHERE RoomW > 1000"),
              Lines{"1200"});
    EXPECT_EQ(Rows("SELECT ProjName, ObjNum FROM MainTab WHERE ProjName LIKE 'ROOMS%'"),
              (Lines{"ROOMS OF SHEET 9|501", "ROOMS OF SHEET 9 2|501", "ROOMS OF SHEET 9 3|198"}));
}

TEST_F(ARepair, TellsEveryValueThatItChanges) {
    const Lines changes =
        Repair({"UPDATE InputData SET RoomW = -5, CTType = 12 WHERE ObjNum = 1",
                "UPDATE InputData SET RoomL = 12.5, RoomRemark = 'a' || char(9) || char(65534) "
                "WHERE ObjNum = 2",
                "UPDATE MainTab SET DigScale = 'x', ObjNum = NULL, EnteredMetric = 7 "
                "WHERE TabIndex = 2"});
    EXPECT_EQ(
        changes,
        (Lines{"Values that were changed: JONES: ObjNum nothing became 1.",
               "Values that were changed: SMITH, room 2: RoomW -5 became 0.",
               "Values that were changed: SMITH, room 2: CTType 12 became 0.",
               "Values that were changed: SMITH, room 3: RoomL 12.5 became 12.",
               ("Values that were changed: SMITH, room 3: RoomRemark \"a\uFFFD\uFFFD\" became "
                "\"a\uFFFD\uFFFD\"."),
               "Values that were changed: JONES: DigScale \"x\" became 0.01.",
               "Values that were changed: JONES: EnteredMetric 7 became 0."}));
    EXPECT_EQ(Rows("SELECT RoomL FROM InputData WHERE TabIndex = 1 ORDER BY ObjNum"),
              (Lines{"200", "201", "12"}));
}

TEST_F(ARepair, MendsNamesAndKeepsThemApart) {
    const Lines changes =
        Repair({"INSERT INTO ProjTab VALUES ('houses', 'a/b', 0), ('MARCH', 'A-B', 0), "
                "('MÄRZ', 'Zoë', 0), (NULL, NULL, 0), ('MAY', 'smith', 0)",
                "INSERT INTO DirTab VALUES ('Houses'), (NULL), ('" + std::string(70, 'X') + "')",
                "INSERT INTO MainTab VALUES (3, 'zoë', 0, NULL, 0.01, 0, 1, -500, -500, 0)"});
    EXPECT_EQ(Projects(), (Lines{"HOUSES|SMITH", "HOUSES|JONES", "MARCH|NEW", "HOUSES|A-B",
                                 "MARCH|A-B 2", "MÄRZ|ZOË", "REPAIRED|WITHOUT A NAME"}));
    EXPECT_EQ(Rows("SELECT Directory FROM DirTab"),
              (Lines{"HOUSES", std::string(64, 'X'), "MÄRZ", "REPAIRED"}));
    EXPECT_EQ(Rows("SELECT ProjName FROM MainTab WHERE TabIndex = 3"), Lines{"ZOË"});
    EXPECT_NE(std::find(changes.begin(), changes.end(),
                        "Names that were changed: \"a/b\" became \"A-B\"."),
              changes.end());
}

TEST_F(ARepair, GivesWrongNumbersANewOne) {
    Repair({"UPDATE MainTab SET TabIndex = 40000 WHERE TabIndex = 1",
            "UPDATE InputData SET TabIndex = 40000 WHERE TabIndex = 1",
            "UPDATE FillCut SET TabIndex = 40000 WHERE TabIndex = 1"});
    EXPECT_EQ(Widths("SMITH"), (Lines{"100", "101", "102"}));
    EXPECT_EQ(Rows("SELECT f.TabIndex = m.TabIndex FROM FillCut f, MainTab m "
                   "WHERE m.ProjName = 'SMITH' ORDER BY f.rowid"),
              (Lines{"1", "0"}));
}

TEST_F(ARepair, KeepsTheRequestsOfOrdersWhereThereAreAny) {
    EXPECT_EQ(Repair({"CREATE TABLE OrderData (TabIndex INTEGER, Carpet INTEGER, Metric INTEGER, "
                      "Request TEXT COLLATE NOCASE)",
                      "CREATE INDEX OrderDataTabIndex ON OrderData (TabIndex)",
                      "INSERT INTO OrderData VALUES (2, 3, 1, '{\"rolls\": [{\"width\": "
                      "\"366cm\"}]}'), (9, 1, 0, '{}')"}),
              Lines{"Rows of sheets that are not there, left out: OrderData, row 2."});
    EXPECT_EQ(Rows("SELECT * FROM OrderData"),
              Lines{"2|3|1|{\"rolls\": [{\"width\": \"366cm\"}]}"});
}

TEST_F(ARepair, LeavesOutRequestsOfOrdersThatNoLoadTakes) {
    const std::string request = R"('{"rolls": [{"width": "12ft"}]}')";
    EXPECT_EQ(Repair({("CREATE TABLE OrderData (TabIndex INTEGER, Carpet INTEGER, Metric INTEGER, "
                       "Request TEXT COLLATE NOCASE)"),
                      "CREATE INDEX OrderDataTabIndex ON OrderData (TabIndex)",
                      "UPDATE MainTab SET TabIndex = 40000 WHERE ProjName = 'SMITH'",
                      "UPDATE InputData SET TabIndex = 40000 WHERE TabIndex = 1",
                      "UPDATE FillCut SET TabIndex = 40000 WHERE TabIndex = 1",
                      "INSERT INTO OrderData VALUES (40000, 1, 0, " + request + ")",
                      "INSERT INTO OrderData VALUES (2, 1, 0, '{')",
                      "INSERT INTO OrderData VALUES (2, NULL, 0, " + request + ")",
                      "INSERT INTO OrderData VALUES (2, 3, 1, " + request + ")",
                      "INSERT INTO OrderData VALUES (2, 3, 0, " + request + ")"}),
              (Lines{"Requests for orders that cannot be read, left out: OrderData, row 2.",
                     "Requests for orders that cannot be read, left out: OrderData, row 3.",
                     "Requests for an order that a later one of the carpet replaced, left out: "
                     "OrderData, row 4."}));
    EXPECT_EQ(Rows("SELECT TabIndex, Carpet, Metric FROM OrderData ORDER BY Carpet"),
              (Lines{"0|1|0", "2|3|0"}));
    const LoadedProject loaded = ProjectStore(Target(), DatabaseAccess::ReadOnly).Load("SMITH");
    EXPECT_EQ(loaded.Value.Orders.size(), 1U);
}

TEST_F(ARepair, MakesMissingTablesAndLeavesOutWhatIsAnothers) {
    EXPECT_EQ(Repair({"DROP TABLE DirTab", "DROP TABLE SAFill", "DROP TABLE ESTTab",
                      "CREATE VIEW ESTTab AS SELECT TabIndex FROM FillCut",
                      "CREATE TABLE Extra (x)", "ALTER TABLE InputData ADD COLUMN Extra",
                      "CREATE TRIGGER Stop BEFORE INSERT ON InputData BEGIN SELECT 1; END"}),
              (Lines{"Tables that were missing and are empty now: DirTab.",
                     "Tables that were missing and are empty now: SAFill.",
                     "Directories that were made for projects which no screen showed: HOUSES.",
                     "What another program put there, left out: field Extra of InputData.",
                     "What another program put there, left out: view ESTTab.",
                     "What another program put there, left out: table Extra.",
                     "What another program put there, left out: trigger Stop."}));
    EXPECT_EQ(Rows("SELECT TabIndex FROM ESTTab"), (Lines{"1", "2"}));
}

/// A file of 200 projects with 20 rooms each, some of whose pages are then spoilt.
class ARepairOfADamagedFile : public ARepair {
  protected:
    static constexpr std::size_t PageSize = 4096;

    ARepairOfADamagedFile() {
        file_.Run("WITH RECURSIVE n(i) AS (SELECT 10 UNION ALL SELECT i + 1 FROM n WHERE i < 209) "
                  "INSERT INTO ProjTab SELECT 'HOUSES', 'P' || i, 0 FROM n");
        file_.Run("WITH RECURSIVE n(i) AS (SELECT 10 UNION ALL SELECT i + 1 FROM n WHERE i < 209) "
                  "INSERT INTO MainTab SELECT i, 'P' || i, 20, NULL, 0.01, 0, 1, -500, -500, 0 "
                  "FROM n");
        file_.Run(
            "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 3999) "
            "INSERT INTO InputData SELECT i % 20, 1000 + i, 1, '', 'remark ' || i, 0, 0, 10 + "
            "i / 20 FROM n");
    }

    int RoomsKept() const {
        return std::stoi(
            Rows("SELECT count(DISTINCT RoomW) FROM InputData WHERE RoomW >= 1000").front());
    }
};

TEST_F(ARepairOfADamagedFile, KeepsTheRowsBeforeAndBehindEverySpoiltPage) {
    std::string bytes = ReadFile(file_.Path());
    int spoilt = 0;
    for (const char* remark : {"remark 1000", "remark 1500", "remark 3000"}) {
        const std::size_t page = bytes.find(remark) / PageSize;
        std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(page * PageSize), PageSize, 'x');
        ++spoilt;
    }
    WriteFile(file_.Path(), bytes);
    const Lines changes = Repair();
    EXPECT_EQ(std::count_if(changes.begin(), changes.end(),
                            [](const std::string& line) {
                                return line.starts_with("Rows that cannot be read and are left "
                                                        "out: InputData, behind row ");
                            }),
              spoilt);
    EXPECT_GT(RoomsKept(), 3500);
    EXPECT_LT(RoomsKept(), 4000);
    EXPECT_EQ(Widths("SMITH"), (Lines{"100", "101", "102"}));
    EXPECT_EQ(Widths("P209").back(), "4999");
}

TEST_F(ARepairOfADamagedFile, ReadsAFileThatIsCutShort) {
    const std::string whole = ReadFile(file_.Path());
    WriteFile(file_.Path(), whole.substr(0, whole.size() / 2));
    Repair();
    EXPECT_GT(RoomsKept(), 500);
}

TEST_F(ARepairOfADamagedFile, SpoiltAnywhereGivesASoundFileOrASentence) {
    const std::string whole = ReadFile(file_.Path());
    constexpr std::size_t Step = testing::UnlessSanitized(11, 33);
    int repaired = 0;
    for (std::size_t page = 0; page < whole.size() / PageSize; page += Step) {
        SCOPED_TRACE(page);
        std::string bytes = whole;
        const std::size_t begin = page * PageSize + (page == 0 ? 100 : 0);
        for (std::size_t i = begin; i < (page + 1) * PageSize; i += 7) {
            bytes.at(i) = static_cast<char>(bytes.at(i) ^ 0x55);
        }
        WriteFile(file_.Path(), bytes);
        try {
            Repair();
            ++repaired;
        } catch (const DatabaseError& error) {
            EXPECT_NE(std::string(error.what()).find("Nothing can be read"), std::string::npos)
                << error.what();
            EXPECT_FALSE(fs::exists(Target()));
        }
    }
    EXPECT_GT(repaired, testing::UnlessSanitized(3, 1));
}

TEST_F(ARepair, KeepsTheRowsOfAViewInThePlaceOfATable) {
    const Lines changes = Repair(
        {"ALTER TABLE InputData RENAME TO Kept", "CREATE VIEW InputData AS SELECT * FROM Kept"});
    EXPECT_EQ(changes, (Lines{"What another program put there, left out: table Kept.",
                              "What another program put there, left out: view InputData."}));
    EXPECT_EQ(Widths("SMITH"), (Lines{"100", "101", "102"}));
    EXPECT_EQ(Widths("JONES"), Lines{"300"});
}

TEST_F(ARepair, ReadsNoMoreOfAViewThanAFileCanHold) {
    Repair({"DROP TABLE DirTab",
            "CREATE VIEW DirTab AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
            "FROM n) SELECT 'D' || (i % 3) AS Directory FROM n"});
    EXPECT_EQ(Rows("SELECT Directory FROM DirTab"), (Lines{"D1", "D2", "D0", "HOUSES"}));
}

TEST_F(ARepair, KeepsTheRowsOfATableWithoutRowNumbers) {
    EXPECT_EQ(Repair({"CREATE TABLE Kept (TabIndex, ObjNum, RoomW, RoomL, RoomNoStr, RoomRemark, "
                      "CTType, BaseSty, PRIMARY KEY (TabIndex, ObjNum)) WITHOUT ROWID",
                      "INSERT INTO Kept SELECT TabIndex, ObjNum, RoomW, RoomL, RoomNoStr, "
                      "RoomRemark, CTType, BaseSty FROM InputData",
                      "DROP TABLE InputData", "ALTER TABLE Kept RENAME TO InputData"}),
              Lines{});
    EXPECT_EQ(Widths("SMITH"), (Lines{"100", "101", "102"}));
    EXPECT_EQ(Widths("JONES"), Lines{"300"});
}

TEST_F(ARepair, SaysThatAnotherProgramKeepsTheFileToItself) {
    const OtherProgram other(file_.Path(), {"BEGIN EXCLUSIVE"});
    const std::string text =
        DatabaseErrorOf([this] { RepairDatabaseFile(file_.Path(), Target(), ShortWait); });
    EXPECT_NE(text.find(file_.Path()), std::string::npos) << text;
    EXPECT_NE(text.find("another program is using the database"), std::string::npos) << text;
    EXPECT_EQ(target_.Content(), Lines{});
}

TEST_F(ARepair, RefusesAFileOfWhichNothingCanBeRead) {
    std::string bytes = ReadFile(file_.Path());
    std::fill(bytes.begin() + 100, bytes.end(), 'x');
    WriteFile(file_.Path(), bytes);
    EXPECT_EQ(DatabaseErrorOf([this] { Repair(); }),
              "Nothing can be read of the database file " + file_.Path() +
                  ". Put a backup in its place with \"tarn-data restore\".");
    EXPECT_EQ(target_.Content(), Lines{});
    WriteFile(file_.Path(), "no database");
    EXPECT_THROW(Repair(), DatabaseError);
}

TEST_F(ARepair, TakesBackAChangeThatACrashCutOffInTheCopyAlone) {
    const TestFolder crashed;
    {
        RawDatabase writer(file_.Path());
        writer.Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                   "INSERT INTO DirTab SELECT 'OLD ' || i FROM n");
        writer.Run("PRAGMA synchronous = FULL");
        writer.Run("PRAGMA cache_size = 1");
        writer.Run("BEGIN");
        writer.Run("UPDATE DirTab SET Directory = 'N' || Directory");
        for (const char* name : {"Tarn.mdb", "Tarn.mdb-journal"}) {
            WriteFile(crashed.Path(name), ReadFile(file_.Folder().Path(name)));
        }
        writer.Run("ROLLBACK");
    }
    const std::string journal = ReadFile(crashed.Path("Tarn.mdb-journal"));
    EXPECT_EQ(RepairDatabaseFile(crashed.Path("Tarn.mdb"), Target()),
              Lines{"A change that a crash cut off is taken back."});
    EXPECT_EQ(Rows("SELECT count(*) FROM DirTab WHERE Directory LIKE 'OLD%'"), Lines{"3000"});
    EXPECT_EQ(ReadFile(crashed.Path("Tarn.mdb-journal")), journal);
}

} // namespace
} // namespace tarn
