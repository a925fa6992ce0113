// The menu of the open project.

#include "screens/ControlChecks.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/menu/MenuTesting.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

namespace tarn {
namespace {

using namespace tarn::testing;

struct MenuScreens : MenuTest {
    MenuScreens() { file.AddProject("MARCH", "OTHER", 8, 1); }
    QCheckBox& Metric() const { return Control<QCheckBox>(Controls::metric); }
};

TEST_F(MenuScreens, CarryTheirCaptions) {
    Load();
    EXPECT_EQ(Control<QLabel>(Controls::productTitle).text(), QStringLiteral("SOLVANE 2040"));
    EXPECT_EQ(Control<QLabel>(Controls::formTitle).text(), QStringLiteral("*SOLVANE OPTIONS*"));
    EXPECT_EQ(form->Caption(), QStringLiteral("SOLVANE OPTIONS"));
    EXPECT_EQ(Control<QLabel>(Controls::menuHeading).text(), QStringLiteral("OPERATION MENU"));
    EXPECT_EQ(CaptionOf(Metric()), QStringLiteral("Metric"));
    EXPECT_EQ(Metric().accessibleName(), QStringLiteral("Metric"));
    EXPECT_EQ(CaptionOf(Button(Controls::enterRooms)), QStringLiteral("ENTER/EDIT DATA"));
    EXPECT_EQ(CaptionOf(Button(Controls::backToProjects)), QStringLiteral("BACKWARD"));
    EXPECT_EQ(CaptionOf(Button(Controls::estimateFromMenu)), QStringLiteral("ESTIMATE"));
    EXPECT_EQ(Control<QAction>(Controls::exitFromMenu).text(), QStringLiteral("E&xit"));
}

TEST_F(MenuScreens, UseEachNameAndMnemonicOnce) {
    Load();
    ExpectNamesAndMnemonicsOnce(*form, 7);
}

TEST_F(MenuScreens, ChooseTheLanguageOfTheNextStart) {
    Load();
    const QList<QAction*> languages = Control<QMenu>(Controls::languageMenu).actions();
    ASSERT_EQ(languages.size(), 3);
    EXPECT_EQ(languages[0]->text(), QStringLiteral("English"));
    EXPECT_TRUE(languages[0]->isChecked());
    EXPECT_EQ(languages[1]->text(), QStringLiteral("Deutsch"));
    languages[1]->trigger();
    EXPECT_TRUE(languages[1]->isChecked());
    EXPECT_FALSE(languages[0]->isChecked());
    EXPECT_EQ(kept.Language(), "de");
    EXPECT_EQ(boxes.Messages,
              std::vector<std::string>{
                  "From its next start on the program speaks this language: Deutsch"});
    EXPECT_EQ(CaptionOf(Button(Controls::backToProjects)), QStringLiteral("BACKWARD"))
        << "in this run all stays as it is";
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Control<QMenu>(Controls::languageMenu).actions()[1]->isChecked());
}

TEST_F(MenuScreens, LeadToTheGuideAndToWhatTheProgramIs) {
    Load();
    Control<QAction>(Controls::helpGuide).trigger();
    Control<QAction>(Controls::helpAbout).trigger();
    EXPECT_EQ(screens.Calls, (std::vector<std::string>{"guide the-menu", "about"}));
}

TEST_F(MenuScreens, StandInTheMiddleWithTheTitlesAbove) {
    Load();
    const QRect frame = Control(Controls::menuPanel).geometry();
    EXPECT_NEAR(frame.center().x(), 400, 1);
    EXPECT_EQ(frame.top() - Control(Controls::productTitle).geometry().top(), Pixels(1700));
    EXPECT_EQ(frame.top() - Control(Controls::formTitle).geometry().top(), Pixels(800));
}

TEST_F(MenuScreens, LoadTheProjectUnticked) {
    open.Shown = Units::Metric;
    file.Run("UPDATE MainTab SET TileLabelNUm = 1");
    Load();
    EXPECT_EQ(open.Now.Sheet, 5);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(open.Shown, Units::Imperial);
    EXPECT_FALSE(Metric().isChecked());
    EXPECT_FALSE(Shows(Controls::notSaved));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(Button(Controls::enterRooms).hasFocus());
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(MenuScreens, OfferTheEstimateButForANewName) {
    Load(MenuEntry::ExistingProject);
    EXPECT_TRUE(Button(Controls::estimateFromMenu).isVisible());
    Load(MenuEntry::NewProject);
    EXPECT_FALSE(Button(Controls::estimateFromMenu).isVisible());
    EXPECT_TRUE(Button(Controls::enterRooms).isEnabled());
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Button(Controls::estimateFromMenu).isVisible());
}

TEST_F(MenuScreens, SayFromTheirLoadOnThatAllRoomsAreTiles) {
    Load();
    EXPECT_FALSE(Shows(Controls::tilesOnly));
    file.Run("UPDATE InputData SET CTType = 8");
    Load();
    EXPECT_TRUE(Shows(Controls::tilesOnly));
    EXPECT_EQ(Control<QLabel>(Controls::tilesOnly).text(), QStringLiteral("TILES ONLY"));
    EXPECT_TRUE(Button(Controls::estimateFromMenu).isEnabled());
    Click(Button(Controls::estimateFromMenu));
    EXPECT_TRUE(screens.Calls.empty()) << "as before";
    open.Now.Rooms.at(0).Covering = 0; // changed and not saved
    Load(MenuEntry::Returning);
    EXPECT_FALSE(Shows(Controls::tilesOnly));
}

TEST_F(MenuScreens, SetTheUnitsByTheCheckBox) {
    Load();
    Click(Metric());
    EXPECT_EQ(open.Shown, Units::Metric);
    Click(Metric());
    EXPECT_EQ(open.Shown, Units::Imperial);
    Press(*form, Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return open.Shown == Units::Metric; }));
    EXPECT_EQ(open.Now.Rooms.at(2).Width, 102) << "nothing else changes";
}

