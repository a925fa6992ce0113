#include "app/MenuLoad.h"
#include "app/RunTimeError.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::DatabaseErrorOf;
using testing::ShortWait;
using testing::TestDatabase;

struct MenuLoads : ::testing::Test {
    MenuLoads() {
        file.AddProject("MARCH", "P", 5, 3);
        file.AddProject("MARCH", "OTHER", 8, 1);
        file.OpenInto(state, ShortWait);
        state.CurProjName = "P";
        state.MetricFlag = 1;
        state.CurTabIndex = 77;
    }
    MenuLoad Load(MenuEntry entry = MenuEntry::ExistingProject) {
        return LoadMenu(state, project, entry);
    }

    TestDatabase file;
    SharedState state;
    OpenProject project;
};

TEST_F(MenuLoads, FixTheSheetNumberAndLoadSheetAndRooms) {
    const MenuLoad load = Load();
    EXPECT_EQ(load.Message, "");
    EXPECT_FALSE(load.Unsaved);
    EXPECT_EQ(state.CurTabIndex, 5);
    EXPECT_FALSE(state.NewSheetFlag);
    EXPECT_EQ(state.ObjNum, 3);
    EXPECT_EQ(state.RoomWidth[2], 102);
    EXPECT_EQ(state.MetricFlag, 0);
    EXPECT_TRUE(project.Usable);
}

TEST_F(MenuLoads, BuildTheExtentsInFeetAndInches) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1, TileLabelNUm = 1");
    Load();
    for (Integer room = 0; room < 3; ++room) {
        EXPECT_EQ(state.RoomX(room, 0), 0.0F);
        EXPECT_EQ(state.RoomX(room, 1), static_cast<Single>((100 + room) * 100)) << room;
        EXPECT_EQ(state.RoomY(room, 1), static_cast<Single>((200 + room) * 100)) << room;
    }
}

TEST_F(MenuLoads, AllocateANumberForAProjectWithoutASheet) {
    state.CurProjName = "NEW";
    EXPECT_EQ(Load(MenuEntry::NewProject).Message, "");
    EXPECT_EQ(state.CurTabIndex, 9);
    EXPECT_TRUE(state.NewSheetFlag);
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_TRUE(project.Usable);
}

TEST_F(MenuLoads, OfferTheEstimateButForANewName) {
    Load(MenuEntry::NewProject);
    EXPECT_FALSE(project.EstimateVisible);
    Load(MenuEntry::ExistingProject);
    EXPECT_TRUE(project.EstimateVisible);
    project.EstimateVisible = false;
    Load(MenuEntry::Returning);
    EXPECT_TRUE(project.EstimateVisible);
}

TEST_F(MenuLoads, KeepUnsavedRoomsWithoutReadingTheDatabase) {
    Load(MenuEntry::NewProject);
    state.RoomWidth[1] = 444;
    state.ObjNum = 2;
    state.MetricFlag = 1;
    state.CurTabIndex = 6;
    state.NewSheetFlag = true;
    state.CurDB.reset();
    const MenuLoad load = Load(MenuEntry::Returning);
    EXPECT_TRUE(load.Unsaved);
    EXPECT_EQ(load.Message, "");
    EXPECT_EQ(state.MetricFlag, 0);
    EXPECT_EQ(state.ObjNum, 2);
    EXPECT_EQ(state.RoomWidth[1], 444);
    EXPECT_EQ(state.CurTabIndex, 6);
    EXPECT_TRUE(state.NewSheetFlag);
    EXPECT_FALSE(project.EstimateVisible) << "as it stood";
    EXPECT_TRUE(project.Usable);
}

TEST_F(MenuLoads, ReplaceTheRoomsOfAnotherProjectUnlessTheyComeBack) {
    Load();
    state.RoomWidth[1] = 444;
    const MenuLoad load = Load(MenuEntry::ExistingProject);
    EXPECT_FALSE(load.Unsaved);
    EXPECT_EQ(state.RoomWidth[1], 101);
}

TEST_F(MenuLoads, ReadTheProjectAgainWhenItComesBackSaved) {
    Load();
    file.Run("UPDATE InputData SET RoomW = 333 WHERE ObjNum = 1 AND TabIndex = 5");
    EXPECT_FALSE(Load(MenuEntry::Returning).Unsaved);
    EXPECT_EQ(state.RoomWidth[1], 333);
}

