// What becomes of the picture: drawn anew, pasted on, saved as a file.

#include "files/Svg.h"
#include "screens/estimate/EstimateScreenTesting.h"
#include "store/TestDatabase.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

struct EstimatePictures : EstimateScreenTest {
    const std::string Heading = "Carpet-1  Width=12'0\"  DOWNLAY";
    const std::string Notice = "NO FILLS TO DISPLAY";

    /// A screen with a result of cuts and one piece, or of cuts alone.
    void OpenEstimated() {
        Open({{200, 120}});
        PressOk();
        Search();
    }
    void OpenCutsOnly() {
        Open({{288, 120}});
        PressOk();
    }
    void ClickPaper(QPoint at) { QTest::mouseClick(&Paper(), Qt::LeftButton, {}, at); }
    bool IsInView(const DrawingStep& step) {
        return QRectF(Paper().rect()).contains(Picture().ToViewport({step.X1, step.Y1})) &&
               QRectF(Paper().rect()).contains(Picture().ToViewport({step.X2, step.Y1}));
    }
    /// Ask for the picture's menu with the mouse or the menu key, wait for it.
    QMenu* AskForMenu(QContextMenuEvent::Reason reason) {
        QWidget& widget = reason == QContextMenuEvent::Mouse ? Paper() : Picture();
        const QPoint at(40, 40);
        QContextMenuEvent event(reason, at, widget.mapToGlobal(at));
        QApplication::sendEvent(&widget, &event);
        const auto isOpen = [] {
            return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr;
        };
        EXPECT_TRUE(QTest::qWaitFor(isOpen));
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    /// Choose from the picture's menu with the keyboard alone: its first or second line.
    void ChooseByKeys(int line) {
        QMenu* menu = AskForMenu(QContextMenuEvent::Keyboard);
        ASSERT_NE(menu, nullptr);
        for (int i = 0; i < line; ++i) {
            QTest::keyClick(menu, Qt::Key_Down);
        }
        QTest::keyClick(menu, Qt::Key_Return);
    }
    bool Offers(const char* action) {
        return form->findChild<QAction*>(QString::fromLatin1(action))->isEnabled();
    }
};

TEST_F(EstimatePictures, StayAsTheyWereWhenAnotherEstimateCannotBeDrawnOrListed) {
    OpenEstimated();
    const auto written = Written();
    Estimate undrawable = Searched();
    undrawable.Fills.Length = 0;
    Estimate unlisted = Searched();
    unlisted.Request.RollWidth = 1e10F;
    EXPECT_EQ(ErrorOf([&] { screens.Client->EstimateReady(undrawable); }).Number(),
              DivisionByZeroNumber);
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(ErrorOf([&] { screens.Client->EstimateReady(unlisted); }).Number(), OverflowNumber);
    EXPECT_EQ(Written(), written);
    EXPECT_THAT(PrintedCarpetLines(), ElementsAre("Carpet-1  Width=12'0\"", "DOWNLAY"));
    Click(Button(Controls::redrawLayout));
    EXPECT_THAT(Written(), ElementsAre("A"));
    Click(Button(Controls::pasteCuts));
    ClickPaper({50, 50});
    EXPECT_EQ(TimesWritten(Heading), 1);
    EXPECT_THAT(boxes.Messages, IsEmpty());
}

TEST_F(EstimatePictures, OfALayoutThatCannotBeDrawnAreEmptyWithTheEstimate) {
    open.Shown = Units::Metric;
    Open({{100, 1}});
    PressOk();
    const RunTimeError error = ErrorOf([this] { Search(); });
    EXPECT_EQ(error.Number(), DivisionByZeroNumber);
    EXPECT_EQ(error.Advice(),
              "The fills are shorter than 1 inch: check the sizes of this carpet's rooms.");
    EXPECT_THAT(Written(), IsEmpty()) << "not half of it";
    screens.Client->NoEstimate();
    ExpectNothingEstimated();
}

TEST_F(EstimatePictures, OfCutsAloneAreDrawnAnewAndPastedOn) {
    OpenCutsOnly();
    Click(Button(Controls::redrawLayout));
    EXPECT_THAT(Written(), ElementsAre(Notice));
    Click(Button(Controls::pasteCuts));
    ClickPaper({60, 80});
    EXPECT_EQ(TimesWritten(Heading), 1);
    Click(Button(Controls::pasteCuts));
    ClickPaper({200, 200});
    EXPECT_EQ(TimesWritten(Heading), 2);
    EXPECT_EQ(TimesWritten("Total Length:20'0\""), 2);
    EXPECT_EQ(TimesWritten(Notice), 1);
}

TEST_F(EstimatePictures, KeepZoomAndPlaceWhenAListIsPastedAtTheEdge) {
    OpenEstimated();
    const double zoom = Picture().Zoom();
    Click(Button(Controls::pasteCuts));
    ClickPaper(Paper().rect().bottomRight() - QPoint(5, 5));
    QCoreApplication::processEvents();
    EXPECT_EQ(TimesWritten(Heading), 2);
    EXPECT_DOUBLE_EQ(Picture().Zoom(), zoom);
    EXPECT_EQ(Picture().ToTwips({0, 0}), QPointF(0, 0));
    EXPECT_GT(Picture().verticalScrollBar()->maximum(), 0);
}

TEST_F(EstimatePictures, AreDrawnAnewInViewAfterTheEstimateWasEmptied) {
    OpenEstimated();
    screens.Client->NoEstimate();
    EXPECT_FALSE(Control(Controls::zoomHint).isVisible()) << "nothing to zoom";
    Click(Button(Controls::redrawLayout));
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsInView(StepOf(Notice)); }));
    EXPECT_TRUE(Control(Controls::zoomHint).isVisible());
}

