#include "base/RunTimeError.h"
#include "engine/CleanUp.h"
#include "engine/EngineTesting.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

namespace tarn {
namespace {

using testing::PlacedAt;
using Layout = std::vector<Placed>;

/// Two pieces side by side and one behind them.
Layout SoundLayout() {
    return {PlacedAt(0, 0, {72, 100}, 0), PlacedAt(72, 0, {72, 50}, 1),
            PlacedAt(0, 100, {144, 30}, 2)};
}

int CheckNumber(const Layout& layout, Single rollWidth = 144) {
    try {
        CheckLayout(layout, rollWidth);
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(CheckLayout, AcceptsASoundLayout) {
    EXPECT_EQ(CheckNumber(SoundLayout()), 0);
}

TEST(CheckLayout, EveryFaultOfALayoutIsAnInternalError) {
    const std::function<void(Layout&)> faults[] = {
        [](Layout& layout) { layout[1].X = 71; }, [](Layout& layout) { layout[1].X = 73; },
        [](Layout& layout) { layout[0].X = -1; }, [](Layout& layout) { layout[0].Y = -1; },
        [](Layout& layout) { layout[2].Y = 99; },
    };
    int number = 0;
    for (const auto& spoil : faults) {
        Layout layout = SoundLayout();
        spoil(layout);
        EXPECT_EQ(CheckNumber(layout), InternalNumber) << "fault " << number;
        ++number;
    }
    EXPECT_EQ(CheckNumber(SoundLayout(), 142), InternalNumber) << "on a narrower roll";
}

TEST(CheckLayout, APieceTooWideForTheRollMayStandOut) {
    EXPECT_EQ(CheckNumber({PlacedAt(0, 0, {150, 10})}), 0);
}

TEST(CheckLayout, HalfAUnitIsTolerated) {
    Layout layout = SoundLayout();
    layout[1].X = 71.996F;
    EXPECT_EQ(CheckNumber(layout), 0);
    layout[1].X = 72.004F;
    EXPECT_EQ(CheckNumber(layout), 0);
}

/// Three parts of piece 0, 10 inches wide and 30 long each, standing at the given places.
Layout ThreeParts(Single x0, Single y0, Single x1, Single y1, Single x2, Single y2) {
    Layout layout{PlacedAt(x0, y0, {10, 30}), PlacedAt(x1, y1, {10, 30}),
                  PlacedAt(x2, y2, {10, 30})};
    for (std::size_t i = 0; i < 3; ++i) {
        layout[i].Part.Y1 = static_cast<Single>(3000 * i);
        layout[i].Part.Y2 = static_cast<Single>(3000 * (i + 1));
    }
    return layout;
}

TEST(JoinParts, PartsThatCameToLieEndToEndBecomeOneStrip) {
    Layout layout = ThreeParts(0, 0, 0, 30, 0, 60);
    JoinParts(layout);
    EXPECT_EQ(layout, (Layout{{{0, 1000, 0, 9000}, 0, 0, 10, 90}}));
}

TEST(JoinParts, AlsoWhenALaterOneBeginsTheStrip) {
    Layout layout = ThreeParts(0, 0, 0, 30, 0, 60);
    std::swap(layout[0], layout[2]);
    JoinParts(layout);
    EXPECT_EQ(layout, (Layout{{{0, 1000, 0, 9000}, 0, 0, 10, 90}}));
}

TEST(JoinParts, PartsInAnotherOrderOnTheRollStayApart) {
    Layout layout = ThreeParts(0, 30, 0, 0, 40, 0);
    JoinParts(layout);
    EXPECT_EQ(layout.size(), 3U);
}

TEST(JoinParts, PartsBesideEachOtherOrOfOtherPiecesStayApart) {
    const auto joined = [](Layout layout) {
        JoinParts(layout);
        return layout.size();
    };
    EXPECT_EQ(joined(ThreeParts(0, 0, 10, 0, 20, 0)), 3U);
    Layout layout = ThreeParts(0, 0, 0, 30, 0, 60);
    layout[1].Part.Number = 1;
    EXPECT_EQ(joined(layout), 3U);
    layout = ThreeParts(0, 0, 0, 30, 0, 60);
    layout[1].Part.X2 = 999;
    EXPECT_EQ(joined(layout), 3U);
    layout = ThreeParts(0, 0, 0, 30, 0, 60);
    layout[1].Part.Y1 = 3001;
    layout[2].Part.Y1 = 6001;
    EXPECT_EQ(joined(layout), 3U);
}

TEST(JoinParts, TheEndOfTheStripDoesNotMove) {
    Layout layout = ThreeParts(0, 0, 0.004F, 30.004F, 40, 0);
    JoinParts(layout);
    ASSERT_EQ(layout.size(), 2U);
    EXPECT_EQ(layout[0].X, 0);
    EXPECT_EQ(layout[0].Y + layout[0].Length, 30.004F + 30.0F);
    EXPECT_EQ(layout[0].Part.Y2, 6000);
}

TEST(JoinParts, ThePiecesBehindAJoinedOneKeepTheirPlaces) {
    Layout layout = ThreeParts(0, 0, 0, 30, 50, 0);
    layout.push_back(PlacedAt(90, 1, {7, 8}, 1));
    JoinParts(layout);
    ASSERT_EQ(layout.size(), 3U);
    EXPECT_EQ(layout[1].X, 50);
    EXPECT_EQ(layout[2], PlacedAt(90, 1, {7, 8}, 1));
}

/// Where the pieces stand across a roll of 144 inches after the shift.
std::vector<Single> Shifted(Layout layout) {
    const Layout before = layout;
    ShiftLooseLeft(layout, 144);
    std::vector<Single> across;
    for (std::size_t i = 0; i < layout.size(); ++i) {
        across.push_back(layout[i].X);
        EXPECT_EQ(layout[i].Y, before[i].Y);
    }
    return across;
}

//   0   40      100   144
// 0 +----+             |
//   | 0  |   +--+      |    piece 1 touches nothing: it moves left against piece 0
// 30 |    |   |1 |      |
//   +----+   +--+
TEST(ShiftLooseLeft, APieceThatTouchesNothingMovesAgainstTheNearestOneBesideIt) {
    EXPECT_EQ(Shifted({PlacedAt(0, 0, {40, 60}), PlacedAt(100, 10, {20, 20})}),
              (std::vector<Single>{0, 40}));
}

TEST(ShiftLooseLeft, WithNothingBesideItThePieceMovesToTheRollsEdge) {
    EXPECT_EQ(Shifted({PlacedAt(0, 0, {40, 60}), PlacedAt(100, 70, {20, 20})}),
              (std::vector<Single>{0, 0}));
}

TEST(ShiftLooseLeft, TouchingPiecesAndPiecesAtAnEdgeStay) {
    EXPECT_EQ(Shifted({
                  PlacedAt(0, 0, {40, 60}),    // at the left edge
                  PlacedAt(124, 10, {20, 20}), // at the far edge
                  PlacedAt(110, 30, {20, 20}), // shares part of an edge with piece 1
                  PlacedAt(40, 50, {20, 20}),  // beside piece 0
              }),
              (std::vector<Single>{0, 124, 110, 40}));
}

TEST(ShiftLooseLeft, ACornerAndTheStartOfTheRollAreNoContact) {
    EXPECT_EQ(
        Shifted({
            PlacedAt(0, 0, {40, 60}), PlacedAt(90, 0, {20, 20}), // stands on the roll's start alone
            PlacedAt(110, 20, {20, 10}), // shares a corner with piece 1 alone
        }),
        (std::vector<Single>{0, 40, 40}));
}

TEST(ShiftLooseLeft, EachPieceIsJudgedWhereTheOthersStandAtThatMoment) {
    EXPECT_EQ(Shifted({PlacedAt(50, 0, {20, 20}), PlacedAt(90, 5, {20, 20})}),
              (std::vector<Single>{0, 20}))
        << "the second against the first where it now stands";
}

} // namespace
} // namespace tarn
