#include "files/SystemCallFaults.h"
#include "store/Check.h"
#include "store/DatabaseFile.h"
#include "store/Findings.h"
#include "store/Journal.h"
#include "store/OtherProgram.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

/// A way in which another program can leave a database out of order.
struct Disorder {
    const char* Name;
    Lines Statements;
    Lines Findings;
};

void Fill(const TestDatabase& file) {
    file.AddHouses();
    file.Run("INSERT INTO FillCut VALUES (1)");
}

class ACheck : public ::testing::TestWithParam<Disorder> {};

TEST_P(ACheck, NamesWhatAnotherProgramLeftOutOfOrder) {
    const TestDatabase file;
    Fill(file);
    ASSERT_EQ(CheckDatabaseFile(file.Path()), Lines{});
    for (const std::string& statement : GetParam().Statements) {
        file.Run(statement);
    }
    const std::string before = ReadFile(file.Path());
    EXPECT_EQ(CheckDatabaseFile(file.Path()), GetParam().Findings);
    EXPECT_EQ(ReadFile(file.Path()), before);
    EXPECT_EQ(file.Folder().Content(), Lines{"Tarn.mdb"});
}

const std::string Unstorable =
    "holds what no text may: a control character, U+FFFE, U+FFFF, or bytes that are not UTF-8";

