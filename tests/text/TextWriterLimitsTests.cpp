// Sizes, weights and directions at and beyond their bounds: what is drawn is right, and what cannot
// be drawn is not.

#include "text/TextWriterTesting.h"

#include <QFile>
#include <QPdfWriter>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace tarn {
namespace {

using testing::Canvas;
using testing::False;
using testing::InkOf;
using testing::Pdf;
using testing::Sans;
using testing::True;

constexpr Long Most = std::numeric_limits<Long>::max();
constexpr Long Least = std::numeric_limits<Long>::min();
constexpr int X = 200;
constexpr int Y = 150;

/// "I" at (X, Y), standing on its line there, with the stem in its middle.
void WriteI(TextWriter writer, PainterSurface& surface) {
    writer.SelectFont(surface);
    TextWriter::SetAlignment(surface, False, True, False, False, True, False);
    TextWriter::Write(surface, "I", X, Y);
    writer.RestoreFont(surface);
}

QImage Painted(const TextWriter& writer) {
    Canvas canvas;
    WriteI(writer, canvas.Surface());
    return canvas.Image().copy();
}

TextWriter Sized(Long height, Long width) {
    TextWriter writer = Sans(height);
    writer.Font.Width = width;
    return writer;
}

/// White but for a black rectangle.
QImage Stem(const QRect& ink) {
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).fillRect(ink, Qt::black);
    return image;
}

// --- sizes ---

TEST(TextWriterLimits, LettersAreDrawnUpToTheirLargestHeight) {
    for (const Long height : {20000, 32767, 36000, -20000, -32767}) {
        EXPECT_EQ(Painted(Sized(height, 0)), Stem({0, 0, 400, Y})) << height;
    }
    for (const Long height : {36700, 100000, Most, -32768, -1000000, Least + 1, Least}) {
        EXPECT_TRUE(InkOf(Painted(Sized(height, 0))).isEmpty()) << height;
    }
}

TEST(TextWriterLimits, LettersAreDrawnUpToTheirLargestWidth) {
    // A capital's height of 0.688 × 125 is 86.
    for (const Long width : {10000, 32767, -32767}) {
        QImage image = Painted(Sized(-125, width));
        const QRect ink = InkOf(image);
        EXPECT_EQ(ink.left(), 0) << width;
        EXPECT_EQ(ink.width(), 400) << width;
        EXPECT_EQ(ink.bottom(), Y - 1) << width;
        EXPECT_NEAR(ink.height(), 86, 1) << width;
    }
    for (const Long width : {32768, 1000000, Most, -32768, Least + 1, Least}) {
        EXPECT_TRUE(InkOf(Painted(Sized(-125, width))).isEmpty()) << width;
    }
}

TEST(TextWriterLimits, TheSmallestLettersAreSpecks) {
    for (const Long height : {1, -1}) {
        for (const Long width : {0, 1, -1}) {
            const QRect ink = InkOf(Painted(Sized(height, width)));
            EXPECT_TRUE(QRect(X - 2, Y - 2, 4, 4).contains(ink)) << height << ' ' << width;
        }
    }
    const QRect narrow = InkOf(Painted(Sized(-125, 1)));
    EXPECT_LE(narrow.width(), 2);
    EXPECT_NEAR(narrow.height(), 86, 1);
    EXPECT_EQ(Painted(Sized(-125, -1)), Painted(Sized(-125, 1)));
}

TEST(TextWriterLimits, ATurnedTextOfAnySizeIsDrawnOrNot) {
    for (const Long height : {Most, 36000, 40, 1, 0, -1, -32767, Least}) {
        for (const Long width : {Most, 32767, 10, 1, 0, -1, Least}) {
            TextWriter writer = Sized(height, width);
            writer.Font.Escapement = 300;
            const bool fits = height < Most && height > Least && width < Most && width > Least;
            const bool speck = height == 1 || height == -1 || width == 1 || width == -1;
            const QRect ink = InkOf(Painted(writer));
            if (!fits || !speck) {
                EXPECT_EQ(!ink.isEmpty(), fits) << height << ' ' << width;
            }
        }
    }
}

// --- weights ---

long long Blackness(Long weight) {
    TextWriter writer = Sans(-150);
    writer.Font.Weight = weight;
    const QImage image = Painted(writer);
    long long sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += 255 - qGray(image.pixel(x, y));
        }
    }
    return sum;
}

TEST(TextWriterLimits, WeightsBeyondTheRangeAreItsEnds) {
    for (const Long weight : {-1, -700, Least}) {
        EXPECT_EQ(Blackness(weight), Blackness(1)) << weight;
    }
    for (const Long weight : {1001, 100000, Most}) {
        EXPECT_EQ(Blackness(weight), Blackness(1000)) << weight;
    }
    EXPECT_EQ(Blackness(0), Blackness(400));
    EXPECT_GT(Blackness(1000), Blackness(0) * 5 / 4);
    EXPECT_GT(Blackness(1), 0);
}

// --- directions ---

TEST(TextWriterLimits, FullTurnsAreNone) {
    const auto turned = [](Long escapement) {
        TextWriter writer = Sans(60);
        writer.Font.Escapement = escapement;
        return Painted(writer);
    };
    EXPECT_EQ(turned(Most), turned(847));
    EXPECT_EQ(turned(Least), turned(-848));
    for (const Long direction : {0, 1, 333, 900, 1800, 2700, 3599}) {
        for (const Long turns : {1, -1, 1000, -596522, 596522}) {
            EXPECT_EQ(turned(direction + 3600 * turns), turned(direction)) << direction;
        }
    }
    EXPECT_NE(turned(333), turned(334));
}

// --- a page ---

TEST(TextWriterLimits, APageHasTheTextsThatCanBeDrawn) {
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("page.pdf"));
    std::vector<std::pair<TextWriter, bool>> fonts;
    for (const Long height : {40, 0, -32767, Least, Most}) {
        for (const Long width : {0, 1, -1, 32767, Least, Most}) {
            fonts.emplace_back(Sized(height, width),
                               height > Least && height < Most && width > Least && width < Most);
        }
    }
    for (const Long weight : {Least, 1, 100000, Most}) {
        fonts.emplace_back(Sans(40), true);
        fonts.back().first.Font.Weight = weight;
        fonts.back().first.Font.Escapement = weight;
    }
    {
        QPdfWriter page(path);
        page.setResolution(72);
        QPainter painter(&page);
        PainterSurface surface(painter);
        for (std::size_t i = 0; i < fonts.size(); ++i) {
            ASSERT_TRUE(i == 0 || page.newPage());
            WriteI(fonts[i].first, surface);
        }
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const Pdf pdf(file.readAll().toStdString());
    ASSERT_EQ(pdf.Pages(), static_cast<int>(fonts.size()));
    for (std::size_t i = 0; i < fonts.size(); ++i) {
        EXPECT_EQ(pdf.Words(static_cast<int>(i) + 1).size(), fonts[i].second ? 1U : 0U)
            << fonts[i].first.Font.Height << ' ' << fonts[i].first.Font.Width;
    }
}

} // namespace
} // namespace tarn
