#include "estimate/EstimateTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Corners;
using testing::Cut;
using testing::Cuts;
using ::testing::ElementsAre;
using testing::ErrorOf;
using testing::ExpectEmpty;
using testing::Imperial;
using testing::Job;
using testing::MakeEstimate;
using testing::Pieces;
using testing::Request;

/// An estimate with cuts, pieces and a layout.
Job Estimated() {
    Job job = Imperial({{200, 120}, {100, 110}, {50, 60}});
    MakeEstimate(job, Request(144));
    return job;
}

TEST(ConvertData, PiecesOfDownLayCarryLayBitZero) {
    Job job = Imperial({{200, 120}, {100, 110}});
    Cut(job, 144, true);
    ASSERT_EQ(job.Engine.PieceCount, 2);
    for (Integer i = 0; i < 2; ++i) {
        EXPECT_EQ(job.Engine.PCTurn[i], 0);
        EXPECT_EQ(job.Engine.OrgPC[i], i);
        EXPECT_EQ(job.Engine.PCDivide[i], 1);
    }
}

TEST(ConvertData, PiecesOfCrossLayCarryLayBitOne) {
    Job job = Imperial({{120, 200}, {100, 110}});
    Cut(job, 144, false);
    ASSERT_EQ(job.Engine.PieceCount, 2);
    for (Integer i = 0; i < 2; ++i) {
        EXPECT_EQ(job.Engine.PCTurn[i], 1);
        EXPECT_EQ(job.Engine.OrgPC[i], i);
        EXPECT_EQ(job.Engine.PCDivide[i], 1);
    }
}

TEST(ConvertData, WithPiecesTheSearchMayBegin) {
    Job job = Imperial({{200, 120}, {100, 110}});
    job.Engine.FillFlag = 0;
    Cut(job, 144, true);
    EXPECT_EQ(job.Engine.OrgCount, 2);
    EXPECT_EQ(job.Engine.FillFlag, 1);
    EXPECT_EQ(job.Engine.PosCount, 0);
}

TEST(ConvertData, KeepsACopyOfThePieces) {
    Job job = Imperial({{200, 120}, {100, 110}});
    Cut(job, 144, true);
    EXPECT_EQ(job.Estimate.SavedFillCount, 2);
    EXPECT_EQ(testing::RowsOf(job.Estimate.SavedFills, 2), Pieces(job));
    for (Integer i = 0; i < 2; ++i) {
        EXPECT_EQ(job.Estimate.SavedFills.OrgPC[i], i);
        EXPECT_EQ(job.Estimate.SavedFills.PCDivide[i], 1);
        EXPECT_EQ(job.Estimate.SavedFills.PCTurn[i], job.Engine.PCTurn[i]);
        EXPECT_EQ(job.Estimate.SavedFills.PCOrder[i], job.Engine.PCOrder[i]);
    }
}

TEST(ConvertData, ASearchThatDividesPiecesLeavesTheCopyAlone) {
    Job job = Imperial({{72, 200}});
    MakeEstimate(job, Request(144, true, PackEstOption(0, 2)));
    ASSERT_EQ(job.Engine.PieceCount, 2);
    EXPECT_EQ(job.Estimate.SavedFillCount, 1);
    EXPECT_EQ(testing::RowsOf(job.Estimate.SavedFills, 1)[0], (Corners{0, 7200, 0, 20000}));
}

TEST(ConvertData, CallingItAgainStartsAfresh) {
    Job job = Estimated();
    ASSERT_GT(job.Engine.PosCount, 0);
    EXPECT_EQ(Cut(job, 72, true), ConvertResult::Fills);
    EXPECT_THAT(Cuts(job), ElementsAre(Corners{0, 7200, 0, 12000}, Corners{7200, 14400, 0, 12000},
                                       Corners{0, 7200, 0, 11000}));
    EXPECT_THAT(Pieces(job),
                ElementsAre(Corners{14400, 20000, 0, 12000}, Corners{7200, 10000, 0, 11000},
                            Corners{0, 5000, 0, 6000}));
    EXPECT_EQ(job.Engine.PosCount, 0);
    EXPECT_EQ(job.Engine.BestLen, 0);
    EXPECT_EQ(job.Engine.ResultLen, 0);
    EXPECT_EQ(job.Engine.CaseCount, 0);
}

TEST(ConvertData, ACarpetWithoutFillsDoesNotCarryAnothersFillLength) {
    Job job = Estimated();
    ASSERT_GT(job.Engine.ResultLen, 0);
    job.Add({288, 100, 1});
    EXPECT_EQ(Cut(job, 144, true, 1), ConvertResult::CutsOnly);
    EXPECT_EQ(job.Engine.ResultLen, 0);
    EXPECT_EQ(job.Engine.BestLen, 0);
    EXPECT_EQ(job.Estimate.SavedFillCount, 0);
}

TEST(ConvertData, ThreeThousandAndOneCutsAreTheMost) {
    Job job = Imperial({{3001, 50}});
    EXPECT_EQ(Cut(job, 1, true), ConvertResult::CutsOnly);
    EXPECT_EQ(job.State.ECutCount, 3001);
    EXPECT_EQ(job.State.ECutX2[3000], 300100);
}

TEST(ConvertData, OneCutMoreIsASubscriptErrorThatSaysTheWayOutAndLeavesNothing) {
    for (const bool downLay : testing::BothLays) {
        Job job = Estimated();
        job.Add({3002, 3002});
        const RunTimeError error = ErrorOf([&] { Cut(job, 1, downLay); });
        EXPECT_EQ(error.Number(), SubscriptNumber);
        EXPECT_EQ(error.Advice(), "There are more than 3001 cuts: choose a wider roll or estimate "
                                  "the rooms in two projects.");
        ExpectEmpty(job);
    }
}

TEST(ConvertData, ARollWithoutWidthIsAnErrorAndLeavesNothing) {
    for (const Single roll : {0.0F, -144.0F}) {
        Job job = Estimated();
        EXPECT_EQ(ErrorOf([&] { Cut(job, roll, true); }).Number(), SubscriptNumber);
        ExpectEmpty(job);
    }
}

TEST(EmptyEstimate, TakesEveryResultAway) {
    Job job = Estimated();
    ASSERT_GT(job.State.ECutCount, 0);
    ASSERT_GT(job.Engine.PieceCount, 0);
    ASSERT_GT(job.Engine.CaseCount, 0);
    EmptyEstimate(job.State, job.Engine, job.Estimate);
    ExpectEmpty(job);
}

TEST(EmptyEstimate, KeepsChoicesAndRooms) {
    Job job = Estimated();
    job.Estimate.MatchFlag = true;
    job.Estimate.MatchLength = 24;
    EmptyEstimate(job.State, job.Engine, job.Estimate);
    EXPECT_EQ(job.Estimate.CarpetNo, 0);
    EXPECT_TRUE(job.Estimate.MatchFlag);
    EXPECT_EQ(job.Estimate.MatchLength, 24);
    EXPECT_EQ(job.Engine.RollWidth, 144);
    EXPECT_EQ(job.State.ObjNum, 3);
    EXPECT_EQ(job.State.RoomWidth[0], 200);
}

TEST(CarpetEstimate, BeginsWithNoCarpetChosen) {
    EXPECT_EQ(CarpetEstimate().CarpetNo, 99);
    EXPECT_FALSE(CarpetEstimate().MatchFlag);
}

} // namespace
} // namespace tarn
