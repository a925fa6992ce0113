#include "base/RunTimeError.h"
#include "screens/OpenProject.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

struct OpenProjects : ::testing::Test {
    OpenProjects() {
        file.AddProject("MARCH", "P", 5, 3);
        Load();
    }
    void Load() {
        LoadedProject loaded = store.Load("P");
        open.Now = loaded.Value;
        open.Saved = open.Now;
        open.Read = loaded.Mark;
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

TEST_F(OpenProjects, AreUnsavedAfterAChangeOfWhatIsOrdered) {
    EXPECT_FALSE(open.HasUnsavedChanges());
    open.Now.Orders[2] = DefaultOrderRequest(Units::Imperial);
    open.Now.Orders[2].Rolls = {{144, "", "12ft", std::nullopt}};
    EXPECT_TRUE(open.HasUnsavedOrders());
    EXPECT_TRUE(open.HasUnsavedChanges());
    EXPECT_FALSE(open.HasUnsavedRooms());
    open.Now.EnteredIn = Units::Metric;
    EXPECT_FALSE(open.IsInMetric()) << "no room was typed";
    EXPECT_EQ(SaveOpenProject(open, store), SaveResult::Outcome::Saved);
    EXPECT_FALSE(open.HasUnsavedChanges());
    EXPECT_EQ(file.Rows("SELECT Carpet FROM OrderData"), Lines{"3"});
    open.Now.Rooms[0].Width = 7;
    EXPECT_TRUE(open.HasUnsavedChanges());
    EXPECT_FALSE(open.HasUnsavedOrders());
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
    open.Now.EnteredIn = Units::Imperial;
    EXPECT_TRUE(open.IsInMetric()) << "also when a stored room is changed, in feet too";
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

using Outcome = SaveResult::Outcome;

TEST_F(OpenProjects, ChangedByAnotherProgramAreStoredOnlyWhenTheyReplaceIt) {
    open.Now.Rooms[0].Width = 321;
    file.Run("UPDATE InputData SET RoomW = 7 WHERE ObjNum = 2");
    const Project now = open.Now;
    EXPECT_EQ(SaveOpenProject(open, store), Outcome::Changed);
    EXPECT_EQ(open.Now, now);
    EXPECT_TRUE(open.HasUnsavedRooms());
    EXPECT_EQ(file.Rows("SELECT RoomW FROM InputData ORDER BY ObjNum"), (Lines{"100", "101", "7"}));
    EXPECT_EQ(SaveOpenProject(open, store, MeanwhileStored::IsReplaced), Outcome::Saved);
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_EQ(file.Rows("SELECT RoomW FROM InputData ORDER BY ObjNum"),
              (Lines{"321", "101", "102"}));
    open.Now.Rooms[0].Width = 322;
    EXPECT_EQ(SaveOpenProject(open, store), Outcome::Saved) << "that was its own save";
}

TEST_F(OpenProjects, ThatAreGoneAreStoredAsNewOnes) {
    open.Now.Rooms[0].Width = 321;
    file.Run("UPDATE ProjTab SET ProjName = 'Q'");
    file.Run("UPDATE MainTab SET ProjName = 'Q'");
    EXPECT_EQ(SaveOpenProject(open, store), Outcome::Gone);
    EXPECT_EQ(SaveOpenProject(open, store, MeanwhileStored::IsReplaced), Outcome::Gone);
    const Project now = open.Now;
    EXPECT_EQ(SaveAsNewProject(open, store, "q"),
              "There is one project with the same name, change to other one!");
    EXPECT_EQ(open.Now, now);
    EXPECT_EQ(SaveAsNewProject(open, store, "new"), std::nullopt);
    EXPECT_EQ(open.Now.Name, "NEW");
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_EQ(file.Rows("SELECT Dir, ProjName FROM ProjTab"), (Lines{"MARCH|Q", "MARCH|NEW"}));
    EXPECT_EQ(store.Load("NEW").Value.Rooms, now.Rooms);
    EXPECT_EQ(store.Load("Q").Value.Rooms[0].Width, 100) << "the other one is as it was";
    EXPECT_EQ(SaveOpenProject(open, store), Outcome::Saved);
}

TEST_F(OpenProjects, ThatAreGoneWithTheirDirectoryMakeItAgain) {
    open.Now.Directory = "HOUSES";
    file.Run("DELETE FROM ProjTab");
    EXPECT_EQ(SaveAsNewProject(open, store, "P"), std::nullopt);
    EXPECT_EQ(store.Directories(), Lines{"HOUSES"});
    EXPECT_EQ(store.Projects("HOUSES"), Lines{"P"});
    open.Now.Directory = "MARCH";
    file.Run("DELETE FROM ProjTab");
    EXPECT_EQ(SaveAsNewProject(open, store, "P"), std::nullopt);
    EXPECT_EQ(store.Directories(), Lines{"HOUSES"}) << "a month has no row";
}

TEST_F(OpenProjects, SayInWhichUnitsTheyWereEnteredWhileOthersAreInForce) {
    EXPECT_EQ(UnitsWarning(open), "");
    open.Shown = Units::Metric;
    EXPECT_EQ(UnitsWarning(open), "E&NTERED IN FEET");
    open.Saved.EnteredIn = Units::Metric;
    EXPECT_EQ(UnitsWarning(open), "");
    open.Shown = Units::Imperial;
    EXPECT_EQ(UnitsWarning(open), "E&NTERED IN METRIC");
}

TEST_F(OpenProjects, WithoutRoomsWereEnteredAsTheyAreTyped) {
    open.Now.Rooms.clear();
    open.Saved.Rooms.clear();
    for (const Units shown : {Units::Imperial, Units::Metric}) {
        open.Typed = {};
        open.Shown = shown;
        EXPECT_EQ(UnitsWarning(open), "") << "nothing was entered";
        open.Typed.New.emplace();
        open.Typed.In = Units::Metric;
        EXPECT_EQ(UnitsWarning(open), shown == Units::Metric ? "" : "E&NTERED IN METRIC");
        open.Typed.In = Units::Imperial;
        EXPECT_EQ(UnitsWarning(open), shown == Units::Metric ? "E&NTERED IN FEET" : "");
    }
}

TEST_F(OpenProjects, HaveADraftOfWhatIsUnsaved) {
    EXPECT_TRUE(DraftOf(open).IsEmpty());
    open.Typed.New.emplace();
    EXPECT_FALSE(DraftOf(open).Rooms);
    EXPECT_EQ(DraftOf(open).Typed, open.Typed);
    open.Now.Rooms[0].Width = 7;
    open.Now.EnteredIn = Units::Metric;
    EXPECT_EQ(DraftOf(open).Rooms, open.Now.Rooms);
    EXPECT_EQ(DraftOf(open).EnteredIn, Units::Metric);
    open.Typed = {};
    open.Now.Rooms.clear();
    EXPECT_EQ(DraftOf(open).Rooms, std::vector<Room>()) << "that all were deleted is unsaved too";
}

TEST_F(OpenProjects, OfferADraftThatHasWhatTheyHaveNot) {
    Draft draft;
    EXPECT_FALSE(IsWorthTakingBack(draft, open)) << "nothing";
    draft.Rooms = open.Saved.Rooms;
    EXPECT_FALSE(IsWorthTakingBack(draft, open)) << "as stored";
    open.Now.Rooms[0].Width = 7;
    EXPECT_FALSE(IsWorthTakingBack(draft, open)) << "as stored, whatever is in memory";
    draft.Rooms = open.Now.Rooms;
    EXPECT_FALSE(IsWorthTakingBack(draft, open)) << "as in memory";
    draft.Rooms->clear();
    EXPECT_TRUE(IsWorthTakingBack(draft, open));
    draft.Rooms.reset();
    draft.Typed.New.emplace().Remark = "hall";
    EXPECT_TRUE(IsWorthTakingBack(draft, open)) << "typed";
    open.Typed = draft.Typed;
    EXPECT_FALSE(IsWorthTakingBack(draft, open)) << "standing in the fields";
}

TEST_F(OpenProjects, HaveADraftOfUnsavedOrdersAndTakeItBack) {
    open.Now.Orders[2] = DefaultOrderRequest(Units::Imperial);
    const Draft draft = DraftOf(open);
    EXPECT_FALSE(draft.IsEmpty());
    EXPECT_FALSE(draft.Rooms);
    EXPECT_EQ(draft.Orders, open.Now.Orders);
    EXPECT_FALSE(IsWorthTakingBack(draft, open)) << "as in memory";
    open.Now.Orders.clear();
    EXPECT_TRUE(IsWorthTakingBack(draft, open));
    open.Now.Rooms[0].Width = 7;
    TakeBack(open, draft);
    EXPECT_EQ(open.Now.Orders, draft.Orders);
    EXPECT_EQ(open.Now.Rooms[0].Width, 7) << "the draft has no rooms";
    open.Saved.Orders = open.Now.Orders;
    open.Now.Orders.clear();
    EXPECT_FALSE(IsWorthTakingBack(draft, open)) << "as stored";
}

TEST_F(OpenProjects, HaveADraftOfChoicesThatCannotBeTakenAndTakeThemBack) {
    open.TypedOrders[2].Step = "9,5";
    const Draft draft = DraftOf(open);
    EXPECT_FALSE(draft.IsEmpty());
    EXPECT_FALSE(open.HasUnsavedChanges()) << "there is nothing that could be stored";
    EXPECT_FALSE(IsWorthTakingBack(draft, open)) << "standing in the fields";
    open.TypedOrders.clear();
    EXPECT_TRUE(IsWorthTakingBack(draft, open));
    TakeBack(open, draft);
    EXPECT_EQ(open.TypedOrders, draft.TypedOrders);
    DropRooms(open);
    EXPECT_TRUE(open.TypedOrders.empty()) << "they go with the project";
}

TEST_F(OpenProjects, TakeADraftBackWithItsUnits) {
    Draft draft;
    draft.Rooms = {{366, 500, 0, 0, "", ""}};
    draft.EnteredIn = Units::Metric;
    TakeBack(open, draft);
    EXPECT_EQ(open.Now.Rooms, draft.Rooms);
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
    EXPECT_EQ(open.Shown, Units::Metric);
    EXPECT_TRUE(open.HasUnsavedRooms());
    EXPECT_EQ(open.Now.Name, "P");
    EXPECT_EQ(UnitsWarning(open), "");
    EXPECT_EQ(SaveOpenProject(open, store), Outcome::Saved);
    EXPECT_EQ(file.Rows("SELECT EnteredMetric FROM MainTab"), Lines{"1"});
}

TEST_F(OpenProjects, TakeBackWhatWasTypedBesideTheirRooms) {
    Draft draft;
    draft.Typed.In = Units::Metric;
    draft.Typed.Changed = ChangedRoom{1, open.Now.Rooms[1], {}};
    open.Now.Rooms[0].Width = 7;
    const std::vector<Room> rooms = open.Now.Rooms;
    TakeBack(open, draft);
    EXPECT_EQ(open.Now.Rooms, rooms);
    EXPECT_EQ(open.Typed, draft.Typed);
    EXPECT_EQ(open.Shown, Units::Metric) << "the sizes in the fields are metric";
    open.Now.Rooms[1].Width = 8;
    TakeBack(open, draft);
    EXPECT_FALSE(open.Typed.Changed) << "the room is another one now";
    EXPECT_TRUE(open.Typed.New);
}

TEST_F(OpenProjects, ThatCannotBeLaidOutAreNotTakenBack) {
    open.Now.Scale = 1e-300;
    const Project now = open.Now;
    Draft draft;
    draft.Rooms = {{366, 500, 0, 0, "", ""}};
    EXPECT_THROW(TakeBack(open, draft), RunTimeError);
    EXPECT_EQ(open.Now, now);
}

TEST_F(OpenProjects, DroppedHaveNoRoomsAndKeepWhatIsStored) {
    open.Now.Rooms[2].Width = 7;
    open.Now.EnteredIn = Units::Metric;
    open.Typed.New.emplace();
    open.OffersEstimate = false;
    open.IsUsable = false;
    DropRooms(open);
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_FALSE(open.IsInMetric());
    EXPECT_TRUE(open.OffersEstimate);
    EXPECT_TRUE(open.IsUsable);
    EXPECT_TRUE(open.Typed.IsEmpty());
    EXPECT_EQ(open.Now.Name, "P");
    EXPECT_EQ(file.Rows("SELECT count(*) FROM InputData"), Lines{"3"});
}

} // namespace
} // namespace tarn
