#include "engine/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace {

constexpr Box Plan{10, 20, 30, 50};

TEST(LargerAndSmaller, GiveTheFirstOfATie) {
    EXPECT_EQ(Larger(2, 3), 3);
    EXPECT_EQ(Larger(3, 2), 3);
    EXPECT_TRUE(std::signbit(Larger(-0.0F, 0.0F)));
    EXPECT_EQ(Smaller(2, 3), 2);
    EXPECT_EQ(Smaller(3, 2), 2);
    EXPECT_TRUE(std::signbit(Smaller(-0.0F, 0.0F)));
}

TEST(IsInside, APointOnACornerOrAnEdgeIsOutside) {
    EXPECT_FALSE(IsInside(10, 20, Plan));
    EXPECT_FALSE(IsInside(30, 50, Plan));
    EXPECT_FALSE(IsInside(10, 30, Plan));
    EXPECT_FALSE(IsInside(30, 30, Plan));
    EXPECT_FALSE(IsInside(20, 20, Plan));
    EXPECT_FALSE(IsInside(20, 50, Plan));
}

TEST(IsInside, APointAHundredthInsideTheCornerIsInside) {
    EXPECT_TRUE(IsInside(10.01F, 20.01F, Plan));
    EXPECT_TRUE(IsInside(29.99F, 49.99F, Plan));
    EXPECT_FALSE(IsInside(9.99F, 30, Plan));
    EXPECT_FALSE(IsInside(20, 50.01F, Plan));
}

TEST(Intersect, CrossingSegmentsIntersectWhicheverWayTheyRun) {
    EXPECT_TRUE(Intersect({0, 5, 10, 5}, {3, 0, 3, 10}));
    EXPECT_TRUE(Intersect({10, 5, 0, 5}, {3, 10, 3, 0}));
    EXPECT_FALSE(Intersect({0, 5, 10, 5}, {12, 0, 12, 10}));
    EXPECT_FALSE(Intersect({0, 5, 10, 5}, {3, 6, 3, 10}));
}

TEST(Intersect, CollinearSegmentsThatShareAnEndPointOnlyTouch) {
    const Segment a{0, 5, 10, 5};
    const Segment b{10, 5, 20, 5};
    EXPECT_FALSE(Intersect(a, b));
}

TEST(Intersect, ASegmentThatEndsOnAnotherOnlyTouches) {
    const Segment row{0, 5, 10, 5};
    const Segment onto{10, 0, 10, 10};
    EXPECT_FALSE(Intersect(row, onto));
}

TEST(Crosses, ASegmentThroughAnEdgePasses) {
    EXPECT_TRUE(Crosses({0, 30, 20, 30}, Plan));
    EXPECT_TRUE(Crosses({20, 30, 40, 30}, Plan));
    EXPECT_TRUE(Crosses({20, 0, 20, 60}, Plan));
    EXPECT_FALSE(Crosses({0, 20, 40, 20}, Plan)) << "along the top edge";
    EXPECT_FALSE(Crosses({0, 19, 40, 19}, Plan));
}

TEST(Crosses, ASegmentFromSideToSidePassesThoughItTouchesAtItsEndsOnly) {
    EXPECT_TRUE(Crosses({10, 30, 30, 30}, Plan));
    EXPECT_TRUE(Crosses({20, 20, 20, 50}, Plan));
    EXPECT_FALSE(Crosses({10, 20, 30, 20}, Plan));
    EXPECT_FALSE(Crosses({10, 50, 30, 50}, Plan));
    EXPECT_FALSE(Crosses({12, 30, 28, 30}, Plan)) << "inside, meets no edge";
}

TEST(Overlaps, FlushPiecesShareNoArea) {
    EXPECT_FALSE(Overlaps(Plan, {30, 20, 60, 50}));
    EXPECT_FALSE(Overlaps(Plan, {10, 50, 30, 90}));
    EXPECT_FALSE(Overlaps(Plan, {30, 50, 60, 90}));
}

TEST(Overlaps, FindsCrossingsAndPiecesInsideOneAnother) {
    EXPECT_TRUE(Overlaps(Plan, {0, 30, 40, 40})) << "no corner inside one another";
    EXPECT_TRUE(Overlaps(Plan, {15, 25, 25, 45}));
    EXPECT_TRUE(Overlaps({15, 25, 25, 45}, Plan));
    EXPECT_TRUE(Overlaps(Plan, Plan));
}

TEST(Overlaps, HalfAUnitIsNoArea) {
    EXPECT_FALSE(Overlaps({0, 0, 10, 10}, {9.996F, 0, 20, 10}));
    EXPECT_FALSE(Overlaps({0, 0, 10, 10}, {0, 9.996F, 10, 20}));
    EXPECT_TRUE(Overlaps({0, 0, 10, 10}, {9.99F, 0, 20, 10}));
    EXPECT_TRUE(Overlaps({0, 0, 10, 10}, {0, 9.99F, 10, 20}));
}

} // namespace
} // namespace tarn
