#include "base/RunTimeError.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace tarn {
namespace {

using namespace tarn::testing;

class LoadingAProject : public ::testing::Test {
  protected:
    /// A project of `rooms` rooms under sheet 5.
    void AddProject(int rooms) { file_.AddProject("MARCH", "P", 5, rooms); }
    /// Add a stored room by its values.
    void AddRoom(const std::string& values) {
        file_.Run("INSERT INTO InputData VALUES (" + values + ")");
    }
    void Change(const std::string& field, const std::string& value, int room) {
        file_.Run("UPDATE InputData SET " + field + " = " + value +
                  " WHERE ObjNum = " + std::to_string(room));
    }
    void ChangeSheet(const std::string& change) {
        file_.Run("UPDATE MainTab SET " + change + " WHERE ProjName = 'P'");
    }
    Project Load() { return store_.Load("P").Value; }
    Lines Findings() { return store_.Load("P").Findings; }
    /// Why a load fails, as it is told.
    std::string CauseOfFailure() {
        try {
            store_.Load("P");
        } catch (const DatabaseError& error) {
            return error.what();
        } catch (const RunTimeError& error) {
            return error.Sentences();
        }
        return "(it does not fail)";
    }
    void ExpectFailure(const std::string& cause) {
        const std::string text = CauseOfFailure();
        EXPECT_NE(text.find(cause), std::string::npos) << text;
    }

    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
};

TEST_F(LoadingAProject, GivesItWhole) {
    AddProject(0);
    AddRoom("0, 120, 144, '101', 'North; 5% \"x\"', 11, 8, 5");
    AddRoom("1, -32768, 32767, '', 'Küche''床', 0, 0, 5");
    ChangeSheet("ObjNum = 2, DigScale = 0.5");
    file_.AddProject("MAY", "OTHER", 6, 7);
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings, Lines{});
    Project expected;
    expected.Name = "P";
    expected.Directory = "MARCH";
    expected.Sheet = 5;
    expected.Scale = 0.5;
    expected.Rooms = {{120, 144, 11, 8, "101", "North; 5% \"x\""},
                      {-32768, 32767, 0, 0, "", "Küche'床"}};
    EXPECT_EQ(loaded.Value, expected);
    EXPECT_EQ(store_.Load("OTHER").Value.Rooms.size(), 7U);
}

TEST_F(LoadingAProject, SaysInWhichUnitsItWasEntered) {
    AddProject(1);
    EXPECT_EQ(Load().EnteredIn, Units::Imperial);
    ChangeSheet("EnteredMetric = 1");
    EXPECT_EQ(Load().EnteredIn, Units::Metric);
    ChangeSheet("EnteredMetric = NULL, TileLabelNUm = 1");
    EXPECT_EQ(Load().EnteredIn, Units::Metric);
    ChangeSheet("EnteredMetric = 0");
    EXPECT_EQ(Load().EnteredIn, Units::Imperial);
    ChangeSheet("EnteredMetric = NULL, TileLabelNUm = NULL");
    EXPECT_EQ(Load().EnteredIn, Units::Imperial);
}

TEST_F(LoadingAProject, FromADatabaseWithoutEnteredMetricUsesTheUnitsFlag) {
    AddProject(1);
    file_.Run("ALTER TABLE MainTab DROP COLUMN EnteredMetric");
    EXPECT_EQ(Load().EnteredIn, Units::Imperial);
    ChangeSheet("TileLabelNUm = 1");
    EXPECT_EQ(Load().EnteredIn, Units::Metric);
}

TEST_F(LoadingAProject, SetsANumberAsideForOneThatWasNeverSaved) {
    file_.AddProject("MARCH", "OTHER", 6, 7);
    file_.Run("INSERT INTO ProjTab VALUES ('MAY', 'P', 0)");
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings, Lines{});
    Project expected;
    expected.Name = "P";
    expected.Directory = "MAY";
    expected.Sheet = 7;
    expected.IsNew = true;
    EXPECT_EQ(loaded.Value, expected);
    EXPECT_EQ(file_.Rows("SELECT count(*) FROM MainTab"), Lines{"1"}) << "nothing is stored";
}