TEST_F(MenuScreens, SayThatTheRoomsWereEnteredInMetric) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    EXPECT_EQ(CaptionOf(Button(Controls::enteredInMetric)), QStringLiteral("ENTERED IN METRIC"));
    EXPECT_TRUE(Shows(Controls::enteredInMetric));
    Click(Metric());
    EXPECT_FALSE(Shows(Controls::enteredInMetric));
    Click(Metric());
    EXPECT_TRUE(Shows(Controls::enteredInMetric));
    open.Now.Name = "NEW";
    Load(MenuEntry::NewProject);
    EXPECT_FALSE(Shows(Controls::enteredInMetric));
}

TEST_F(MenuScreens, SayItBesideTheCheckBoxAlsoOfChangedRooms) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    open.Now.Rooms.at(0).Width = 7; // a stored room, changed and not saved
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Shows(Controls::notSaved));
    ASSERT_TRUE(Shows(Controls::enteredInMetric));
    const QRect label = PlaceOf(Controls::enteredInMetric);
    const QRect box = PlaceOf(Controls::metric);
    EXPECT_GT(label.left(), box.right());
    EXPECT_LT(label.left() - box.right(), Pixels(600));
    EXPECT_NEAR(label.center().y(), box.center().y(), 3);
}

TEST_F(MenuScreens, OpenAnExistingProjectWithoutASheet) {
    file.Run("INSERT INTO ProjTab VALUES ('MARCH', 'BARE', 0)");
    open.Now.Name = "BARE";
    Load();
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(Button(Controls::estimateFromMenu).isVisible());
    EXPECT_TRUE(Button(Controls::estimateFromMenu).isEnabled());
    EXPECT_FALSE(Shows(Controls::notSaved));
    EXPECT_TRUE(open.Now.Rooms.empty());
    Click(Button(Controls::estimateFromMenu));
    EXPECT_TRUE(screens.Calls.empty()) << "there is no carpet";
    Click(Button(Controls::enterRooms));
    EXPECT_EQ(screens.Calls, Lines{"rooms"});
    EXPECT_EQ(open.Now.Sheet, 9);
    EXPECT_TRUE(open.Now.IsNew);
}

