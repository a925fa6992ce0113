// What loading the menu does to the open project.

#include "project/RoomExtents.h"
#include "screens/menu/MenuLoad.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

struct MenuLoads : ::testing::Test {
    MenuLoads() {
        file.AddProject("MARCH", "P", 5, 3);
        file.AddProject("MARCH", "OTHER", 8, 1);
        store = file.Open(ShortWait);
        open.Now.Name = "P";
        open.Shown = Units::Metric;
        open.Now.Sheet = 77;
    }
    MenuLoad Load(MenuEntry entry = MenuEntry::ExistingProject) {
        return LoadMenu(open, store, entry);
    }

    TestDatabase file;
    OpenProject open;
    ProjectStore store;
};

TEST_F(MenuLoads, FixTheSheetNumberAndLoadSheetAndRooms) {
    const MenuLoad load = Load();
    EXPECT_EQ(load.Message, "");
    EXPECT_FALSE(load.Unsaved);
    EXPECT_EQ(open.Now.Sheet, 5);
    EXPECT_FALSE(open.Now.IsNew);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(open.Now.Rooms.at(2).Width, 102);
    EXPECT_EQ(open.Shown, Units::Imperial);
    EXPECT_TRUE(open.IsUsable);
}

TEST_F(MenuLoads, BuildTheExtentsInFeetAndInches) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1, TileLabelNUm = 1");
    Load();
    Single size = 0;
    for (const Room& room : open.Now.Rooms) {
        EXPECT_EQ(ExtentOf(room, open.Shown, open.Now.Scale),
                  (RoomExtent{(100 + size) * 100, (200 + size) * 100}));
        ++size;
    }
    EXPECT_EQ(size, 3.0F);
}

TEST_F(MenuLoads, AllocateANumberForAProjectWithoutASheet) {
    open.Now.Name = "NEW";
    EXPECT_EQ(Load(MenuEntry::NewProject).Message, "");
    EXPECT_EQ(open.Now.Sheet, 9);
    EXPECT_TRUE(open.Now.IsNew);
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_TRUE(open.IsUsable);
}

TEST_F(MenuLoads, OfferTheEstimateButForANewName) {
    Load(MenuEntry::NewProject);
    EXPECT_FALSE(open.OffersEstimate);
    Load(MenuEntry::ExistingProject);
    EXPECT_TRUE(open.OffersEstimate);
    open.OffersEstimate = false;
    Load(MenuEntry::Returning);
    EXPECT_TRUE(open.OffersEstimate);
}

TEST_F(MenuLoads, KeepUnsavedRoomsWithoutReadingTheDatabase) {
    Load(MenuEntry::NewProject);
    open.Now.Rooms.resize(2);
    open.Now.Rooms.at(1).Width = 444;
    open.Shown = Units::Metric;
    open.Now.Sheet = 6;
    open.Now.IsNew = true;
    store = ProjectStore();
    const MenuLoad load = Load(MenuEntry::Returning);
    EXPECT_TRUE(load.Unsaved);
    EXPECT_EQ(load.Message, "");
    EXPECT_EQ(open.Shown, Units::Imperial);
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    EXPECT_EQ(open.Now.Rooms.at(1).Width, 444);
    EXPECT_EQ(open.Now.Sheet, 6);
    EXPECT_TRUE(open.Now.IsNew);
    EXPECT_FALSE(open.OffersEstimate) << "as it stood";
    EXPECT_TRUE(open.IsUsable);
}

TEST_F(MenuLoads, KeepUnsavedOrdersToo) {
    Load();
    open.Now.Orders[3] = DefaultOrderRequest(Units::Imperial);
    store = ProjectStore();
    const MenuLoad load = Load(MenuEntry::Returning);
    EXPECT_TRUE(load.Unsaved);
    EXPECT_EQ(load.Message, "");
    EXPECT_TRUE(open.Now.Orders.contains(3));
    EXPECT_NO_THROW(TakeSheetNumber(open, store)) << "it is not asked";
}

TEST_F(MenuLoads, ReplaceTheRoomsOfAnotherProjectUnlessTheyComeBack) {
    Load();
    open.Now.Rooms.at(1).Width = 444;
    const MenuLoad load = Load(MenuEntry::ExistingProject);
    EXPECT_FALSE(load.Unsaved);
    EXPECT_EQ(open.Now.Rooms.at(1).Width, 101);
}

TEST_F(MenuLoads, ReadTheProjectAgainWhenItComesBackSaved) {
    Load();
    file.Run("UPDATE InputData SET RoomW = 333 WHERE ObjNum = 1 AND TabIndex = 5");
    EXPECT_FALSE(Load(MenuEntry::Returning).Unsaved);
    EXPECT_EQ(open.Now.Rooms.at(1).Width, 333);
}