TEST_F(LoadingAProject, FindsItsDirectoryWhateverItsLetterCase) {
    AddProject(1);
    file_.Run("UPDATE ProjTab SET Dir = 'märz', ProjName = ' p '");
    EXPECT_EQ(Load().Directory, "märz");
    file_.Run("DELETE FROM ProjTab");
    EXPECT_EQ(Load().Directory, "");
    EXPECT_EQ(Load().Rooms.size(), 1U);
}

TEST_F(LoadingAProject, FindsTheSheetOfAnyName) {
    int number = 0;
    const Lines names = {"DIR",  "PROJNAME", "TABINDEX", "O'HARA", "100% WOOL",
                         "A;B",  "A--B",     "?",        ":DIR",   "КВАРТИРА",
                         "床 3", "NULL",     "\\",       "%",      "where order by from"};
    for (const std::string& name : names) {
        file_.AddProject("MARCH", name, number++);
    }
    number = 0;
    for (const std::string& name : names) {
        EXPECT_EQ(store_.SheetOf(name), number) << name;
        EXPECT_EQ(store_.Load(name).Value.Sheet, number++) << name;
    }
}

TEST_F(LoadingAProject, SeesWhatOthersStoredMeanwhile) {
    AddProject(2);
    Load();
    Change("RoomW", "333", 1);
    EXPECT_EQ(Load().Rooms[1].Width, 333);
    file_.Run("ALTER TABLE InputData ADD COLUMN More");
    file_.Run("ALTER TABLE MainTab ADD COLUMN More");
    EXPECT_EQ(Load().Rooms.size(), 2U) << "also fields";
    file_.Run("ALTER TABLE MainTab DROP COLUMN More");
    file_.Run("ALTER TABLE MainTab DROP COLUMN EnteredMetric");
    EXPECT_EQ(Load().Rooms.size(), 2U);
}

TEST_F(LoadingAProject, LeavesNoLockBehind) {
    AddProject(2);
    Load();
    RawDatabase other(file_.Path());
    other.Run("BEGIN EXCLUSIVE"); // ends the test when the file is locked
    other.Run("COMMIT");
    Change("RoomL", "'long'", 1);
    EXPECT_THROW(Load(), DatabaseError);
    other.Run("BEGIN EXCLUSIVE");
    other.Run("COMMIT");
}

TEST_F(LoadingAProject, FailsWhileAnotherProgramLocksTheFile) {
    AddProject(2);
    RawDatabase other(file_.Path());
    other.Run("BEGIN EXCLUSIVE");
    EXPECT_EQ(CauseOfFailure(), "MainTab cannot be read: another program is using the database. "
                                "Close that program and try again.");
    other.Run("COMMIT");
    EXPECT_EQ(Load().Rooms.size(), 2U);
}

TEST_F(LoadingAProject, FailsWhenNoNumberIsLeft) {
    file_.AddProject("MARCH", "OTHER", 32767);
    EXPECT_EQ(CauseOfFailure(),
              "Overflow. No sheet number is left: the greatest one, 32767, is in use.");
}

TEST_F(LoadingAProject, FailsForASheetNumberThatDoesNotFit) {
    file_.AddProject("MARCH", "P", 32768);
    EXPECT_EQ(CauseOfFailure(),
              "Overflow. The sheet of the project P has the number 32768; the greatest is 32767.");
    EXPECT_THROW(store_.SheetOf("P"), RunTimeError);
    ChangeSheet("TabIndex = 99999999999999");
    ExpectFailure("99999999999999");
}

TEST_F(LoadingAProject, FailsForASheetWithoutANumber) {
    AddProject(2);
    ChangeSheet("TabIndex = NULL");
    EXPECT_EQ(CauseOfFailure(), "The project's sheet has no value in its field TabIndex.");
    EXPECT_THROW(store_.SheetOf("P"), DatabaseError);
}

