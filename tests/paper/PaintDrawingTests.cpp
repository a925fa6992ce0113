#include "paper/PaintDrawing.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace tarn {
namespace {

constexpr double TwipsPerPixel = 15;

/// The drawing on white paper, `zoom` pixels to 15 twips, painted only inside `clip` if it is one.
QImage Painted(const Drawing& drawing, QSize size, double zoom = 1, QRect clip = {}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    if (!clip.isNull()) {
        painter.setClipRect(clip);
    }
    painter.scale(zoom / TwipsPerPixel, zoom / TwipsPerPixel);
    PaintDrawing(painter, drawing);
    return image;
}

/// The smallest rectangle that holds every pixel that is not white.
QRect Ink(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

int CountOf(const QImage& image, QColor colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

Drawing WithText(const std::string& text, double size = 12) {
    Drawing drawing;
    drawing.PenX = 300;
    drawing.PenY = 450;
    drawing.FontSize = size;
    drawing.WriteLine(text);
    return drawing;
}

TEST(PaintDrawing, DrawsABoxInItsColourOnePixelWide) {
    Drawing drawing;
    drawing.AddBox(150, 300, 450, 750, DrawingColor::Red);
    const QImage image = Painted(drawing, {60, 80});
    EXPECT_EQ(CountOf(image, QColor(255, 0, 0)), 2 * (21 + 31) - 4) << "the outline alone, sharp";
    EXPECT_EQ(CountOf(image, Qt::white), 60 * 80 - (2 * (21 + 31) - 4));
    EXPECT_EQ(Ink(image).size(), QSize(21, 31));
    EXPECT_NEAR(Ink(image).left(), 10, 1);
    EXPECT_NEAR(Ink(image).top(), 20, 1);
}

TEST(PaintDrawing, UsesTheTrueColours) {
    for (const auto& [code, colour] : {std::pair(DrawingColor::Black, QColor(0, 0, 0)),
                                       std::pair(DrawingColor::Green, QColor(0, 128, 0)),
                                       std::pair(DrawingColor::Red, QColor(255, 0, 0))}) {
        Drawing drawing;
        drawing.AddBox(150, 150, 450, 450, code);
        EXPECT_GT(CountOf(Painted(drawing, {40, 40}), colour), 0) << static_cast<int>(code);
        Drawing text = WithText("MMM", 24);
        text.Color = code;
        text.WriteLine("MMM");
        EXPECT_GT(CountOf(Painted(text, {120, 120}), colour), 0) << static_cast<int>(code);
    }
}

TEST(PaintDrawing, ScalesLinesUpAndKeepsThemVisibleWhenItScalesDown) {
    Drawing drawing;
    drawing.AddBox(150, 150, 1350, 1350, DrawingColor::Black);
    EXPECT_EQ(CountOf(Painted(drawing, {300, 300}, 3), Qt::black), 243 * 243 - 237 * 237);
    EXPECT_EQ(CountOf(Painted(drawing, {30, 30}, 0.1), Qt::black), 9 * 9 - 7 * 7);
}

TEST(PaintDrawing, NeighboursShareTheirEdge) {
    Drawing drawing;
    drawing.AddBox(100, 100, 333.3, 400, DrawingColor::Red);
    drawing.AddBox(333.3, 100, 600, 400, DrawingColor::Red);
    const QImage image = Painted(drawing, {60, 60}, 1.3);
    int edges = 0;
    for (int x = 0; x < image.width(); ++x) {
        edges += image.pixelColor(x, 20) == QColor(Qt::white) ? 0 : 1;
    }
    EXPECT_EQ(edges, 3);
}

TEST(PaintDrawing, PlacesATextByItsTopLeftAndItsWidth) {
    for (const double zoom : {0.7, 1.0, 2.0, 5.0}) {
        const Drawing drawing = WithText("HEADING H");
        const DrawingStep& step = drawing.Steps()[0];
        const double scale = zoom / TwipsPerPixel;
        const QRect ink = Ink(Painted(drawing, QSize(200, 80) * zoom, zoom));
        const double letters = LetterHeight(12) * scale;
        EXPECT_NEAR(ink.left(), step.X1 * scale, 0.12 * letters + 1) << zoom;
        EXPECT_NEAR(ink.right(), step.X2 * scale, 0.12 * letters + 1) << zoom;
        EXPECT_NEAR(ink.bottom(), (step.Y1 + AscentOfLine(12)) * scale, 0.05 * letters + 1) << zoom;
        EXPECT_GT(ink.top(), step.Y1 * scale) << zoom;
        EXPECT_NEAR(ink.height(), 0.72 * letters, 0.05 * letters + 1.5) << "capitals";
    }
}

TEST(PaintDrawing, FitsAnotherFaceIntoTheSameWidth) {
    // A fixed pitch gives these letters five times the width that the drawing has for them.
    Drawing drawing = WithText("iiiiiiiiiiiiiiiiiiii", 24);
    const DrawingStep& step = drawing.Steps()[0];
    const QString mono = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    QFont::insertSubstitution(QStringLiteral("Arial"), mono);
    const QRect ink = Ink(Painted(drawing, {400, 120}));
    QFont::removeSubstitutions(QStringLiteral("Arial"));
    EXPECT_NEAR(ink.left(), step.X1 / TwipsPerPixel, 4);
    EXPECT_NEAR(ink.right(), step.X2 / TwipsPerPixel, 4);
}

TEST(PaintDrawing, PaintsInsideAClipWhatItPaintsWithoutOne) {
    Drawing drawing;
    for (int i = 0; i < 40; ++i) {
        drawing.AddBox(100 + 37 * i, 50 + 61 * i, 900 + 53 * i, 800 + 71 * i, DrawingColor::Red);
        drawing.PenX = 70 * i;
        drawing.PenY = 60 * i;
        drawing.WriteLine("gyÄ|" + std::to_string(i));
    }
    for (const double zoom : {0.4, 1.0, 3.3}) {
        const QSize size(300, 300);
        const QImage whole = Painted(drawing, size, zoom);
        for (const QRect clip : {QRect(0, 0, 300, 300), QRect(33, 47, 120, 5),
                                 QRect(90, 20, 1, 200), QRect(200, 200, 60, 60)}) {
            const QImage clipped = Painted(drawing, size, zoom, clip);
            EXPECT_EQ(clipped.copy(clip), whole.copy(clip)) << zoom << " " << clip.x();
        }
    }
}

TEST(PaintDrawing, PaintsTheEdgesOfAnEnormousBoxThatAreInTheClip) {
    Drawing drawing;
    drawing.AddBox(150, -1e10, 1e10, 1e10, DrawingColor::Red);
    const QImage image = Painted(drawing, {40, 40}, 1, QRect(0, 0, 40, 40));
    EXPECT_EQ(CountOf(image, QColor(255, 0, 0)), 40) << "its left edge";
    EXPECT_EQ(Ink(image).size(), QSize(1, 40));
}

TEST(PaintDrawing, LeavesThePainterAsItWas) {
    QImage image(50, 50, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::blue);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(0.1, 0.1);
    const QTransform before = painter.transform();
    const QFont font = painter.font();
    PaintDrawing(painter, WithText("A"));
    EXPECT_EQ(painter.transform(), before);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::blue));
    EXPECT_EQ(painter.font(), font);
    EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(PaintDrawing, LeavesOutLettersLowerThanAPixel) {
    EXPECT_FALSE(Ink(Painted(WithText("MMMMMMMM"), {80, 80}, 0.07)).isNull());
    EXPECT_TRUE(Ink(Painted(WithText("MMMMMMMM"), {80, 80}, 0.06)).isNull());
}

TEST(PaintDrawing, OfNothingPaintsNothing) {
    EXPECT_TRUE(Ink(Painted(Drawing(), {20, 20})).isNull());
    EXPECT_TRUE(Ink(Painted(WithText(""), {80, 80})).isNull());
}

TEST(PaintDrawing, DrawsALineFromPointToPoint) {
    Drawing drawing;
    drawing.AddLine(150, 300, 1500, 300, DrawingColor::Red, 30);
    const QRect ink = Ink(Painted(drawing, {120, 60}));
    EXPECT_NEAR(ink.left(), 10, 1);
    EXPECT_NEAR(ink.right(), 100, 1);
    EXPECT_NEAR(ink.center().y(), 20, 1);
    EXPECT_LE(ink.height(), 3);
    EXPECT_TRUE(Ink(Painted(drawing, {120, 60}, 1, {0, 40, 120, 20})).isEmpty());
    EXPECT_FALSE(Ink(Painted(drawing, {120, 60}, 1, {50, 0, 10, 60})).isEmpty());
}

TEST(PaintDrawing, TurnsAnUpwardTextInsideItsPlace) {
    Drawing drawing;
    drawing.AddUpwardText(300, 3000, "Living room", 12);
    const DrawingStep& text = drawing.Steps().front();
    const QRect ink = Ink(Painted(drawing, {100, 300}));
    const QRect place(QPoint(20, qRound(text.Y2 / 15)), QPoint(qRound(text.X2 / 15), 200));
    EXPECT_TRUE(place.adjusted(-1, -1, 1, 1).contains(ink));
    EXPECT_GT(ink.height(), place.height() * 9 / 10);
    EXPECT_FALSE(Ink(Painted(drawing, {100, 300}, 1, {0, place.top(), 100, 20})).isEmpty());
}

TEST(PaintDrawing, DoesNotDrawOutALooseText) {
    Drawing drawing;
    drawing.AddText(0, 0, "ÉÉÉÉ", 12);
    Drawing drawnOut = WithText("ÉÉÉÉ", 12);
    const int loose = Ink(Painted(drawing, {300, 100})).width();
    const int out = Ink(Painted(drawnOut, {300, 100})).width();
    EXPECT_LT(loose, out * 8 / 10);
}

} // namespace
} // namespace tarn
