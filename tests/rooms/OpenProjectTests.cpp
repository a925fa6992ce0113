#include "rooms/OpenProject.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::RawDatabase;
using testing::ShortWait;
using testing::TestDatabase;

using Outcome = ProjectLoad::Outcome;

struct OpenProjects : ::testing::Test {
    OpenProjects() {
        file.AddProject("MARCH", "P", 5, 3);
        file.OpenInto(state, ShortWait);
        state.CurProjName = "P";
    }
    ProjectLoad Load() { return LoadOpenProject(state, project); }

    TestDatabase file;
    SharedState state;
    OpenProject project;
};

TEST_F(OpenProjects, AreSavedWhenTheyWereJustLoaded) {
    EXPECT_EQ(Load().Result, Outcome::Loaded);
    EXPECT_EQ(project.StoredRooms.size(), 3U);
    EXPECT_FALSE(HasUnsavedRooms(state, project));
}

TEST_F(OpenProjects, AreUnsavedAfterAnyChangeAndSavedAfterItsUndoing) {
    Load();
    const RoomRecord room = TakeRooms(state)[1];
    const auto expectUnsavedWith = [&](const RoomRecord& changed) {
        PutRoom(state, 1, changed);
        EXPECT_TRUE(HasUnsavedRooms(state, project));
        PutRoom(state, 1, room);
        EXPECT_FALSE(HasUnsavedRooms(state, project));
    };
    RoomRecord changed = room;
    ++changed.Width;
    expectUnsavedWith(changed);
    changed = room;
    ++changed.Length;
    expectUnsavedWith(changed);
    changed = room;
    changed.Covering = 9;
    expectUnsavedWith(changed);
    changed = room;
    changed.Base = 4;
    expectUnsavedWith(changed);
    changed = room;
    changed.RoomNo += "7";
    expectUnsavedWith(changed);
    changed = room;
    changed.Remark += " ";
    expectUnsavedWith(changed);
}

TEST_F(OpenProjects, AreUnsavedWithARoomMoreOrLess) {
    Load();
    state.ObjNum = 4;
    EXPECT_TRUE(HasUnsavedRooms(state, project));
    state.ObjNum = 2;
    EXPECT_TRUE(HasUnsavedRooms(state, project));
}

TEST_F(OpenProjects, AChangeBehindTheLastRoomIsNone) {
    Load();
    state.RoomWidth[3] = 77;
    EXPECT_FALSE(HasUnsavedRooms(state, project));
}

TEST_F(OpenProjects, RememberThatTheirRoomsWereStoredInMetric) {
    Load();
    EXPECT_FALSE(IsInMetric(state, project));
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    EXPECT_TRUE(IsInMetric(state, project));
}

TEST_F(OpenProjects, AreInMetricWhenUnsavedRoomsWereTypedSo) {
    Load();
    project.TypedInMetric = true;
    EXPECT_FALSE(IsInMetric(state, project)) << "nothing is unsaved";
    state.RoomWidth[0] = 1;
    EXPECT_TRUE(IsInMetric(state, project));
}

TEST_F(OpenProjects, StayInMetricWhenAStoredRoomIsChanged) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    state.RoomWidth[0] = 1;
    EXPECT_TRUE(IsInMetric(state, project));
}

TEST_F(OpenProjects, ALoadForgetsInWhichUnitsRoomsWereTyped) {
    project.TypedInMetric = true;
    Load();
    EXPECT_FALSE(project.TypedInMetric);
}

TEST_F(OpenProjects, AProjectWithoutASheetHasNothingStored) {
    state.CurProjName = "NEW";
    EXPECT_EQ(Load().Result, Outcome::NoSheet);
    EXPECT_TRUE(project.StoredRooms.empty());
    EXPECT_FALSE(HasUnsavedRooms(state, project));
    state.ObjNum = 1;
    EXPECT_TRUE(HasUnsavedRooms(state, project));
}