TEST_F(LoadingAProject, FailsForASheetNumberThatIsNoWholeOne) {
    AddProject(2);
    file_.AddProject("MARCH", "OTHER", 6, 4);
    ChangeSheet("TabIndex = 5.5");
    EXPECT_EQ(CauseOfFailure(),
              "The sheet of the project P has the number 5.5; it must be a whole one.");
    EXPECT_THROW(store_.SheetOf("P"), DatabaseError);
    Project project;
    project.Name = "P";
    EXPECT_THROW(store_.Save(project, Units::Imperial), DatabaseError);
    EXPECT_EQ(file_.Rows("SELECT count(*) FROM InputData"), Lines{"6"});
}

TEST_F(LoadingAProject, FailsForANameWithADoubleQuote) {
    file_.AddProject("MARCH", "A\"B", 5);
    const std::string text = "The name A\"B cannot be used: a double quote stands inside it.";
    EXPECT_EQ(DatabaseErrorOf([&] { store_.Load("A\"B"); }), text);
    EXPECT_EQ(DatabaseErrorOf([&] { store_.SheetOf("A\"B"); }), text);
}

struct BadSheet {
    const char* Name;
    const char* Change;
    const char* Cause;
};

class LoadingABadSheet : public LoadingAProject, public ::testing::WithParamInterface<BadSheet> {};

TEST_P(LoadingABadSheet, FailsAndNamesTheField) {
    AddProject(2);
    ChangeSheet(GetParam().Change);
    EXPECT_EQ(CauseOfFailure(), GetParam().Cause);
}

INSTANTIATE_TEST_SUITE_P(
    LoadingAProject, LoadingABadSheet,
    ::testing::Values(BadSheet{"NullRooms", "ObjNum = NULL",
                               "The project's sheet has no value in its field ObjNum."},
                      BadSheet{"NegativeRooms", "ObjNum = -1",
                               "The project's sheet holds a wrong value in its field ObjNum."},
                      BadSheet{"TooManyRooms", "ObjNum = 502",
                               "The project's sheet holds a wrong value in its field ObjNum."},
                      BadSheet{"FarTooManyRooms", "ObjNum = 99999999999",
                               "The project's sheet holds a wrong value in its field ObjNum."},
                      BadSheet{"TextAsRooms", "ObjNum = 'many'",
                               "The field ObjNum should hold a number and holds \"many\"."},
                      BadSheet{"NullScale", "DigScale = NULL",
                               "The project's sheet has no value in its field DigScale."},
                      BadSheet{"ZeroScale", "DigScale = 0",
                               "The project's sheet holds a wrong value in its field DigScale."},
                      BadSheet{"NegativeScale", "DigScale = -0.01",
                               "The project's sheet holds a wrong value in its field DigScale."},
                      BadSheet{"InfiniteScale", "DigScale = 9e999",
                               "The project's sheet holds a wrong value in its field DigScale."},
                      BadSheet{"TextAsUnits", "EnteredMetric = 'yes'",
                               "The field EnteredMetric should hold a number and holds \"yes\"."}),
    [](const auto& bad) { return bad.param.Name; });

TEST_F(LoadingAProject, FailsWithoutAFieldOfItsSheet) {
    AddProject(2);
    for (const char* field :
         {"ObjNum", "DigScale", "PicScale", "MagScale", "ScaleTop", "ScaleLeft", "TileLabelNUm"}) {
        file_.Run("ALTER TABLE MainTab RENAME COLUMN " + std::string(field) + " TO Hidden");
        EXPECT_EQ(CauseOfFailure(), "MainTab has no field " + std::string(field) + ".");
        file_.Run("ALTER TABLE MainTab RENAME COLUMN Hidden TO " + std::string(field));
    }
    EXPECT_EQ(Load().Rooms.size(), 2U);
}

TEST_F(LoadingAProject, NullsInFieldsOfOlderVersionsDoNotMatter) {
    AddProject(2);
    for (const char* field : {"MagScale", "ScaleTop", "ScaleLeft", "PicScale", "TileLabelNUm"}) {
        ChangeSheet(std::string(field) + " = NULL");
        EXPECT_EQ(Load().Rooms.size(), 2U) << field;
    }
}

TEST_F(LoadingAProject, FailsForARoomThatCannotBeRead) {
    AddProject(3);
    Change("RoomL", "40000", 2);
    EXPECT_EQ(CauseOfFailure(),
              "Overflow. A number stored in the room row with ObjNum 2 is too large.");
    Change("RoomL", "'long'", 2);
    EXPECT_EQ(CauseOfFailure(), "The field RoomL should hold a number and holds \"long\".");
}