TEST_F(MenuLoads, NameOddRowsOnceWhenTheProjectIsOpened) {
    file.Run("DELETE FROM InputData WHERE ObjNum = 1 AND TabIndex = 5");
    file.Run("UPDATE InputData SET CTType = 12 WHERE ObjNum = 2 AND TabIndex = 5");
    EXPECT_EQ(Load().Message,
              "The project P is not stored as it should be:\r\n"
              "Missing, read as empty: room 2.\r\n"
              "With an unknown covering, not estimated until one is chosen: room 3.");
    EXPECT_TRUE(open.IsUsable);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(Load(MenuEntry::Returning).Message, "");
}

TEST_F(MenuLoads, MakeAProjectThatCannotBeLoadedWholeUnusable) {
    file.Run("UPDATE MainTab SET DigScale = NULL WHERE ProjName = 'P'");
    const MenuLoad load = Load();
    EXPECT_EQ(load.Message.rfind("The project P could not be loaded. ", 0), 0U) << load.Message;
    EXPECT_NE(load.Message.find("DigScale"), std::string::npos) << load.Message;
    EXPECT_FALSE(open.IsUsable);
    EXPECT_TRUE(open.OffersEstimate);
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_EQ(open.Shown, Units::Imperial);
}

TEST_F(MenuLoads, MakeAProjectUnusableWithoutADatabase) {
    store = ProjectStore::Unavailable("It is missing.");
    EXPECT_EQ(Load(MenuEntry::NewProject).Message,
              "The project P could not be loaded. It is missing.");
    EXPECT_FALSE(open.IsUsable);
    EXPECT_FALSE(open.OffersEstimate);
}

TEST_F(MenuLoads, MakeAProjectWithExtentsBeyondAllNumbersUnusable) {
    file.Run("UPDATE MainTab SET DigScale = 1e-300 WHERE ProjName = 'P'");
    EXPECT_EQ(Load().Message, "The project P could not be loaded. The size of a room: Overflow.");
    EXPECT_FALSE(open.IsUsable);
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_FALSE(open.HasUnsavedRooms()) << "nothing of it can be saved";
}

TEST_F(MenuLoads, ALaterLoadMakesTheProjectUsableAgain) {
    open.IsUsable = false;
    Load();
    EXPECT_TRUE(open.IsUsable);
}

TEST_F(MenuLoads, TakeTheSheetNumberThatTheProjectHas) {
    Load();
    open.Now.Sheet = 3;
    open.Now.IsNew = true;
    TakeSheetNumber(open, store);
    EXPECT_EQ(open.Now.Sheet, 5);
    EXPECT_FALSE(open.Now.IsNew);
}

TEST_F(MenuLoads, KeepTheAllocatedNumberWhileThereIsNoSheet) {
    open.Now.Name = "NEW";
    Load();
    open.Now.IsNew = false;
    TakeSheetNumber(open, store);
    EXPECT_EQ(open.Now.Sheet, 9) << "never -100";
    EXPECT_TRUE(open.Now.IsNew);
}

TEST_F(MenuLoads, DoNotTakeAFailureForANewProject) {
    Load();
    file.Run("DROP TABLE MainTab");
    EXPECT_NE(DatabaseErrorOf([&] { TakeSheetNumber(open, store); }).find("MainTab"),
              std::string::npos);
    EXPECT_EQ(open.Now.Sheet, 5);
    EXPECT_FALSE(open.Now.IsNew);
}

TEST_F(MenuLoads, KeepTheNumberOfUnsavedRoomsWithoutTheDatabase) {
    Load();
    open.Now.Rooms.at(0).Width = 7;
    open.Now.Sheet = 6;
    open.Now.IsNew = true;
    store = ProjectStore();
    TakeSheetNumber(open, store);
    EXPECT_EQ(open.Now.Sheet, 6);
    EXPECT_TRUE(open.Now.IsNew);
}

TEST_F(MenuLoads, FindACarpetAmongTheRooms) {
    Project project;
    EXPECT_FALSE(HasCarpetRoom(project)) << "no room";
    project.Rooms.resize(2);
    project.Rooms[0].Covering = 8;
    project.Rooms[1].Covering = 11;
    EXPECT_FALSE(HasCarpetRoom(project));
    project.Rooms[1].Covering = 12; // an unknown covering
    EXPECT_FALSE(HasCarpetRoom(project));
    project.Rooms[1].Covering = 7;
    EXPECT_TRUE(HasCarpetRoom(project));
    project.Rooms[0].Covering = 0;
    project.Rooms[1].Covering = 8;
    EXPECT_TRUE(HasCarpetRoom(project));
}

TEST_F(MenuLoads, FindTilesAlone) {
    Project project;
    EXPECT_FALSE(HasTilesOnly(project)) << "no room";
    project.Rooms.resize(2);
    project.Rooms[0].Covering = 8;
    project.Rooms[1].Covering = 11;
    EXPECT_TRUE(HasTilesOnly(project));
    for (const Byte other : {Byte{0}, Byte{7}, Byte{12}}) {
        project.Rooms[1].Covering = other;
        EXPECT_FALSE(HasTilesOnly(project)) << int{other};
    }
}

} // namespace
} // namespace tarn
