// What is done with a result: pasting, drawing anew, printing, saving, leaving.

#include "app/Text.h"
#include "estimate/EstimateScreenTesting.h"
#include "rooms/Report.h"
#include "store/TestDatabase.h"

#include <QScrollBar>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

struct ESCarpFormActions : EstimateScreenTest {
    const std::string Heading = "Carpet-1  Width=12'0\"  DOWNLAY";

    /// A screen with a result of cuts and one piece.
    void OpenEstimated() {
        Open({{200, 120}});
        PressOk();
        Search();
    }
    void ClickPaper(QPoint at) { QTest::mouseClick(&Paper(), Qt::LeftButton, {}, at); }
};

TEST_F(ESCarpFormActions, PasteTheCutListOnceWhereTheFirstClickFalls) {
    OpenEstimated();
    const std::size_t before = Picture1().Drawing().Steps().size();
    Focus(Picture1());
    Press(*form, Qt::Key_0);
    Press(*form, Qt::Key_Plus);
    Picture1().verticalScrollBar()->setValue(30);
    Click(Button("Command4"));
    const QPoint at(210, 140);
    const QPointF twips = Picture1().ToTwips(at);
    ClickPaper(at);
    EXPECT_EQ(TimesWritten(Heading), 2);
    const DrawingStep pasted = Picture1().Drawing().Steps()[before];
    EXPECT_EQ(pasted.Text, Heading);
    EXPECT_NEAR(pasted.X1, twips.x(), 1);
    EXPECT_NEAR(pasted.Y1, twips.y(), 1);
    EXPECT_EQ(Picture1().verticalScrollBar()->value(), 30) << "the view stays";
    ClickPaper({50, 300});
    EXPECT_EQ(TimesWritten(Heading), 2);
}

TEST_F(ESCarpFormActions, PasteWithAnyButtonAndFromADoubleClickOnce) {
    OpenEstimated();
    Click(Button("Command4"));
    QTest::mouseClick(&Paper(), Qt::RightButton, {}, {60, 60});
    EXPECT_EQ(TimesWritten(Heading), 2);
    Click(Button("Command4"));
    Click(Button("Command4"));
    ClickPaper({60, 60});
    QTest::mouseDClick(&Paper(), Qt::LeftButton, {}, {60, 60});
    EXPECT_EQ(TimesWritten(Heading), 3);
}

TEST_F(ESCarpFormActions, PasteNothingUnlessAskedTo) {
    OpenEstimated();
    ClickPaper({50, 50});
    EXPECT_EQ(TimesWritten(Heading), 1);
}

TEST_F(ESCarpFormActions, ShowByThePointerThatAClickPastes) {
    OpenEstimated();
    Click(Button("Command4"));
    EXPECT_EQ(Paper().cursor().shape(), Qt::CrossCursor);
    ClickPaper({50, 50});
    EXPECT_NE(Paper().cursor().shape(), Qt::CrossCursor);
}

TEST_F(ESCarpFormActions, PasteNothingOfAnEmptyEstimate) {
    Open({{200, 120}});
    Click(Button("Command1(1)"));
    Click(Button("Command7"));
    Click(Button("Command4"));
    ClickPaper({50, 50});
    EXPECT_THAT(Written(), ElementsAre("NO FILLS TO DISPLAY"));
}

TEST_F(ESCarpFormActions, RedrawTheLayoutWithoutTheCutList) {
    OpenEstimated();
    const auto step = Picture1().Drawing().Steps()[0];
    Click(Button("Command7"));
    EXPECT_THAT(Written(), ElementsAre("A"));
    EXPECT_EQ(Picture1().Drawing().Steps()[0].X2, step.X2);
    EXPECT_TRUE(Picture1().isVisible());
}

TEST_F(ESCarpFormActions, RedrawAnEmptyEstimate) {
    Open({{200, 120}});
    Click(Button("Command1(1)"));
    EXPECT_FALSE(Picture1().isVisible());
    Click(Button("Command7"));
    EXPECT_TRUE(Picture1().isVisible());
    EXPECT_THAT(Written(), ElementsAre("NO FILLS TO DISPLAY"));
}

TEST_F(ESCarpFormActions, PrintThePictureAsItStands) {
    OpenEstimated();
    state.PrnWidth = 15000;
    state.PrnHeight = 11000;
    printer.Size = {1, 1};
    Click(Button("Command5"));
    ASSERT_EQ(printer.Estimates.size(), 1U);
    const EstimatePage& page = printer.Estimates[0];
    EXPECT_EQ(page.Title, "     TARN RESULT  (PROJECT: MAPLE STREET 9)  " + ShortDate(2026, 3, 14));
    EXPECT_EQ(page.Drawing, &Picture1().Drawing());
    EXPECT_THAT(page.CarpetLines, ElementsAre("Carpet-1  Width=12'0\"", "DOWNLAY"));
    EXPECT_EQ(page.PrnWidth, 15000);
    EXPECT_EQ(page.PrnHeight, 11000);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(TimesWritten(Heading), 1);
}