TEST_F(EstimatePictures, ArePastedOnWithTheKeyboardAlone) {
    OpenEstimated();
    Focus(Picture());
    Press(*form, Qt::Key_Plus);
    Press(*form, Qt::Key_Plus);
    Press(*form, Qt::Key_End);
    const std::size_t before = Picture().Shown().Steps().size();
    Focus(Button(Controls::pasteCuts));
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(Picture().hasFocus());
    const QPointF corner = Picture().ToTwips({0, 0});
    EXPECT_GT(corner.y(), 0);
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(TimesWritten(Heading), 2);
    EXPECT_NEAR(Picture().Shown().Steps()[before].X1, corner.x() + 100, 0.01);
    EXPECT_NEAR(Picture().Shown().Steps()[before].Y1, corner.y() + 100, 0.01);
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(TimesWritten(Heading), 2) << "once";
}

TEST_F(EstimatePictures, IgnoreOtherButtonsUnlessAskedToPaste) {
    OpenEstimated();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(&Paper(), button, {}, {50, 50});
        EXPECT_EQ(TimesWritten(Heading), 1);
    }
}

TEST_F(EstimatePictures, ArePrintedAsRedrawn) {
    OpenEstimated();
    Click(Button(Controls::redrawLayout));
    PressPrint();
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_EQ(printer.Estimates[0].Picture, Picture().Shown());
    EXPECT_THAT(Written(), ElementsAre("A"));
    EXPECT_THAT(printer.Estimates[0].CarpetLines, ElementsAre("Carpet-1  Width=12'0\"", "DOWNLAY"));
}

TEST_F(EstimatePictures, ArePrintedWithoutACarpetLineAfterAStoppedSearch) {
    Open({{200, 120}});
    PressOk();
    screens.Client->NoEstimate();
    PressPrint();
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_THAT(printer.Estimates[0].CarpetLines, IsEmpty());
    EXPECT_THAT(printer.Estimates[0].Picture.Steps(), IsEmpty());
}

TEST_F(EstimatePictures, AreSavedAsPdfAndSvgFromTheirMenu) {
    const TestFolder files;
    OpenEstimated();
    boxes.Files = {files.Path("a.pdf"), files.Path("a.svg")};
    ChooseByKeys(1);
    ASSERT_EQ(boxes.SuggestedFiles, std::vector<std::string>{"MAPLE STREET 9.pdf"});
    EXPECT_THAT(ReadFile(files.Path("a.pdf")), StartsWith("%PDF-"));
    ChooseByKeys(2);
    EXPECT_EQ(boxes.SuggestedFiles.back(), "MAPLE STREET 9.svg");
    EXPECT_EQ(ReadFile(files.Path("a.svg")),
              SvgDocument(Picture().Shown(), "ESTIMATE FOR PROJECT: MAPLE STREET 9"));
    EXPECT_THAT(files.Content(), ElementsAre("a.pdf", "a.svg"));
    EXPECT_THAT(boxes.Messages, IsEmpty());
}

