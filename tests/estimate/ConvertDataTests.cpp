#include "app/Lengths.h"
#include "estimate/EstimateTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

using testing::AcrossAlong;
using testing::BothLays;
using testing::BothUnits;
using testing::Centimetres;
using testing::Corners;
using testing::Cut;
using testing::Cuts;
using ::testing::ElementsAre;
using testing::ExpectEmpty;
using testing::Imperial;
using ::testing::IsEmpty;
using testing::Job;
using testing::Metric;
using testing::Pieces;
using testing::Turned;

//      0        144       288   360
//    0 +---------+---------+-----+
//      |  Cut1   |  Cut2   |  A  |
//  120 +---------+---------+-----+
TEST(ConvertData, DownLayCutsTheWidthAcrossTheRoll) {
    Job job = Imperial({{360, 120}});
    EXPECT_EQ(Cut(job, 144, true), ConvertResult::Fills);
    EXPECT_THAT(Cuts(job),
                ElementsAre(Corners{0, 14400, 0, 12000}, Corners{14400, 28800, 0, 12000}));
    EXPECT_THAT(Pieces(job), ElementsAre(Corners{28800, 36000, 0, 12000}));
}

//      0         360
//    0 +---------+
//      |  Cut1   |
//   72 +---------+
//      |    A    |
//  120 +---------+
TEST(ConvertData, CrossLayCutsTheLengthAcrossTheRoll) {
    Job job = Imperial({{360, 120}});
    EXPECT_EQ(Cut(job, 72, false), ConvertResult::Fills);
    EXPECT_THAT(Cuts(job), ElementsAre(Corners{0, 36000, 0, 7200}));
    EXPECT_THAT(Pieces(job), ElementsAre(Corners{0, 36000, 7200, 12000}));
}

TEST(ConvertData, BeginsAtTheRoomsNearCorner) {
    for (const bool downLay : BothLays) {
        SCOPED_TRACE(downLay ? "down lay" : "cross lay");
        Job job = Imperial({{200, 200}});
        Cut(job, 144, downLay);
        job.State.RoomX(0, 0) = 100;
        job.State.RoomX(0, 1) = 20100;
        job.State.RoomY(0, 0) = 300;
        job.State.RoomY(0, 1) = 20300;
        ConvertData(job.State, job.Engine, job.Estimate, downLay);
        EXPECT_THAT(Cuts(job), ElementsAre(downLay ? Corners{100, 14500, 300, 20300}
                                                   : Corners{100, 20100, 300, 14700}));
        EXPECT_THAT(Pieces(job), ElementsAre(downLay ? Corners{14500, 20100, 300, 20300}
                                                     : Corners{100, 20100, 14700, 20300}));
    }
}

TEST(ConvertData, ARoomOfExactlyTwoRollWidthsGivesTwoCutsAndNoPiece) {
    for (const Single roll : {72.0F, 144.0F, 162.0F, 180.0F, 150.0F, 37.5F}) {
        for (const bool downLay : BothLays) {
            SCOPED_TRACE(::testing::Message() << roll << (downLay ? " down" : " cross"));
            Job job;
            job.Add(AcrossAlong(downLay, static_cast<int>(2 * roll), 90));
            EXPECT_EQ(Cut(job, roll, downLay), ConvertResult::CutsOnly);
            ASSERT_EQ(Cuts(job).size(), 2U);
            const Single edge = 100 * roll;
            EXPECT_EQ(Turned(Cuts(job)[0], downLay), (Corners{0, edge, 0, 9000}));
            EXPECT_EQ(Turned(Cuts(job)[1], downLay), (Corners{edge, 2 * edge, 0, 9000}));
            EXPECT_THAT(Pieces(job), IsEmpty());
        }
    }
}