TEST_F(LoadingAProject, FailsForARoomsNumberThatDoesNotFit) {
    AddProject(1);
    for (const char* change : {"RoomW = 32768", "RoomL = -32769", "CTType = 256", "CTType = -1",
                               "BaseSty = 256", "BaseSty = 9223372036854775807"}) {
        file_.Run("DELETE FROM InputData");
        AddRoom("0, 1, 1, '', '', 0, 0, 5");
        file_.Run("UPDATE InputData SET " + std::string(change));
        EXPECT_EQ(CauseOfFailure(),
                  "Overflow. A number stored in the room row with ObjNum 0 is too large.")
            << change;
    }
}

TEST_F(LoadingAProject, FailsWithoutTheRoomTableOrAFieldOfIt) {
    AddProject(3);
    file_.Run("ALTER TABLE InputData RENAME COLUMN CTType TO Hidden");
    EXPECT_EQ(CauseOfFailure(), "InputData has no field CTType.");
    file_.Run("DROP TABLE InputData");
    EXPECT_EQ(CauseOfFailure(), "InputData cannot be read: no such table: InputData.");
}

TEST_F(LoadingAProject, AFailedLookUpIsNotANewProject) {
    file_.Run("DROP TABLE MainTab");
    ExpectFailure("MainTab cannot be read");
    EXPECT_THROW(store_.SheetOf("P"), DatabaseError);
}

TEST_F(LoadingAProject, ReadsRowsInAnyOrderByTheirNumbers) {
    AddProject(0);
    ChangeSheet("ObjNum = 501");
    AddRoom("500, 5, 6, 'last', '', 1, 2, 5");
    AddRoom("2, 3, 4, 'two', '', 1, 2, 5");
    const Project project = Load();
    ASSERT_EQ(project.Rooms.size(), 501U);
    EXPECT_EQ(project.Rooms[2].Number, "two");
    EXPECT_EQ(project.Rooms[500].Number, "last");
    EXPECT_EQ(project.Rooms[1], Room());
}

TEST_F(LoadingAProject, NamesMissingRooms) {
    AddProject(9);
    file_.Run("DELETE FROM InputData WHERE ObjNum IN (1, 3, 4, 6, 7, 8)");
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings, Lines{"Missing, read as empty: rooms 2, 4, 5, 7 to 9."});
    ASSERT_EQ(loaded.Value.Rooms.size(), 9U);
    EXPECT_EQ(loaded.Value.Rooms[1], Room());
    EXPECT_EQ(loaded.Value.Rooms[5].Width, 105);
}

TEST_F(LoadingAProject, NamesRoomsBeyondItsEndAndLeavesThemOut) {
    AddProject(4);
    ChangeSheet("ObjNum = 3");
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings, Lines{"Beyond the end of the project, dropped by SAVE: room 4."});
    EXPECT_EQ(loaded.Value.Rooms.size(), 3U);
}

TEST_F(LoadingAProject, LeavesOutRowsThatNoRoomCanHave) {
    AddProject(2);
    for (const char* number : {"501", "-1", "70000", "-40000"}) {
        AddRoom(std::string(number) + ", 1, 1, '', '', 0, 0, 5");
    }
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings, Lines{"Outside rooms 1 to 501, left out and dropped by SAVE: ObjNum "
                                     "-40000, -1, 501, 70000."});
    ASSERT_EQ(loaded.Value.Rooms.size(), 2U);
    EXPECT_EQ(loaded.Value.Rooms[1].Width, 101);
}

TEST_F(LoadingAProject, NamesRoomsStoredTwiceAndUsesTheLast) {
    AddProject(2);
    AddRoom("1, 55, 66, '', '', 0, 0, 5");
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings, Lines{"Stored more than once, the last row is used: room 2."});
    EXPECT_EQ(loaded.Value.Rooms[1].Width, 55);
}