INSTANTIATE_TEST_SUITE_P(
    CheckDatabaseFile, ACheck,
    ::testing::Values(
        // --- tables ---
        Disorder{"AView",
                 {"DROP TABLE SAFill", "CREATE VIEW SAFill AS SELECT TabIndex FROM FillCut"},
                 {"In the place of the table SAFill is a view, which stores nothing."}},
        Disorder{
            "ATableWithoutRowNumbers",
            {"DROP TABLE DirTab", "CREATE TABLE DirTab (Directory TEXT PRIMARY KEY) WITHOUT ROWID"},
            {"In the place of the table DirTab is one without row numbers."}},
        Disorder{"ATrigger",
                 {"CREATE TRIGGER Ignore BEFORE INSERT ON InputData BEGIN "
                  "SELECT RAISE(IGNORE); END"},
                 {"Triggers of another program, which may change or refuse what is stored: Ignore "
                  "on InputData."}},
        Disorder{"AUniqueIndex",
                 {"CREATE UNIQUE INDEX Once ON ProjTab (ProjName)"},
                 {"Indexes of another program that refuse a value which is there already: Once on "
                  "ProjTab."}},
        Disorder{"AMissingIndex",
                 {"DROP INDEX InputDataTabIndex"},
                 {"Fields without their index, by which reading becomes slow: TabIndex on "
                  "InputData."}},
        // --- directories and projects ---
        Disorder{"ADirectoryTwice",
                 {"INSERT INTO DirTab VALUES ('HOUSES')"},
                 {"Directories with more than one row: HOUSES."}},
        Disorder{"ADirectoryWithoutAName",
                 {"INSERT INTO DirTab VALUES (NULL)", "INSERT INTO DirTab VALUES ('  ')"},
                 {"Directory in DirTab is empty: row 2 (nothing); row 3 (\"  \")."}},
        Disorder{"ALongName",
                 {"INSERT INTO DirTab VALUES ('" + std::string(65, 'X') + "')"},
                 {"Directory in DirTab has more than 64 characters: row 2 (\"" +
                  std::string(40, 'X') + "...\")."}},
        Disorder{"ProjectsThatNoScreenShows",
                 {"INSERT INTO ProjTab VALUES ('MÄRZ', 'LOST', 0)"},
                 {"Projects that no screen shows, since their directory is neither listed nor a "
                  "month: LOST in MÄRZ."}},
        Disorder{"AProjectTwice",
                 {"INSERT INTO ProjTab VALUES ('MARCH', 'Smith', 0)"},
                 {"Projects with more than one row: SMITH."}},
        Disorder{"ProjectsWithoutNames",
                 {"INSERT INTO ProjTab VALUES (NULL, NULL, 0)"},
                 {"Dir in ProjTab is empty: row 4 (nothing).",
                  "ProjName in ProjTab is empty: row 4 (nothing)."}},
        Disorder{
            "NamesThatNoneMayHave",
            {"INSERT INTO ProjTab VALUES ('MARCH', 'A/B', 0), ('MARCH', 'Ö' || char(8232), 0)"},
            {"ProjName in ProjTab holds a character that no name may: A/B (\"A/B\"); "
             "Ö\u2028 (\"Ö\u2028\")."}},
        Disorder{"NamesThatAreNotFound",
                 {"INSERT INTO ProjTab VALUES ('MARCH', 'zoë', 0), ('MARCH', ' A ', 0)"},
                 {"ProjName in ProjTab is not as names are stored: in upper case, without blanks "
                  "at its ends: zoë (\"zoë\");  A  (\" A \")."}},
        // --- sheets ---
        Disorder{"ASheetWithoutAProject",
                 {"DELETE FROM ProjTab WHERE ProjName = 'JONES'"},
                 {"Sheets without a project: number 2 of JONES."}},
        Disorder{"TwoSheetsOfOneProject",
                 {"INSERT INTO MainTab SELECT 3, 'smith', 0, 0, 0.01, 0, 0, 0, 0, 0"},
                 {"Projects with more than one sheet, of which the first alone is used: smith."}},
        Disorder{"OneNumberForTwoProjects",
                 {"UPDATE MainTab SET TabIndex = 1", "DELETE FROM InputData WHERE TabIndex = 2"},
                 {"Sheet numbers of more than one project, whose rooms cannot be told apart: 1 of "
                  "SMITH and JONES."}},
        Disorder{"WrongNumbersInASheet",
                 {"UPDATE MainTab SET DigScale = 0, EnteredMetric = 2 WHERE TabIndex = 1",
                  "UPDATE MainTab SET DigScale = 9e999, ObjNum = 502 WHERE TabIndex = 2",
                  "INSERT INTO MainTab SELECT NULL, 'NEW', NULL, 0, 'x', x'41', 0, 0, 0, NULL"},
                 {"DigScale in MainTab is no number above 0: SMITH (0); JONES (inf); NEW (\"x\").",
                  "EnteredMetric in MainTab is no whole number from 0 to 1: SMITH (2).",
                  "ObjNum in MainTab is no whole number from 0 to 501: JONES (502); NEW (nothing).",
                  "TabIndex in MainTab is no whole number from 0 to 32767: NEW (nothing).",
                  "TileLabelNUm in MainTab is no whole number from 0 to 1: NEW (x'41').",
                  // Not a list with a comma left out.
                  ("Rooms without a row, which are read as empty: JONES, room 2; JONES, room 3; "
                   "JONES, room 4; JONES, room 5; JONES, room 6; JONES, room 7; JONES, room 8; "
                   "JONES, room 9; JONES, room 10; JONES, room 11; and 491 more.")}},
        // --- rooms ---
        Disorder{"RoomsWithoutASheet",
                 {"UPDATE InputData SET TabIndex = 7 WHERE TabIndex = 1",
                  "INSERT INTO FillCut VALUES (9), (9)"},
                 {"Rows of FillCut without a sheet, which nothing reaches: 2 under the number 9.",
                  "Rooms without a sheet, which nothing shows: 3 under the number 7.",
                  "Rooms without a row, which are read as empty: SMITH, all 3."}},
        Disorder{"RequestsWithoutASheet",
                 {"CREATE TABLE OrderData (TabIndex INTEGER, Carpet INTEGER, Metric INTEGER, "
                  "Request TEXT COLLATE NOCASE)",
                  "CREATE INDEX OrderDataTabIndex ON OrderData (TabIndex)",
                  "INSERT INTO OrderData VALUES (1, 1, 0, '{\"rolls\": [{\"width\": "
                  "\"12ft\"}]}'), (9, 8, 2, '{}')"},
                 {"Metric in OrderData is no whole number from 0 to 1: row 2 (2).",
                  "Rows of OrderData without a sheet, which nothing reaches: 1 under the number "
                  "9."}},
        Disorder{"RequestsThatCannotBeReadOrAreTwice",
                 {"CREATE TABLE OrderData (TabIndex INTEGER, Carpet INTEGER, Metric INTEGER, "
                  "Request TEXT COLLATE NOCASE)",
                  "CREATE INDEX OrderDataTabIndex ON OrderData (TabIndex)",
                  "INSERT INTO OrderData VALUES (1, 1, 0, '{'), (1, 2, 1, '{\"rolls\": "
                  "[{\"width\": \"12ft\"}]}'), (2, 8, 0, '{\"rolls\": [{\"width\": \"wide\"}]}')",
                  "INSERT INTO OrderData SELECT TabIndex, Carpet, 0, Request FROM OrderData"},
                 {"Requests for orders that cannot be read: SMITH, CARPET-1; JONES, CARPET-8; "
                  "SMITH, CARPET-1; JONES, CARPET-8.",
                  "Carpets with more than one request for an order, of which the last is read: "
                  "SMITH, CARPET-2."}},
        Disorder{"RowsWithoutANumber",
                 {"UPDATE InputData SET TabIndex = NULL WHERE TabIndex = 2",
                  "UPDATE MainTab SET ObjNum = 0 WHERE TabIndex = 2"},
                 {"TabIndex in InputData is no whole number from 0 to 32767: row 4 (nothing)."}},
        Disorder{"MissingRepeatedAndSurplusRooms",
                 {"UPDATE InputData SET ObjNum = 2 WHERE ObjNum = 1",
                  "INSERT INTO InputData SELECT 4, 1, 1, '', '', 0, 0, 1"},
                 {"Rooms without a row, which are read as empty: SMITH, room 2.",
                  "Rooms with more than one row, of which the last is read: SMITH, room 3.",
                  "Rooms beyond the number that the sheet tells, which nothing shows: SMITH, 1 "
                  "room."}},
        Disorder{"WrongNumbersInRooms",
                 {"UPDATE InputData SET RoomW = -5, CTType = 12 WHERE ObjNum = 1",
                  "UPDATE InputData SET RoomL = 40000, BaseSty = 9 WHERE ObjNum = 2",
                  "UPDATE InputData SET RoomW = 12.5, RoomL = 'abc', CTType = NULL WHERE TabIndex "
                  "= 2"},
                 {"RoomW in InputData is no whole number from 0 to 32767: SMITH, room 2 (-5); "
                  "JONES, room 1 (12.5).",
                  "CTType in InputData is no whole number from 0 to 11: SMITH, room 2 (12); JONES, "
                  "room 1 (nothing).",
                  "RoomL in InputData is no whole number from 0 to 32767: SMITH, room 3 (40000); "
                  "JONES, room 1 (\"abc\").",
                  "BaseSty in InputData is no whole number from 0 to 8: SMITH, room 3 (9)."}},
        Disorder{"ARoomOutsideAllPlaces",
                 {"UPDATE InputData SET ObjNum = 501 WHERE ObjNum = 2"},
                 {"ObjNum in InputData is no whole number from 0 to 500: SMITH, room 502 (501).",
                  "Rooms without a row, which are read as empty: SMITH, room 3.",
                  "Rooms beyond the number that the sheet tells, which nothing shows: SMITH, 1 "
                  "room."}},
        Disorder{"TextsThatNoneMayBe",
                 {"UPDATE InputData SET RoomRemark = CAST(x'41FF' AS TEXT), RoomNoStr = 'a' || "
                  "char(9) WHERE ObjNum = 1",
                  "UPDATE InputData SET RoomRemark = 'a' || char(65534) WHERE ObjNum = 2",
                  "UPDATE InputData SET RoomRemark = 'a' || char(0) || 'b', RoomNoStr = x'4142' "
                  "WHERE TabIndex = 2"},
                 {"RoomNoStr in InputData " + Unstorable + ": SMITH, room 2 (\"a\uFFFD\").",
                  "RoomRemark in InputData " + Unstorable +
                      ": SMITH, room 2 (\"A\uFFFD\"); SMITH, room 3 (\"a\uFFFD\"); JONES, room 1 "
                      "(\"a\uFFFDb\").",
                  "RoomNoStr in InputData is no text: JONES, room 1 (x'4142')."}},
        Disorder{"ANameThatIsNotUtf8",
                 {"INSERT INTO ProjTab VALUES ('MARCH', CAST(x'41C3' AS TEXT), 0)"},
                 {"ProjName in ProjTab " + Unstorable + ": A\uFFFD (\"A\uFFFD\")."}}),
    [](const auto& each) { return each.param.Name; });

