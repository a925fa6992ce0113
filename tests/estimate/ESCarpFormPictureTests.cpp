// What becomes of the picture: drawn anew, pasted on, saved as a file.

#include "estimate/EstimateScreenTesting.h"
#include "estimate/Svg.h"
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

struct ESCarpFormPictures : EstimateScreenTest {
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
        return QRectF(Paper().rect()).contains(Picture1().ToViewport({step.X1, step.Y1})) &&
               QRectF(Paper().rect()).contains(Picture1().ToViewport({step.X2, step.Y1}));
    }
    /// Ask for the picture's menu with the mouse or the menu key, wait for it.
    QMenu* AskForMenu(QContextMenuEvent::Reason reason) {
        QWidget& widget = reason == QContextMenuEvent::Mouse ? Paper() : Picture1();
        const QPoint at(40, 40);
        QContextMenuEvent event(reason, at, widget.mapToGlobal(at));
        QApplication::sendEvent(&widget, &event);
        const auto open = [] {
            return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr;
        };
        EXPECT_TRUE(QTest::qWaitFor(open));
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

TEST_F(ESCarpFormPictures, StayAsTheyWereWhenRedrawFails) {
    OpenEstimated();
    const auto written = Written();
    engine.ResultLen = 0;
    Click(Button("Command7"));
    EXPECT_EQ(boxes.Messages,
              std::vector<std::string>{
                  "Run-time error '11':\r\n\r\nDivision by zero\r\nThe layout could not be drawn. "
                  "The fills are shorter than 1 inch: check the sizes of this carpet's rooms."});
    EXPECT_EQ(Written(), written);
}

TEST_F(ESCarpFormPictures, StayAsTheyWereWhenPastingFailsWhichCanBeTriedAgain) {
    OpenEstimated();
    const auto written = Written();
    engine.RollWidth = 1e10F;
    Click(Button("Command4"));
    ClickPaper({50, 50});
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], StartsWith("Run-time error '6':"));
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(Paper().cursor().shape(), Qt::CrossCursor);
    engine.RollWidth = 144;
    ClickPaper({50, 50});
    EXPECT_EQ(TimesWritten(Heading), 2);
    EXPECT_EQ(boxes.Messages.size(), 1U);
}

TEST_F(ESCarpFormPictures, OfALayoutThatCannotBeDrawnAreEmptyWithTheEstimate) {
    Open({{200, 120}});
    PressOk();
    engine.ResultLen = 0;
    EXPECT_THROW(screens.Client->LayoutReady(), RunTimeError);
    EXPECT_THAT(Written(), IsEmpty()) << "not half of it";
    screens.Client->NoLayout();
    ExpectNothingEstimated();
}

TEST_F(ESCarpFormPictures, OfCutsAloneAreDrawnAnewAndPastedOn) {
    OpenCutsOnly();
    Click(Button("Command7"));
    EXPECT_THAT(Written(), ElementsAre(Notice));
    Click(Button("Command4"));
    ClickPaper({60, 80});
    EXPECT_EQ(TimesWritten(Heading), 1);
    Click(Button("Command4"));
    ClickPaper({200, 200});
    EXPECT_EQ(TimesWritten(Heading), 2);
    EXPECT_EQ(TimesWritten("Total Length:20'0\""), 2);
    EXPECT_EQ(TimesWritten(Notice), 1);
}

TEST_F(ESCarpFormPictures, KeepZoomAndPlaceWhenAListIsPastedAtTheEdge) {
    OpenEstimated();
    const double zoom = Picture1().Zoom();
    Click(Button("Command4"));
    ClickPaper(Paper().rect().bottomRight() - QPoint(5, 5));
    QCoreApplication::processEvents();
    EXPECT_EQ(TimesWritten(Heading), 2);
    EXPECT_DOUBLE_EQ(Picture1().Zoom(), zoom);
    EXPECT_EQ(Picture1().ToTwips({0, 0}), QPointF(0, 0));
    EXPECT_GT(Picture1().verticalScrollBar()->maximum(), 0);
}

TEST_F(ESCarpFormPictures, AreDrawnAnewInViewAfterTheEstimateWasEmptied) {
    OpenEstimated();
    screens.Client->NoLayout();
    EXPECT_FALSE(Control("Label5").isVisible()) << "nothing to zoom";
    Click(Button("Command7"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsInView(StepOf(Notice)); }));
    EXPECT_TRUE(Control("Label5").isVisible());
}

TEST_F(ESCarpFormPictures, ArePastedOnWithTheKeyboardAlone) {
    OpenEstimated();
    Focus(Picture1());
    Press(*form, Qt::Key_Plus);
    Press(*form, Qt::Key_Plus);
    Press(*form, Qt::Key_End);
    const std::size_t before = Picture1().Drawing().Steps().size();
    Focus(Button("Command4"));
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(Picture1().hasFocus());
    const QPointF corner = Picture1().ToTwips({0, 0});
    EXPECT_GT(corner.y(), 0);
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(TimesWritten(Heading), 2);
    EXPECT_NEAR(Picture1().Drawing().Steps()[before].X1, corner.x() + 100, 0.01);
    EXPECT_NEAR(Picture1().Drawing().Steps()[before].Y1, corner.y() + 100, 0.01);
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(TimesWritten(Heading), 2) << "once";
}