TEST_F(ESCarpFormActions, PrintOnceForADoubleClick) {
    OpenEstimated();
    QWidget& print = Button("Command5");
    Click(print);
    DoubleClick(print); // its second press
    QTest::mouseRelease(&print, Qt::LeftButton);
    EXPECT_EQ(printer.Estimates.size(), 1U);
    Click(print);
    EXPECT_EQ(printer.Estimates.size(), 2U);
}

TEST_F(ESCarpFormActions, PrintNoCarpetLineBeforeAnEstimate) {
    Open({{200, 120}});
    Click(Button("Command1(1)"));
    Click(Button("Command5"));
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_TRUE(printer.Estimates[0].CarpetLines.empty());
}

TEST_F(ESCarpFormActions, AskForThePageWhenEitherSizeIsMissing) {
    for (const auto& [width, height] :
         {std::pair(0, 0), std::pair(15000, 0), std::pair(0, 11000)}) {
        state.ObjNum = 0;
        OpenEstimated();
        state.PrnWidth = static_cast<Integer>(width);
        state.PrnHeight = static_cast<Integer>(height);
        printer.Estimates.clear();
        Click(Button("Command5"));
        ASSERT_EQ(printer.Estimates.size(), 1U);
        EXPECT_EQ(printer.Estimates[0].PrnWidth, 16838);
        EXPECT_EQ(printer.Estimates[0].PrnHeight, 11906);
        EXPECT_EQ(state.PrnWidth, 16838);
        EXPECT_EQ(state.PrnHeight, 11906);
    }
}

TEST_F(ESCarpFormActions, TellOnceThatThePrinterIsNotReadyAndStayUsable) {
    for (const int known : {0, 1}) {
        state.ObjNum = 0;
        boxes.Messages.clear();
        OpenEstimated();
        const auto written = Written();
        state.PrnWidth = static_cast<Integer>(known * 15000);
        state.PrnHeight = static_cast<Integer>(known * 11000);
        printer.Failure = "There is no printer.";
        Click(Button("Command5"));
        EXPECT_EQ(boxes.Messages, std::vector<std::string>{
                                      "Warning: Your printer is not ready!\r\n\r\nYou couldn't "
                                      "print in the program"});
        EXPECT_TRUE(printer.Estimates.empty());
        EXPECT_EQ(state.PrnWidth, known * 15000);
        EXPECT_EQ(Written(), written);
        printer.Failure.clear();
        Click(Button("Command5"));
        EXPECT_EQ(printer.Estimates.size(), 1U);
        printer.Estimates.clear();
    }
}

TEST_F(ESCarpFormActions, PrintOnASheetThatIsTooLargeForTheSharedSize) {
    OpenEstimated();
    printer.Size = {20000, 40000};
    Click(Button("Command5"));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(state.PrnHeight, 0);
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_EQ(printer.Estimates[0].PrnHeight, 0) << "which stands for the printer's own sheet";
    printer.Size = {16838, 11906};
    Click(Button("Command5"));
    EXPECT_EQ(printer.Estimates.size(), 2U);
    EXPECT_EQ(state.PrnWidth, 16838) << "the page is asked for again";
}

TEST_F(ESCarpFormActions, SaveTheProjectAndSaySo) {
    const TestDatabase database;
    database.AddDirectory("MARCH");
    database.AddProject("MARCH", "MAPLE STREET 9", 7, 1);
    database.OpenInto(state);
    ASSERT_EQ(LoadOpenProject(state, project).Result, ProjectLoad::Outcome::Loaded);
    Open({{288, 120, 3}});
    Click(Option("Option1(3)"));
    PressOk();
    const auto written = Written();
    ASSERT_FALSE(written.empty());
    Click(Button("Command6"));
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"Data is saved"});
    EXPECT_EQ(Written(), written) << "the picture stays";
    EXPECT_TRUE(Picture1().isVisible());
    EXPECT_FALSE(HasUnsavedRooms(state, project));
    state.CurDB.reset();

    SharedState stored;
    stored.CurProjName = "MAPLE STREET 9";
    database.OpenInto(stored);
    OpenProject again;
    ASSERT_EQ(LoadOpenProject(stored, again).Result, ProjectLoad::Outcome::Loaded);
    EXPECT_EQ(stored.CurTabIndex, 7);
    EXPECT_EQ(TakeRooms(stored), TakeRooms(state));
    ASSERT_EQ(stored.ObjNum, 2);
    EXPECT_EQ(stored.RoomWidth[1], 288);
    EXPECT_EQ(stored.RoomCarpet[1], 3);
}

