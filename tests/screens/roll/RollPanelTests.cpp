// The whole view of a roll and its list, by mouse and keys.

#include "screens/Display.h"
#include "screens/ScreenTesting.h"
#include "screens/Theme.h"
#include "screens/roll/RollList.h"
#include "screens/roll/RollPanel.h"
#include "screens/roll/RollTesting.h"
#include "screens/roll/RollView.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <set>

namespace tarn {
namespace {

using namespace tarn::testing;
using Piece = std::optional<std::size_t>;

/// A panel of 900 by 600 pixels.
struct RollPanelTest : ::testing::Test {
    RollPanelTest() {
        panel.resize(900, 600);
        panel.show();
        panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    void Show(RollChart chart) {
        panel.Show(std::move(chart));
        QCoreApplication::processEvents();
    }
    RollView& View() { return panel.View(); }
    RollList& List() { return panel.List(); }
    QPoint MiddleOf(std::size_t piece) { return View().BoxOf(piece).center(); }
    QPoint MiddleOfRow(int row) {
        return List().visualRect(List().model()->index(row, 0)).center();
    }
    void MoveTo(QWidget& widget, QPoint place) {
        QTest::mouseMove(&widget, place);
        QMouseEvent moved(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &moved);
    }
    static void Leave(QWidget& widget) {
        QEvent left(QEvent::Leave);
        QApplication::sendEvent(&widget, &left);
    }
    std::string CurrentLine() {
        const QModelIndex current = List().currentIndex();
        return current.isValid() ? FromQt(current.data().toString()) : "";
    }
    int SelectedRows() { return static_cast<int>(List().selectionModel()->selectedRows().size()); }
    /// The row that is marked as pointed at; -1 for none.
    int PointedRow() {
        for (int row = 0; row < List().model()->rowCount(); ++row) {
            if (List().model()->index(row, 0).data(Qt::BackgroundRole).isValid()) {
                return row;
            }
        }
        return -1;
    }

    FakeBoxes boxes;
    RollPanel panel{nullptr, boxes};
};

TEST_F(RollPanelTest, MarksTheLineOfThePieceThatWasClicked) {
    Show(ChartOfCuts(3, 120));
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, MiddleOf(1));
    EXPECT_EQ(View().Current(), Piece(1));
    EXPECT_EQ(CurrentLine(), "P2: line");
    EXPECT_EQ(SelectedRows(), 1);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(View().Current(), Piece());
    EXPECT_EQ(SelectedRows(), 0);
}

TEST_F(RollPanelTest, MarksThePieceOfTheLineThatWasClicked) {
    Show(ChartOfCuts(3, 120));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, MiddleOfRow(3));
    EXPECT_EQ(View().Current(), Piece(2));
}

TEST_F(RollPanelTest, MarksNothingForALineThatIsNoPiece) {
    Show(ChartOfCuts(3, 120));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, MiddleOfRow(2));
    ASSERT_EQ(View().Current(), Piece(1));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, MiddleOfRow(0));
    EXPECT_EQ(View().Current(), Piece());
    EXPECT_EQ(CurrentLine(), "Heading");
}

TEST_F(RollPanelTest, WalksThePiecesByTheArrowKeysOfTheView) {
    Show(ChartOfCuts(3, 120));
    Focus(View());
    Press(panel, Qt::Key_Down);
    EXPECT_EQ(CurrentLine(), "P1: line");
    Press(panel, Qt::Key_Right);
    EXPECT_EQ(CurrentLine(), "P2: line");
    Press(panel, Qt::Key_End);
    EXPECT_EQ(CurrentLine(), "P3: line");
    Press(panel, Qt::Key_Down);
    EXPECT_EQ(CurrentLine(), "P3: line");
    Press(panel, Qt::Key_Left);
    Press(panel, Qt::Key_Up);
    Press(panel, Qt::Key_Up);
    EXPECT_EQ(View().Current(), Piece(0));
    Press(panel, Qt::Key_Home);
    EXPECT_EQ(CurrentLine(), "P1: line");
}

TEST_F(RollPanelTest, WalksThePiecesByTheArrowKeysOfTheList) {
    Show(ChartOfCuts(3, 120));
    Focus(List());
    Press(panel, Qt::Key_Home);
    EXPECT_EQ(View().Current(), Piece());
    Press(panel, Qt::Key_Down);
    EXPECT_EQ(View().Current(), Piece(0));
    Press(panel, Qt::Key_Down);
    EXPECT_EQ(View().Current(), Piece(1));
    Press(panel, Qt::Key_End);
    EXPECT_EQ(View().Current(), Piece()) << "the total";
}

