// Every alignment at a number of escapements: where ink is, and where there is none.

#include "print/TextSheet.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::BaseLineOf;
using testing::BoxOf;
using testing::FrameOf;
using testing::IsInk;
using testing::PaintTextSheet;
using testing::SheetText;
using testing::SheetTexts;
using testing::SheetTypeSize;

std::string NameOf(const SheetText& text) {
    return std::string(text.BaseLine ? "baseline"
                       : text.Bottom ? "bottom"
                                     : "top") +
           (text.Center  ? " centre "
            : text.Right ? " right "
                         : " left ") +
           std::to_string(text.Escapement);
}

/// The ink of a text's cell in the text's own frame.
QRectF InkInFrame(const QImage& sheet, const SheetText& text) {
    const QTransform toFrame = FrameOf(text).inverted();
    QRectF ink;
    for (int y = text.Cell.top(); y <= text.Cell.bottom(); ++y) {
        for (int x = text.Cell.left(); x <= text.Cell.right(); ++x) {
            if (IsInk(sheet.pixel(x, y))) {
                const QPointF place = toFrame.map(QPointF(x + 0.5, y + 0.5));
                ink |= QRectF(place - QPointF(0.5, 0.5), QSizeF(1, 1));
            }
        }
    }
    return ink;
}

TEST(TextSheet, InkIsInsideTheBoxOfEachAlignmentAndEscapementAlone) {
    const QImage sheet = PaintTextSheet();
    for (const SheetText& text : SheetTexts()) {
        const QRectF ink = InkInFrame(sheet, text);
        const QRectF box = BoxOf(text).adjusted(-1.5, -1.5, 1.5, 1.5);
        EXPECT_FALSE(ink.isEmpty()) << NameOf(text);
        EXPECT_TRUE(box.contains(ink)) << NameOf(text) << ": " << ink.left() << ' ' << ink.top()
                                       << ' ' << ink.right() << ' ' << ink.bottom();
    }
}

TEST(TextSheet, InkFillsTheBoxAsTheLettersOfTheWordDo) {
    const QImage sheet = PaintTextSheet();
    const double size = SheetTypeSize();
    for (const SheetText& text : SheetTexts()) {
        const QRectF ink = InkInFrame(sheet, text);
        const QRectF box = BoxOf(text);
        const double baseLine = BaseLineOf(text);
        EXPECT_NEAR(ink.left(), box.left() + 0.08 * size, 2) << NameOf(text);   // of the H
        EXPECT_NEAR(ink.right(), box.right() - 0.07 * size, 2) << NameOf(text); // of the g
        EXPECT_NEAR(ink.top(), baseLine - 0.69 * size, 2) << NameOf(text);      // of the H
        EXPECT_NEAR(ink.bottom(), baseLine + 0.21 * size, 2) << NameOf(text);   // of the g
    }
}

TEST(TextSheet, AFullTurnIsNoTurn) {
    const QImage sheet = PaintTextSheet();
    const auto texts = SheetTexts();
    const std::size_t last = texts.size() - 9;
    for (std::size_t i = 0; i < 9; ++i) {
        ASSERT_EQ(texts[i].Escapement, 0);
        ASSERT_EQ(texts[last + i].Escapement, 3600);
        EXPECT_EQ(sheet.copy(texts[i].Cell.adjusted(1, 1, -1, -1)),
                  sheet.copy(texts[last + i].Cell.adjusted(1, 1, -1, -1)));
    }
}

} // namespace
} // namespace tarn