TEST(CheckDatabaseFile, PassesOverWhatTheProgramAllows) {
    const TestDatabase file;
    Fill(file);
    file.Run("INSERT INTO DirTab VALUES ('SAY \"SO\"')");
    file.Run("UPDATE InputData SET RoomRemark = NULL, RoomNoStr = 'Bär, 床'");
    file.Run("UPDATE MainTab SET EnteredMetric = NULL, TileLabelNUm = NULL, PicScale = 'x'");
    file.Run("ALTER TABLE InputData ADD COLUMN Extra");
    file.Run("CREATE TABLE Extra (x)");
    file.Run("CREATE TRIGGER Extra AFTER INSERT ON Extra BEGIN SELECT 1; END");
    EXPECT_EQ(CheckDatabaseFile(file.Path()), Lines{});
}

TEST(CheckDatabaseFile, CountsWhatItDoesNotList) {
    const TestDatabase file;
    Fill(file);
    file.Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000) "
             "INSERT INTO InputData SELECT 0, 1, 1, '', '', 0, 0, 99 FROM n");
    file.Run("UPDATE InputData SET RoomW = -1 WHERE TabIndex = 99");
    EXPECT_EQ(CheckDatabaseFile(file.Path()),
              (Lines{"RoomW in InputData is no whole number from 0 to 32767: row 5 (-1); row 6 "
                     "(-1); row 7 (-1); row 8 (-1); row 9 (-1); row 10 (-1); row 11 (-1); row 12 "
                     "(-1); row 13 (-1); row 14 (-1); and 4990 more.",
                     "Rooms without a sheet, which nothing shows: 5000 under the number 99."}));
}

