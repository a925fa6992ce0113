#include "base/RunTimeError.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

using namespace tarn::testing;

class SavingAProject : public ::testing::Test {
  protected:
    /// P is stored with three rooms under number 5; project_ has four others.
    SavingAProject() {
        file_.AddProject("MARCH", "P", 5, 3);
        project_.Name = "P";
        project_.Directory = "MARCH";
        project_.Sheet = 5;
        project_.Rooms.resize(4);
        Integer width = 1000;
        for (Room& room : project_.Rooms) {
            room.Width = width++;
        }
    }

    /// The project as it is stored now.
    Project Save(Units shown = Units::Imperial) {
        const SaveResult result = store_.Save(project_, shown);
        EXPECT_TRUE(result.IsSaved());
        return result.Value;
    }
    /// Add a project that was never saved, and make it the one that is.
    void SaveAsNew(const std::string& name) {
        file_.Run("INSERT INTO ProjTab VALUES ('MARCH', " + Literal(name) + ", 0)");
        project_.Name = name;
    }
    Lines Sheets() const {
        return file_.Rows("SELECT TabIndex, ProjName, ObjNum FROM MainTab ORDER BY rowid");
    }
    /// The widths stored for a sheet.
    Lines Widths(int sheet) const {
        return file_.Rows("SELECT RoomW FROM InputData WHERE TabIndex = " + std::to_string(sheet) +
                          " ORDER BY ObjNum");
    }
    Lines UnitsStored() const {
        return file_.Rows(
            "SELECT TabIndex, ProjName, EnteredMetric FROM MainTab ORDER BY TabIndex");
    }
    void ExpectOldProject() const {
        EXPECT_EQ(Sheets(), Lines{"5|P|3"});
        EXPECT_EQ(Widths(5), (Lines{"100", "101", "102"}));
    }

    const Lines newWidths_ = {"1000", "1001", "1002", "1003"};
    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
    Project project_;
};

TEST_F(SavingAProject, StoresItsSheetAndItsRooms) {
    project_.IsNew = true; // another program saved it first
    const Project stored = Save();
    EXPECT_EQ(Sheets(), Lines{"5|P|4"});
    EXPECT_EQ(Widths(5), newWidths_);
    EXPECT_EQ(stored.Sheet, 5);
    EXPECT_FALSE(stored.IsNew);
    EXPECT_EQ(stored, store_.Load("P").Value);
}

TEST_F(SavingAProject, WritesEveryFieldOfItsSheet) {
    SaveAsNew("O'HARA");
    project_.Scale = 0.25;
    project_.Sheet = 7;
    project_.EnteredIn = Units::Metric;
    Save(Units::Metric);
    EXPECT_EQ(file_.Rows("SELECT TabIndex, ProjName, ObjNum, PicScale, DigScale, TileLabelNUm, "
                         "MagScale, ScaleTop, ScaleLeft, EnteredMetric FROM MainTab "
                         "WHERE TabIndex = 7"),
              Lines{"7|O'HARA|4|NULL|0.25|1|1|-500|-500|1"});
}

TEST_F(SavingAProject, WritesEveryFieldOfItsRooms) {
    project_.Rooms = {{120, 144, 11, 8, "101", "North; 5% \"x\""},
                      {-32768, 32767, 0, 0, "", "Küche'床"}};
    Save();
    EXPECT_EQ(file_.Rows("SELECT ObjNum, RoomW, RoomL, RoomNoStr, RoomRemark, CTType, BaseSty, "
                         "TabIndex FROM InputData ORDER BY rowid"),
              (Lines{"0|120|144|101|North; 5% \"x\"|11|8|5", "1|-32768|32767||Küche'床|0|0|5"}));
}

TEST_F(SavingAProject, AndLoadingItGivesItBack) {
    project_.Scale = 0.1;
    project_.Rooms = {{120, 144, 11, 8, "101", "a\\b"},
                      {-1, 0, 255, 255, "DIR", "\""},
                      {32767, -32768, 7, 1, " blanks ", "ß"}};
    for (const Units entered : {Units::Imperial, Units::Metric}) {
        project_.EnteredIn = entered;
        const Project stored = Save();
        EXPECT_EQ(stored, project_);
        EXPECT_EQ(file_.Open().Load("P").Value, stored);
    }
}