TEST_F(ESCarpFormActions, TellWhyNothingWasSaved) {
    const TestDatabase database;
    database.AddProject("MARCH", "MAPLE STREET 9", 7, 1);
    database.OpenInto(state);
    ASSERT_EQ(LoadOpenProject(state, project).Result, ProjectLoad::Outcome::Loaded);
    Open({{288, 120}});
    PressOk();
    const auto written = Written();
    const auto before = database.Rows("SELECT COUNT(*) FROM InputData");
    database.Run("CREATE TRIGGER Refuse BEFORE INSERT ON InputData BEGIN "
                 "SELECT RAISE(ABORT, 'the disk is full'); END");
    Click(Button("Command6"));
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], ::testing::StartsWith("The project could not be saved. "));
    EXPECT_THAT(boxes.Messages[0], ::testing::HasSubstr("the disk is full"));
    EXPECT_TRUE(HasUnsavedRooms(state, project));
    EXPECT_EQ(state.ObjNum, 2);
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(database.Rows("SELECT COUNT(*) FROM InputData"), before);
}

TEST_F(ESCarpFormActions, TellThatThereIsNoDatabaseToSaveTo) {
    OpenEstimated();
    Click(Button("Command6"));
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], ::testing::StartsWith("The project could not be saved. "));
}

TEST_F(ESCarpFormActions, GoBackToWhereTheyCameFrom) {
    for (const bool fromMenu : {true, false}) {
        state.ObjNum = 0;
        screens.Calls.clear();
        Open({{288, 120}}, fromMenu);
        PressOk();
        Click(Button("Command2"));
        EXPECT_EQ(screens.Calls, std::vector<std::string>{fromMenu ? "menu returning" : "return"});
        EXPECT_TRUE(boxes.Messages.empty()) << "nothing is asked";
    }
}

TEST_F(ESCarpFormActions, GoBackWhenTheFrameIsClosedAlsoWithThePanelOpen) {
    for (const bool fromMenu : {true, false}) {
        state.ObjNum = 0;
        screens.Calls.clear();
        Open({{288, 120}}, fromMenu);
        form->CloseByFrame();
        EXPECT_EQ(screens.Calls, std::vector<std::string>{fromMenu ? "menu returning" : "return"});
    }
}

TEST_F(ESCarpFormActions, StayWhileTheOptionsScreenIsAboveThem) {
    OpenEstimated();
    screens.Calls.clear();
    form->setEnabled(false);
    form->CloseByFrame();
    EXPECT_TRUE(screens.Calls.empty());
    form->Uncover();
    EXPECT_TRUE(form->isEnabled());
    EXPECT_TRUE(Picture1().hasFocus());
}

TEST_F(ESCarpFormActions, TellWhenTheWayBackFails) {
    OpenEstimated();
    screens.OnCall = [] { throw std::runtime_error("No memory."); };
    Click(Button("Command2"));
    EXPECT_EQ(boxes.Messages,
              std::vector<std::string>{"The screen could not be closed. No memory."});
}

TEST_F(ESCarpFormActions, GoOnInTheirOwnUnitWhenTheWayBackFails) {
    state.MetricFlag = 1;
    Open({{366, 500}});
    screens.OnCall = [this] {
        state.MetricFlag = 0; // as loading the menu does
        throw std::runtime_error("No memory.");
    };
    form->CloseByFrame();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(state.MetricFlag, 1);
    PressOk();
    EXPECT_NEAR(engine.RollWidth, 366 / 2.54, 1e-4);
    EXPECT_EQ(TimesWritten("Cut1: 366 X 500"), 1);
}

TEST_F(ESCarpFormActions, PressTheirButtonsByLetterAndWithEnter) {
    OpenEstimated();
    Press(*form, Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Written().size() == 1; }));
    Press(*form, Qt::Key_I, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return printer.Estimates.size() == 1; }));
    Focus(Button("Command3"));
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(Panel().isVisible());
}

TEST_F(ESCarpFormActions, LetTabWalkFromTheButtonsToThePicture) {
    OpenEstimated();
    Focus(Button("Command3"));
    std::vector<std::string> order;
    for (int i = 0; i < 8; ++i) {
        order.push_back(FromQt(QApplication::focusWidget()->objectName()));
        Press(*form, Qt::Key_Tab);
    }
    EXPECT_THAT(order, ElementsAre("Command3", "Command8", "Command4", "Command7", "Command5",
                                   "Command6", "Command2", "Picture1"));
}

TEST_F(ESCarpFormActions, SayHowToZoomOnceThereIsAPicture) {
    Open({{288, 120}});
    EXPECT_FALSE(Control("Label5").isVisible());
    PressOk();
    EXPECT_TRUE(Control("Label5").isVisible());
    EXPECT_EQ(Control<QLabel>("Label5").text(), PictureBox::ZoomHint());
}

TEST_F(ESCarpFormActions, ReachTheWholeLayoutOnTheLeastDisplay) {
    Open({{200, 2000}, {150, 1800}});
    PressOk();
    Search();
    Focus(Picture1());
    Press(*form, Qt::Key_End);
    Picture1().horizontalScrollBar()->setValue(1 << 30);
    const Picture& drawing = Picture1().Drawing();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return QRectF(Paper().rect())
            .contains(Picture1().ToViewport({drawing.FarthestX(), drawing.FarthestY()}));
    }));
    EXPECT_TRUE(form->rect().contains(
        QRect(Picture1().mapTo(form.get(), QPoint(0, 0)), Picture1().size())));
}

} // namespace
} // namespace tarn