TEST_F(ESCarpFormPictures, IgnoreOtherButtonsUnlessAskedToPaste) {
    OpenEstimated();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(&Paper(), button, {}, {50, 50});
        EXPECT_EQ(TimesWritten(Heading), 1);
    }
}

TEST_F(ESCarpFormPictures, ArePrintedAsRedrawn) {
    OpenEstimated();
    Click(Button("Command7"));
    Click(Button("Command5"));
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_EQ(printer.Estimates[0].Drawing, &Picture1().Drawing());
    EXPECT_THAT(Written(), ElementsAre("A"));
    EXPECT_THAT(printer.Estimates[0].CarpetLines, ElementsAre("Carpet-1  Width=12'0\"", "DOWNLAY"));
}

TEST_F(ESCarpFormPictures, ArePrintedWithoutACarpetLineAfterAStoppedSearch) {
    Open({{200, 120}});
    PressOk();
    screens.Client->NoLayout();
    Click(Button("Command5"));
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_THAT(printer.Estimates[0].CarpetLines, IsEmpty());
    EXPECT_THAT(printer.Estimates[0].Drawing->Steps(), IsEmpty());
}

TEST_F(ESCarpFormPictures, AreSavedAsPdfAndSvgFromTheirMenu) {
    const TestFolder folder;
    OpenEstimated();
    boxes.Files = {folder.Path("a.pdf"), folder.Path("a.svg")};
    ChooseByKeys(1);
    ASSERT_EQ(boxes.SuggestedFiles, std::vector<std::string>{"MAPLE STREET 9.pdf"});
    EXPECT_THAT(ReadFile(folder.Path("a.pdf")), StartsWith("%PDF-"));
    ChooseByKeys(2);
    EXPECT_EQ(boxes.SuggestedFiles.back(), "MAPLE STREET 9.svg");
    EXPECT_EQ(ReadFile(folder.Path("a.svg")),
              SvgDocument(Picture1().Drawing(), "ESTIMATE FOR PROJECT: MAPLE STREET 9"));
    EXPECT_THAT(folder.Content(), ElementsAre("a.pdf", "a.svg"));
    EXPECT_THAT(boxes.Messages, IsEmpty());
}

TEST_F(ESCarpFormPictures, OfferTheirMenuToTheMouse) {
    const TestFolder folder;
    OpenEstimated();
    boxes.Files = {folder.Path("b.svg")};
    QMenu* menu = AskForMenu(QContextMenuEvent::Mouse);
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions()[0]->text(), QStringLiteral("Save as &PDF"));
    EXPECT_EQ(menu->actions()[1]->text(), QStringLiteral("Save as &SVG"));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[1]).center());
    EXPECT_THAT(folder.Content(), ElementsAre("b.svg"));
}

TEST_F(ESCarpFormPictures, CanBeSavedOnlyWhileSomethingIsDrawn) {
    Open({{200, 120}});
    EXPECT_FALSE(Offers("SavePdf"));
    EXPECT_FALSE(Offers("SaveSvg"));
    PressOk();
    Search();
    EXPECT_TRUE(Offers("SavePdf"));
    EXPECT_TRUE(Offers("SaveSvg"));
    screens.Client->NoLayout();
    EXPECT_FALSE(Offers("SavePdf"));
    EXPECT_FALSE(Offers("SaveSvg"));
    Click(Button("Command7"));
    EXPECT_TRUE(Offers("SavePdf"));
}

TEST_F(ESCarpFormPictures, AreNotSavedWhenTheFileIsNotNamed) {
    OpenEstimated();
    boxes.Files = {std::nullopt, std::nullopt};
    ChooseByKeys(1);
    ChooseByKeys(2);
    EXPECT_EQ(boxes.SuggestedFiles.size(), 2U);
    EXPECT_THAT(boxes.Messages, IsEmpty());
}

TEST_F(ESCarpFormPictures, TellWhichFileCouldNotBeSaved) {
    const TestFolder folder;
    OpenEstimated();
    const auto written = Written();
    for (const int line : {1, 2}) {
        const std::string path = folder.Path("missing/" + std::to_string(line));
        boxes.Messages.clear();
        boxes.Files = {path};
        ChooseByKeys(line);
        ASSERT_EQ(boxes.Messages.size(), 1U);
        EXPECT_THAT(boxes.Messages[0], StartsWith("The picture could not be saved. "));
        EXPECT_THAT(boxes.Messages[0], HasSubstr(path));
    }
    EXPECT_THAT(folder.Content(), IsEmpty());
    EXPECT_EQ(Written(), written);
}

} // namespace
} // namespace tarn