TEST(CheckDatabaseFile, GoesOnWithTheTablesThatAreThere) {
    const TestDatabase file;
    Fill(file);
    file.Run("DROP TABLE ProjTab");
    file.Run("DROP TABLE MainTab");
    file.Run("UPDATE InputData SET BaseSty = 9 WHERE TabIndex = 2");
    EXPECT_EQ(CheckDatabaseFile(file.Path()),
              (Lines{"The table ProjTab is missing.", "The table MainTab is missing.",
                     "BaseSty in InputData is no whole number from 0 to 8: row 4 (9)."}));
}

TEST(CheckDatabaseFile, ReportsAPipeAtOnce) {
    const TestFolder folder;
    for (const char* path : {"/dev/zero", "/dev/null"}) {
        const Lines findings = CheckDatabaseFile(path);
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_NE(findings.front().find("a pipe, a device or a socket"), std::string::npos);
    }
}

/// The files that a crash in the middle of a change leaves, by another program whose change has
/// reached the file in part: 3000 directories named OLD before, NEW after it.
class ACrashedFile : public ::testing::Test {
  protected:
    ACrashedFile() {
        const TestDatabase file;
        RawDatabase writer(file.Path());
        writer.Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                   "INSERT INTO DirTab SELECT 'OLD ' || i FROM n");
        writer.Run("PRAGMA synchronous = FULL");
        writer.Run("PRAGMA cache_size = 1");
        writer.Run("BEGIN");
        writer.Run("UPDATE DirTab SET Directory = 'NEW'");
        for (const char* name : {"Tarn.mdb", "Tarn.mdb-journal"}) {
            WriteFile(crashed_.Path(name), ReadFile(file.Folder().Path(name)));
        }
        writer.Run("ROLLBACK");
    }

    std::string Path() const { return crashed_.Path("Tarn.mdb"); }

    TestFolder crashed_;
};

