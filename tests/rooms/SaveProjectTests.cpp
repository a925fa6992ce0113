#include "app/RunTimeError.h"
#include "rooms/RoomStore.h"
#include "store/Sheets.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

using testing::RawDatabase;
using testing::ShortWait;
using testing::TestDatabase;

using Lines = std::vector<std::string>;

class SavingAProject : public ::testing::Test {
  protected:
    SavingAProject() {
        file_.AddProject("MARCH", "P", 5, 3);
        file_.OpenInto(state_, ShortWait);
        state_.CurProjName = "P";
        state_.CurTabIndex = 5;
        state_.ObjNum = 4;
        for (Integer room = 0; room < state_.ObjNum; ++room) {
            state_.RoomWidth[room] = static_cast<Integer>(1000 + room);
        }
    }

    Lines Sheets() const {
        return file_.Rows("SELECT TabIndex, ProjName, ObjNum FROM MainTab ORDER BY rowid");
    }
    /// The widths stored for a sheet.
    Lines Widths(int sheet) const {
        return file_.Rows("SELECT RoomW FROM InputData WHERE TabIndex = " + std::to_string(sheet) +
                          " ORDER BY ObjNum");
    }
    void ExpectOldProject() const {
        EXPECT_EQ(Sheets(), Lines{"5|P|3"});
        EXPECT_EQ(Widths(5), (Lines{"100", "101", "102"}));
    }
    void ExpectStateUnchanged(Integer rooms = 4) const {
        EXPECT_EQ(state_.CurTabIndex, 5);
        EXPECT_TRUE(state_.NewSheetFlag);
        EXPECT_EQ(state_.ObjNum, rooms);
        EXPECT_EQ(state_.RoomWidth[3], 1003);
        EXPECT_EQ(state_.CurProjName, "P");
    }

    static constexpr const char* NewWidths[] = {"1000", "1001", "1002", "1003"};
    const Lines newWidths_{std::begin(NewWidths), std::end(NewWidths)};
    TestDatabase file_;
    SharedState state_;
};

TEST_F(SavingAProject, StoresItsSheetAndItsRooms) {
    state_.NewSheetFlag = true;
    EXPECT_TRUE(SaveProject(state_)) << state_.DatabaseFailure;
    EXPECT_EQ(Sheets(), Lines{"5|P|4"});
    EXPECT_EQ(Widths(5), newWidths_);
    EXPECT_EQ(state_.CurTabIndex, 5);
    EXPECT_FALSE(state_.NewSheetFlag);
}

TEST_F(SavingAProject, StoresANewProjectUnderTheNumberAllocatedForIt) {
    state_.CurProjName = "NEW";
    state_.CurTabIndex = 6;
    EXPECT_TRUE(SaveProject(state_));
    EXPECT_EQ(Sheets(), (Lines{"5|P|3", "6|NEW|4"}));
    EXPECT_EQ(Widths(6), newWidths_);
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenItFailsAtAnyRoom) {
    for (int room = 0; room < 4; ++room) {
        file_.Run("CREATE TRIGGER Stop BEFORE INSERT ON InputData WHEN NEW.ObjNum = " +
                  std::to_string(room) + " BEGIN SELECT RAISE(ABORT, 'stop'); END");
        state_.NewSheetFlag = true;
        EXPECT_FALSE(SaveProject(state_));
        EXPECT_EQ(state_.DatabaseFailure, "InputData takes no new row: stop.");
        ExpectStateUnchanged();
        ExpectOldProject();
        file_.Run("DROP TRIGGER Stop");
    }
    EXPECT_TRUE(SaveProject(state_)) << "the next try works";
    EXPECT_EQ(Widths(5), newWidths_);
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenTheSheetFails) {
    file_.Run(
        "CREATE TRIGGER Stop BEFORE INSERT ON MainTab BEGIN SELECT RAISE(ABORT, 'stop'); END");
    state_.NewSheetFlag = true;
    EXPECT_FALSE(SaveProject(state_));
    EXPECT_EQ(state_.DatabaseFailure, "MainTab takes no new row: stop.");
    ExpectStateUnchanged();
    ExpectOldProject();
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenTheRoomTableIsMissing) {
    file_.Run("ALTER TABLE InputData RENAME TO Hidden");
    EXPECT_FALSE(SaveProject(state_));
    file_.Run("ALTER TABLE Hidden RENAME TO InputData");
    ExpectOldProject();
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenAnotherProgramHoldsALock) {
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    state_.NewSheetFlag = true;
    EXPECT_FALSE(SaveProject(state_));
    EXPECT_NE(state_.DatabaseFailure.find("another program"), std::string::npos);
    other.Run("COMMIT");
    ExpectStateUnchanged();
    ExpectOldProject();
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenThereAreTooManyRooms) {
    state_.ObjNum = 502;
    state_.NewSheetFlag = true;
    EXPECT_THROW(SaveProject(state_), RunTimeError);
    ExpectStateUnchanged(502);
    ExpectOldProject();
}

