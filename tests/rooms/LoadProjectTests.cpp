#include "rooms/RoomStore.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::TestDatabase;

using Lines = std::vector<std::string>;
using Outcome = ProjectLoad::Outcome;

class LoadingAProject : public ::testing::Test {
  protected:
    LoadingAProject() {
        file_.OpenInto(state_);
        state_.CurProjName = "P";
        // What another project left behind.
        state_.MetricFlag = 1;
        state_.ObjNum = 9;
        state_.NewSheetFlag = true;
        for (Integer room = 0; room <= MaxRoom; ++room) {
            state_.RoomWidth[room] = 777;
            state_.RoomRemark[room] = "old";
        }
    }

    /// A project of `rooms` rooms under sheet 5.
    void AddProject(int rooms) { file_.AddProject("MARCH", "P", 5, rooms); }
    void Change(const std::string& field, const std::string& value, int room) {
        file_.Run("UPDATE InputData SET " + field + " = " + value +
                  " WHERE ObjNum = " + std::to_string(room));
    }
    /// The findings of a load that succeeds.
    Lines Findings() {
        const ProjectLoad load = LoadProject(state_);
        EXPECT_EQ(load.Result, Outcome::Loaded) << load.Cause;
        return load.Findings;
    }
    void ExpectEmptySlots() const {
        for (Integer room = 0; room <= MaxRoom; ++room) {
            ASSERT_EQ(state_.RoomWidth[room], 0) << room;
            ASSERT_EQ(state_.RoomRemark[room], "") << room;
        }
    }
    void ExpectFailure(const std::string& cause) {
        const ProjectLoad load = LoadProject(state_);
        EXPECT_EQ(load.Result, Outcome::Failed);
        EXPECT_NE(load.Cause.find(cause), std::string::npos) << load.Cause;
        EXPECT_EQ(state_.ObjNum, 0);
        EXPECT_EQ(state_.MetricFlag, 0);
        EXPECT_NE(state_.CurTabIndex, -100);
        ExpectEmptySlots();
    }

    TestDatabase file_;
    SharedState state_;
};

TEST_F(LoadingAProject, FillsTheSharedStateFromTheDatabase) {
    AddProject(3);
    file_.AddProject("MARCH", "OTHER", 6, 7);
    file_.Run("UPDATE MainTab SET DigScale = 0.5 WHERE ProjName = 'P'");
    const ProjectLoad load = LoadProject(state_);
    EXPECT_EQ(load.Result, Outcome::Loaded) << load.Cause;
    EXPECT_EQ(load.Findings, Lines{});
    EXPECT_FALSE(load.EnteredMetric);
    EXPECT_EQ(state_.CurTabIndex, 5);
    EXPECT_FALSE(state_.NewSheetFlag);
    EXPECT_EQ(state_.ObjNum, 3);
    EXPECT_EQ(state_.DimScale, 0.5);
    EXPECT_EQ(state_.MetricFlag, 0);
    EXPECT_EQ(state_.RoomWidth[2], 102);
    EXPECT_EQ(state_.RoomLength[2], 202);
    EXPECT_EQ(state_.RoomWidth[3], 0) << "nothing of another project stays";
    EXPECT_EQ(state_.RoomRemark[500], "");
}

TEST_F(LoadingAProject, SaysWhetherItWasEnteredInMetric) {
    AddProject(1);
    file_.Run("UPDATE MainTab SET EnteredMetric = 1");
    EXPECT_TRUE(LoadProject(state_).EnteredMetric);
    file_.Run("UPDATE MainTab SET EnteredMetric = NULL, TileLabelNUm = 1");
    EXPECT_TRUE(LoadProject(state_).EnteredMetric);
    file_.Run("UPDATE MainTab SET EnteredMetric = 0");
    EXPECT_FALSE(LoadProject(state_).EnteredMetric);
}

TEST_F(LoadingAProject, AllocatesANumberForAProjectWithoutASheet) {
    file_.AddProject("MARCH", "OTHER", 6, 7);
    state_.NewSheetFlag = false;
    const ProjectLoad load = LoadProject(state_);
    EXPECT_EQ(load.Result, Outcome::NoSheet);
    EXPECT_EQ(state_.CurTabIndex, 7);
    EXPECT_TRUE(state_.NewSheetFlag);
    EXPECT_EQ(state_.ObjNum, 0);
    EXPECT_EQ(state_.MetricFlag, 0);
    ExpectEmptySlots();
}

TEST_F(LoadingAProject, FailsWhenNoNumberIsLeft) {
    file_.AddProject("MARCH", "OTHER", 32767);
    ExpectFailure("Overflow");
}

TEST_F(LoadingAProject, FailsForASheetNumberThatDoesNotFit) {
    file_.AddProject("MARCH", "P", 32768);
    ExpectFailure("Overflow. The sheet of the project P has the number 32768; the greatest is "
                  "32767.");
    file_.Run("UPDATE MainTab SET TabIndex = 99999999999999");
    ExpectFailure("99999999999999");
}

TEST_F(LoadingAProject, FailsForABadSheet) {
    AddProject(2);
    file_.Run("UPDATE MainTab SET ObjNum = 502");
    ExpectFailure("ObjNum");
    file_.Run("UPDATE MainTab SET ObjNum = 2, DigScale = NULL");
    ExpectFailure("DigScale");
    file_.Run("UPDATE MainTab SET TabIndex = NULL");
    ExpectFailure("TabIndex");
}

TEST_F(LoadingAProject, FailsForARoomThatCannotBeRead) {
    AddProject(3);
    Change("RoomL", "40000", 2);
    ExpectFailure("ObjNum 2");
    Change("RoomL", "'long'", 2);
    ExpectFailure("RoomL");
}

