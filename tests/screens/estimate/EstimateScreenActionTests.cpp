// What is done with a result: pasting, drawing anew, printing, saving, leaving.

#include "base/Text.h"
#include "files/ShortDate.h"
#include "screens/estimate/EstimateScreenTesting.h"
#include "store/TestDatabase.h"

#include <QScrollBar>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

struct EstimateScreenActions : EstimateScreenTest {
    const std::string Heading = "Carpet-1  Width=12'0\"  DOWNLAY";

    /// A screen with a result of cuts and one piece.
    void OpenEstimated() {
        Open({{200, 120}});
        PressOk();
        Search();
    }
    /// Have the session work on the project as it is stored there.
    void LoadFrom(const TestDatabase& database) {
        store = database.Open();
        const LoadedProject loaded = store.Load("MAPLE STREET 9");
        open.Now = open.Saved = loaded.Value;
        open.Read = loaded.Mark;
    }
    void ClickPaper(QPoint at) { QTest::mouseClick(&Paper(), Qt::LeftButton, {}, at); }
};

TEST_F(EstimateScreenActions, PasteTheCutListOnceWhereTheFirstClickFalls) {
    OpenEstimated();
    const std::size_t before = Picture().Shown().Steps().size();
    Focus(Picture());
    Press(*form, Qt::Key_0);
    Press(*form, Qt::Key_Plus);
    Picture().verticalScrollBar()->setValue(30);
    Click(Button(Controls::pasteCuts));
    const QPoint at(210, 140);
    const QPointF twips = Picture().ToTwips(at);
    ClickPaper(at);
    EXPECT_EQ(TimesWritten(Heading), 2);
    const DrawingStep pasted = Picture().Shown().Steps()[before];
    EXPECT_EQ(pasted.Text, Heading);
    EXPECT_NEAR(pasted.X1, twips.x(), 1);
    EXPECT_NEAR(pasted.Y1, twips.y(), 1);
    EXPECT_EQ(Picture().verticalScrollBar()->value(), 30) << "the view stays";
    ClickPaper({50, 300});
    EXPECT_EQ(TimesWritten(Heading), 2);
}

TEST_F(EstimateScreenActions, PasteWithAnyButtonAndFromADoubleClickOnce) {
    OpenEstimated();
    Click(Button(Controls::pasteCuts));
    QTest::mouseClick(&Paper(), Qt::RightButton, {}, {60, 60});
    EXPECT_EQ(TimesWritten(Heading), 2);
    Click(Button(Controls::pasteCuts));
    Click(Button(Controls::pasteCuts));
    ClickPaper({60, 60});
    QTest::mouseDClick(&Paper(), Qt::LeftButton, {}, {60, 60});
    EXPECT_EQ(TimesWritten(Heading), 3);
}

TEST_F(EstimateScreenActions, PasteNothingUnlessAskedTo) {
    OpenEstimated();
    ClickPaper({50, 50});
    EXPECT_EQ(TimesWritten(Heading), 1);
}

TEST_F(EstimateScreenActions, ShowByThePointerThatAClickPastes) {
    OpenEstimated();
    Click(Button(Controls::pasteCuts));
    EXPECT_EQ(Paper().cursor().shape(), Qt::CrossCursor);
    ClickPaper({50, 50});
    EXPECT_NE(Paper().cursor().shape(), Qt::CrossCursor);
}

TEST_F(EstimateScreenActions, PasteNothingOfAnEmptyEstimate) {
    Open({{200, 120}});
    Click(Button(Controls::cancelChoices));
    Click(Button(Controls::redrawLayout));
    Click(Button(Controls::pasteCuts));
    ClickPaper({50, 50});
    EXPECT_THAT(Written(), ElementsAre("NO FILLS TO DISPLAY"));
}

TEST_F(EstimateScreenActions, RedrawTheLayoutWithoutTheCutList) {
    OpenEstimated();
    const auto step = Picture().Shown().Steps()[0];
    Click(Button(Controls::redrawLayout));
    EXPECT_THAT(Written(), ElementsAre("A"));
    EXPECT_EQ(Picture().Shown().Steps()[0].X2, step.X2);
    EXPECT_TRUE(Picture().isVisible());
}

