// The clip, the selecting and the kinds of surfaces.

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "text/TextWriterTesting.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPrinter>
#include <QWidget>

#include <gtest/gtest.h>

#include <map>

namespace tarn {
namespace {

using testing::Canvas;
using testing::False;
using testing::InkIn;
using testing::InkOf;
using testing::InkWith;
using testing::Sans;
using testing::True;

// --- clipped text ---

TEST(TextWriter, ClippedTextIsClippedToTwiceTheSizeInTheSurfacesOwnFont) {
    Canvas canvas;
    const QFontMetricsF own(canvas.Painter().font(), canvas.Painter().device());
    EXPECT_DOUBLE_EQ(canvas.Surface().TextWidth("HHH"),
                     own.horizontalAdvance(QStringLiteral("HHH")));
    EXPECT_DOUBLE_EQ(canvas.Surface().TextHeight("HHH"), own.ascent() + own.descent());
    TextWriter writer = Sans(150); // much larger than the surface's own
    writer.SelectFont(canvas.Surface());
    TextWriter::WriteClipped(canvas.Surface(), "HHH", 40, 30);
    const QRect ink = canvas.Ink();
    EXPECT_GE(ink.left(), 40);
    EXPECT_NEAR(ink.right() + 1, 40 + 2 * own.horizontalAdvance(QStringLiteral("HHH")), 1);
    EXPECT_NEAR(ink.bottom() + 1, 30 + 2 * (own.ascent() + own.descent()), 1);
}

TEST(TextWriter, EveryEdgeOfTheClipIsRoundedByItself) {
    bool told = false; // rounding the width apart would give another edge
    for (int tenths = 0; tenths < 20; ++tenths) {
        Canvas canvas;
        const Double at = 40 + tenths / 10.0;
        TextWriter writer = Sans(20);
        writer.SelectFont(canvas.Surface());
        TextWriter::WriteClipped(canvas.Surface(), "HiH", at, at);
        const Double width = 2 * canvas.Surface().TextWidth("HiH");
        const Double height = 2 * canvas.Surface().TextHeight("HiH");
        const QRectF clip = canvas.Painter().clipBoundingRect();
        EXPECT_EQ(clip.topLeft(), QPointF(CLng(at), CLng(at)));
        EXPECT_EQ(clip.bottomRight(), QPointF(CLng(at + width), CLng(at + height)));
        told = told || CLng(at + width) != CLng(at) + CLng(width);
    }
    EXPECT_TRUE(told);
}

TEST(TextWriter, TheClipOfAClippedTextStaysInForce) {
    Canvas canvas;
    TextWriter writer = Sans(20);
    writer.SelectFont(canvas.Surface());
    TextWriter::WriteClipped(canvas.Surface(), "H", 10, 10);
    canvas.Clear();
    TextWriter::Write(canvas.Surface(), "H", 200, 100);
    EXPECT_TRUE(canvas.Ink().isEmpty());
    writer.RestoreFont(canvas.Surface());
    TextWriter::Write(canvas.Surface(), "H", 200, 100);
    EXPECT_TRUE(canvas.Ink().isEmpty());
    TextWriter::Write(canvas.Surface(), "H", 12, 12);
    EXPECT_FALSE(canvas.Ink().isEmpty());
}

TEST(TextWriter, ALaterClippedTextReplacesTheClip) {
    Canvas canvas;
    TextWriter writer = Sans(20);
    writer.SelectFont(canvas.Surface());
    TextWriter::WriteClipped(canvas.Surface(), "H", 10, 10);
    TextWriter::WriteClipped(canvas.Surface(), "H", 200, 100);
    EXPECT_FALSE(InkIn(canvas.Image(), {200, 100, 100, 50}).isEmpty());
}

TEST(TextWriter, TheClipDoesNotTurnWithTheText) {
    Canvas canvas;
    TextWriter writer = Sans(40);
    writer.Font.Escapement = -900; // downwards, with the letters' feet on the left
    writer.SelectFont(canvas.Surface());
    TextWriter::SetAlignment(canvas.Surface(), False, False, True, False, False, False);
    TextWriter::WriteClipped(canvas.Surface(), "HHHHHH", 150, 20);
    const Double height = canvas.Surface().TextHeight("HHHHHH");
    EXPECT_NEAR(canvas.Ink().bottom() + 1, 20 + 2 * height, 1); // cut off there
    EXPECT_GE(canvas.Ink().left(), 150);
    EXPECT_LT(canvas.Ink().width(), canvas.Ink().height());
}

TEST(TextWriter, PositionsAreRoundedToWholeUnitsAndMustFitALong) {
    Canvas canvas;
    TextWriter writer = Sans(48);
    writer.SelectFont(canvas.Surface());
    TextWriter::Write(canvas.Surface(), "H", 50.4, 50.5); // halves to even
    EXPECT_EQ(canvas.Ink(), InkWith(Sans(48), "H"));
    EXPECT_THROW(TextWriter::Write(canvas.Surface(), "H", 3e9, 0), RunTimeError);
    EXPECT_THROW(TextWriter::WriteClipped(canvas.Surface(), "H", 0, -3e9), RunTimeError);
}

// --- selecting ---

TEST(TextWriter, RestoreFontGivesTheSurfaceItsFontBack) {
    Canvas canvas;
    TextWriter::Write(canvas.Surface(), "HHH", 50, 50);
    const QImage own = canvas.Image().copy();
    canvas.Clear();
    TextWriter writer = Sans(100);
    writer.SelectFont(canvas.Surface());
    writer.RestoreFont(canvas.Surface());
    TextWriter::Write(canvas.Surface(), "HHH", 50, 50);
    EXPECT_EQ(canvas.Image(), own);
    TextWriter::SetAlignment(canvas.Surface(), False, True, False, False, True, False);
    writer.SelectFont(canvas.Surface());
    writer.RestoreFont(canvas.Surface());
    EXPECT_EQ(canvas.Surface().Context().Alignment(),
              (TextAlignment{TextAlignment::Vertical::Baseline, TextAlignment::Horizontal::Center}))
        << "the font alone comes back";
}

TEST(TextWriter, RestoreFontWithoutASelectedFontDoesNothing) {
    Canvas canvas;
    TextWriter selected = Sans(100);
    selected.SelectFont(canvas.Surface());
    TextWriter idle;
    idle.RestoreFont(canvas.Surface());
    TextWriter::Write(canvas.Surface(), "HHH", 50, 50);
    EXPECT_EQ(canvas.Ink(), InkWith(Sans(100)));
    selected.RestoreFont(canvas.Surface());
    selected.RestoreFont(canvas.Surface()); // there is nothing left to give back
    canvas.Clear();
    TextWriter::Write(canvas.Surface(), "HHH", 50, 50);
    EXPECT_NEAR(canvas.Ink().height(), 20 * 0.688, 1.5);
}

TEST(TextWriter, ASecondSelectFontKeepsTheFontThatWasSavedFirst) {
    Canvas canvas;
    TextWriter writer = Sans(100);
    writer.SelectFont(canvas.Surface());
    writer.Font.Height = 60;
    writer.SelectFont(canvas.Surface());
    writer.RestoreFont(canvas.Surface());
    TextWriter::Write(canvas.Surface(), "HHH", 50, 50);
    EXPECT_NEAR(canvas.Ink().height(), 20 * 0.688, 1.5); // the surface's own
}

TEST(TextWriter, TheFontSavedFirstOutlivesItsSurface) {
    TextWriter writer = Sans(100);
    {
        Canvas gone;
        writer.SelectFont(gone.Surface());
    }
    Canvas canvas;
    writer.SelectFont(canvas.Surface());
    writer.RestoreFont(canvas.Surface()); // gives it the other surface's font
    TextWriter::SetAlignment(canvas.Surface(), True, False, False, False, False, True);
    TextWriter::Write(canvas.Surface(), "HHH", 350, 50);
    const QRect ink = canvas.Ink();
    EXPECT_NEAR(ink.height(), 20 * 0.688, 1.5);
    EXPECT_NEAR(ink.right(), 350, 3); // measured on the surface that is there
    const Double width = canvas.Surface().TextWidth("HHH");
    EXPECT_NEAR(ink.width(), width, 5);
}

// --- surfaces ---

TEST(PainterSurface, CountsTheLinesOfAText) {
    Canvas canvas;
    PainterSurface& surface = canvas.Surface();
    EXPECT_DOUBLE_EQ(surface.TextHeight("a\r\nb\r\nc"), 3 * surface.TextHeight("a"));
    EXPECT_DOUBLE_EQ(surface.TextWidth("a\r\nHHHH\r\nc"), surface.TextWidth("HHHH"));
    EXPECT_EQ(surface.TextWidth(""), 0);
}

TEST(PainterSurface, IsAWidgetInItsPaintEvent) {
    struct Sheet : QWidget {
        void paintEvent(QPaintEvent*) override {
            QPainter painter(this);
            painter.fillRect(rect(), Qt::white);
            PainterSurface surface(painter);
            TextWriter writer = Sans(48);
            writer.SelectFont(surface);
            TextWriter::SetAlignment(surface, False, False, True, False, False, True);
            TextWriter::Write(surface, "HHH", 350, 150);
            writer.RestoreFont(surface);
        }
    } sheet;
    sheet.resize(400, 200);
    const QRect ink = InkOf(sheet.grab().toImage());
    EXPECT_NEAR(ink.height(), 48 / 1.117 * 0.688, 1.5);
    EXPECT_NEAR(ink.right(), 350, 5);
    EXPECT_NEAR(ink.bottom(), 150 - 48 / 1.117 * 0.212, 1.5);
}

TEST(PainterSurface, IsAPrintersPageInItsOwnUnits) {
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("page.pdf"));
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setFullPage(true);
        QPainter painter(&printer);
        painter.scale(printer.resolution() / 1440.0, printer.resolution() / 1440.0); // twips
        PainterSurface surface(painter);
        TextWriter writer = Sans(480);
        writer.SelectFont(surface);
        TextWriter::SetAlignment(surface, False, True, False, False, False, False);
        TextWriter::Write(surface, "Level", 1440, 2880);
        writer.Font.Escapement = 900;
        writer.SelectFont(surface);
        TextWriter::Write(surface, "Turned", 7200, 7200);
        writer.RestoreFont(surface);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const testing::Pdf pdf(file.readAll().toStdString());
    EXPECT_EQ(pdf.Images(), 0);
    std::map<QString, QRectF> boxes;
    for (const testing::PdfWord& word : pdf.Words(1)) {
        boxes[word.Text] = word.Box;
    }
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_NEAR(boxes[QStringLiteral("Level")].left(), 72, 0.5);
    const QRectF turned = boxes[QStringLiteral("Turned")];
    EXPECT_NEAR(turned.bottom(), 360, 1); // it runs upwards from its position
    EXPECT_GT(turned.height(), 2 * turned.width());
    const QRect ink = InkOf(pdf.Image(1, 72));
    EXPECT_NEAR(ink.left(), 72 + 24 / 1.117 * 0.08, 1.5);
}

} // namespace
} // namespace tarn
