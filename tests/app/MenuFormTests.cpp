#include "app/Controls.h"
#include "app/Display.h"
#include "app/MenuForm.h"
#include "screens/ControlChecks.h"
#include "screens/ScreenTesting.h"
#include "store/TestDatabase.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

namespace tarn {
namespace {

using namespace tarn::testing;

using Lines = std::vector<std::string>;

constexpr const char* EnterData = "Command1(0)";
constexpr const char* Backward = "Command1(1)";
constexpr const char* Estimate = "Command1(2)";

struct MenuForms : ScreenTest {
    MenuForms() {
        file.AddProject("MARCH", "P", 5, 3);
        file.AddProject("MARCH", "OTHER", 8, 1);
        file.OpenInto(state, ShortWait);
        state.CurProjName = "P";
    }
    void Load(MenuEntry entry = MenuEntry::ExistingProject) {
        menu = std::make_unique<MenuForm>(session, entry);
        ShowOnDisplay(*menu);
        QCoreApplication::processEvents(); // the message of the load
    }
    QPushButton& Button(const char* name) const { return Find<QPushButton>(*menu, name); }
    QCheckBox& Metric() const { return Find<QCheckBox>(*menu, "Check1"); }
    bool Shows(const char* name) const { return Find(*menu, name).isVisible(); }

    TestDatabase file;
    std::unique_ptr<MenuForm> menu;
};

TEST_F(MenuForms, CarryTheirCaptions) {
    Load();
    EXPECT_EQ(Find<QLabel>(*menu, "PTitle").text(), QStringLiteral("SOLVANE 2040"));
    EXPECT_EQ(Find<QLabel>(*menu, "FTitle").text(), QStringLiteral("*SOLVANE OPTIONS*"));
    EXPECT_EQ(menu->Caption(), QStringLiteral("SOLVANE OPTIONS"));
    EXPECT_EQ(Find<QLabel>(*menu, "Label1").text(), QStringLiteral("OPERATION MENU"));
    EXPECT_EQ(CaptionOf(Metric()), QStringLiteral("Metric"));
    EXPECT_EQ(Metric().accessibleName(), QStringLiteral("Metric"));
    EXPECT_EQ(CaptionOf(Button(EnterData)), QStringLiteral("ENTER/EDIT DATA"));
    EXPECT_EQ(CaptionOf(Button(Backward)), QStringLiteral("BACKWARD"));
    EXPECT_EQ(CaptionOf(Button(Estimate)), QStringLiteral("ESTIMATE"));
    EXPECT_EQ(Find<QAction>(*menu, "EXmnu").text(), QStringLiteral("E&xit"));
}

TEST_F(MenuForms, UseEachNameAndMnemonicOnce) {
    Load();
    ExpectNamesAndMnemonicsOnce(*menu, 5);
}

TEST_F(MenuForms, StandInTheMiddleWithTheTitlesAbove) {
    Load();
    const QRect frame = Find(*menu, "Frame1").geometry();
    EXPECT_NEAR(frame.center().x(), 400, 1);
    EXPECT_EQ(frame.top() - Find(*menu, "PTitle").geometry().top(), Pixels(1700));
    EXPECT_EQ(frame.top() - Find(*menu, "FTitle").geometry().top(), Pixels(800));
}

TEST_F(MenuForms, LoadTheProjectUnticked) {
    state.MetricFlag = 1;
    file.Run("UPDATE MainTab SET TileLabelNUm = 1");
    Load();
    EXPECT_EQ(state.CurTabIndex, 5);
    EXPECT_EQ(state.ObjNum, 3);
    EXPECT_EQ(state.MetricFlag, 0);
    EXPECT_FALSE(Metric().isChecked());
    EXPECT_FALSE(Shows("NotSaved"));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(Button(EnterData).hasFocus());
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(MenuForms, OfferTheEstimateButForANewName) {
    Load(MenuEntry::ExistingProject);
    EXPECT_TRUE(Button(Estimate).isVisible());
    Load(MenuEntry::NewProject);
    EXPECT_FALSE(Button(Estimate).isVisible());
    EXPECT_TRUE(Button(EnterData).isEnabled());
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Button(Estimate).isVisible());
}

TEST_F(MenuForms, SetTheUnitsByTheCheckBox) {
    Load();
    Click(Metric());
    EXPECT_EQ(state.MetricFlag, 1);
    Click(Metric());
    EXPECT_EQ(state.MetricFlag, 0);
    Press(*menu, Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return state.MetricFlag == 1; }));
    EXPECT_EQ(state.RoomWidth[2], 102) << "nothing else changes";
}