TEST_F(ACrashedFile, IsCheckedAsTheNextProgramFindsItAndLeftAsItIs) {
    const std::string content = ReadFile(Path());
    const std::string journal = ReadFile(Path() + "-journal");
    EXPECT_EQ(CheckDatabaseFile(Path()),
              Lines{"A change was cut off by a crash: " + Path() +
                    "-journal lies beside the file. The next program that opens the file takes "
                    "that change back."});
    EXPECT_EQ(ReadFile(Path()), content);
    EXPECT_EQ(ReadFile(Path() + "-journal"), journal);
}

TEST_F(ACrashedFile, ThatCannotBeCopiedForTheCheckIsToldWithTheCause) {
    const auto check = [this] { return CheckDatabaseFile(Path()); };
    const Lines calls = CallsOf(check);
    int writes = 0;
    for (std::size_t place = 0; place < calls.size(); ++place) {
        if (calls.at(place) == "write") {
            ++writes;
            Lines findings;
            WithFailingCall(place, ENOSPC, [&] { findings = check(); });
            ASSERT_EQ(findings.size(), 1U);
            EXPECT_NE(findings.front().find("cannot be looked over"), std::string::npos)
                << findings.front();
            EXPECT_NE(findings.front().find("the disk is full"), std::string::npos)
                << findings.front();
        }
    }
    EXPECT_GT(writes, 1) << "the file and its journal";
}

TEST_F(ACrashedFile, IsCheckedWithoutAJournalThatIsNotItsOwn) {
    const TestDatabase other;
    Fill(other);
    other.Run("UPDATE InputData SET BaseSty = 9 WHERE TabIndex = 2");
    WriteFile(Path(), ReadFile(other.Path()));
    const std::string journal = ReadFile(Path() + "-journal");
    EXPECT_EQ(CheckDatabaseFile(Path()),
              (Lines{ForeignJournalText(Path()),
                     "BaseSty in InputData is no whole number from 0 to 8: JONES, room 1 (9)."}));
    EXPECT_EQ(ReadFile(Path()), ReadFile(other.Path()));
    EXPECT_EQ(ReadFile(Path() + "-journal"), journal);
}

TEST(CheckDatabaseFile, TakesAChangeThatIsBeingMadeForNoCrash) {
    const TestDatabase file;
    Fill(file);
    const OtherProgram writer(file.Path(),
                              {"BEGIN IMMEDIATE", "INSERT INTO DirTab VALUES ('MAY')"});
    ASSERT_TRUE(fs::exists(file.Path() + "-journal"));
    EXPECT_EQ(CheckDatabaseFile(file.Path(), ShortWait), Lines{});
}

TEST(Findings, TellEachKindInOneLineInTheOrderInWhichTheyCame) {
    Findings findings(2);
    findings.Add("Rooms", "a");
    findings.Tell("A sentence.");
    findings.Add("Sheets", "x");
    for (const char* place : {"b", "c", "d"}) {
        findings.Add("Rooms", place);
    }
    EXPECT_EQ(findings.Lines(), (Lines{"Rooms: a; b; and 2 more.", "A sentence.", "Sheets: x."}));
}

} // namespace
} // namespace tarn
