#include "app/ErrorNumber.h"
#include "app/SharedState.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

/// The array ends at `upper`: its last element can be written, one beyond cannot be read.
template <typename Array>
void ExpectBound(Array& array, long long upper, const char* name) {
    EXPECT_EQ(array.UpperBound(), upper) << name;
    EXPECT_EQ(ErrorNumber([&] { return &array[0]; }), 0) << name;
    EXPECT_EQ(ErrorNumber([&] { return &array[upper]; }), 0) << name;
    EXPECT_EQ(ErrorNumber([&] { return &array[upper + 1]; }), SubscriptNumber) << name;
    EXPECT_EQ(ErrorNumber([&] { return &array[-1]; }), SubscriptNumber) << name;
}

TEST(SharedState, BeginsWithItsDefaults) {
    const SharedState state;
    EXPECT_EQ(state.MetricFlag, 0);
    EXPECT_FALSE(state.IsMetric());
    EXPECT_EQ(state.DimScale, 0.01);
    EXPECT_EQ(state.EstOption, 0);
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_EQ(state.ECutCount, 0);
    EXPECT_EQ(state.CurProjName, "");
    EXPECT_FALSE(state.NewSheetFlag);
    EXPECT_EQ(state.CurDB, nullptr);
    EXPECT_EQ(state.PrnWidth, 0);
    EXPECT_EQ(state.PrnHeight, 0);
}

TEST(SharedState, HasThreeMinimumCutLengthsInFeetAndAnUnsetOne) {
    const SharedState state;
    EXPECT_EQ(state.MinCutLen[0], 3.0F);
    EXPECT_EQ(state.MinCutLen[1], 1.5F);
    EXPECT_EQ(state.MinCutLen[2], 0.5F);
    EXPECT_EQ(state.MinCutLen[3], 0.0F);
    EXPECT_EQ(state.MinCutLen.UpperBound(), 3);
}

TEST(SharedState, IsMetricForTheFlagOneAlone) {
    SharedState state;
    for (int flag = 0; flag <= 255; ++flag) {
        state.MetricFlag = static_cast<Byte>(flag);
        ASSERT_EQ(state.IsMetric(), flag == 1) << flag;
    }
}

TEST(SharedState, HasRoomFor501RoomsAnd3001Cuts) {
    SharedState state;
    ExpectBound(state.RoomWidth, 500, "RoomWidth");
    ExpectBound(state.RoomLength, 500, "RoomLength");
    ExpectBound(state.RoomCarpet, 500, "RoomCarpet");
    ExpectBound(state.RoomBase, 500, "RoomBase");
    ExpectBound(state.RoomNoStr, 500, "RoomNoStr");
    ExpectBound(state.RoomRemark, 500, "RoomRemark");
    ExpectBound(state.ECutX1, 3000, "ECutX1");
    ExpectBound(state.ECutX2, 3000, "ECutX2");
    ExpectBound(state.ECutY1, 3000, "ECutY1");
    ExpectBound(state.ECutY2, 3000, "ECutY2");
    ExpectBound(state.MonthStr, 12, "MonthStr");
    ExpectBound(state.DBRS, 23, "DBRS");
}

TEST(SharedState, HasThreeCornersOfEveryRoom) {
    SharedState state;
    for (auto* corners : {&state.RoomX, &state.RoomY}) {
        EXPECT_EQ(ErrorNumber([=] { return (*corners)(500, 2); }), 0);
        EXPECT_EQ(ErrorNumber([=] { return (*corners)(501, 0); }), SubscriptNumber);
        EXPECT_EQ(ErrorNumber([=] { return (*corners)(0, 3); }), SubscriptNumber);
        EXPECT_EQ(ErrorNumber([=] { return (*corners)(-1, 0); }), SubscriptNumber);
        EXPECT_EQ(ErrorNumber([=] { return (*corners)(0, -1); }), SubscriptNumber);
    }
}

TEST(SharedState, DimAllArraysEmptiesRoomsAndCuts) {
    SharedState state;
    state.RoomWidth[500] = 144;
    state.RoomLength[0] = 120;
    state.RoomCarpet[1] = 11;
    state.RoomBase[2] = 8;
    state.RoomNoStr[3] = "101";
    state.RoomRemark[4] = "closet";
    state.RoomX(5, 1) = 14400;
    state.RoomY(5, 1) = 12000;
    state.ECutX1[0] = state.ECutX2[0] = state.ECutY1[0] = state.ECutY2[3000] = 1;

    state.DimAllArrays();
    EXPECT_EQ(state.RoomWidth[500], 0);
    EXPECT_EQ(state.RoomLength[0], 0);
    EXPECT_EQ(state.RoomCarpet[1], 0);
    EXPECT_EQ(state.RoomBase[2], 0);
    EXPECT_EQ(state.RoomNoStr[3], "");
    EXPECT_EQ(state.RoomRemark[4], "");
    EXPECT_EQ(state.RoomX(5, 1), 0);
    EXPECT_EQ(state.RoomY(5, 1), 0);
    EXPECT_EQ(state.ECutX1[0] + state.ECutX2[0] + state.ECutY1[0] + state.ECutY2[3000], 0);
}

} // namespace
} // namespace tarn