TEST_F(MenuScreens, SayInWhichUnitsUnsavedRoomsWereTyped) {
    Load();
    open.Now.Rooms.at(0).Width = 7;
    Load(MenuEntry::Returning);
    EXPECT_FALSE(Shows(Controls::enteredInMetric));
    open.Now.EnteredIn = Units::Metric;
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Shows(Controls::enteredInMetric));
}

TEST_F(MenuScreens, KeepUnsavedRoomsThatComeBack) {
    Load(MenuEntry::NewProject);
    open.Now.Rooms.at(0).Width = 7;
    open.Shown = Units::Metric;
    store = ProjectStore();
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Shows(Controls::notSaved));
    EXPECT_EQ(Control<QLabel>(Controls::notSaved).text(), QStringLiteral("NOT SAVED"));
    EXPECT_GT(Control(Controls::notSaved).geometry().top(),
              Control(Controls::menuHeading).geometry().top());
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 7);
    EXPECT_FALSE(Metric().isChecked());
    EXPECT_FALSE(Button(Controls::estimateFromMenu).isVisible()) << "as the buttons stood";
    EXPECT_TRUE(Button(Controls::enterRooms).isEnabled());
    EXPECT_TRUE(boxes.Messages.empty());
    Click(Button(Controls::enterRooms));
    EXPECT_EQ(screens.Calls, Lines{"rooms"}) << "what was typed is reached without a database";
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 7);
}

TEST_F(MenuScreens, OpenTheRoomsWithTheSheetNumber) {
    Load();
    open.Now.Sheet = 3;
    screens.OnCall = [&] { EXPECT_EQ(open.Now.Sheet, 5); };
    Click(Button(Controls::enterRooms));
    EXPECT_EQ(screens.Calls, Lines{"rooms"});
    EXPECT_FALSE(open.Now.IsNew);
}

TEST_F(MenuScreens, OpenTheRoomsOfANewProjectWithTheNumberAllocated) {
    open.Now.Name = "NEW";
    Load(MenuEntry::NewProject);
    Click(Button(Controls::enterRooms));
    EXPECT_EQ(screens.Calls, Lines{"rooms"});
    EXPECT_EQ(open.Now.Sheet, 9);
    EXPECT_TRUE(open.Now.IsNew);
}

TEST_F(MenuScreens, KeepTheSheetThatANewNameGotMeanwhile) {
    open.Now.Name = "NEW";
    Load(MenuEntry::NewProject);
    file.AddProject("MARCH", "NEW", 12);
    Click(Button(Controls::enterRooms));
    EXPECT_EQ(open.Now.Sheet, 12) << "whether the estimate is offered or not";
    EXPECT_FALSE(open.Now.IsNew);
}

TEST_F(MenuScreens, StayWhenTheSheetNumberCannotBeRead) {
    Load();
    file.Run("DROP TABLE MainTab");
    Click(Button(Controls::enterRooms));
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0].rfind("The rooms could not be opened. ", 0), 0U)
        << boxes.Messages[0];
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
}

TEST_F(MenuScreens, GoBackwardWithoutStoringTheRooms) {
    Load();
    open.Now.Rooms.at(0).Width = 7;
    Click(Button(Controls::backToProjects));
    EXPECT_EQ(screens.Calls, Lines{"projects"});
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 7) << "the project selection drops them";
    EXPECT_TRUE(boxes.Questions.empty()) << "nothing is asked";
    EXPECT_EQ(file.Rows("SELECT RoomW FROM InputData WHERE TabIndex = 5 ORDER BY ObjNum"),
              (Lines{"100", "101", "102"}));
}

