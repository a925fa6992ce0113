#include "screens/roll/RollSpread.h"
#include "screens/roll/RollTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tarn {
namespace {

using namespace tarn::testing;

SpreadArea AreaOf(double width, double height) {
    return {width, height, 20, 50, 10};
}

TEST(RollSpread, StandsOrLiesWhicheverIsLarger) {
    const RollChart chart = ChartOfCuts(2, 120); // 144 by 240
    const RollSpread high = SpreadOver(chart, AreaOf(400, 800));
    EXPECT_TRUE(high.Stands);
    EXPECT_EQ(high.Rows.size(), 1U);
    EXPECT_DOUBLE_EQ(high.Scale, 350.0 / 144);
    const RollSpread wide = SpreadOver(chart, AreaOf(800, 400));
    EXPECT_FALSE(wide.Stands);
    EXPECT_DOUBLE_EQ(wide.Scale, 380.0 / 144);
}

TEST(RollSpread, FoldsALongRollWhereNoPieceLies) {
    const RollChart chart = ChartOfCuts(24, 100); // 200 feet
    const RollSpread spread = SpreadOver(chart, AreaOf(800, 500));
    ASSERT_GT(spread.Rows.size(), 1U);
    for (const SpreadRow& row : spread.Rows) {
        EXPECT_EQ(static_cast<int>(row.From) % 100, 0);
        EXPECT_EQ(static_cast<int>(row.To) % 100, 0);
    }
    const double unfolded = 800 / chart.Length;
    EXPECT_GT(spread.Scale, 2 * unfolded);
}

TEST(RollSpread, KeepsInOneRowWhatAFoldWouldHardlyEnlarge) {
    RollChart chart = ChartOfCuts(4, 100);
    const RollSpread spread = SpreadOver(chart, AreaOf(420, 200));
    EXPECT_EQ(spread.Rows.size(), 1U);
}

TEST(RollSpread, BreaksThePiecesThatLeaveNoFreePlace) {
    RollChart chart;
    chart.RollWidth = 144;
    chart.Length = 3000;
    chart.Pieces = {PieceAt("A", 0, 0, 72, 3000), PieceAt("B", 72, 0, 72, 1400),
                    PieceAt("C", 72, 1400, 72, 1600)};
    const RollSpread spread = SpreadOver(chart, AreaOf(700, 600));
    ASSERT_GT(spread.Rows.size(), 1U);
    EXPECT_EQ(spread.Rows.back().To, 3000);
    double drawn = 0;
    for (std::size_t row = 0; row < spread.Rows.size(); ++row) {
        const SpreadBox box = spread.BoxIn(row, 0, 0, 72, 3000);
        drawn += spread.Stands ? box.Height : box.Width;
    }
    EXPECT_NEAR(drawn, 3000 * spread.Scale, 1e-6) << "all of the piece is drawn, once";
}

TEST(RollSpread, RowsFollowEachOtherAndFitTheArea) {
    std::mt19937 random(3);
    const auto between = [&](int least, int most) {
        return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
    };
    for (int i = 0; i < 100; ++i) {
        SCOPED_TRACE(i);
        RollChart chart;
        chart.RollWidth = between(60, 200);
        double y = 0;
        for (int count = between(1, 60); count > 0; --count) {
            chart.Pieces.push_back(PieceAt("A", 0, y, between(1, 60), between(1, 300)));
            y += between(0, 200);
        }
        for (const ChartPiece& piece : chart.Pieces) {
            chart.Length = std::max(chart.Length, piece.Y + piece.Length);
        }
        SpreadArea area = AreaOf(between(200, 1900), between(200, 1000));
        area.LyingLane = i % 2 * 12;
        area.StandingLane = i % 2 * 30;
        const RollSpread spread = SpreadOver(chart, area);
        double at = 0;
        for (const SpreadRow& row : spread.Rows) {
            EXPECT_EQ(row.From, at);
            EXPECT_GT(row.To, row.From);
            at = row.To;
        }
        EXPECT_EQ(at, chart.Length);
        EXPECT_LE(spread.Width(), area.Width + 1e-6);
        EXPECT_LE(spread.Height(), area.Height + 1e-6);
    }
}

TEST(RollSpread, KeepsALaneFreeBehindEachRow) {
    const RollChart chart = ChartOfCuts(24, 100);
    SpreadArea area = AreaOf(800, 500);
    area.LyingLane = 12;
    area.StandingLane = 30;
    const RollSpread spread = SpreadOver(chart, area);
    ASSERT_GT(spread.Rows.size(), 1U);
    EXPECT_EQ(spread.Lane, spread.Stands ? 30 : 12);
    const double width = spread.RollWidth * spread.Scale;
    EXPECT_NEAR(spread.RowStart(1) - spread.RowStart(0) - width,
                spread.Ruler + spread.Gap + spread.Lane, 1e-9);
    EXPECT_NEAR((spread.Stands ? spread.Width() : spread.Height()) -
                    spread.RowStart(spread.Rows.size() - 1) - width,
                spread.Lane, 1e-9);
}

TEST(RollSpread, IsNoMirrorImage) {
    const RollChart chart = ChartOfCuts(2, 120);
    const RollSpread stands = SpreadOver(chart, AreaOf(400, 800));
    const SpreadBox left = stands.BoxIn(0, 0, 0, 10, 20);
    EXPECT_EQ(left.Left, stands.RowStart(0));
    EXPECT_EQ(left.Top, 0);
    const RollSpread lies = SpreadOver(chart, AreaOf(800, 400));
    const SpreadBox below = lies.BoxIn(0, 0, 0, 10, 20);
    EXPECT_NEAR(below.Top + below.Height, lies.Height(), 1e-6) << "turned, not flipped";
    EXPECT_EQ(below.Left, 0);
}

TEST(RollSpread, OfNothingHasNoRows) {
    EXPECT_TRUE(SpreadOver({}, AreaOf(100, 100)).Rows.empty());
}

} // namespace
} // namespace tarn