TEST_F(MenuForms, SayThatTheRoomsWereEnteredInMetric) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    EXPECT_EQ(Find<QLabel>(*menu, "EnteredMetric").text(), QStringLiteral("ENTERED IN METRIC"));
    EXPECT_TRUE(Shows("EnteredMetric"));
    Click(Metric());
    EXPECT_FALSE(Shows("EnteredMetric"));
    Click(Metric());
    EXPECT_TRUE(Shows("EnteredMetric"));
    state.CurProjName = "NEW";
    Load(MenuEntry::NewProject);
    EXPECT_FALSE(Shows("EnteredMetric"));
}

TEST_F(MenuForms, SayItBesideTheCheckBoxAlsoOfChangedRooms) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    state.RoomWidth[0] = 7; // a stored room, changed and not saved
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Shows("NotSaved"));
    ASSERT_TRUE(Shows("EnteredMetric"));
    const auto placeOf = [this](const char* name) {
        const QWidget& widget = Find(*menu, name);
        return QRect(widget.mapTo(menu.get(), QPoint(0, 0)), widget.size());
    };
    const QRect label = placeOf("EnteredMetric");
    const QRect box = placeOf("Check1");
    EXPECT_GT(label.left(), box.right());
    EXPECT_LT(label.left() - box.right(), Pixels(600));
    EXPECT_NEAR(label.center().y(), box.center().y(), 3);
}

TEST_F(MenuForms, OpenAnExistingProjectWithoutASheet) {
    file.Run("INSERT INTO ProjTab VALUES ('MARCH', 'BARE', 0)");
    state.CurProjName = "BARE";
    Load();
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(Button(Estimate).isVisible());
    EXPECT_TRUE(Button(Estimate).isEnabled());
    EXPECT_FALSE(Shows("NotSaved"));
    EXPECT_EQ(state.ObjNum, 0);
    Click(Button(Estimate));
    EXPECT_TRUE(screens.Calls.empty()) << "there is no carpet";
    Click(Button(EnterData));
    EXPECT_EQ(screens.Calls, Lines{"rooms"});
    EXPECT_EQ(state.CurTabIndex, 9);
    EXPECT_TRUE(state.NewSheetFlag);
}

TEST_F(MenuForms, SayInWhichUnitsUnsavedRoomsWereTyped) {
    Load();
    state.RoomWidth[0] = 7;
    Load(MenuEntry::Returning);
    EXPECT_FALSE(Shows("EnteredMetric"));
    project.TypedInMetric = true;
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Shows("EnteredMetric"));
}

TEST_F(MenuForms, KeepUnsavedRoomsThatComeBack) {
    Load(MenuEntry::NewProject);
    state.RoomWidth[0] = 7;
    state.MetricFlag = 1;
    state.CurDB.reset();
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Shows("NotSaved"));
    EXPECT_EQ(Find<QLabel>(*menu, "NotSaved").text(), QStringLiteral("NOT SAVED"));
    EXPECT_GT(Find(*menu, "NotSaved").geometry().top(), Find(*menu, "Label1").geometry().top());
    EXPECT_EQ(state.RoomWidth[0], 7);
    EXPECT_FALSE(Metric().isChecked());
    EXPECT_FALSE(Button(Estimate).isVisible()) << "as the buttons stood";
    EXPECT_TRUE(Button(EnterData).isEnabled());
    EXPECT_TRUE(boxes.Messages.empty());
    Click(Button(EnterData));
    EXPECT_EQ(screens.Calls, Lines{"rooms"}) << "what was typed is reached without a database";
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(state.RoomWidth[0], 7);
}

TEST_F(MenuForms, OpenTheRoomsWithTheSheetNumber) {
    Load();
    state.CurTabIndex = 3;
    screens.OnCall = [&] { EXPECT_EQ(state.CurTabIndex, 5); };
    Click(Button(EnterData));
    EXPECT_EQ(screens.Calls, Lines{"rooms"});
    EXPECT_FALSE(state.NewSheetFlag);
}

TEST_F(MenuForms, OpenTheRoomsOfANewProjectWithTheNumberAllocated) {
    state.CurProjName = "NEW";
    Load(MenuEntry::NewProject);
    Click(Button(EnterData));
    EXPECT_EQ(screens.Calls, Lines{"rooms"});
    EXPECT_EQ(state.CurTabIndex, 9);
    EXPECT_TRUE(state.NewSheetFlag);
}

TEST_F(MenuForms, KeepTheSheetThatANewNameGotMeanwhile) {
    state.CurProjName = "NEW";
    Load(MenuEntry::NewProject);
    file.AddProject("MARCH", "NEW", 12);
    Click(Button(EnterData));
    EXPECT_EQ(state.CurTabIndex, 12) << "whether the estimate is offered or not";
    EXPECT_FALSE(state.NewSheetFlag);
}

TEST_F(MenuForms, StayWhenTheSheetNumberCannotBeRead) {
    Load();
    file.Run("DROP TABLE MainTab");
    Click(Button(EnterData));
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0].rfind("The rooms could not be opened. ", 0), 0U)
        << boxes.Messages[0];
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_EQ(state.ObjNum, 3);
}

