#include "app/Format.h"
#include "estimate/EstimateTesting.h"
#include "estimate/Totals.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace tarn {
namespace {

using testing::Centimetres;
using testing::Cut;
using testing::ErrorOf;
using testing::Imperial;
using testing::Job;
using testing::Metric;

TEST(TotalBase, CountsTheWidthsAndLengthsOfEachCode) {
    constexpr std::array<int, 9> Expected{0, 100, 200, 150, 250, 350, 300, 400, 500};
    for (std::size_t code = 0; code < Expected.size(); ++code) {
        const Job job = Imperial({{100, 150, 0, static_cast<Byte>(code)}});
        EXPECT_EQ(TotalBase(job.State), Expected.at(code)) << "code " << code;
    }
}

TEST(TotalBase, SumsOverAllRoomsOfEveryCovering) {
    const Job job = Imperial({{120, 144, 0, 5}, {100, 150, 3, 1}, {60, 80, 8, 8}, {36, 48, 11, 0}});
    EXPECT_EQ(TotalBase(job.State), (240 + 144) + 100 + (120 + 160));
}

TEST(TotalBase, IsThePlainSumInTheRoomsUnit) {
    EXPECT_EQ(TotalBase(Metric({{101, 203, 0, 8}}).State), 202 + 406);
}

TEST(TotalBase, IgnoresRoomsBeyondTheCountInUse) {
    Job job = Imperial({{100, 150, 0, 1}, {100, 150, 0, 1}});
    job.State.ObjNum = 1;
    EXPECT_EQ(TotalBase(job.State), 100);
}

TEST(TotalBase, OfTheLargestRoomDoesNotOverflow) {
    EXPECT_EQ(TotalBase(Imperial({{32767, 32767, 0, 8}}).State), 4 * 32767);
}

TEST(TotalCutLength, SumsTheExtentsAlongTheRoll) {
    Job down = Imperial({{288, 120}, {150, 200}});
    Cut(down, 144, true);
    EXPECT_EQ(TotalCutLength(down.State, 0), 120 + 120 + 200);
    Job cross = Imperial({{120, 288}, {200, 150}});
    Cut(cross, 144, false);
    EXPECT_EQ(TotalCutLength(cross.State, 1), 120 + 120 + 200);
}

TEST(TotalCutLength, EveryLayButZeroMeasuresAcrossTheRoom) {
    Job job = Imperial({{144, 200}});
    Cut(job, 144, true);
    EXPECT_EQ(TotalCutLength(job.State, 0), 200);
    EXPECT_EQ(TotalCutLength(job.State, 1), 144);
    EXPECT_EQ(TotalCutLength(job.State, -1), 144);
}

TEST(TotalCutLength, OfNoCutsIsZero) {
    EXPECT_EQ(TotalCutLength(Imperial({}).State, 0), 0);
}

TEST(TotalCutLength, BeyondASingleOverflows) {
    Job job = Imperial({});
    job.State.ECutCount = 2;
    for (Integer i = 0; i < job.State.ECutCount; ++i) {
        job.State.ECutY2[i] = 3e38F;
    }
    EXPECT_EQ(ErrorOf([&] { TotalCutLength(job.State, 0); }).Number(), OverflowNumber);
}

TEST(CarpetArea, SumsTheRoomsOfThatCoveringInSquareInches) {
    Job job = Imperial({{100, 50, 8}, {20, 30, 9}, {10, 10, 8}});
    BuildAllRoomExtents(job.State);
    EXPECT_EQ(CarpetArea(job.State, 8), 5100);
    EXPECT_EQ(CarpetArea(job.State, 9), 600);
    EXPECT_EQ(CarpetArea(job.State, 10), 0);
}

TEST(CarpetArea, OfMetricRoomsIsInSquareInchesToo) {
    Job job = Metric({{254, 508, 8}});
    BuildAllRoomExtents(job.State);
    EXPECT_NEAR(CarpetArea(job.State, 8), 100 * 200, 1e-2);
}

TEST(CarpetArea, TakesTheAreaOfAReversedRoomAsPositive) {
    Job job = Imperial({{100, 50, 8}});
    BuildAllRoomExtents(job.State);
    job.State.RoomX(0, 0) = 20000;
    EXPECT_EQ(CarpetArea(job.State, 8), 5000);
    EXPECT_EQ(CarpetPerimeter(job.State, 8), 300);
}

TEST(CarpetArea, BeyondASingleOverflows) {
    Job job = Imperial({{100, 50, 8}});
    job.State.RoomX(0, 1) = 1e30F;
    job.State.RoomY(0, 1) = 1e30F;
    EXPECT_EQ(ErrorOf([&] { CarpetArea(job.State, 8); }).Number(), OverflowNumber);
}

TEST(CarpetPerimeter, BeyondASingleOverflows) {
    Job job = Imperial({{100, 50, 8}});
    job.State.RoomX(0, 1) = 3e38F;
    EXPECT_EQ(ErrorOf([&] { CarpetPerimeter(job.State, 8); }).Number(), OverflowNumber);
}

TEST(CarpetPerimeter, SumsTheRoomsOfThatCoveringInInches) {
    Job job = Imperial({{100, 50, 8}, {20, 30, 9}, {10, 10, 8}});
    BuildAllRoomExtents(job.State);
    EXPECT_EQ(CarpetPerimeter(job.State, 8), 300 + 40);
    EXPECT_EQ(CarpetPerimeter(job.State, 9), 100);
    EXPECT_EQ(CarpetPerimeter(job.State, 11), 0);
}

TEST(HasRooms, AnswersForEachCovering) {
    const Job job = Imperial({{100, 50, 8}, {20, 30, 2}});
    EXPECT_TRUE(HasRooms(job.State, 8));
    EXPECT_TRUE(HasRooms(job.State, 2));
    EXPECT_FALSE(HasRooms(job.State, 9));
    EXPECT_FALSE(HasRooms(Imperial({}).State, 0));
}

TEST(Totals, TheHelpersReturnSingles) {
    const Job job = Imperial({});
    EXPECT_TRUE((std::is_same_v<decltype(TotalBase(job.State)), Single>));
    EXPECT_TRUE((std::is_same_v<decltype(TotalCutLength(job.State, 0)), Single>));
    EXPECT_TRUE((std::is_same_v<decltype(CarpetArea(job.State, 8)), Single>));
    EXPECT_TRUE((std::is_same_v<decltype(CarpetPerimeter(job.State, 8)), Single>));
}

// 2^24 + 1 is no Single: four ones added one by one are lost.
TEST(Totals, SumsAreAccumulatedInSingle) {
    Job job = Imperial({{1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}});
    job.State.ECutCount = 5;
    for (Integer i = 0; i < 5; ++i) {
        const Single side = i == 0 ? 4096 : 1;
        job.State.RoomX(i, 1) = side;
        job.State.RoomY(i, 1) = side;
        job.State.ECutY2[i] = side * side;
    }
    EXPECT_EQ(TotalCutLength(job.State, 0), 167772.16F);
    EXPECT_EQ(CarpetArea(job.State, 0), 1677.7216F);
    for (Integer i = 0; i < 5; ++i) {
        job.State.RoomX(i, 1) = i == 0 ? 8388607 : 0.5F;
        job.State.RoomY(i, 1) = i == 0 ? 1 : 0;
    }
    EXPECT_EQ(CarpetPerimeter(job.State, 0), 167772.16F);
}

TEST(Totals, TheBaseIsAccumulatedInSingle) {
    Job job;
    for (int room = 0; room < 129; ++room) {
        job.Add({32767, 32767, 0, 8});
    }
    for (int room = 0; room < 4; ++room) {
        job.Add({1, 1, 0, 1});
    }
    EXPECT_EQ(TotalBase(job.State), 129 * 4 * 32767);
}

TEST(AreaOf, GivesSquareFeetYardsAndMetres) {
    const Area area = AreaOf(1296);
    EXPECT_DOUBLE_EQ(area.SquareFeet, 9);
    EXPECT_DOUBLE_EQ(area.SquareYards, 1);
    EXPECT_DOUBLE_EQ(area.SquareMeters, 0.83612736);
}

TEST(TotalRoll, AddsTheFillsToTheCuts) {
    Job job = Imperial({{144, 240}});
    Cut(job, 144, true);
    job.Engine.ResultLen = 120;
    const RollTotals totals = TotalRoll(job.State, job.Engine);
    EXPECT_EQ(totals.CutLength, 240);
    EXPECT_EQ(totals.Length, 360);
    EXPECT_EQ(totals.Size.SquareYards, 40);
    EXPECT_EQ(totals.Size.SquareFeet, 360);
    EXPECT_NEAR(totals.Size.SquareMeters, 360 * 0.09290304, 1e-9);
}

// As Singles these would print 1,001.51 and 2.75.
TEST(TotalRoll, FiguresAreDoubleSoThatHalvesPrintTrue) {
    Job yards = Imperial({{150, 8653}});
    Cut(yards, 150, true);
    EXPECT_EQ(Format(TotalRoll(yards.State, yards.Engine).Size.SquareYards, "#,##0.00"),
              "1,001.50");
    Job metres = Metric({{183, 150}});
    Cut(metres, Centimetres("183"), true);
    EXPECT_EQ(Format(TotalRoll(metres.State, metres.Engine).Size.SquareMeters, "#,##0.00"), "2.74");
}

} // namespace
} // namespace tarn