TEST_F(EstimateScreenActions, RedrawAnEmptyEstimate) {
    Open({{200, 120}});
    Click(Button(Controls::cancelChoices));
    EXPECT_FALSE(Picture().isVisible());
    Click(Button(Controls::redrawLayout));
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_THAT(Written(), ElementsAre("NO FILLS TO DISPLAY"));
}

TEST_F(EstimateScreenActions, PrintThePictureAsItStands) {
    OpenEstimated();
    page = {15000, 11000};
    printer.Size = {1, 1};
    PressPrint();
    ASSERT_EQ(printer.Estimates.size(), 1U);
    const EstimatePage& printed = printer.Estimates[0];
    EXPECT_EQ(printed.Title,
              "     TARN RESULT  (PROJECT: MAPLE STREET 9)  " + ShortDate(2026, 3, 14));
    EXPECT_EQ(printed.Picture, Picture().Shown());
    EXPECT_THAT(printed.CarpetLines, ElementsAre("Carpet-1  Width=12'0\"", "DOWNLAY"));
    EXPECT_EQ(printed.Sheet, (PageTwips{15000, 11000}));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(TimesWritten(Heading), 1);
}

TEST_F(EstimateScreenActions, PrintOnceForADoubleClick) {
    OpenEstimated();
    QWidget& print = Button(Controls::printEstimate);
    PressPrint();
    DoubleClick(print); // its second press
    QTest::mouseRelease(&print, Qt::LeftButton);
    AwaitPrinter();
    EXPECT_EQ(printer.Estimates.size(), 1U);
    PressPrint();
    EXPECT_EQ(printer.Estimates.size(), 2U);
}

TEST_F(EstimateScreenActions, PrintNoCarpetLineBeforeAnEstimate) {
    Open({{200, 120}});
    Click(Button(Controls::cancelChoices));
    PressPrint();
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_TRUE(printer.Estimates[0].CarpetLines.empty());
}

TEST_F(EstimateScreenActions, AskForThePageWhenEitherSizeIsMissing) {
    for (const auto& [width, height] :
         {std::pair<Integer, Integer>(0, 0), {15000, 0}, {0, 11000}}) {
        open.Now.Rooms.clear();
        OpenEstimated();
        page = {width, height};
        printer.Estimates.clear();
        PressPrint();
        ASSERT_EQ(printer.Estimates.size(), 1U);
        EXPECT_EQ(printer.Estimates[0].Sheet, (PageTwips{16838, 11906}));
        EXPECT_EQ(page, (PageTwips{16838, 11906}));
    }
}

TEST_F(EstimateScreenActions, TellOnceThatThePrinterIsNotReadyAndStayUsable) {
    for (const PageTwips known : {PageTwips{}, PageTwips{15000, 11000}}) {
        open.Now.Rooms.clear();
        boxes.Messages.clear();
        OpenEstimated();
        const auto written = Written();
        page = known;
        printer.Failure = "There is no printer.";
        PressPrint();
        EXPECT_EQ(boxes.Messages, std::vector<std::string>{
                                      "Warning: Your printer is not ready!\r\n\r\nYou couldn't "
                                      "print in the program"});
        EXPECT_TRUE(printer.Estimates.empty());
        EXPECT_EQ(page, known);
        EXPECT_EQ(Written(), written);
        printer.Failure = "";
        PressPrint();
        EXPECT_EQ(printer.Estimates.size(), 1U);
        printer.Estimates.clear();
    }
}

TEST_F(EstimateScreenActions, PrintOnASheetThatIsTooLargeToBeKept) {
    OpenEstimated();
    printer.Size = {20000, 40000};
    PressPrint();
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_FALSE(page.IsKnown());
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_EQ(printer.Estimates[0].Sheet.Height, 0) << "which stands for the printer's own sheet";
    printer.Size = {16838, 11906};
    PressPrint();
    EXPECT_EQ(printer.Estimates.size(), 2U);
    EXPECT_EQ(page.Width, 16838) << "the page is asked for again";
}