TEST_F(OpenProjects, AFailedLoadLeavesNothingToSave) {
    Load();
    file.Run("DROP TABLE InputData");
    EXPECT_EQ(Load().Result, Outcome::Failed);
    EXPECT_TRUE(project.StoredRooms.empty());
    EXPECT_FALSE(HasUnsavedRooms(state, project));
}

TEST_F(OpenProjects, AreSavedAfterSaving) {
    Load();
    state.RoomWidth[0] = 321;
    state.MetricFlag = 1;
    project.TypedInMetric = true;
    EXPECT_TRUE(SaveOpenProject(state, project)) << state.DatabaseFailure;
    EXPECT_FALSE(HasUnsavedRooms(state, project));
    EXPECT_TRUE(IsInMetric(state, project));
    EXPECT_FALSE(project.TypedInMetric);
    EXPECT_EQ(file.Rows("SELECT RoomW FROM InputData WHERE ObjNum = 0"),
              std::vector<std::string>{"321"});
    EXPECT_EQ(file.Rows("SELECT EnteredMetric FROM MainTab"), std::vector<std::string>{"1"});
}

TEST_F(OpenProjects, SavingWithoutMetricKeepsTheUnitsStored) {
    for (const bool metric : {false, true}) {
        file.Run("UPDATE MainTab SET EnteredMetric = " + std::to_string(metric));
        Load();
        state.RoomWidth[0] += 1;
        EXPECT_TRUE(SaveOpenProject(state, project)) << state.DatabaseFailure;
        EXPECT_EQ(project.StoredInMetric, metric);
        EXPECT_EQ(Load().EnteredMetric, metric) << "as stored";
    }
}

TEST_F(OpenProjects, RememberTheUnitsThatAreStoredAfterLeavingASharedNumber) {
    file.AddProject("MARCH", "OTHER", 5);
    file.Run("UPDATE MainTab SET EnteredMetric = 1 WHERE ProjName = 'P'");
    Load();
    EXPECT_TRUE(SaveOpenProject(state, project)) << state.DatabaseFailure;
    EXPECT_EQ(state.CurTabIndex, 6);
    EXPECT_TRUE(project.StoredInMetric);
    EXPECT_TRUE(Load().EnteredMetric) << "as stored";
}

TEST_F(OpenProjects, SavingNoRoomForgetsTheUnits) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    state.ObjNum = 0;
    EXPECT_TRUE(SaveOpenProject(state, project)) << state.DatabaseFailure;
    EXPECT_FALSE(project.StoredInMetric);
    EXPECT_FALSE(Load().EnteredMetric) << "as stored";
}

TEST_F(OpenProjects, AFailedSaveRemembersNothing) {
    Load();
    state.RoomWidth[0] = 321;
    project.TypedInMetric = true;
    const auto stored = project.StoredRooms;
    RawDatabase other(file.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_FALSE(SaveOpenProject(state, project));
    other.Run("ROLLBACK");
    EXPECT_EQ(project.StoredRooms, stored);
    EXPECT_TRUE(project.TypedInMetric);
    EXPECT_TRUE(HasUnsavedRooms(state, project));
    EXPECT_EQ(state.RoomWidth[0], 321);
}

TEST_F(OpenProjects, DroppingEmptiesEverySlotAndKeepsWhatIsStored) {
    Load();
    state.RoomWidth[500] = 7;
    state.RoomRemark[400] = "left";
    project.EstimateVisible = false;
    project.Usable = false;
    project.TypedInMetric = true;
    DropOpenProject(state, project);
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_EQ(state.RoomWidth[500], 0);
    EXPECT_EQ(state.RoomRemark[400], "");
    EXPECT_TRUE(project.StoredRooms.empty());
    EXPECT_FALSE(project.StoredInMetric);
    EXPECT_FALSE(project.TypedInMetric);
    EXPECT_TRUE(project.EstimateVisible);
    EXPECT_TRUE(project.Usable);
    EXPECT_EQ(file.Rows("SELECT count(*) FROM InputData"), std::vector<std::string>{"3"});
}

} // namespace
} // namespace tarn
