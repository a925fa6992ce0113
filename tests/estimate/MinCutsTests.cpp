#include "base/RunTimeError.h"
#include "estimate/MinCuts.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

constexpr Double Hundredths = 0.01;

TEST(MinCuts, AreThreeAndTheFirstIsThreeFeet) {
    EXPECT_EQ(AllMinCuts.size(), 3U);
    EXPECT_EQ(AllMinCuts.front(), EstimateRequest().ShortestPart);
    EXPECT_EQ(MostPiecesPerFill, 6);
    EXPECT_EQ(EstimateRequest().PiecesPerFill, 1);
}

TEST(MinCutCaption, IsTheOptionsText) {
    EXPECT_EQ(MinCutCaption(MinCut::ThreeFeet, Units::Imperial), "3 FT");
    EXPECT_EQ(MinCutCaption(MinCut::FootAndAHalf, Units::Imperial), "1FT 6\"");
    EXPECT_EQ(MinCutCaption(MinCut::HalfFoot, Units::Imperial), "1/2FT");
    EXPECT_EQ(MinCutCaption(MinCut::ThreeFeet, Units::Metric), "91 cm");
    EXPECT_EQ(MinCutCaption(MinCut::FootAndAHalf, Units::Metric), "46 cm");
    EXPECT_EQ(MinCutCaption(MinCut::HalfFoot, Units::Metric), "15 cm");
}

TEST(MinCutUnits, AreHundredthsOfAnInch) {
    EXPECT_EQ(MinCutUnits(MinCut::ThreeFeet, Units::Imperial, Hundredths), 300);
    EXPECT_EQ(MinCutUnits(MinCut::FootAndAHalf, Units::Imperial, Hundredths), 150);
    EXPECT_EQ(MinCutUnits(MinCut::HalfFoot, Units::Imperial, Hundredths), 50);
    EXPECT_EQ(MinCutUnits(MinCut::ThreeFeet, Units::Metric, Hundredths), 762);
    EXPECT_EQ(MinCutUnits(MinCut::FootAndAHalf, Units::Metric, Hundredths), 381);
    EXPECT_EQ(MinCutUnits(MinCut::HalfFoot, Units::Metric, Hundredths), 127);
}

// Half an inch is less than one unit of an inch; 1.27 are rounded to one.
TEST(MinCutUnits, AreTruncatedInInchesAndRoundedInCentimetres) {
    EXPECT_EQ(MinCutUnits(MinCut::HalfFoot, Units::Imperial, 1), 0);
    EXPECT_EQ(MinCutUnits(MinCut::HalfFoot, Units::Metric, 1), 1);
    EXPECT_EQ(MinCutUnits(MinCut::FootAndAHalf, Units::Imperial, 0.4), 3);
    EXPECT_EQ(MinCutUnits(MinCut::ThreeFeet, Units::Metric, 2), 4);
}

TEST(MinCutUnits, BeyondAnIntegerOverflow) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        EXPECT_THROW(MinCutUnits(MinCut::ThreeFeet, units, 1e-5), RunTimeError);
    }
}

TEST(MinCutOfCaption, IsTheLengthThatTheCaptionNames) {
    EXPECT_EQ(MinCutOfCaption(MinCut::ThreeFeet, Units::Imperial), 36);
    EXPECT_EQ(MinCutOfCaption(MinCut::FootAndAHalf, Units::Imperial), 18);
    EXPECT_EQ(MinCutOfCaption(MinCut::HalfFoot, Units::Imperial), 6);
    EXPECT_DOUBLE_EQ(MinCutOfCaption(MinCut::ThreeFeet, Units::Metric), 91 / 2.54);
    EXPECT_DOUBLE_EQ(MinCutOfCaption(MinCut::FootAndAHalf, Units::Metric), 46 / 2.54);
    EXPECT_DOUBLE_EQ(MinCutOfCaption(MinCut::HalfFoot, Units::Metric), 15 / 2.54);
}

TEST(MinCutInForce, SaysTheLengthBehindTheCaption) {
    EXPECT_EQ(MinCutInForce(MinCut::ThreeFeet, Units::Imperial, Hundredths), "3 inches");
    EXPECT_EQ(MinCutInForce(MinCut::FootAndAHalf, Units::Imperial, Hundredths), "1.5 inch");
    EXPECT_EQ(MinCutInForce(MinCut::HalfFoot, Units::Imperial, Hundredths), "0.5 inch");
    EXPECT_EQ(MinCutInForce(MinCut::ThreeFeet, Units::Metric, Hundredths), "19.4 cm");
    EXPECT_EQ(MinCutInForce(MinCut::FootAndAHalf, Units::Metric, Hundredths), "9.7 cm");
    EXPECT_EQ(MinCutInForce(MinCut::HalfFoot, Units::Metric, Hundredths), "3.2 cm");
}

} // namespace
} // namespace tarn
