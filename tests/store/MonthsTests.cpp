#include "store/Months.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

const QLocale English(QLocale::English, QLocale::UnitedStates);
const QDate March(2024, 3, 31);

TEST(MonthNames, AreTwelveFromJanuaryOn) {
    const std::array<std::string_view, 12> expected = {
        "JANUARY", "FEBRUARY", "MARCH",     "APRIL",   "MAY",      "JUNE",
        "JULY",    "AUGUST",   "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"};
    EXPECT_EQ(MonthNames, expected);
}

TEST(MonthDirectoryName, IsTheLocalesStandAloneLongNameInUpperCase) {
    EXPECT_EQ(MonthDirectoryName(March, English), "MARCH");
    EXPECT_EQ(MonthDirectoryName(QDate(2024, 12, 1), English), "DECEMBER");
    EXPECT_EQ(MonthDirectoryName(March, QLocale(QLocale::German)), "MÄRZ");
    EXPECT_EQ(MonthDirectoryName(March, QLocale(QLocale::Russian)), "МАРТ")
        << "inside a date it would be another form";
    EXPECT_EQ(MonthDirectoryName(March, QLocale(QLocale::C)), "MARCH");
}

} // namespace
} // namespace tarn