TEST_F(MenuScreens, KeepTheRoomsWhenTheProjectsCannotBeShown) {
    Load();
    open.Now.Rooms.at(0).Width = 7;
    screens.OnCall = [] { throw DatabaseError("Not now."); };
    Click(Button(Controls::backToProjects));
    EXPECT_EQ(boxes.Messages, Lines{"The projects could not be shown. Not now."});
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 7);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
}

TEST_F(MenuScreens, OpenTheEstimateOfAProjectWithACarpet) {
    Load();
    Click(Metric());
    screens.OnCall = [&] { EXPECT_EQ(open.Shown, Units::Metric); };
    Click(Button(Controls::estimateFromMenu));
    EXPECT_EQ(screens.Calls, Lines{"estimate from menu"});
}

TEST_F(MenuScreens, StaySilentlyWithoutACarpet) {
    file.Run("UPDATE InputData SET CTType = 8");
    Load();
    Click(Metric());
    Click(Button(Controls::estimateFromMenu));
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(open.Shown, Units::Metric) << "the tick stays";
    EXPECT_TRUE(Metric().isChecked());
    EXPECT_TRUE(form->isEnabled());
}

TEST_F(MenuScreens, EndTheProgramByTheMenuTheKeyAndTheFrame) {
    Load();
    open.Now.Rooms.at(0).Width = 7;
    auto* bar = form->findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    QTest::mouseClick(bar, Qt::LeftButton, {},
                      bar->actionGeometry(&Control<QAction>(Controls::exitFromMenu)).center());
    EXPECT_EQ(screens.Calls, Lines{"end"});
    Press(*form, Qt::Key_X, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return screens.Calls.size() == 2; }));
    form->CloseByFrame();
    EXPECT_EQ(screens.Calls, (Lines{"end", "end", "end"}));
    EXPECT_TRUE(boxes.Questions.empty());
    form->setEnabled(false);
    form->CloseByFrame();
    EXPECT_EQ(screens.Calls.size(), 3U);
    EXPECT_EQ(file.Rows("SELECT RoomW FROM InputData WHERE TabIndex = 5 ORDER BY ObjNum"),
              (Lines{"100", "101", "102"}))
        << "nothing is stored";
}

TEST_F(MenuScreens, CloseTheWayToAProjectThatCannotBeLoaded) {
    file.Run("UPDATE MainTab SET ObjNum = 502 WHERE ProjName = 'P'");
    Load();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0].rfind("The project P could not be loaded. ", 0), 0U)
        << boxes.Messages[0];
    EXPECT_FALSE(Button(Controls::enterRooms).isEnabled());
    EXPECT_FALSE(Button(Controls::estimateFromMenu).isEnabled());
    EXPECT_TRUE(Button(Controls::estimateFromMenu).isVisible());
    EXPECT_TRUE(Button(Controls::backToProjects).hasFocus());
    EXPECT_TRUE(open.Now.Rooms.empty());
    Click(Button(Controls::backToProjects));
    EXPECT_EQ(screens.Calls, Lines{"projects"});
}

TEST_F(MenuScreens, TellOddRowsInOneMessageOnce) {
    file.Run("DELETE FROM InputData WHERE ObjNum = 1 AND TabIndex = 5");
    Load();
    EXPECT_EQ(boxes.Messages, Lines{"The project P is not stored as it should be:\r\n"
                                    "Missing, read as empty: room 2."});
    EXPECT_TRUE(Button(Controls::enterRooms).isEnabled());
    Load(MenuEntry::Returning);
    EXPECT_EQ(boxes.Messages.size(), 1U);
}

TEST_F(MenuScreens, AreReachedByTabInTheirOrder) {
    Load();
    for (const char* name : {Controls::estimateFromMenu, Controls::backToProjects, Controls::metric,
                             Controls::enterRooms}) {
        Press(*form, Qt::Key_Tab);
        EXPECT_TRUE(Control(name).hasFocus()) << name;
    }
}

} // namespace
} // namespace tarn
