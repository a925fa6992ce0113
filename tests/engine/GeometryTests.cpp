#include "engine/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace {

constexpr Box Plan{10, 20, 30, 50};

TEST(SingMax, GivesTheLargerAndTheFirstOfATie) {
    EXPECT_EQ(SingMax(2, 3), 3);
    EXPECT_EQ(SingMax(3, 2), 3);
    EXPECT_TRUE(std::signbit(SingMax(-0.0F, 0.0F)));
    EXPECT_EQ(SingMin(2, 3), 2);
    EXPECT_EQ(SingMin(3, 2), 2);
    EXPECT_TRUE(std::signbit(SingMin(-0.0F, 0.0F)));
}

TEST(PTInbox, APointOnACornerOrAnEdgeIsOutside) {
    EXPECT_FALSE(PTInbox(10, 20, Plan));
    EXPECT_FALSE(PTInbox(30, 50, Plan));
    EXPECT_FALSE(PTInbox(10, 30, Plan));
    EXPECT_FALSE(PTInbox(30, 30, Plan));
    EXPECT_FALSE(PTInbox(20, 20, Plan));
    EXPECT_FALSE(PTInbox(20, 50, Plan));
}

TEST(PTInbox, APointAHundredthInsideTheCornerIsInside) {
    EXPECT_TRUE(PTInbox(10.01F, 20.01F, Plan));
    EXPECT_TRUE(PTInbox(29.99F, 49.99F, Plan));
    EXPECT_FALSE(PTInbox(9.99F, 30, Plan));
    EXPECT_FALSE(PTInbox(20, 50.01F, Plan));
}

TEST(ISLineInsect, CrossingSegmentsIntersectWhicheverWayTheyRun) {
    EXPECT_TRUE(ISLineInsect({0, 5, 10, 5}, {3, 0, 3, 10}));
    EXPECT_TRUE(ISLineInsect({10, 5, 0, 5}, {3, 10, 3, 0}));
    EXPECT_FALSE(ISLineInsect({0, 5, 10, 5}, {12, 0, 12, 10}));
    EXPECT_FALSE(ISLineInsect({0, 5, 10, 5}, {3, 6, 3, 10}));
}

TEST(ISLineInsect, CollinearSegmentsThatShareAnEndPointOnlyTouch) {
    const Segment a{0, 5, 10, 5};
    const Segment b{10, 5, 20, 5};
    EXPECT_FALSE(ISLineInsect(a, b));
    EXPECT_TRUE(ISLineInsect2(a, b));
}

TEST(ISLineInsect, ASegmentThatEndsOnAnotherOnlyTouches) {
    const Segment row{0, 5, 10, 5};
    const Segment onto{10, 0, 10, 10};
    EXPECT_FALSE(ISLineInsect(row, onto));
    EXPECT_TRUE(ISLineInsect2(row, onto));
    EXPECT_FALSE(ISLineInsect2(row, {10.01F, 0, 10.01F, 10}));
}

TEST(ISLinePass, ASegmentThroughAnEdgePasses) {
    EXPECT_TRUE(ISLinePass({0, 30, 20, 30}, Plan));
    EXPECT_TRUE(ISLinePass({20, 30, 40, 30}, Plan));
    EXPECT_TRUE(ISLinePass({20, 0, 20, 60}, Plan));
    EXPECT_FALSE(ISLinePass({0, 20, 40, 20}, Plan)) << "along the top edge";
    EXPECT_FALSE(ISLinePass({0, 19, 40, 19}, Plan));
}

TEST(ISLinePass, ASegmentFromSideToSidePassesThoughItTouchesAtItsEndsOnly) {
    EXPECT_TRUE(ISLinePass({10, 30, 30, 30}, Plan));
    EXPECT_TRUE(ISLinePass({20, 20, 20, 50}, Plan));
    EXPECT_FALSE(ISLinePass({10, 20, 30, 20}, Plan));
    EXPECT_FALSE(ISLinePass({10, 50, 30, 50}, Plan));
    EXPECT_FALSE(ISLinePass({12, 30, 28, 30}, Plan)) << "inside, meets no edge";
}

TEST(ISInsect, FindsCrossingRectanglesAndMissesOneInsideTheOther) {
    EXPECT_TRUE(ISInsect({0, 30, 40, 40}, Plan));
    EXPECT_TRUE(ISInsect({20, 40, 40, 60}, Plan));
    EXPECT_FALSE(ISInsect({15, 25, 25, 45}, Plan));
    EXPECT_FALSE(ISInsect({30, 20, 60, 50}, Plan)) << "edge to edge";
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