TEST_F(EstimateScreenActions, SaveTheProjectAndSaySo) {
    const TestDatabase database;
    database.AddDirectory("MARCH");
    database.AddProject("MARCH", "MAPLE STREET 9", 7, 1);
    LoadFrom(database);
    Open({{288, 120, 3}});
    Click(Option(Controls::carpets[3]));
    PressOk();
    const auto written = Written();
    ASSERT_FALSE(written.empty());
    Click(Button(Controls::saveFromEstimate));
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"Data is saved"});
    EXPECT_EQ(Written(), written) << "the picture stays";
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_FALSE(open.HasUnsavedRooms());

    const Project stored = database.Open().Load("MAPLE STREET 9").Value;
    EXPECT_EQ(stored.Sheet, 7);
    EXPECT_EQ(stored.Rooms, open.Now.Rooms);
    ASSERT_EQ(stored.Rooms.size(), 2U);
    EXPECT_EQ(stored.Rooms[1].Width, 288);
    EXPECT_EQ(stored.Rooms[1].Covering, 3);
}

TEST_F(EstimateScreenActions, AskBeforeTheyReplaceWhatAnotherProgramStored) {
    const TestDatabase database;
    database.AddProject("MARCH", "MAPLE STREET 9", 7, 1);
    LoadFrom(database);
    Open({{288, 120, 3}});
    PressOk();
    database.Run("UPDATE InputData SET RoomW = 7");
    boxes.Choices = {"", "Replace it"};
    Click(Button(Controls::saveFromEstimate));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(database.Rows("SELECT RoomW FROM InputData"), std::vector<std::string>{"7"});
    EXPECT_TRUE(open.HasUnsavedRooms());
    Click(Button(Controls::saveFromEstimate));
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"Data is saved"});
    EXPECT_EQ(database.Rows("SELECT RoomW FROM InputData"),
              (std::vector<std::string>{"100", "288"}));
    EXPECT_EQ(boxes.Questions.size(), 2U);
}

TEST_F(EstimateScreenActions, SaveAProjectThatIsGoneAsANewOneAndShowItsName) {
    const TestDatabase database;
    database.AddProject("MARCH", "MAPLE STREET 9", 7, 1);
    LoadFrom(database);
    Open({{288, 120, 3}});
    PressOk();
    store.DeleteProject("MAPLE STREET 9");
    boxes.Choices = {"Save it as a new project"};
    boxes.Inputs = {"oak street"};
    Click(Button(Controls::saveFromEstimate));
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"Data is saved"});
    EXPECT_EQ(store.Load("OAK STREET").Value.Rooms, open.Now.Rooms);
    EXPECT_EQ(Control<QLabel>(Controls::formTitle).text(),
              QStringLiteral("ESTIMATE FOR PROJECT: OAK STREET"));
    EXPECT_EQ(Control<QLabel>(Controls::estimatedProject).text(),
              QStringLiteral("PROJ: OAK STREET"));
    EXPECT_EQ(form->Caption(), QStringLiteral("ESTIMATE FOR PROJECT: OAK STREET"));
}

TEST_F(EstimateScreenActions, TellWhyNothingWasSaved) {
    const TestDatabase database;
    database.AddProject("MARCH", "MAPLE STREET 9", 7, 1);
    LoadFrom(database);
    Open({{288, 120}});
    PressOk();
    const auto written = Written();
    const auto before = database.Rows("SELECT COUNT(*) FROM InputData");
    database.Run("CREATE TRIGGER Refuse BEFORE INSERT ON InputData BEGIN "
                 "SELECT RAISE(ABORT, 'the disk is full'); END");
    Click(Button(Controls::saveFromEstimate));
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], ::testing::StartsWith("The project could not be saved. "));
    EXPECT_THAT(boxes.Messages[0], ::testing::HasSubstr("the disk is full"));
    EXPECT_TRUE(open.HasUnsavedRooms());
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(database.Rows("SELECT COUNT(*) FROM InputData"), before);
}

TEST_F(EstimateScreenActions, TellThatThereIsNoDatabaseToSaveTo) {
    OpenEstimated();
    Click(Button(Controls::saveFromEstimate));
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], ::testing::StartsWith("The project could not be saved. "));
}

TEST_F(EstimateScreenActions, GoBackToWhereTheyCameFrom) {
    for (const bool fromMenu : {true, false}) {
        open.Now.Rooms.clear();
        screens.Calls.clear();
        Open({{288, 120}}, fromMenu);
        PressOk();
        Click(Button(Controls::leaveEstimate));
        EXPECT_EQ(screens.Calls, std::vector<std::string>{fromMenu ? "menu returning" : "return"});
        EXPECT_TRUE(boxes.Messages.empty()) << "nothing is asked";
    }
}