TEST_F(LoadingAProject, NamesRoomsWithNullsInTheirNumbers) {
    AddProject(5);
    Change("RoomW", "NULL", 0);
    Change("RoomL", "NULL", 1);
    Change("CTType", "NULL", 2);
    Change("BaseSty", "NULL", 3);
    Change("RoomNoStr", "NULL", 4);
    Change("RoomRemark", "NULL", 4);
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings, (Lines{"Without a width or a length, read as 0: rooms 1, 2.",
                                      "Without a covering, read as CARPET-1: room 3.",
                                      "Without a wall base, read as none: room 4."}));
    EXPECT_EQ(loaded.Value.Rooms[0], (Room{0, 200, 0, 0, "", ""}));
    EXPECT_EQ(loaded.Value.Rooms[1], (Room{101, 0, 0, 0, "", ""}));
    EXPECT_EQ(loaded.Value.Rooms[4], (Room{104, 204, 0, 0, "", ""}));
}

TEST_F(LoadingAProject, ARowWithoutARoomNumberIsTheFirstUnlessThereIsOne) {
    AddProject(2);
    Change("ObjNum", "NULL", 0);
    EXPECT_EQ(Findings(), Lines{"Without a room number, read as: room 1."});
    EXPECT_EQ(Load().Rooms[0].Width, 100);
    AddRoom("0, 4, 4, '', '', 0, 0, 5");
    EXPECT_EQ(Load().Rooms[0].Width, 4);
}

TEST_F(LoadingAProject, NamesUnknownCoveringsAndWallBasesAndKeepsThem) {
    AddProject(4);
    Change("CTType", "12", 0);
    Change("CTType", "11", 1);
    Change("BaseSty", "9", 2);
    Change("BaseSty", "8", 3);
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings,
              (Lines{"With an unknown covering, not estimated until one is chosen: room 1.",
                     "With an unknown wall base, shown as none: room 3."}));
    EXPECT_EQ(loaded.Value.Rooms[0].Covering, 12);
    EXPECT_EQ(loaded.Value.Rooms[2].Base, 9);
}

TEST_F(LoadingAProject, ReadsNumbersAsTextsAndRoundsNumbers) {
    AddProject(1);
    Change("RoomNoStr", "101, RoomRemark = -2.5, RoomW = 2.5, RoomL = 3.5", 0);
    const Room room = Load().Rooms.at(0);
    EXPECT_EQ(room.Number, "101");
    EXPECT_EQ(room.Remark, "-2.5");
    EXPECT_EQ(room.Width, 2);
    EXPECT_EQ(room.Length, 4);
}

TEST_F(LoadingAProject, OfSeveralUnderOneNumberItsOwnSheetCounts) {
    file_.AddProject("MARCH", "A", 4, 2);
    file_.AddProject("MARCH", "P", 4, 3);
    file_.AddProject("MARCH", "Z", 4, 5);
    file_.Run("UPDATE MainTab SET EnteredMetric = 1 WHERE ProjName = 'P'");
    const Project p = Load();
    EXPECT_EQ(p.Rooms.size(), 3U);
    EXPECT_EQ(p.EnteredIn, Units::Metric);
    const Project z = store_.Load("Z").Value;
    EXPECT_EQ(z.Rooms.size(), 5U);
    EXPECT_EQ(z.EnteredIn, Units::Imperial);
}

TEST_F(LoadingAProject, ReadsItsOwnSheetUnderANumberThatProjectsShare) {
    file_.AddProject("MARCH", "A", 5, 0);
    file_.AddProject("MARCH", "P", 5, 1);
    ChangeSheet("EnteredMetric = 1");
    const LoadedProject loaded = store_.Load("P");
    ASSERT_EQ(loaded.Value.Rooms.size(), 1U);
    EXPECT_EQ(loaded.Value.Rooms[0].Width, 100);
    EXPECT_EQ(loaded.Value.EnteredIn, Units::Metric);
    EXPECT_EQ(
        loaded.Findings,
        Lines{"Stored under one number with the project A, whose rooms they may be: room 1."});

    store_.Save(loaded.Value, Units::Imperial);
    EXPECT_EQ(file_.Rows("SELECT TabIndex, ProjName, ObjNum FROM MainTab ORDER BY TabIndex"),
              (Lines{"5|A|0", "6|P|1"}));
    EXPECT_EQ(file_.Rows("SELECT RoomW FROM InputData WHERE TabIndex = 6"), Lines{"100"});
    EXPECT_EQ(Findings(), Lines{}) << "told apart from now on";
}