TEST_F(SavingAProject, ReplacesItsRoomsAndNoOthers) {
    file_.Run("INSERT INTO InputData VALUES (7, 1, 1, '', '', 0, 0, 5), "
              "(600, 1, 1, '', '', 0, 0, 5), (NULL, 1, 1, '', '', 0, 0, 5), "
              "(0, 2, 2, '', '', 0, 0, 6)");
    Save();
    EXPECT_EQ(Widths(5), newWidths_);
    EXPECT_EQ(Widths(6), Lines{"2"});
}

TEST_F(SavingAProject, TwiceLeavesOneSheet) {
    Save();
    project_.Rooms.pop_back();
    Save();
    EXPECT_EQ(Sheets(), Lines{"5|P|3"});
}

TEST_F(SavingAProject, StoresANewProjectUnderTheNumberSetAsideForIt) {
    SaveAsNew("NEW");
    project_.Sheet = 6;
    EXPECT_EQ(Save().Sheet, 6);
    EXPECT_EQ(Sheets(), (Lines{"5|P|3", "6|NEW|4"}));
    EXPECT_EQ(Widths(6), newWidths_);
}

TEST_F(SavingAProject, StoresAFullProjectAndRefusesOneRoomMore) {
    project_.Rooms.assign(501, Room{1, 2, 3, 4, "", ""});
    Save();
    EXPECT_EQ(file_.Rows("SELECT count(*), max(ObjNum) FROM InputData"), Lines{"501|500"});
    project_.Rooms.resize(502);
    try {
        Save();
        FAIL() << "no error was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), SubscriptNumber);
        EXPECT_EQ(error.Sentences(),
                  "Subscript out of range. The project is full: it can hold 501 rooms.");
    }
    EXPECT_EQ(Sheets(), Lines{"5|P|501"});
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenItFailsAtAnyRoom) {
    for (int room = 0; room < 4; ++room) {
        file_.Run("CREATE TRIGGER Stop BEFORE INSERT ON InputData WHEN NEW.ObjNum = " +
                  std::to_string(room) + " BEGIN SELECT RAISE(ABORT, 'stop'); END");
        EXPECT_EQ(DatabaseErrorOf([&] { Save(); }), "InputData takes no new row: stop.");
        ExpectOldProject();
        file_.Run("DROP TRIGGER Stop");
    }
    Save(); // the next try works
    EXPECT_EQ(Widths(5), newWidths_);
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenARowCannotBeDeleted) {
    for (const char* table : {"MainTab", "InputData"}) {
        file_.Run("CREATE TRIGGER Stop BEFORE DELETE ON " + std::string(table) +
                  " BEGIN SELECT RAISE(ABORT, 'stop'); END");
        EXPECT_EQ(DatabaseErrorOf([&] { Save(); }),
                  std::string(table) + " cannot be deleted from: stop.");
        ExpectOldProject();
        file_.Run("DROP TRIGGER Stop");
    }
}

TEST_F(SavingAProject, IsNoSuccessWhenTheDatabaseSilentlyKeepsARow) {
    for (const char* table : {"MainTab", "InputData"}) {
        file_.Run("CREATE TRIGGER Keep BEFORE DELETE ON " + std::string(table) +
                  " BEGIN SELECT RAISE(IGNORE); END");
        EXPECT_EQ(DatabaseErrorOf([&] { Save(); }),
                  std::string(table) +
                      " cannot be deleted from: the database keeps a row as it was.");
        ExpectOldProject();
        file_.Run("DROP TRIGGER Keep");
    }
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenTheSheetFails) {
    file_.Run(
        "CREATE TRIGGER Stop BEFORE INSERT ON MainTab BEGIN SELECT RAISE(ABORT, 'stop'); END");
    EXPECT_EQ(DatabaseErrorOf([&] { Save(); }), "MainTab takes no new row: stop.");
    ExpectOldProject();
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenTheDatabaseTakesTheChangeBackItself) {
    file_.Run("CREATE TRIGGER Stop BEFORE INSERT ON InputData WHEN NEW.ObjNum = 2 "
              "BEGIN SELECT RAISE(ROLLBACK, 'stop'); END");
    EXPECT_EQ(DatabaseErrorOf([&] { Save(); }), "InputData takes no new row: stop.");
    ExpectOldProject();
    file_.Run("DROP TRIGGER Stop");
    Save();
    EXPECT_EQ(Widths(5), newWidths_);
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenATableOrAFieldIsMissing) {
    file_.Run("ALTER TABLE InputData RENAME TO Hidden");
    EXPECT_EQ(DatabaseErrorOf([&] { Save(); }),
              "InputData cannot be read: no such table: InputData.");
    file_.Run("ALTER TABLE Hidden RENAME TO InputData");
    file_.Run("ALTER TABLE InputData RENAME COLUMN RoomRemark TO Hidden");
    EXPECT_EQ(DatabaseErrorOf([&] { Save(); }), "InputData has no field RoomRemark.");
    ExpectOldProject();
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenAnotherProgramHoldsALock) {
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_EQ(DatabaseErrorOf([&] { Save(); }),
              "The database takes no change: another program is using the database. Close that "
              "program and try again.");
    other.Run("COMMIT");
    ExpectOldProject();
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenThereAreTooManyRooms) {
    project_.Rooms.resize(502);
    EXPECT_THROW(Save(), RunTimeError);
    ExpectOldProject();
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenTheProgramDiesInTheMiddle) {
    store_ = ProjectStore();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ProjectStore store = file_.Open();
        store.InOneTransaction([&] {
            store.Save(project_, Units::Imperial);
            _exit(0);
        });
        _exit(1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0) << "the child did not get as far as it should";
    ExpectOldProject();

    store_ = file_.Open();
    Save();
    EXPECT_EQ(Widths(5), newWidths_);
}