TEST_F(RollPanelTest, MarkEachOtherUnderThePointer) {
    Show(ChartOfCuts(3, 120));
    View().Choose(0);
    MoveTo(*View().viewport(), MiddleOf(2));
    EXPECT_EQ(View().Pointed(), Piece(2));
    EXPECT_EQ(PointedRow(), 3);
    EXPECT_EQ(View().Current(), Piece(0)) << "pointing is not choosing";
    Leave(*View().viewport());
    EXPECT_EQ(View().Pointed(), Piece());
    EXPECT_EQ(PointedRow(), -1);
    MoveTo(*List().viewport(), MiddleOfRow(2));
    EXPECT_EQ(View().Pointed(), Piece(1));
    EXPECT_EQ(PointedRow(), 2);
    MoveTo(*List().viewport(), MiddleOfRow(4));
    EXPECT_EQ(View().Pointed(), Piece()) << "a total is no piece";
    MoveTo(*List().viewport(), MiddleOfRow(1));
    Leave(*List().viewport());
    EXPECT_EQ(View().Pointed(), Piece());
    EXPECT_EQ(CurrentLine(), "P1: line");
}

TEST_F(RollPanelTest, PaintsTheMarkOnThePieceAndTheLine) {
    Show(ChartOfCuts(3, 120));
    const QImage before = View().viewport()->grab().toImage();
    const QImage linesBefore = List().viewport()->grab().toImage();
    View().SetPointed(1);
    const QImage after = View().viewport()->grab().toImage();
    const QRect box = View().BoxOf(1);
    EXPECT_NE(before.copy(box), after.copy(box));
    EXPECT_EQ(before.copy(View().BoxOf(2).adjusted(4, 4, -4, -4)),
              after.copy(View().BoxOf(2).adjusted(4, 4, -4, -4)));
    EXPECT_EQ(after.pixelColor(box.left() + 2, box.center().y()), CurrentColours().Accent);
    List().SetPointed(1);
    EXPECT_NE(linesBefore, List().viewport()->grab().toImage());
}

TEST_F(RollPanelTest, ForgetsTheMarksWithTheRoll) {
    Show(ChartOfCuts(3, 120));
    View().Choose(1);
    MoveTo(*View().viewport(), MiddleOf(2));
    Show(ChartOfCuts(2, 100));
    EXPECT_EQ(View().Current(), Piece());
    EXPECT_EQ(View().Pointed(), Piece());
    EXPECT_EQ(SelectedRows(), 0);
    EXPECT_EQ(PointedRow(), -1);
    panel.Clear();
    EXPECT_EQ(List().model()->rowCount(), 0);
    Focus(View());
    Press(panel, Qt::Key_Down);
    EXPECT_EQ(View().Current(), Piece());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(RollPanelTest, ShowsAllOfTheRoll) {
    for (const int count : {1, 10, 60}) {
        Show(ChartOfCuts(count, 120));
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
            EXPECT_TRUE(View().viewport()->rect().contains(View().BoxOf(i))) << count;
            EXPECT_EQ(View().PieceAt(MiddleOf(i)), Piece(i));
        }
    }
    EXPECT_EQ(View().horizontalScrollBar()->maximum(), 0);
}

TEST_F(RollPanelTest, TellsThePieceInATip) {
    Show(ChartOfCuts(3, 120));
    const auto tipAt = [&](QPoint place) {
        QHelpEvent event(QEvent::ToolTip, place, View().viewport()->mapToGlobal(place));
        QApplication::sendEvent(View().viewport(), &event);
        return QToolTip::isVisible() ? FromQt(QToolTip::text()) : "";
    };
    EXPECT_EQ(tipAt(MiddleOf(1)), "P2, described");
}

TEST_F(RollPanelTest, ZoomsByKeysAndWheelAndShowsAllAgain) {
    Show(ChartOfCuts(3, 120));
    Focus(View());
    Press(panel, Qt::Key_Plus);
    EXPECT_GT(View().Zoom(), 1);
    Press(panel, Qt::Key_Minus);
    Press(panel, Qt::Key_Minus);
    EXPECT_EQ(View().Zoom(), 1) << "less than all is not shown";
    const QPoint place = MiddleOf(2);
    QWheelEvent wheel(place, View().viewport()->mapToGlobal(place), {}, {0, 240}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(View().viewport(), &wheel);
    EXPECT_GT(View().Zoom(), 1);
    EXPECT_EQ(View().PieceAt(place), Piece(2)) << "about the pointer";
    Press(panel, Qt::Key_0);
    EXPECT_EQ(View().Zoom(), 1);
    Press(panel, Qt::Key_Plus);
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, MiddleOf(1));
    EXPECT_EQ(View().Zoom(), 1);
}

