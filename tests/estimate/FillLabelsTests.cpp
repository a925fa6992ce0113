#include "estimate/FillLabels.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(FillLabel, TwentySixFillsAreLabelledAToZ) {
    EXPECT_EQ(FillLabel(0, 26), "A");
    EXPECT_EQ(FillLabel(12, 26), "M");
    EXPECT_EQ(FillLabel(25, 26), "Z");
}

TEST(FillLabel, TwentySevenFillsHaveTwoLettersEach) {
    EXPECT_EQ(FillLabel(0, 27), "AA");
    EXPECT_EQ(FillLabel(25, 27), "AZ");
    EXPECT_EQ(FillLabel(26, 27), "BA");
    EXPECT_EQ(FillLabel(500, 501), "TG");
}

} // namespace
} // namespace tarn