TEST_F(LoadingAProject, NamesTheRoomsThatMayBeThoseOfOtherProjects) {
    AddProject(1);
    file_.AddProject("MARCH", "B", 5, 2);
    file_.AddProject("MARCH", "C", 5, 0);
    EXPECT_EQ(Findings(), (Lines{"Stored under one number with the projects B, C, whose rooms they "
                                 "may be: rooms 1, 2.",
                                 "Beyond the end of the project, dropped by SAVE: room 2.",
                                 "Stored more than once, the last row is used: room 1."}));
    file_.Run("DELETE FROM InputData");
    file_.Run("UPDATE MainTab SET ObjNum = 0");
    EXPECT_EQ(Findings(), Lines{}) << "no room, no doubt";
}

TEST_F(LoadingAProject, NamesTheSheetsThatAreNotReached) {
    AddProject(2);
    file_.AddProject("MARCH", "P", 7, 1);
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Findings, Lines{"Stored with more than one sheet, the first, number 5, is "
                                     "used; not reached: 7."});
    EXPECT_EQ(loaded.Value.Sheet, 5);
    EXPECT_EQ(loaded.Value.Rooms.size(), 2U);
    file_.Run("INSERT INTO MainTab (ProjName) VALUES ('p')");
    EXPECT_EQ(Findings(), Lines{"Stored with more than one sheet, the first, number 5, is used; "
                                "not reached: 7, one without a number."});
    store_.Save(loaded.Value, Units::Imperial);
    EXPECT_EQ(Findings().size(), 1U) << "a save does not hide it";
    store_.AddProject("MARCH", "NEW");
    EXPECT_EQ(store_.Load("NEW").Value.Sheet, 8) << "nor does a new project take its number";
}

TEST_F(LoadingAProject, ListsOnlySoManyRowsThatNoRoomCanHave) {
    AddProject(1);
    for (int row = 0; row < 23; ++row) {
        AddRoom(std::to_string(600 + row) + ", 1, 1, '', '', 0, 0, 5");
    }
    std::string numbers = "600";
    for (int row = 1; row < 20; ++row) {
        numbers += ", " + std::to_string(600 + row);
    }
    EXPECT_EQ(Findings(), Lines{"Outside rooms 1 to 501, left out and dropped by SAVE: ObjNum " +
                                numbers + " and 3 more."});
}

TEST_F(LoadingAProject, ReadsOneStateWhileAnotherProgramChangesIt) {
    // The other program saves by turns one room of width 1 and three rooms of width 3.
    constexpr int Loads = 150;
    AddProject(0);
    std::atomic<bool> stop = false;
    std::thread other([&] {
        RawDatabase raw(file_.Path());
        for (int rooms = 1; !stop; rooms = 4 - rooms) {
            raw.Run("BEGIN IMMEDIATE");
            raw.Run("DELETE FROM InputData");
            for (int room = 0; room < rooms; ++room) {
                raw.Run("INSERT INTO InputData VALUES (" + std::to_string(room) + ", " +
                        std::to_string(rooms) + ", 1, '', '', 0, 0, 5)");
            }
            raw.Run("UPDATE MainTab SET ObjNum = " + std::to_string(rooms));
            raw.Run("COMMIT");
        }
    });
    ProjectStore store = file_.Open();
    Lines findings;
    bool mixed = false;
    for (int load = 0; load < Loads; ++load) {
        const LoadedProject loaded = store.Load("P");
        findings.insert(findings.end(), loaded.Findings.begin(), loaded.Findings.end());
        for (const Room& room : loaded.Value.Rooms) {
            mixed = mixed || static_cast<std::size_t>(room.Width) != loaded.Value.Rooms.size();
        }
    }
    stop = true;
    other.join();
    EXPECT_EQ(findings, Lines{});
    EXPECT_FALSE(mixed);
}

} // namespace
} // namespace tarn