TEST_F(RollPanelTest, BringsTheChosenPieceIntoView) {
    Show(ChartOfCuts(20, 120));
    Focus(View());
    for (int i = 0; i < 12; ++i) {
        Press(panel, Qt::Key_Plus);
    }
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home}) {
        Press(panel, key);
        EXPECT_TRUE(View().viewport()->rect().intersects(View().BoxOf(*View().Current())));
    }
}

TEST_F(RollPanelTest, MovesThePaperByDragging) {
    Show(ChartOfCuts(20, 120));
    Focus(View());
    for (int i = 0; i < 12; ++i) {
        Press(panel, Qt::Key_Plus);
    }
    QScrollBar& bar = *View().verticalScrollBar();
    ASSERT_GT(bar.maximum(), 100);
    const int before = bar.value();
    QWidget& paper = *View().viewport();
    QTest::mousePress(&paper, Qt::LeftButton, {}, QPoint(100, 100));
    QMouseEvent moved(QEvent::MouseMove, QPoint(100, 70), paper.mapToGlobal(QPoint(100, 70)),
                      Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&paper, &moved);
    EXPECT_EQ(bar.value(), before + 30);
    QTest::mouseRelease(&paper, Qt::LeftButton, {}, QPoint(100, 70));
}

TEST_F(RollPanelTest, IsExactAgainOnceItRests) {
    Show(ChartOfCuts(60, 120));
    Focus(View());
    View().grab();
    Press(panel, Qt::Key_Plus);
    View().grab();
    EXPECT_TRUE(View().IsMoving());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !View().IsMoving(); }));
    View().grab();
    EXPECT_FALSE(View().IsMoving());
}

/// Whether the hatch, and not a piece or the paper, is at a place of the view: it is not of one
/// colour.
TEST_F(RollPanelTest, HatchesWhatIsLeftOverAndTintsThePieces) {
    RollChart chart = ChartOfCuts(1, 120);
    chart.Pieces[0].Width = 72;
    chart.LeftOver = {{72, 0, 72, 120}};
    Show(chart);
    const QImage image = View().viewport()->grab().toImage();
    const QRect piece = View().BoxOf(0);
    const auto coloursIn = [&](const QRect& rect) {
        std::set<QRgb> colours;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                colours.insert(image.pixel(x, y));
            }
        }
        return colours;
    };
    EXPECT_EQ(coloursIn({piece.left() + 4, piece.top() + 4, 24, 24}).size(), 1U);
    // Beside the piece, or above it where the roll lies.
    const bool stands = piece.left() + piece.width() * 2 < View().viewport()->width() &&
                        View().PieceAt(QPointF(piece.right() + 20, piece.center().y())) == Piece();
    const QRect free = stands ? QRect(piece.right() + 8, piece.center().y(), 24, 24)
                              : QRect(piece.center().x(), piece.top() - 32, 24, 24);
    EXPECT_GT(coloursIn(free).size(), 1U);
}

TEST_F(RollPanelTest, WrapsALineThatIsTooLong) {
    RollChart chart = ChartOfCuts(40, 120);
    chart.Lines.front().Text = "Total Cuts:40   Total Cut-Len:400'0\" and still more to be said";
    panel.SetListBeside(true);
    Show(chart);
    const auto heightOf = [&](int row) {
        return List().visualRect(List().model()->index(row, 0)).height();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return heightOf(0) > 1.6 * heightOf(1); }));
    EXPECT_EQ(List().horizontalScrollBar()->maximum(), 0);
}

TEST_F(RollPanelTest, HasItsListBelowOrBeside) {
    Show(ChartOfCuts(3, 120));
    EXPECT_GT(List().geometry().top(), View().geometry().bottom());
    panel.SetListBeside(true);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return List().geometry().left() > View().geometry().right(); }));
    EXPECT_GT(View().width(), List().width());
}

TEST_F(RollPanelTest, GoesFromTheViewToTheListByTab) {
    Show(ChartOfCuts(3, 120));
    Focus(View());
    Press(panel, Qt::Key_Tab);
    EXPECT_TRUE(List().hasFocus());
}

} // namespace
} // namespace tarn