TEST_F(MenuLoads, NameOddRowsOnceWhenTheProjectIsOpened) {
    file.Run("DELETE FROM InputData WHERE ObjNum = 1 AND TabIndex = 5");
    file.Run("UPDATE InputData SET CTType = 12 WHERE ObjNum = 2 AND TabIndex = 5");
    EXPECT_EQ(Load().Message,
              "The project P is not stored as it should be:\r\n"
              "Missing, read as empty: room 2.\r\n"
              "With an unknown covering, not estimated until one is chosen: room 3.");
    EXPECT_TRUE(project.Usable);
    EXPECT_EQ(state.ObjNum, 3);
    EXPECT_EQ(Load(MenuEntry::Returning).Message, "");
}

TEST_F(MenuLoads, MakeAProjectThatCannotBeLoadedWholeUnusable) {
    file.Run("UPDATE MainTab SET DigScale = NULL WHERE ProjName = 'P'");
    const MenuLoad load = Load();
    EXPECT_EQ(load.Message.rfind("The project P could not be loaded. ", 0), 0U) << load.Message;
    EXPECT_NE(load.Message.find("DigScale"), std::string::npos) << load.Message;
    EXPECT_FALSE(project.Usable);
    EXPECT_TRUE(project.EstimateVisible);
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_EQ(state.MetricFlag, 0);
    EXPECT_EQ(state.RoomWidth[0], 0);
}

TEST_F(MenuLoads, MakeAProjectUnusableWithoutADatabase) {
    state.CurDB.reset();
    state.DatabaseFailure = "It is missing.";
    EXPECT_EQ(Load(MenuEntry::NewProject).Message,
              "The project P could not be loaded. It is missing.");
    EXPECT_FALSE(project.Usable);
    EXPECT_FALSE(project.EstimateVisible);
}

TEST_F(MenuLoads, MakeAProjectWithExtentsBeyondAllNumbersUnusable) {
    file.Run("UPDATE MainTab SET DigScale = 1e-300 WHERE ProjName = 'P'");
    EXPECT_EQ(Load().Message, "The project P could not be loaded. The size of a room: Overflow.");
    EXPECT_FALSE(project.Usable);
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_FALSE(HasUnsavedRooms(state, project)) << "nothing of it can be saved";
}

TEST_F(MenuLoads, ALaterLoadMakesTheProjectUsableAgain) {
    project.Usable = false;
    Load();
    EXPECT_TRUE(project.Usable);
}

TEST_F(MenuLoads, TakeTheSheetNumberThatTheProjectHas) {
    Load();
    state.CurTabIndex = 3;
    state.NewSheetFlag = true;
    TakeSheetNumber(state, project);
    EXPECT_EQ(state.CurTabIndex, 5);
    EXPECT_FALSE(state.NewSheetFlag);
}

TEST_F(MenuLoads, KeepTheAllocatedNumberWhileThereIsNoSheet) {
    state.CurProjName = "NEW";
    Load();
    state.NewSheetFlag = false;
    TakeSheetNumber(state, project);
    EXPECT_EQ(state.CurTabIndex, 9) << "never -100";
    EXPECT_TRUE(state.NewSheetFlag);
}

TEST_F(MenuLoads, DoNotTakeAFailureForANewProject) {
    Load();
    file.Run("DROP TABLE MainTab");
    EXPECT_NE(DatabaseErrorOf([&] { TakeSheetNumber(state, project); }).find("MainTab"),
              std::string::npos);
    EXPECT_EQ(state.CurTabIndex, 5);
    EXPECT_FALSE(state.NewSheetFlag);
}

TEST_F(MenuLoads, KeepTheNumberOfUnsavedRoomsWithoutTheDatabase) {
    Load();
    state.RoomWidth[0] = 7;
    state.CurTabIndex = 6;
    state.NewSheetFlag = true;
    state.CurDB.reset();
    TakeSheetNumber(state, project);
    EXPECT_EQ(state.CurTabIndex, 6);
    EXPECT_TRUE(state.NewSheetFlag);
}

TEST_F(MenuLoads, FindACarpetAmongTheRooms) {
    EXPECT_FALSE(LoadData(state)) << "no room";
    state.ObjNum = 2;
    state.RoomCarpet[0] = 8;
    state.RoomCarpet[1] = 11;
    state.RoomCarpet[2] = 0; // behind the last room
    EXPECT_FALSE(LoadData(state));
    state.RoomCarpet[1] = 12; // an unknown covering
    EXPECT_FALSE(LoadData(state));
    state.RoomCarpet[1] = 7;
    EXPECT_TRUE(LoadData(state));
    state.RoomCarpet[0] = 0;
    state.RoomCarpet[1] = 8;
    EXPECT_TRUE(LoadData(state));
}

} // namespace
} // namespace tarn
