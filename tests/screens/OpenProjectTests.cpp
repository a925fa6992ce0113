#include "screens/OpenProject.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::RawDatabase;
using testing::ShortWait;
using testing::TestDatabase;

using Lines = std::vector<std::string>;

struct OpenProjects : ::testing::Test {
    OpenProjects() {
        file.AddProject("MARCH", "P", 5, 3);
        Load();
    }
    void Load() {
        open.Now = store.Load("P").Value;
        open.Saved = open.Now;
    }

    TestDatabase file;
    ProjectStore store = file.Open(ShortWait);
    OpenProject open;
};

TEST_F(OpenProjects, AreUnsavedAfterAnyChangeOfARoomAndSavedAfterItsUndoing) {
    EXPECT_FALSE(open.HasUnsavedRooms());
    Room& room = open.Now.Rooms[1];
    const Room before = room;
    const auto expectUnsaved = [&] {
        EXPECT_TRUE(open.HasUnsavedRooms());
        room = before;
        EXPECT_FALSE(open.HasUnsavedRooms());
    };
    ++room.Width;
    expectUnsaved();
    ++room.Length;
    expectUnsaved();
    room.Covering = 9;
    expectUnsaved();
    room.Base = 4;
    expectUnsaved();
    room.Number += "7";
    expectUnsaved();
    room.Remark += " ";
    expectUnsaved();
}

TEST_F(OpenProjects, AreUnsavedWithARoomMoreOrLess) {
    open.Now.Rooms.resize(4);
    EXPECT_TRUE(open.HasUnsavedRooms());
    open.Now.Rooms.resize(2);
    EXPECT_TRUE(open.HasUnsavedRooms());
}

TEST_F(OpenProjects, AreInMetricWhenTheirRoomsWereStoredSo) {
    EXPECT_FALSE(open.IsInMetric());
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    EXPECT_TRUE(open.IsInMetric());
    open.Now.Rooms[0].Width = 1;
    EXPECT_TRUE(open.IsInMetric()) << "also when a stored room is changed";
}

TEST_F(OpenProjects, AreInMetricWhenUnsavedRoomsWereTypedSo) {
    open.Now.EnteredIn = Units::Metric;
    EXPECT_FALSE(open.IsInMetric()) << "nothing is unsaved";
    open.Now.Rooms[0].Width = 1;
    EXPECT_TRUE(open.IsInMetric());
}

TEST_F(OpenProjects, AreSavedAfterSaving) {
    open.Now.Rooms[0].Width = 321;
    open.Now.EnteredIn = Units::Metric;
    open.Shown = Units::Metric;
    SaveOpenProject(open, store);
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_TRUE(open.IsInMetric());
    EXPECT_EQ(file.Rows("SELECT RoomW FROM InputData WHERE ObjNum = 0"), Lines{"321"});
    EXPECT_EQ(file.Rows("SELECT EnteredMetric FROM MainTab"), Lines{"1"});
}

TEST_F(OpenProjects, SavedInFeetAndInchesKeepTheUnitsStored) {
    for (const bool metric : {false, true}) {
        file.Run("UPDATE MainTab SET EnteredMetric = " + std::to_string(metric));
        Load();
        open.Now.Rooms[0].Width = 321;
        SaveOpenProject(open, store);
        EXPECT_EQ(open.IsInMetric(), metric);
        Load();
        EXPECT_EQ(open.IsInMetric(), metric) << "as stored";
    }
}

TEST_F(OpenProjects, SavedInFeetAndInchesRememberThatUnsavedRoomsWereTypedInMetric) {
    open.Now.EnteredIn = Units::Metric;
    open.Now.Rooms[0].Width = 321;
    SaveOpenProject(open, store);
    EXPECT_TRUE(open.IsInMetric());
    EXPECT_EQ(file.Rows("SELECT TileLabelNUm, EnteredMetric FROM MainTab"), Lines{"0|1"});
    Load();
    EXPECT_TRUE(open.IsInMetric()) << "as stored";
}

TEST_F(OpenProjects, SavedWithAStrayTickStayInFeetAndInches) {
    open.Shown = Units::Metric;
    SaveOpenProject(open, store);
    EXPECT_FALSE(open.IsInMetric());
    Load();
    EXPECT_FALSE(open.IsInMetric()) << "as stored";
}

TEST_F(OpenProjects, KnowTheirNumberAndUnitsAfterLeavingASharedNumber) {
    file.AddProject("MARCH", "OTHER", 5);
    file.Run("UPDATE MainTab SET EnteredMetric = 1 WHERE ProjName = 'P'");
    Load();
    SaveOpenProject(open, store);
    EXPECT_EQ(open.Now.Sheet, 6);
    EXPECT_TRUE(open.IsInMetric());
    Load();
    EXPECT_TRUE(open.IsInMetric()) << "as stored";
}

TEST_F(OpenProjects, SavedWithoutRoomsForgetTheUnits) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    open.Now.Rooms.clear();
    SaveOpenProject(open, store);
    EXPECT_FALSE(open.IsInMetric());
    Load();
    EXPECT_FALSE(open.IsInMetric()) << "as stored";
}

TEST_F(OpenProjects, ThatCouldNotBeSavedAreAsTheyWere) {
    open.Now.Rooms[0].Width = 321;
    open.Now.EnteredIn = Units::Metric;
    const Project now = open.Now;
    const Project saved = open.Saved;
    RawDatabase other(file.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_THROW(SaveOpenProject(open, store), DatabaseError);
    other.Run("ROLLBACK");
    EXPECT_EQ(open.Now, now);
    EXPECT_EQ(open.Saved, saved);
    EXPECT_TRUE(open.HasUnsavedRooms());
}

TEST_F(OpenProjects, DroppedHaveNoRoomsAndKeepWhatIsStored) {
    open.Now.Rooms[2].Width = 7;
    open.Now.EnteredIn = Units::Metric;
    open.OffersEstimate = false;
    open.IsUsable = false;
    DropRooms(open);
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_FALSE(open.IsInMetric());
    EXPECT_TRUE(open.OffersEstimate);
    EXPECT_TRUE(open.IsUsable);
    EXPECT_EQ(open.Now.Name, "P");
    EXPECT_EQ(file.Rows("SELECT count(*) FROM InputData"), Lines{"3"});
}

} // namespace
} // namespace tarn
