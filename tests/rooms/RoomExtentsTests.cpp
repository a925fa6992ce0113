#include "rooms/RoomExtents.h"
#include "rooms/RoomTesting.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

using testing::ErrorNumberOf;

SharedState StateWithRoom(Integer width, Integer length, bool metric) {
    SharedState state;
    state.MetricFlag = metric ? 1 : 0;
    state.ObjNum = 1;
    state.RoomWidth[0] = width;
    state.RoomLength[0] = length;
    return state;
}

TEST(RoomExtents, TurnsInchesIntoHundredths) {
    SharedState state = StateWithRoom(120, 144, false);
    state.RoomX(0, 0) = 7;
    state.RoomY(0, 0) = 7;
    BuildAllRoomExtents(state);
    EXPECT_EQ(state.RoomX(0, 0), 0.0F);
    EXPECT_EQ(state.RoomY(0, 0), 0.0F);
    EXPECT_EQ(state.RoomX(0, 1), 12000.0F);
    EXPECT_EQ(state.RoomY(0, 1), 14400.0F);
}

TEST(RoomExtents, TurnsCentimetresIntoHundredthsOfAnInch) {
    SharedState state = StateWithRoom(254, 508, true);
    BuildAllRoomExtents(state);
    EXPECT_EQ(state.RoomX(0, 1), 10000.0F);
    EXPECT_EQ(state.RoomY(0, 1), 20000.0F);
}

TEST(RoomExtents, IsRoundedOnceToSingleForEverySize) {
    SharedState state;
    for (int size = 0; size <= std::numeric_limits<Integer>::max(); ++size) {
        state.RoomWidth[0] = static_cast<Integer>(size);
        state.MetricFlag = 0;
        BuildRoomExtents(state, 0);
        ASSERT_EQ(state.RoomX(0, 1), static_cast<Single>(size / 0.01)) << size;
        state.MetricFlag = 1;
        BuildRoomExtents(state, 0);
        ASSERT_EQ(state.RoomX(0, 1), static_cast<Single>(size / 0.01 / 2.54)) << size;
    }
}

TEST(RoomExtents, FollowsTheMetricFlagInForce) {
    SharedState state = StateWithRoom(366, 500, false);
    BuildAllRoomExtents(state);
    EXPECT_EQ(state.RoomX(0, 1), 36600.0F);
    state.MetricFlag = 1;
    BuildAllRoomExtents(state);
    EXPECT_EQ(state.RoomX(0, 1), 14409.449F);
    EXPECT_EQ(state.RoomY(0, 1), 19685.04F);
}

TEST(RoomExtents, FollowsTheDimScaleOfTheProject) {
    SharedState state = StateWithRoom(10, 20, false);
    state.DimScale = 0.5;
    BuildAllRoomExtents(state);
    EXPECT_EQ(state.RoomX(0, 1), 20.0F);
    EXPECT_EQ(state.RoomY(0, 1), 40.0F);
}

TEST(RoomExtents, CoversEveryRoomInUseAndNoOther) {
    SharedState state;
    state.ObjNum = 500;
    for (Integer room = 0; room <= MaxRoom; ++room) {
        state.RoomWidth[room] = static_cast<Integer>(room + 1);
        state.RoomLength[room] = static_cast<Integer>(2 * room + 1);
    }
    BuildAllRoomExtents(state);
    for (Integer room = 0; room < 500; ++room) {
        EXPECT_EQ(state.RoomX(room, 1), static_cast<Single>(100 * (room + 1)));
        EXPECT_EQ(state.RoomY(room, 1), static_cast<Single>(100 * (2 * room + 1)));
    }
    EXPECT_EQ(state.RoomX(MaxRoom, 1), 0.0F);
}

TEST(RoomExtents, OfOneRoomLeavesTheOthersAlone) {
    SharedState state;
    state.ObjNum = 3;
    for (Integer room = 0; room < 3; ++room) {
        state.RoomWidth[room] = 12;
        state.RoomLength[room] = 24;
    }
    BuildRoomExtents(state, 1);
    EXPECT_EQ(state.RoomX(0, 1), 0.0F);
    EXPECT_EQ(state.RoomX(1, 1), 1200.0F);
    EXPECT_EQ(state.RoomY(1, 1), 2400.0F);
    EXPECT_EQ(state.RoomX(2, 1), 0.0F);
}

TEST(RoomExtents, LeavesTheThirdCornerAlone) {
    SharedState state = StateWithRoom(12, 24, false);
    state.RoomX(0, 2) = 5;
    state.RoomY(0, 2) = 6;
    BuildAllRoomExtents(state);
    EXPECT_EQ(state.RoomX(0, 2), 5.0F);
    EXPECT_EQ(state.RoomY(0, 2), 6.0F);
}

TEST(RoomExtents, IsOutOfRangeBeyondTheLastRoom) {
    SharedState state;
    EXPECT_EQ(ErrorNumberOf([&] { BuildRoomExtents(state, MaxRoom + 1); }), SubscriptNumber);
    EXPECT_EQ(ErrorNumberOf([&] { BuildRoomExtents(state, -1); }), SubscriptNumber);
    state.ObjNum = MaxRoom + 2;
    EXPECT_EQ(ErrorNumberOf([&] { BuildAllRoomExtents(state); }), SubscriptNumber);
}

TEST(RoomExtents, NamesADimScaleThatGivesNoExtent) {
    SharedState state = StateWithRoom(10, 20, false);
    state.DimScale = 0;
    EXPECT_EQ(ErrorNumberOf([&] { BuildAllRoomExtents(state); }), DivisionByZeroNumber);
    state.DimScale = 1e-300;
    EXPECT_EQ(ErrorNumberOf([&] { BuildAllRoomExtents(state); }), OverflowNumber);
}

} // namespace
} // namespace tarn
