// What presses on a picture box do, and what it tells about the place under the pointer.

#include "screens/estimate/PictureBoxTesting.h"

#include <QContextMenuEvent>

namespace tarn {
namespace {

using namespace tarn::testing;

TEST_F(PictureBoxTest, FitsEverythingOnADoubleClick) {
    Draw(9000, 2000000);
    EXPECT_FALSE(ShowsWholeDrawing());
    DoubleClick(Paper());
    EXPECT_TRUE(ShowsWholeDrawing());
    EXPECT_LT(box.Zoom(), 0.1);
    Press(box, Qt::Key_Minus);
    EXPECT_TRUE(ShowsWholeDrawing());
}

TEST_F(PictureBoxTest, MovesThePaperByDragging) {
    Draw(60000, 60000);
    box.verticalScrollBar()->setValue(300);
    QTest::mousePress(&Paper(), Qt::LeftButton, {}, {200, 200});
    QTest::mouseMove(&Paper(), {150, 180});
    QTest::mouseRelease(&Paper(), Qt::LeftButton, {}, {150, 180});
    EXPECT_EQ(Across(), 50);
    EXPECT_EQ(Down(), 320);
    QTest::mouseMove(&Paper(), {10, 10});
    EXPECT_EQ(Across(), 50);
}

TEST_F(PictureBoxTest, GivesAPressInTwips) {
    Draw(60000, 60000);
    Press(box, Qt::Key_Plus);
    box.horizontalScrollBar()->setValue(75);
    box.verticalScrollBar()->setValue(150);
    std::vector<QPointF> presses;
    box.MouseDown = [&](Double x, Double y) {
        presses.emplace_back(x, y);
        return true;
    };
    QTest::mouseClick(&Paper(), Qt::LeftButton, {}, {50, 100});
    ASSERT_EQ(presses.size(), 1U);
    EXPECT_NEAR(presses[0].x(), (50 + 75) * 15 / 1.25, 0.5);
    EXPECT_NEAR(presses[0].y(), (100 + 150) * 15 / 1.25, 0.5);
}

TEST_F(PictureBoxTest, APressThatIsTakenNeitherDragsNorFits) {
    Draw(60000, 60000);
    bool take = true;
    int presses = 0;
    box.MouseDown = [&](Double, Double) {
        ++presses;
        return std::exchange(take, false);
    };
    QTest::mousePress(&Paper(), Qt::LeftButton, {}, {200, 200});
    QTest::mouseMove(&Paper(), {150, 180});
    EXPECT_EQ(Across(), 0);
    QTest::mouseRelease(&Paper(), Qt::LeftButton, {}, {150, 180});
    take = true;
    QTest::mouseClick(&Paper(), Qt::LeftButton, {}, {100, 100});
    QTest::mouseDClick(&Paper(), Qt::LeftButton, {}, {100, 100});
    EXPECT_EQ(box.Zoom(), 1);
    EXPECT_EQ(presses, 3);
}

TEST_F(PictureBoxTest, ShowsByThePointerWhatAPressDoes) {
    Draw(60000, 60000);
    EXPECT_EQ(Paper().cursor().shape(), Qt::OpenHandCursor);
    box.SetWaiting(true);
    EXPECT_EQ(Paper().cursor().shape(), Qt::CrossCursor);
    box.SetWaiting(false);
    Draw(10900, 6900);
    EXPECT_EQ(Paper().cursor().shape(), Qt::ArrowCursor) << "nothing to scroll";
}

TEST_F(PictureBoxTest, TellsWhatAPieceIsAndElsewhereHowToZoom) {
    Draw(10900, 6900);
    EXPECT_EQ(TipAt(box.ToViewport({8000, 3000}).toPoint()), QStringLiteral("A: 1'0\" X 2'0\""));
    EXPECT_EQ(TipAt(box.ToViewport({3000, 3000}).toPoint()), PictureBox::ZoomHint());
}

TEST_F(PictureBoxTest, TakesAPiecesTipAwayWhenThePointerLeavesThePiece) {
    Draw(10900, 6900);
    const QPoint inside = box.ToViewport({8000, 3000}).toPoint();
    EXPECT_EQ(TipAt(inside), QStringLiteral("A: 1'0\" X 2'0\""));
    ASSERT_TRUE(QToolTip::isVisible());
    QTest::mouseMove(&Paper(), box.ToViewport({3000, 3000}).toPoint());
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 2000));
}