TEST_F(SavingAProject, TakesTheNextFreeNumberWhereAnotherProjectHasTheNumberMeanwhile) {
    file_.AddProject("MARCH", "OTHER", 6, 2);
    file_.AddProject("MARCH", "THIRD", 9);
    SaveAsNew("NEW");
    project_.Sheet = 6;
    EXPECT_EQ(Save().Sheet, 10);
    EXPECT_EQ(Sheets(), (Lines{"5|P|3", "6|OTHER|2", "9|THIRD|0", "10|NEW|4"}));
    EXPECT_EQ(Widths(6), (Lines{"100", "101"})) << "the other project is left alone";
    EXPECT_EQ(Widths(10), newWidths_);
}

TEST_F(SavingAProject, ChangesNothingWhenItFailsUnderANewNumber) {
    file_.Run("UPDATE MainTab SET ProjName = 'OTHER'");
    file_.Run(
        "CREATE TRIGGER Stop BEFORE INSERT ON InputData BEGIN SELECT RAISE(ABORT, 'stop'); END");
    EXPECT_THROW(Save(), DatabaseError);
    EXPECT_EQ(Sheets(), Lines{"5|OTHER|3"});
}

TEST_F(SavingAProject, KeepsEverythingWhenItFailsAtTheVeryEnd) {
    file_.Run("UPDATE MainTab SET ProjName = 'OTHER'");
    RawDatabase reader(file_.Path());
    reader.Run("BEGIN");
    reader.Rows("SELECT * FROM MainTab"); // keeps the change out of the file
    EXPECT_EQ(DatabaseErrorOf([&] { Save(); }),
              "The change cannot be stored: another program is using the database. Close that "
              "program and try again.");
    reader.Run("COMMIT");
    EXPECT_EQ(Sheets(), Lines{"5|OTHER|3"});
    Save();
    EXPECT_EQ(Sheets(), (Lines{"5|OTHER|3", "6|P|4"}));
}

TEST_F(SavingAProject, RaisesOverflowWhenNoNumberIsFree) {
    file_.Run("UPDATE MainTab SET ProjName = 'OTHER'");
    file_.AddProject("MARCH", "LAST", 32767);
    EXPECT_THROW(Save(), RunTimeError);
    EXPECT_EQ(Sheets(), (Lines{"5|OTHER|3", "32767|LAST|0"}));
}

TEST_F(SavingAProject, IsTheSameProjectInAnotherLetterCase) {
    file_.Run("UPDATE MainTab SET ProjName = 'p'");
    Save();
    EXPECT_EQ(Sheets(), Lines{"5|P|4"});
}

TEST_F(SavingAProject, NeverGivesAProjectASecondSheet) {
    // Another program saved the project first, under a number of its own.
    project_.Sheet = 8;
    EXPECT_EQ(Save().Sheet, 5);
    EXPECT_EQ(Sheets(), Lines{"5|P|4"});
    EXPECT_EQ(Widths(5), newWidths_);
}

TEST_F(SavingAProject, LeavesANumberThatTwoProjectsShare) {
    file_.AddProject("MARCH", "OTHER", 5);
    EXPECT_EQ(Save().Sheet, 6);
    EXPECT_EQ(Sheets(), (Lines{"6|P|4", "5|OTHER|0"}));
    EXPECT_EQ(Widths(6), newWidths_);
    EXPECT_EQ(store_.SheetOf("P"), 6) << "what was saved is what opens next time";
}