TEST_F(SavingAProject, LeavesTheOldProjectWholeWhenTheProgramDiesInTheMiddle) {
    state_.CurDB.reset();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // As SaveProject goes about it, up to the moment before it is done.
        file_.OpenInto(state_);
        state_.CurDB->Begin();
        const bool saved = SaveMainTab(state_, 5) && SaveInputData(state_, 5);
        _exit(saved ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0) << "the child did not get as far as it should";
    ExpectOldProject();

    file_.OpenInto(state_);
    EXPECT_TRUE(SaveProject(state_));
    EXPECT_EQ(Widths(5), newWidths_);
}

TEST_F(SavingAProject, TakesTheNextFreeNumberWhereAnotherProjectHasTheNumberMeanwhile) {
    file_.AddProject("MARCH", "OTHER", 6, 2);
    file_.AddProject("MARCH", "THIRD", 9);
    state_.CurProjName = "NEW";
    state_.CurTabIndex = 6;
    EXPECT_TRUE(SaveProject(state_)) << state_.DatabaseFailure;
    EXPECT_EQ(state_.CurTabIndex, 10);
    EXPECT_EQ(Sheets(), (Lines{"5|P|3", "6|OTHER|2", "9|THIRD|0", "10|NEW|4"}));
    EXPECT_EQ(Widths(6), (Lines{"100", "101"})) << "the other project is left alone";
    EXPECT_EQ(Widths(10), newWidths_);
}

TEST_F(SavingAProject, KeepsTheNumberThatItCouldNotUseWhenItFails) {
    file_.Run("UPDATE MainTab SET ProjName = 'OTHER'");
    file_.Run(
        "CREATE TRIGGER Stop BEFORE INSERT ON InputData BEGIN SELECT RAISE(ABORT, 'stop'); END");
    state_.NewSheetFlag = true;
    EXPECT_FALSE(SaveProject(state_));
    ExpectStateUnchanged();
    EXPECT_EQ(Sheets(), Lines{"5|OTHER|3"});
}

TEST_F(SavingAProject, KeepsEverythingWhenItFailsAtTheVeryEnd) {
    file_.Run("UPDATE MainTab SET ProjName = 'OTHER'");
    RawDatabase reader(file_.Path());
    reader.Run("BEGIN");
    reader.Rows("SELECT * FROM MainTab"); // keeps the change out of the file
    state_.NewSheetFlag = true;
    EXPECT_FALSE(SaveProject(state_));
    EXPECT_NE(state_.DatabaseFailure.find("another program"), std::string::npos);
    ExpectStateUnchanged();
    reader.Run("COMMIT");
    EXPECT_EQ(Sheets(), Lines{"5|OTHER|3"});
    EXPECT_TRUE(SaveProject(state_));
    EXPECT_EQ(Sheets(), (Lines{"5|OTHER|3", "6|P|4"}));
}

TEST_F(SavingAProject, RaisesOverflowWhenNoNumberIsFree) {
    file_.Run("UPDATE MainTab SET ProjName = 'OTHER'");
    file_.AddProject("MARCH", "LAST", 32767);
    state_.NewSheetFlag = true;
    EXPECT_THROW(SaveProject(state_), RunTimeError);
    ExpectStateUnchanged();
    EXPECT_EQ(Sheets(), (Lines{"5|OTHER|3", "32767|LAST|0"}));
}

TEST_F(SavingAProject, IsTheSameProjectInAnotherLetterCase) {
    file_.Run("UPDATE MainTab SET ProjName = 'p'");
    EXPECT_TRUE(SaveProject(state_));
    EXPECT_EQ(Sheets(), Lines{"5|P|4"});
}