TEST_F(MenuForms, GoBackwardWithoutStoringTheRooms) {
    Load();
    state.RoomWidth[0] = 7;
    Click(Button(Backward));
    EXPECT_EQ(screens.Calls, Lines{"projects"});
    EXPECT_EQ(state.RoomWidth[0], 7) << "the project selection drops them";
    EXPECT_TRUE(boxes.Questions.empty()) << "nothing is asked";
    EXPECT_EQ(file.Rows("SELECT RoomW FROM InputData WHERE TabIndex = 5 ORDER BY ObjNum"),
              (Lines{"100", "101", "102"}));
}

TEST_F(MenuForms, KeepTheRoomsWhenTheProjectsCannotBeShown) {
    Load();
    state.RoomWidth[0] = 7;
    screens.OnCall = [] { throw DatabaseError("Not now."); };
    Click(Button(Backward));
    EXPECT_EQ(boxes.Messages, Lines{"The projects could not be shown. Not now."});
    EXPECT_EQ(state.RoomWidth[0], 7);
    EXPECT_EQ(state.ObjNum, 3);
}

TEST_F(MenuForms, OpenTheEstimateOfAProjectWithACarpet) {
    Load();
    Click(Metric());
    engine.PieceCount = 4;
    state.ECutCount = 5;
    screens.OnCall = [&] {
        EXPECT_EQ(engine.PieceCount, 0);
        EXPECT_EQ(state.ECutCount, 0);
        EXPECT_EQ(state.MetricFlag, 1);
    };
    Click(Button(Estimate));
    EXPECT_EQ(screens.Calls, Lines{"estimate from menu"});
}

TEST_F(MenuForms, StaySilentlyWithoutACarpet) {
    file.Run("UPDATE InputData SET CTType = 8");
    Load();
    Click(Metric());
    Click(Button(Estimate));
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(state.MetricFlag, 1) << "the tick stays";
    EXPECT_TRUE(Metric().isChecked());
    EXPECT_TRUE(menu->isEnabled());
}

TEST_F(MenuForms, EndTheProgramByTheMenuTheKeyAndTheFrame) {
    Load();
    state.RoomWidth[0] = 7;
    auto* bar = menu->findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    QTest::mouseClick(bar, Qt::LeftButton, {},
                      bar->actionGeometry(&Find<QAction>(*menu, "EXmnu")).center());
    EXPECT_EQ(screens.Calls, Lines{"end"});
    Press(*menu, Qt::Key_X, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return screens.Calls.size() == 2; }));
    menu->CloseByFrame();
    EXPECT_EQ(screens.Calls, (Lines{"end", "end", "end"}));
    EXPECT_TRUE(boxes.Questions.empty());
    menu->setEnabled(false);
    menu->CloseByFrame();
    EXPECT_EQ(screens.Calls.size(), 3U);
    EXPECT_EQ(file.Rows("SELECT RoomW FROM InputData WHERE TabIndex = 5 ORDER BY ObjNum"),
              (Lines{"100", "101", "102"}))
        << "nothing is stored";
}

TEST_F(MenuForms, CloseTheWayToAProjectThatCannotBeLoaded) {
    file.Run("UPDATE MainTab SET ObjNum = 502 WHERE ProjName = 'P'");
    Load();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0].rfind("The project P could not be loaded. ", 0), 0U)
        << boxes.Messages[0];
    EXPECT_FALSE(Button(EnterData).isEnabled());
    EXPECT_FALSE(Button(Estimate).isEnabled());
    EXPECT_TRUE(Button(Estimate).isVisible());
    EXPECT_TRUE(Button(Backward).hasFocus());
    EXPECT_EQ(state.ObjNum, 0);
    Click(Button(Backward));
    EXPECT_EQ(screens.Calls, Lines{"projects"});
}

TEST_F(MenuForms, TellOddRowsInOneMessageOnce) {
    file.Run("DELETE FROM InputData WHERE ObjNum = 1 AND TabIndex = 5");
    Load();
    EXPECT_EQ(boxes.Messages, Lines{"The project P is not stored as it should be:\r\n"
                                    "Missing, read as empty: room 2."});
    EXPECT_TRUE(Button(EnterData).isEnabled());
    Load(MenuEntry::Returning);
    EXPECT_EQ(boxes.Messages.size(), 1U);
}

TEST_F(MenuForms, AreReachedByTabInTheirOrder) {
    Load();
    for (const char* name : {Estimate, Backward, "Check1", EnterData}) {
        Press(*menu, Qt::Key_Tab);
        EXPECT_TRUE(Find(*menu, name).hasFocus()) << name;
    }
}

} // namespace
} // namespace tarn