TEST_F(SavingAProject, KeepsItsUnitsWhenItLeavesASharedNumber) {
    for (const char* stored : {"EnteredMetric = 1", "EnteredMetric = NULL, TileLabelNUm = 1"}) {
        SCOPED_TRACE(stored);
        file_.Run("DELETE FROM MainTab");
        file_.Run("DELETE FROM InputData");
        file_.AddProject("MARCH", "OTHER", 5);
        file_.AddProject("MARCH", "P", 5);
        file_.Run("UPDATE MainTab SET " + std::string(stored) + " WHERE ProjName = 'P'");
        project_ = store_.Load("P").Value;
        project_.Rooms.resize(1);
        EXPECT_EQ(Save().EnteredIn, Units::Metric);
        EXPECT_EQ(UnitsStored(), (Lines{"5|OTHER|0", "6|P|1"}));
    }
}

TEST_F(SavingAProject, TakesNoUnitsFromTheProjectThatSharesItsNumber) {
    file_.AddProject("MARCH", "OTHER", 5);
    file_.Run("UPDATE MainTab SET EnteredMetric = 1 WHERE ProjName = 'OTHER'");
    EXPECT_EQ(Save().EnteredIn, Units::Imperial);
    EXPECT_EQ(UnitsStored(), (Lines{"5|OTHER|1", "6|P|0"}));
}

TEST_F(SavingAProject, OpensNextTimeAsItWasSavedThoughItHadTwoSheets) {
    file_.AddProject("MARCH", "P", 7, 1);
    ASSERT_EQ(store_.SheetOf("P"), 5) << "the first one counts";
    Save();
    EXPECT_EQ(Sheets(), (Lines{"5|P|4", "7|P|1"})) << "it is still said that there are two";
    EXPECT_EQ(store_.SheetOf("P"), 5);
    EXPECT_EQ(Widths(5), newWidths_);
    EXPECT_EQ(Widths(7), Lines{"100"}) << "no room is deleted that was not seen";
}

TEST_F(SavingAProject, PutsOneSheetInThePlaceOfThoseUnderOneNumber) {
    file_.AddProject("MARCH", "P", 5, 0);
    file_.AddProject("MARCH", "OTHER", 8);
    Save();
    EXPECT_EQ(Sheets(), (Lines{"5|P|4", "8|OTHER|0"}));
}

TEST_F(SavingAProject, LeavesRowsWithoutASheetAlone) {
    // What another program left behind: nobody knows whose rooms they are.
    file_.Run("INSERT INTO InputData VALUES (0, 77, 7, '', '', 0, 0, 6)");
    SaveAsNew("NEW");
    project_.Sheet = 6;
    EXPECT_EQ(Save().Sheet, 7);
    EXPECT_EQ(Widths(6), Lines{"77"});
    SaveAsNew("NEWER");
    project_.Sheet = store_.Load("NEWER").Value.Sheet;
    EXPECT_EQ(Save().Sheet, 8);
}

TEST_F(SavingAProject, FailsWhereAViewStandsInThePlaceOfATable) {
    for (const std::string table : {"MainTab", "InputData"}) {
        SCOPED_TRACE(table);
        file_.Run("ALTER TABLE " + table + " RENAME TO Hidden");
        file_.Run("CREATE VIEW " + table + " AS SELECT * FROM Hidden");
        EXPECT_THROW(Save(), DatabaseError);
        file_.Run("DROP VIEW " + table);
        file_.Run("ALTER TABLE Hidden RENAME TO " + table);
        ExpectOldProject();
    }
}

TEST_F(SavingAProject, IsNoSuccessWhenTheDatabaseSilentlyLeavesARowOut) {
    for (const std::string table : {"MainTab", "InputData"}) {
        file_.Run("CREATE TRIGGER Leave BEFORE INSERT ON " + table +
                  " BEGIN SELECT RAISE(IGNORE); END");
        EXPECT_EQ(DatabaseErrorOf([&] { Save(); }),
                  table + " takes no new row: the database leaves it out.");
        ExpectOldProject();
        file_.Run("DROP TRIGGER Leave");
    }
}

