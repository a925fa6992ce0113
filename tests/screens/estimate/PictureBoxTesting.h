#pragma once

// What every test of the picture box needs.

#include "screens/Display.h"
#include "screens/ScreenTesting.h"
#include "screens/estimate/PictureBox.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace tarn::testing {

/// A picture box of 600 by 500 pixels, shown once it is drawn in.
struct PictureBoxTest : ::testing::Test {
    PictureBoxTest() { box.resize(600, 500); }

    /// Draw a box from the start of a roll to there, and a line of text.
    void Draw(double right, double bottom) {
        Drawing drawing;
        drawing.AddBox(7500, 500, right, bottom, DrawingColor::Red, "A: 1'0\" X 2'0\"");
        drawing.PenX = 100;
        drawing.PenY = 100;
        drawing.WriteLine("Carpet-1");
        drawing.Visible = true;
        box.ShowFromStart(std::move(drawing));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
        box.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
        Focus(box);
    }
    QWidget& Paper() { return *box.viewport(); }
    int Across() const { return box.horizontalScrollBar()->value(); }
    int Down() const { return box.verticalScrollBar()->value(); }
    void Wheel(QPoint at, QPoint delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWheelEvent event(at, Paper().mapToGlobal(at), {}, delta, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Paper(), &event);
    }
    QString TipAt(QPoint at) {
        QHelpEvent event(QEvent::ToolTip, at, Paper().mapToGlobal(at));
        QApplication::sendEvent(&Paper(), &event);
        return QToolTip::text();
    }
    bool ShowsWholeDrawing() const {
        const QPointF corner = box.ToViewport({box.Shown().FarthestX(), box.Shown().FarthestY()});
        return Across() == 0 && Down() == 0 && corner.x() < box.viewport()->width() &&
               corner.y() < box.viewport()->height();
    }

    FakeBoxes boxes;
    PictureBox box{nullptr, boxes};
};

} // namespace tarn::testing