TEST_F(SavingAProject, NeverGivesAProjectASecondSheet) {
    // Another program saved the project first, under a number of its own.
    state_.CurTabIndex = 8;
    EXPECT_TRUE(SaveProject(state_));
    EXPECT_EQ(state_.CurTabIndex, 5);
    EXPECT_EQ(Sheets(), Lines{"5|P|4"});
    EXPECT_EQ(Widths(5), newWidths_);
}

TEST_F(SavingAProject, LeavesANumberThatTwoProjectsShare) {
    file_.AddProject("MARCH", "OTHER", 5);
    EXPECT_TRUE(SaveProject(state_));
    EXPECT_EQ(state_.CurTabIndex, 6);
    EXPECT_EQ(Sheets(), (Lines{"5|OTHER|0", "6|P|4"}));
    EXPECT_EQ(Widths(6), newWidths_);
    EXPECT_EQ(GetProjTabIndex(state_), 6) << "what was saved is what opens next time";
}

TEST_F(SavingAProject, KeepsItsUnitsWhenItLeavesASharedNumber) {
    for (const char* stored : {"EnteredMetric = 1", "EnteredMetric = NULL, TileLabelNUm = 1"}) {
        SCOPED_TRACE(stored);
        file_.Run("DELETE FROM MainTab");
        file_.AddProject("MARCH", "OTHER", 5);
        file_.AddProject("MARCH", "P", 5);
        file_.Run("UPDATE MainTab SET " + std::string(stored) + " WHERE ProjName = 'P'");
        EXPECT_TRUE(SaveProject(state_)) << state_.DatabaseFailure;
        EXPECT_EQ(file_.Rows("SELECT TabIndex, ProjName, EnteredMetric FROM MainTab "
                             "ORDER BY TabIndex"),
                  (Lines{"5|OTHER|0", "6|P|1"}));
    }
}

TEST_F(SavingAProject, TakesNoUnitsFromTheProjectThatSharesItsNumber) {
    file_.AddProject("MARCH", "OTHER", 5);
    file_.Run("UPDATE MainTab SET EnteredMetric = 1 WHERE ProjName = 'OTHER'");
    EXPECT_TRUE(SaveProject(state_)) << state_.DatabaseFailure;
    EXPECT_EQ(file_.Rows("SELECT TabIndex, ProjName, EnteredMetric FROM MainTab ORDER BY TabIndex"),
              (Lines{"5|OTHER|1", "6|P|0"}));
}

TEST_F(SavingAProject, OpensNextTimeAsItWasSavedThoughItHadTwoSheets) {
    file_.AddProject("MARCH", "P", 7, 1);
    ASSERT_EQ(GetProjTabIndex(state_), 5) << "the first one counts";
    EXPECT_TRUE(SaveProject(state_)) << state_.DatabaseFailure;
    EXPECT_EQ(Sheets(), Lines{"5|P|4"});
    EXPECT_EQ(GetProjTabIndex(state_), 5);
    EXPECT_EQ(Widths(5), newWidths_);
    EXPECT_EQ(Widths(7), Lines{"100"}) << "no room is deleted that was not seen";
}

TEST_F(SavingAProject, NeverStoresTheNumberThatMeansNoSheet) {
    state_.CurProjName = "NEW";
    state_.CurTabIndex = NoSheet;
    EXPECT_TRUE(SaveProject(state_));
    EXPECT_EQ(state_.CurTabIndex, 6);
    EXPECT_EQ(Sheets().back(), "6|NEW|4");
}

TEST_F(SavingAProject, StoresNoRooms) {
    state_.ObjNum = 0;
    EXPECT_TRUE(SaveProject(state_));
    EXPECT_EQ(Sheets(), Lines{"5|P|0"});
    EXPECT_EQ(Widths(5), Lines{});
}

TEST_F(SavingAProject, FailsWithoutADatabase) {
    state_.CurDB.reset();
    state_.DatabaseFailure = "It is missing.";
    EXPECT_FALSE(SaveProject(state_));
    EXPECT_EQ(state_.DatabaseFailure, "It is missing.");
}

} // namespace
} // namespace tarn