TEST(ConvertData, AnInchMoreThanTwoRollWidthsGivesTwoCutsAndAPieceOneInchWide) {
    for (const Single roll : {72.0F, 144.0F, 162.0F, 180.0F, 150.0F, 37.5F}) {
        for (const bool downLay : BothLays) {
            SCOPED_TRACE(::testing::Message() << roll << (downLay ? " down" : " cross"));
            Job job;
            job.Add(AcrossAlong(downLay, static_cast<int>(2 * roll) + 1, 90));
            EXPECT_EQ(Cut(job, roll, downLay), ConvertResult::Fills);
            EXPECT_EQ(job.State.ECutCount, 2);
            ASSERT_EQ(Pieces(job).size(), 1U);
            EXPECT_EQ(Turned(Pieces(job)[0], downLay),
                      (Corners{200 * roll, 200 * roll + 100, 0, 9000}));
        }
    }
}

TEST(ConvertData, RoomsNarrowerThanTheRollGiveOnlyPieces) {
    for (const bool downLay : BothLays) {
        Job job;
        job.Add(AcrossAlong(downLay, 143, 300));
        job.Add(AcrossAlong(downLay, 1, 150));
        EXPECT_EQ(Cut(job, 144, downLay), ConvertResult::Fills);
        EXPECT_THAT(Cuts(job), IsEmpty());
        ASSERT_EQ(Pieces(job).size(), 2U);
        EXPECT_EQ(Turned(Pieces(job)[0], downLay), (Corners{0, 14300, 0, 30000}));
        EXPECT_EQ(Turned(Pieces(job)[1], downLay), (Corners{0, 100, 0, 15000}));
    }
}

TEST(ConvertData, ARoomAsWideAsTheRollGivesOneCut) {
    for (const bool downLay : BothLays) {
        Job job;
        job.Add(AcrossAlong(downLay, 144, 300));
        EXPECT_EQ(Cut(job, 144, downLay), ConvertResult::CutsOnly);
        EXPECT_EQ(job.State.ECutCount, 1);
    }
}

TEST(ConvertData, NoRoomGivesNothing) {
    Job none;
    EXPECT_EQ(Cut(none, 144, true), ConvertResult::Nothing);
    ExpectEmpty(none);
}

TEST(ConvertData, RoomsOfOtherCarpetsAndTilesAreIgnored) {
    Job job = Imperial({{150, 100, 0}, {200, 110, 2}, {150, 100, 7}, {150, 100, 8}, {150, 9, 11}});
    EXPECT_EQ(Cut(job, 144, true, 2), ConvertResult::Fills);
    EXPECT_THAT(Cuts(job), ElementsAre(Corners{0, 14400, 0, 11000}));
    EXPECT_THAT(Pieces(job), ElementsAre(Corners{14400, 20000, 0, 11000}));
    EXPECT_EQ(Cut(job, 144, true, 1), ConvertResult::Nothing);
    ExpectEmpty(job);
}

TEST(ConvertData, OnlyTileRoomsGiveNothingForACarpet) {
    Job job = Imperial({{150, 100, 8}, {150, 100, 11}});
    for (Byte carpet = 0; carpet < FirstTileCode; ++carpet) {
        EXPECT_EQ(Cut(job, 144, true, carpet), ConvertResult::Nothing);
    }
}

TEST(ConvertData, RoomsBeyondTheCountInUseAreIgnored) {
    Job job = Imperial({{150, 100}, {200, 110}});
    job.State.ObjNum = 1;
    Cut(job, 144, true);
    EXPECT_EQ(job.State.ECutCount, 1);
    EXPECT_EQ(job.Engine.PieceCount, 1);
}

TEST(ConvertData, RoomsWithASizeOfZeroOrLessAreNotCut) {
    for (const bool metric : BothUnits) {
        for (const bool downLay : BothLays) {
            Job job(metric, {{0, 500}, {500, 0}, {0, 0}, {-500, 500}, {500, -500}, {-500, -500}});
            EXPECT_EQ(Cut(job, 144, downLay), ConvertResult::Nothing);
            ExpectEmpty(job);
        }
    }
}