TEST_F(SavingAProject, KeepsWhatOtherProgramsHaveInTheRowsOfOtherProjects) {
    file_.AddProject("MARCH", "OTHER", 6, 2);
    const auto others = [&] {
        return file_.Rows("SELECT rowid, * FROM InputData WHERE TabIndex = 6");
    };
    const Lines before = others();
    Save();
    EXPECT_EQ(others(), before);
}

TEST_F(SavingAProject, NeverStoresTheNumberThatMeansNoSheet) {
    SaveAsNew("NEW");
    project_.Sheet = -100;
    EXPECT_EQ(Save().Sheet, 6);
    EXPECT_EQ(Sheets().back(), "6|NEW|4");
    file_.Run("UPDATE MainTab SET TabIndex = -100 WHERE ProjName = 'P'");
    project_.Name = "P";
    EXPECT_EQ(Save().Sheet, 7);
}

TEST_F(SavingAProject, StoresNoRooms) {
    project_.Rooms.clear();
    Save();
    EXPECT_EQ(Sheets(), Lines{"5|P|0"});
    EXPECT_EQ(Widths(5), Lines{});
}

TEST_F(SavingAProject, MarksItAsMetricAsItWasEnteredWhateverUnitsAreInForce) {
    for (const Units entered : {Units::Metric, Units::Imperial}) {
        for (const Units shown : {Units::Imperial, Units::Metric}) {
            project_.EnteredIn = entered;
            EXPECT_EQ(Save(shown).EnteredIn, entered);
            EXPECT_EQ(file_.Rows("SELECT TileLabelNUm, EnteredMetric FROM MainTab"),
                      Lines{std::string(shown == Units::Metric ? "1" : "0") +
                            (entered == Units::Metric ? "|1" : "|0")});
            EXPECT_EQ(store_.Load("P").Value.EnteredIn, entered);
        }
    }
}

TEST_F(SavingAProject, KeepsTheMarkThatItWasLoadedWith) {
    for (const char* stored : {"EnteredMetric = 1", "EnteredMetric = NULL, TileLabelNUm = 1"}) {
        file_.Run("UPDATE MainTab SET " + std::string(stored));
        project_ = store_.Load("P").Value;
        project_.Rooms[0].Remark = "changed";
        Save();
        EXPECT_EQ(file_.Rows("SELECT TileLabelNUm, EnteredMetric FROM MainTab"), Lines{"0|1"});
    }
}

TEST_F(SavingAProject, WithoutRoomsDropsTheMark) {
    project_.EnteredIn = Units::Metric;
    project_.Rooms.clear();
    EXPECT_EQ(Save(Units::Metric).EnteredIn, Units::Imperial);
    EXPECT_EQ(file_.Rows("SELECT TileLabelNUm, EnteredMetric FROM MainTab"), Lines{"1|0"});
    EXPECT_EQ(store_.Load("P").Value.EnteredIn, Units::Imperial);
}

TEST_F(SavingAProject, AddsAMissingMarkToTheTable) {
    file_.AddProject("MARCH", "OTHER", 6);
    file_.Run("UPDATE MainTab SET TileLabelNUm = 1");
    file_.Run("ALTER TABLE MainTab DROP COLUMN EnteredMetric");
    project_ = store_.Load("P").Value;
    Save();
    EXPECT_EQ(file_.Rows("SELECT ProjName, TileLabelNUm, EnteredMetric FROM MainTab "
                         "ORDER BY ProjName"),
              (Lines{"OTHER|1|NULL", "P|0|1"}));
    EXPECT_EQ(store_.Load("OTHER").Value.EnteredIn, Units::Metric) << "counts as before";
}

TEST_F(SavingAProject, AddsNoMarkToTheTableWhenItFails) {
    file_.Run("ALTER TABLE MainTab DROP COLUMN EnteredMetric");
    file_.Run(
        "CREATE TRIGGER Stop BEFORE INSERT ON InputData BEGIN SELECT RAISE(ABORT, 'stop'); END");
    EXPECT_THROW(Save(), DatabaseError);
    EXPECT_EQ(file_.Rows("SELECT * FROM pragma_table_info('MainTab') WHERE name = 'EnteredMetric'"),
              Lines{});
    ExpectOldProject();
}

TEST_F(SavingAProject, RefusesANameWithADoubleQuote) {
    project_.Name = "A\"B";
    EXPECT_EQ(DatabaseErrorOf([&] { Save(); }),
              "The name A\"B cannot be used: a double quote stands inside it.");
    ExpectOldProject();
}

} // namespace
} // namespace tarn
