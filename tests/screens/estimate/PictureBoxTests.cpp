// What a picture box shows, and how it scrolls and zooms.

#include "screens/estimate/PictureBoxTesting.h"

#include <QScreen>

namespace tarn {
namespace {

using namespace tarn::testing;

TEST_F(PictureBoxTest, IsHiddenUntilThePictureIsVisible) {
    Drawing drawing;
    box.ShowFromStart(drawing);
    EXPECT_TRUE(box.isHidden());
    drawing.Visible = true;
    box.ShowChanged(drawing);
    EXPECT_TRUE(box.isVisible());
}

TEST_F(PictureBoxTest, TellsItsNameAndWhatIsWrittenInIt) {
    Draw(11000, 7000);
    EXPECT_EQ(box.objectName(), QStringLiteral("Picture1"));
    EXPECT_EQ(box.accessibleName(), QStringLiteral("Layout drawing"));
    EXPECT_EQ(box.accessibleDescription(), QStringLiteral("Carpet-1"));
}

TEST_F(PictureBoxTest, FitsADrawingThatStaysReadable) {
    Draw(10900, 6900);
    EXPECT_GE(box.Zoom(), 0.75);
    EXPECT_LT(box.Zoom(), 1);
    EXPECT_TRUE(ShowsWholeDrawing());
    EXPECT_EQ(box.horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(box.verticalScrollBar()->maximum(), 0);
}

TEST_F(PictureBoxTest, EnlargesASmallDrawingOnALargeDisplayOnlySoFar) {
    box.resize(1500, 900);
    Draw(10900, 6900);
    EXPECT_GT(box.Zoom(), 1.5);
    EXPECT_TRUE(ShowsWholeDrawing());
    box.resize(5000, 5000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box.Zoom() == 2; })) << box.Zoom();
}

TEST_F(PictureBoxTest, FitsTheWidthOfALongDrawing) {
    Draw(10900, 40000);
    EXPECT_GE(box.Zoom(), 0.75);
    EXPECT_LT(box.Zoom(), 1);
    EXPECT_EQ(box.horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(box.verticalScrollBar()->maximum(), 0);
    box.resize(1500, 500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box.Zoom() == 1; })) << "no larger than actual size";
}

TEST_F(PictureBoxTest, ShowsAWideDrawingInActualSize) {
    Draw(60000, 6900);
    EXPECT_EQ(box.Zoom(), 1);
    EXPECT_GT(box.horizontalScrollBar()->maximum(), 0);
}

TEST_F(PictureBoxTest, FollowsItsSizeUntilTheUserZooms) {
    Draw(10900, 6900);
    const double before = box.Zoom();
    box.resize(700, 560);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box.Zoom() > before; }));
    Press(box, Qt::Key_0);
    box.resize(650, 500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box.viewport()->width() < 660; }));
    EXPECT_EQ(box.Zoom(), 1);
}

TEST_F(PictureBoxTest, ReachesEveryCornerOfTheDrawingAtAnySizeAndZoom) {
    for (const QSize size : {QSize(320, 220), QSize(600, 500), QSize(1700, 1000)}) {
        box.resize(size);
        for (const QPointF corner :
             {QPointF(10900, 6900), QPointF(9000, 200000), QPointF(80000, 7000)}) {
            Draw(corner.x(), corner.y());
            for (int zoomed = 0; zoomed < 6; ++zoomed) {
                box.horizontalScrollBar()->setValue(1 << 30);
                box.verticalScrollBar()->setValue(1 << 30);
                const QPointF farthest(box.Shown().FarthestX(), box.Shown().FarthestY());
                EXPECT_TRUE(QTest::qWaitFor([&] {
                    return QRectF(Paper().rect()).contains(box.ToViewport(farthest));
                })) << box.Zoom();
                Press(box, Qt::Key_Home);
                box.horizontalScrollBar()->setValue(0);
                EXPECT_EQ(box.ToViewport({0, 0}), QPointF(0, 0));
                Press(box, zoomed < 2 ? Qt::Key_Minus : Qt::Key_Plus);
            }
        }
    }
}

TEST_F(PictureBoxTest, ScrollsWithTheWheel) {
    Draw(60000, 60000);
    Wheel({50, 50}, {0, -120});
    EXPECT_GT(Down(), 0);
    EXPECT_EQ(Across(), 0);
    Wheel({50, 50}, {0, 120});
    EXPECT_EQ(Down(), 0);
    Wheel({50, 50}, {-120, 0});
    EXPECT_GT(Across(), 0);
    EXPECT_EQ(box.Zoom(), 1);
}