TEST_F(EstimatePictures, TellThatAPageCannotShowTheirList) {
    const TestFolder files;
    Open({{30, 16000}});
    Click(Option(Controls::otherWidth));
    Type(Box(Controls::otherWidthMajor), "3");
    PressOk();
    Search();
    const std::vector<std::string> told{std::string(ListNotShownText)};
    const std::vector<std::string> where{std::string(ListElsewhereText)};
    PressPrint();
    EXPECT_EQ(printer.Estimates.size(), 1U) << "it is printed all the same";
    EXPECT_EQ(boxes.Messages, told);
    EXPECT_EQ(boxes.Informative, where);
    boxes.Messages.clear();
    boxes.Files = {files.Path("a.pdf")};
    ChooseByKeys(1);
    EXPECT_EQ(boxes.Messages, told);
    EXPECT_THAT(files.Content(), ElementsAre("a.pdf"));
    boxes.Messages.clear();
    Click(Button(Controls::redrawLayout));
    PressPrint();
    EXPECT_THAT(boxes.Messages, IsEmpty()) << "the list was not to be printed";
    printer.Failure = "It is off.";
    Click(Button(Controls::pasteCuts));
    Press(*form, Qt::Key_Return);
    PressPrint();
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{PrinterNotReadyMessage});
}

TEST_F(EstimatePictures, OfferTheirMenuToTheMouse) {
    const TestFolder files;
    OpenEstimated();
    boxes.Files = {files.Path("b.svg")};
    QMenu* menu = AskForMenu(QContextMenuEvent::Mouse);
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions()[0]->text(), QStringLiteral("Save as &PDF"));
    EXPECT_EQ(menu->actions()[1]->text(), QStringLiteral("Save as &SVG"));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[1]).center());
    EXPECT_THAT(files.Content(), ElementsAre("b.svg"));
}

TEST_F(EstimatePictures, CanBeSavedOnlyWhileSomethingIsDrawn) {
    Open({{200, 120}});
    EXPECT_FALSE(Offers(Controls::pictureAsPdf));
    EXPECT_FALSE(Offers(Controls::pictureAsSvg));
    PressOk();
    Search();
    EXPECT_TRUE(Offers(Controls::pictureAsPdf));
    EXPECT_TRUE(Offers(Controls::pictureAsSvg));
    screens.Client->NoEstimate();
    EXPECT_FALSE(Offers(Controls::pictureAsPdf));
    EXPECT_FALSE(Offers(Controls::pictureAsSvg));
    Click(Button(Controls::redrawLayout));
    EXPECT_TRUE(Offers(Controls::pictureAsPdf));
}

TEST_F(EstimatePictures, AreNotSavedWhenTheFileIsNotNamed) {
    OpenEstimated();
    boxes.Files = {std::nullopt, std::nullopt};
    ChooseByKeys(1);
    ChooseByKeys(2);
    EXPECT_EQ(boxes.SuggestedFiles.size(), 2U);
    EXPECT_THAT(boxes.Messages, IsEmpty());
}

TEST_F(EstimatePictures, TellWhichFileCouldNotBeSaved) {
    const TestFolder files;
    OpenEstimated();
    const auto written = Written();
    for (const int line : {1, 2}) {
        const std::string path = files.Path("missing/" + std::to_string(line));
        boxes.Messages.clear();
        boxes.Files = {path};
        ChooseByKeys(line);
        ASSERT_EQ(boxes.Messages.size(), 1U);
        EXPECT_THAT(boxes.Messages[0], StartsWith("The picture could not be saved. "));
        EXPECT_THAT(boxes.Messages[0], HasSubstr(path));
    }
    EXPECT_THAT(files.Content(), IsEmpty());
    EXPECT_EQ(Written(), written);
}

} // namespace
} // namespace tarn