TEST_F(LoadingAProject, FailsWithoutTheRoomTable) {
    AddProject(3);
    file_.Run("DROP TABLE InputData");
    ExpectFailure("InputData");
}

TEST_F(LoadingAProject, AFailedLookUpIsNotANewProject) {
    file_.Run("DROP TABLE MainTab");
    state_.CurTabIndex = 3;
    state_.NewSheetFlag = false;
    ExpectFailure("MainTab");
    EXPECT_EQ(state_.CurTabIndex, 3);
    EXPECT_FALSE(state_.NewSheetFlag);
}

TEST_F(LoadingAProject, FailsWithoutADatabaseForTheReasonWhyItIsNotOpen) {
    state_.CurDB.reset();
    state_.DatabaseFailure = "It is missing.";
    ExpectFailure("It is missing.");
}

TEST_F(LoadingAProject, NamesMissingRooms) {
    AddProject(9);
    file_.Run("DELETE FROM InputData WHERE ObjNum IN (1, 3, 4, 6, 7, 8)");
    EXPECT_EQ(Findings(), Lines{"Missing, read as empty: rooms 2, 4, 5, 7 to 9."});
    EXPECT_EQ(state_.RoomWidth[1], 0);
    EXPECT_EQ(state_.RoomWidth[5], 105);
}

TEST_F(LoadingAProject, NamesRoomsBeyondItsEnd) {
    AddProject(4);
    file_.Run("UPDATE MainTab SET ObjNum = 3");
    EXPECT_EQ(Findings(), Lines{"Beyond the end of the project, dropped by SAVE: room 4."});
}

TEST_F(LoadingAProject, LeavesOutRowsOutsideTheSlots) {
    AddProject(2);
    file_.Run("INSERT INTO InputData VALUES (501, 1, 1, '', '', 0, 0, 5), "
              "(-1, 1, 1, '', '', 0, 0, 5), (70000, 1, 1, '', '', 0, 0, 5)");
    EXPECT_EQ(Findings(), Lines{"Outside rooms 1 to 501, left out and dropped by SAVE: ObjNum -1, "
                                "501, 70000."});
    EXPECT_EQ(state_.RoomWidth[1], 101);
}

TEST_F(LoadingAProject, NamesRoomsStoredTwiceAndUsesTheLast) {
    AddProject(2);
    file_.Run("INSERT INTO InputData VALUES (1, 55, 66, '', '', 0, 0, 5)");
    EXPECT_EQ(Findings(), Lines{"Stored more than once, the last row is used: room 2."});
    EXPECT_EQ(state_.RoomWidth[1], 55);
}

TEST_F(LoadingAProject, NamesRoomsWithNullsInTheirNumbers) {
    AddProject(5);
    Change("RoomW", "NULL", 0);
    Change("RoomL", "NULL", 1);
    Change("CTType", "NULL", 2);
    Change("BaseSty", "NULL", 3);
    Change("RoomNoStr", "NULL", 4);
    Change("RoomRemark", "NULL", 4);
    EXPECT_EQ(Findings(), (Lines{"Without a width or a length, read as 0: rooms 1, 2.",
                                 "Without a covering, read as CARPET-1: room 3.",
                                 "Without a wall base, read as none: room 4."}));
}

TEST_F(LoadingAProject, NamesARoomWithoutANumber) {
    AddProject(2);
    Change("ObjNum", "NULL", 0);
    EXPECT_EQ(Findings(), Lines{"Without a room number, read as: room 1."});
    EXPECT_EQ(state_.RoomWidth[0], 100);
}

TEST_F(LoadingAProject, NamesUnknownCoveringsAndWallBasesAndKeepsThem) {
    AddProject(4);
    Change("CTType", "12", 0);
    Change("CTType", "11", 1);
    Change("BaseSty", "9", 2);
    Change("BaseSty", "8", 3);
    EXPECT_EQ(Findings(),
              (Lines{"With an unknown covering, not estimated until one is chosen: room 1.",
                     "With an unknown wall base, shown as none: room 3."}));
    EXPECT_EQ(state_.RoomCarpet[0], 12);
    EXPECT_EQ(state_.RoomBase[2], 9);
}

TEST_F(LoadingAProject, ReadsItsOwnSheetUnderANumberThatProjectsShare) {
    file_.AddProject("MARCH", "A", 5, 0);
    file_.AddProject("MARCH", "P", 5, 1);
    file_.Run("UPDATE MainTab SET EnteredMetric = 1 WHERE ProjName = 'P'");
    const ProjectLoad load = LoadProject(state_);
    EXPECT_EQ(load.Result, Outcome::Loaded) << load.Cause;
    EXPECT_EQ(state_.ObjNum, 1);
    EXPECT_EQ(state_.RoomWidth[0], 100);
    EXPECT_TRUE(load.EnteredMetric);
    EXPECT_EQ(
        load.Findings,
        Lines{"Stored under one number with the project A, whose rooms they may be: room 1."});

    EXPECT_TRUE(SaveProject(state_)) << state_.DatabaseFailure;
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

TEST_F(LoadingAProject, WhatIsSavedLoadsWithoutFindings) {
    AddProject(3);
    file_.Run("UPDATE MainTab SET ObjNum = 2");
    Findings();
    state_.MetricFlag = 1;
    EXPECT_TRUE(SaveProject(state_)) << state_.DatabaseFailure;
    const ProjectLoad load = LoadProject(state_);
    EXPECT_EQ(load.Findings, Lines{});
    EXPECT_TRUE(load.EnteredMetric);
    EXPECT_EQ(state_.ObjNum, 2);
    EXPECT_EQ(state_.MetricFlag, 0);
}

} // namespace
} // namespace tarn