TEST_F(PictureBoxTest, ZoomsAboutThePointerWithCtrlAndTheWheel) {
    Draw(60000, 60000);
    box.horizontalScrollBar()->setValue(900);
    box.verticalScrollBar()->setValue(700);
    const QPoint at(310, 205);
    const QPointF under = box.ToTwips(at);
    Wheel(at, {0, 240}, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(box.Zoom(), 1.25 * 1.25);
    EXPECT_NEAR(box.ToTwips(at).x(), under.x(), 15);
    EXPECT_NEAR(box.ToTwips(at).y(), under.y(), 15);
    Wheel(at, {0, -120}, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(box.Zoom(), 1.25);
    EXPECT_NEAR(box.ToTwips(at).x(), under.x(), 15);
}

TEST_F(PictureBoxTest, ZoomsWithKeysWithinBounds) {
    Draw(60000, 60000);
    Press(box, Qt::Key_Plus);
    EXPECT_DOUBLE_EQ(box.Zoom(), 1.25);
    Press(box, Qt::Key_Equal);
    EXPECT_DOUBLE_EQ(box.Zoom(), 1.5625);
    Press(box, Qt::Key_Minus);
    EXPECT_DOUBLE_EQ(box.Zoom(), 1.25);
    for (int i = 0; i < 20; ++i) {
        Press(box, Qt::Key_Plus);
    }
    EXPECT_EQ(box.Zoom(), 8);
    for (int i = 0; i < 40; ++i) {
        Press(box, Qt::Key_Minus);
    }
    EXPECT_DOUBLE_EQ(box.Zoom(), 0.1);
    EXPECT_TRUE(ShowsWholeDrawing());
    Press(box, Qt::Key_0);
    EXPECT_EQ(box.Zoom(), 1);
}

TEST_F(PictureBoxTest, ScrollsWithKeys) {
    Draw(60000, 60000);
    Press(box, Qt::Key_Down);
    const int step = Down();
    EXPECT_GT(step, 0);
    Press(box, Qt::Key_PageDown);
    EXPECT_GT(Down(), step + Paper().height() / 2);
    Press(box, Qt::Key_PageUp);
    EXPECT_EQ(Down(), step);
    Press(box, Qt::Key_Up);
    EXPECT_EQ(Down(), 0);
    Press(box, Qt::Key_Right);
    EXPECT_GT(Across(), 0);
    Press(box, Qt::Key_Left);
    EXPECT_EQ(Across(), 0);
    Press(box, Qt::Key_End);
    EXPECT_EQ(Down(), box.verticalScrollBar()->maximum());
    Press(box, Qt::Key_Home);
    EXPECT_EQ(Down(), 0);
}

TEST_F(PictureBoxTest, ShowsWhitePaperAndTheDrawingWhereItIsScrolledTo) {
    Draw(60000, 60000);
    Press(box, Qt::Key_End);
    box.horizontalScrollBar()->setValue(Pixels(7000));
    const QPoint corner = box.ToViewport({7500, 60000}).toPoint();
    const QImage around =
        Paper().grab(QRect(corner + QPoint(20, -3), QSize(1, 7))).toImage().scaled(1, 7);
    EXPECT_EQ(around.pixelColor(0, 0), QColor(Qt::white));
    int red = 0;
    for (int y = 0; y < around.height(); ++y) {
        red += around.pixelColor(0, y) == QColor(255, 0, 0) ? 1 : 0;
    }
    EXPECT_EQ(red, 1) << "the lower edge";
}

TEST_F(PictureBoxTest, ShowsOnTheDisplayWhatItWouldPaintAnew) {
    Draw(60000, 60000);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Up,
                              Qt::Key_Plus, Qt::Key_Right, Qt::Key_Minus, Qt::Key_End}) {
        Press(box, key);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const QRect part(50, 50, 400, 350);
            const QPoint corner = Paper().mapTo(&box, part.topLeft());
            const QPixmap shown = box.screen()->grabWindow(box.winId(), corner.x(), corner.y(),
                                                           part.width(), part.height());
            return shown.toImage().convertToFormat(QImage::Format_RGB32) ==
                   Paper().grab(part).toImage().convertToFormat(QImage::Format_RGB32);
        })) << QKeySequence(key).toString().toStdString();
    }
}

TEST_F(PictureBoxTest, KeepsWhereItIsLookedAtWhenThePictureChanges) {
    Draw(60000, 60000);
    Press(box, Qt::Key_Plus);
    box.verticalScrollBar()->setValue(500);
    Drawing drawing = box.Shown();
    drawing.PenY = 100000;
    drawing.WriteLine("further down");
    const int before = box.verticalScrollBar()->maximum();
    box.ShowChanged(drawing);
    EXPECT_EQ(Down(), 500);
    EXPECT_DOUBLE_EQ(box.Zoom(), 1.25);
    EXPECT_GT(box.verticalScrollBar()->maximum(), before);
    Draw(60000, 60000);
    EXPECT_EQ(Down(), 0);
    EXPECT_EQ(box.Zoom(), 1);
}

TEST_F(PictureBoxTest, KeepsAFittedViewWhenThePictureGrows) {
    Draw(10900, 6900);
    const double zoom = box.Zoom();
    const QPointF at = box.ToTwips({300, 200});
    Drawing drawing = box.Shown();
    for (const QPointF beyond : {QPointF(14000, 3000), QPointF(100, 12000)}) {
        drawing.PenX = beyond.x();
        drawing.PenY = beyond.y();
        drawing.WriteLine("Carpet-1");
        box.ShowChanged(drawing);
        QCoreApplication::processEvents();
        EXPECT_DOUBLE_EQ(box.Zoom(), zoom);
        EXPECT_EQ(box.ToTwips({300, 200}), at);
        box.horizontalScrollBar()->setValue(1 << 30);
        box.verticalScrollBar()->setValue(1 << 30);
        EXPECT_TRUE(QRectF(Paper().rect())
                        .contains(box.ToViewport({drawing.FarthestX(), drawing.FarthestY()})));
        box.horizontalScrollBar()->setValue(0);
        box.verticalScrollBar()->setValue(0);
    }
    box.resize(1500, 1200);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box.Zoom() > zoom; })) << "it still follows its size";
    EXPECT_TRUE(QTest::qWaitFor([&] { return ShowsWholeDrawing(); }));
}

} // namespace
} // namespace tarn