TEST_F(EstimateScreenActions, GoBackWhenTheFrameIsClosedAlsoWithThePanelOpen) {
    for (const bool fromMenu : {true, false}) {
        open.Now.Rooms.clear();
        screens.Calls.clear();
        Open({{288, 120}}, fromMenu);
        form->CloseByFrame();
        EXPECT_EQ(screens.Calls, std::vector<std::string>{fromMenu ? "menu returning" : "return"});
    }
}

TEST_F(EstimateScreenActions, StayWhileTheOptionsScreenIsAboveThem) {
    OpenEstimated();
    screens.Calls.clear();
    form->setEnabled(false);
    form->CloseByFrame();
    EXPECT_TRUE(screens.Calls.empty());
    form->Uncover();
    EXPECT_TRUE(form->isEnabled());
    EXPECT_TRUE(Picture().hasFocus());
}

TEST_F(EstimateScreenActions, TellWhenTheWayBackFails) {
    OpenEstimated();
    screens.OnCall = [] { throw std::runtime_error("No memory."); };
    Click(Button(Controls::leaveEstimate));
    EXPECT_EQ(boxes.Messages,
              std::vector<std::string>{"The screen could not be closed. No memory."});
}

TEST_F(EstimateScreenActions, GoOnInTheirOwnUnitWhenTheWayBackFails) {
    open.Shown = Units::Metric;
    Open({{366, 500}});
    screens.OnCall = [this] {
        open.Shown = Units::Imperial; // as loading the menu does
        throw std::runtime_error("No memory.");
    };
    form->CloseByFrame();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(open.Shown, Units::Metric);
    PressOk();
    EXPECT_THAT(PrintedCarpetLines(), ElementsAre("Carpet-1  Width=366", "DOWNLAY"));
    EXPECT_EQ(TimesWritten("Cut1: 366 X 500"), 1);
}

TEST_F(EstimateScreenActions, PressTheirButtonsByLetterAndWithEnter) {
    OpenEstimated();
    Press(*form, Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Written().size() == 1; }));
    Press(*form, Qt::Key_I, Qt::AltModifier);
    AwaitPrinter();
    EXPECT_EQ(printer.Estimates.size(), 1U);
    Focus(Button(Controls::openChoices));
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(Panel().isVisible());
}

TEST_F(EstimateScreenActions, LetTabWalkFromTheButtonsToThePicture) {
    OpenEstimated();
    Focus(Button(Controls::openChoices));
    std::vector<std::string> order;
    for (int i = 0; i < 9; ++i) {
        order.push_back(FromQt(QApplication::focusWidget()->objectName()));
        Press(*form, Qt::Key_Tab);
    }
    EXPECT_THAT(order, ElementsAre(Controls::openChoices, Controls::improveFills,
                                   Controls::openOrder, Controls::pasteCuts, Controls::redrawLayout,
                                   Controls::printEstimate, Controls::saveFromEstimate,
                                   Controls::leaveEstimate, Controls::layoutPicture));
}

TEST_F(EstimateScreenActions, SayHowToZoomOnceThereIsAPicture) {
    Open({{288, 120}});
    EXPECT_FALSE(Control(Controls::zoomHint).isVisible());
    PressOk();
    EXPECT_TRUE(Control(Controls::zoomHint).isVisible());
    EXPECT_EQ(Control<QLabel>(Controls::zoomHint).text(), PictureBox::ZoomHint());
}

TEST_F(EstimateScreenActions, ReachTheWholeLayoutOnTheLeastDisplay) {
    Open({{200, 2000}, {150, 1800}});
    PressOk();
    Search();
    Focus(Picture());
    Press(*form, Qt::Key_End);
    Picture().horizontalScrollBar()->setValue(1 << 30);
    const Drawing& drawing = Picture().Shown();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return QRectF(Paper().rect())
            .contains(Picture().ToViewport({drawing.FarthestX(), drawing.FarthestY()}));
    }));
    EXPECT_TRUE(
        form->rect().contains(QRect(Picture().mapTo(form.get(), QPoint(0, 0)), Picture().size())));
}

} // namespace
} // namespace tarn