// The two halves of a coordinate unit on either side of the roll's width.
TEST(ConvertData, AWidthWithinHalfAUnitOfTheRollIsTheRollsWidth) {
    for (const bool downLay : BothLays) {
        Job job = Imperial({{144, 144}});
        EXPECT_EQ(Cut(job, 143.996F, downLay), ConvertResult::CutsOnly);
        EXPECT_EQ(job.State.ECutCount, 1);
        EXPECT_EQ(Cut(job, 144.004F, downLay), ConvertResult::CutsOnly);
        EXPECT_EQ(job.State.ECutCount, 1);

        EXPECT_EQ(Cut(job, 143.994F, downLay), ConvertResult::Fills);
        EXPECT_EQ(job.State.ECutCount, 1);
        EXPECT_EQ(job.Engine.PieceCount, 1);
        EXPECT_EQ(Cut(job, 144.006F, downLay), ConvertResult::Fills);
        EXPECT_EQ(job.State.ECutCount, 0);
        EXPECT_EQ(job.Engine.PieceCount, 1);
    }
}

// Every standard metric roll, up to 20 widths of it: rounding to inches neither loses a cut nor
// leaves a sliver.
TEST(ConvertData, MetricMultiplesOfTheRollGiveExactlyThatManyCuts) {
    for (const int roll : {183, 366, 411, 457}) {
        for (const bool downLay : BothLays) {
            Job job = Metric({{1, 1}});
            for (int m = 1; m <= 20; ++m) {
                SCOPED_TRACE(::testing::Message() << m << " x " << roll << " cm");
                const testing::Room room = AcrossAlong(downLay, m * roll, 500);
                job.State.RoomWidth[0] = static_cast<Integer>(room.Width);
                job.State.RoomLength[0] = static_cast<Integer>(room.Length);
                EXPECT_EQ(Cut(job, Centimetres(std::to_string(roll)), downLay),
                          ConvertResult::CutsOnly);
                EXPECT_EQ(job.State.ECutCount, m);
                EXPECT_EQ(job.Engine.PieceCount, 0);
            }
        }
    }
}

// The extents that a project's opening builds hold centimetres for inches until the metric switch
// is set; rebuilding puts them right.
TEST(ConvertData, MetricMultiplesHoldAfterExtentsWereBuiltInTheOtherUnit) {
    for (const int roll : {183, 366, 411, 457}) {
        Job job;
        for (int m = 1; m <= 20; ++m) {
            job.Add({m * roll, 500});
        }
        BuildAllRoomExtents(job.State);
        job.State.MetricFlag = 1;
        EXPECT_EQ(Cut(job, Centimetres(std::to_string(roll)), true), ConvertResult::CutsOnly);
        EXPECT_EQ(job.State.ECutCount, 20 * 21 / 2);
    }
}

TEST(ConvertData, ACentimetreMoreThanAMultipleLeavesAPieceOneCentimetreWide) {
    for (const bool downLay : BothLays) {
        Job job(true);
        job.Add(AcrossAlong(downLay, 7 * 411 + 1, 500));
        EXPECT_EQ(Cut(job, Centimetres("411"), downLay), ConvertResult::Fills);
        EXPECT_EQ(job.State.ECutCount, 7);
        ASSERT_EQ(job.Engine.PieceCount, 1);
        const Corners piece = Turned(Pieces(job)[0], downLay);
        EXPECT_NEAR(piece[1] - piece[0], 100 / 2.54, 0.5);
        EXPECT_EQ(WholeCentimetres((piece[1] - piece[0]) * 0.01), 1);
    }
}

TEST(ConvertData, CutEdgesAreMultiplesOfTheRollRoundedOnce) {
    Job job = Metric({{5 * 457 + 100, 300}});
    const Single roll = Centimetres("457");
    Cut(job, roll, true);
    ASSERT_EQ(job.State.ECutCount, 5);
    for (Integer k = 0; k < 5; ++k) {
        const double left = (k * static_cast<double>(roll)) / 0.01;
        const double right = ((k + 1) * static_cast<double>(roll)) / 0.01;
        EXPECT_EQ(job.State.ECutX1[k], static_cast<float>(left));
        EXPECT_EQ(job.State.ECutX2[k], static_cast<float>(right));
    }
    EXPECT_EQ(job.Engine.PCX1[0], job.State.ECutX2[4]);
    EXPECT_EQ(job.Engine.PCX2[0], job.State.RoomX(0, 1));
}

} // namespace
} // namespace tarn