TEST_F(PictureBoxTest, TakesEnterAndSpaceForAPressOnlyWhileOneIsWaitedFor) {
    Draw(60000, 60000);
    std::vector<QPointF> presses;
    box.MouseDown = [&](Double x, Double y) {
        presses.emplace_back(x, y);
        return true;
    };
    Press(box, Qt::Key_Return);
    Press(box, Qt::Key_Space);
    EXPECT_TRUE(presses.empty());
    box.SetWaiting(true);
    box.verticalScrollBar()->setValue(150);
    const QPointF corner = box.ToTwips({0, 0});
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        presses.clear();
        Press(box, key);
        ASSERT_EQ(presses.size(), 1U);
        EXPECT_EQ(presses[0], corner + QPointF(100, 100));
    }
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&box, &held);
    EXPECT_EQ(presses.size(), 1U) << "held from pressing the button";
}

TEST_F(PictureBoxTest, EndsADragWhoseReleaseWentElsewhere) {
    Draw(60000, 60000);
    QTest::mousePress(&Paper(), Qt::LeftButton, {}, {200, 200});
    EXPECT_EQ(Paper().cursor().shape(), Qt::ClosedHandCursor);
    const QPoint at(150, 180);
    QMouseEvent move(QEvent::MouseMove, at, Paper().mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&Paper(), &move);
    EXPECT_EQ(Across(), 0);
    EXPECT_EQ(Paper().cursor().shape(), Qt::OpenHandCursor);
    QTest::mouseRelease(&Paper(), Qt::LeftButton, {}, at);
}

TEST_F(PictureBoxTest, DragsWithTheMiddleButtonAndNotWithTheRightOne) {
    Draw(60000, 60000);
    for (const auto& [button, moved] :
         {std::pair(Qt::RightButton, 0), std::pair(Qt::MiddleButton, 50)}) {
        QTest::mousePress(&Paper(), button, {}, {200, 200});
        QMouseEvent move(QEvent::MouseMove, QPoint(150, 200), Paper().mapToGlobal(QPoint(150, 200)),
                         Qt::NoButton, button, Qt::NoModifier);
        QApplication::sendEvent(&Paper(), &move);
        QTest::mouseRelease(&Paper(), button, {}, {150, 200});
        EXPECT_EQ(Across(), moved);
    }
    EXPECT_EQ(box.Zoom(), 1);
}

TEST_F(PictureBoxTest, AsksForAContextMenuUnlessThePressWasTaken) {
    Draw(10900, 6900);
    std::vector<QPoint> asked;
    bool take = false;
    box.MouseDown = [&](Double, Double) { return take; };
    box.ContextMenu = [&](QPoint global) { asked.push_back(global); };
    const QPoint at(40, 60);
    const auto ask = [&](QContextMenuEvent::Reason reason, QWidget& widget) {
        QContextMenuEvent event(reason, at, widget.mapToGlobal(at));
        QApplication::sendEvent(&widget, &event);
    };
    QTest::mouseClick(&Paper(), Qt::RightButton, {}, at);
    ask(QContextMenuEvent::Mouse, Paper());
    EXPECT_EQ(asked, std::vector<QPoint>{Paper().mapToGlobal(at)});
    take = true;
    QTest::mouseClick(&Paper(), Qt::RightButton, {}, at);
    ask(QContextMenuEvent::Mouse, Paper());
    EXPECT_EQ(asked.size(), 1U);
    ask(QContextMenuEvent::Keyboard, box);
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(PictureBoxTest, TurnsAnErrorOfAPressIntoAMessage) {
    Draw(10900, 6900);
    box.MouseDown = [](Double, Double) -> bool { throw std::runtime_error("No."); };
    Click(Paper());
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"The layout could not be shown. No."});
}

} // namespace
} // namespace tarn
