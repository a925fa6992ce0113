#include "paper/FixedPitchFont.h"
#include "project/ReportType.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace tarn {
namespace {

constexpr int Size = 240;

void ExpectCourierColumns(const QFont& font) {
    const QFontMetricsF metrics(font);
    for (const char16_t letter : {u'W', u'i', u'0', u'"', u' ', u'='}) {
        EXPECT_NEAR(metrics.horizontalAdvance(QChar(letter)), CourierAdvance * Size, 0.6)
            << QFontInfo(font).family().toStdString();
    }
    EXPECT_FALSE(font.bold());
}

TEST(CourierNew, HasLettersOfSixTenthsOfItsSize) {
    ExpectCourierColumns(CourierNew(Size));
    EXPECT_EQ(CourierNew(Size).pixelSize(), Size);
}

TEST(FixedPitchFont, TakesTheFirstFaceThatIsThere) {
    const QFont font =
        FixedPitchFont({QStringLiteral("No Such Face"), QStringLiteral("Liberation Mono"),
                        QStringLiteral("DejaVu Sans Mono")},
                       Size);
    EXPECT_EQ(font.family(), QStringLiteral("Liberation Mono"));
    ExpectCourierColumns(font);
}

TEST(FixedPitchFont, PassesOverAFaceOfOtherOrDifferingWidths) {
    const QFont font =
        FixedPitchFont({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans Mono"),
                        QStringLiteral("Liberation Mono")},
                       Size);
    EXPECT_EQ(font.family(), QStringLiteral("Liberation Mono"));
}

TEST(FixedPitchFont, FitsTheSizeOfAnotherFixedPitchFaceToTheColumns) {
    const QFont font = FixedPitchFont({QStringLiteral("DejaVu Sans Mono")}, Size);
    EXPECT_EQ(font.family(), QStringLiteral("DejaVu Sans Mono"));
    EXPECT_LT(font.pixelSize(), Size); // its letters are 0.602 of the size
    ExpectCourierColumns(font);
}

TEST(FixedPitchFont, FallsBackOnTheSystemsFixedPitchFace) {
    ExpectCourierColumns(FixedPitchFont({QStringLiteral("No Such Face")}, Size));
}

} // namespace
} // namespace tarn
