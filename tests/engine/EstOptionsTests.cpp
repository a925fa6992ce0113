#include "app/RunTimeError.h"
#include "engine/EstOptions.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(PackEstOption, PacksEveryChoice) {
    EXPECT_EQ(MinCuts, 3);
    EXPECT_EQ(MostPiecesPerFill, 6);
    for (Integer minCut = 0; minCut < MinCuts; ++minCut) {
        for (Integer pieces = 1; pieces <= MostPiecesPerFill; ++pieces) {
            EXPECT_EQ(PackEstOption(minCut, pieces), 10 * minCut + (pieces - 1));
        }
    }
}

TEST(PackEstOption, TheFirstChoicesAreZeroAndTheLastTwentyFive) {
    EXPECT_EQ(PackEstOption(0, 1), 0);
    EXPECT_EQ(PackEstOption(2, 6), 25);
}

TEST(MinCutUnits, AreHundredthsOfAnInch) {
    SharedState state;
    EXPECT_EQ(MinCutUnits(state, 0), 300);
    EXPECT_EQ(MinCutUnits(state, 1), 150);
    EXPECT_EQ(MinCutUnits(state, 2), 50);
    EXPECT_EQ(MinCutUnits(state, 3), 0);
    EXPECT_THROW(MinCutUnits(state, 4), RunTimeError);
    state.MetricFlag = 1;
    EXPECT_EQ(MinCutUnits(state, 0), 762);
    EXPECT_EQ(MinCutUnits(state, 1), 381);
    EXPECT_EQ(MinCutUnits(state, 2), 127);
}

TEST(MinCutInForce, SaysTheLengthBehindTheCaption) {
    SharedState state;
    EXPECT_EQ(MinCutInForce(state, 0), "3 inches");
    EXPECT_EQ(MinCutInForce(state, 1), "1.5 inch");
    EXPECT_EQ(MinCutInForce(state, 2), "0.5 inch");
    state.MetricFlag = 1;
    EXPECT_EQ(MinCutInForce(state, 0), "19.4 cm");
    EXPECT_EQ(MinCutInForce(state, 1), "9.7 cm");
    EXPECT_EQ(MinCutInForce(state, 2), "3.2 cm");
}

} // namespace
} // namespace tarn
