#include "paper/Arial.h"
#include "paper/PdfFile.h"
#include "paper/PdfTesting.h"
#include "paper/PrintTesting.h"

#include <QFont>
#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(Arial, IsNotBoldAndOfTheSizeAskedFor) {
    const QFont font = Arial(240);
    EXPECT_EQ(font.family(), QStringLiteral("Arial"));
    EXPECT_EQ(font.pixelSize(), 240);
    EXPECT_FALSE(font.bold());
    EXPECT_FALSE(font.italic());
}

TEST(Arial, MakesATextAsLongAsItsLetters) {
    const QFontMetricsF metrics(Arial(1000));
    for (const char* pair : {"AV", "To", "Ya", "LT", "P.", "1'"}) {
        const QString text = QString::fromLatin1(pair);
        EXPECT_NEAR(metrics.horizontalAdvance(text),
                    metrics.horizontalAdvance(text[0]) + metrics.horizontalAdvance(text[1]), 0.5)
            << pair;
    }
}

TEST(Arial, IsTheOnlyFaceOfAnEstimatesPage) {
    const Drawing drawing = testing::CornersDrawing();
    const QStringList fonts = testing::Pdf(EstimatePdf(testing::PageOf(drawing))).Fonts();
    ASSERT_FALSE(fonts.isEmpty());
    for (const QString& font : fonts) {
        EXPECT_TRUE(font.contains(QStringLiteral("Sans")) || font.contains(QStringLiteral("Arial")))
            << font.toStdString();
        EXPECT_FALSE(font.contains(QStringLiteral("Bold"))) << font.toStdString();
    }
}

} // namespace
} // namespace tarn
