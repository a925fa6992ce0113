#include "estimate/EstimateTesting.h"
#include "estimate/RunEstimate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace {

using testing::Centimetres;
using testing::Corners;
using testing::Cuts;
using ::testing::ElementsAre;
using testing::ErrorOf;
using testing::ExpectEmpty;
using testing::Imperial;
using testing::Job;
using testing::MakeEstimate;
using testing::Metric;
using testing::Pieces;
using testing::Request;

ConvertResult RunWith(Job& job, const EstimateRequest& request, SearchObserver& observer) {
    return RunEstimate(job.State, job.Engine, job.Estimate, request, observer);
}

//      0     36                144
//    0 +-----+-----------------+
//      |  A  |        B        |
TEST(RunEstimate, DownLayCutsTheRoomsAndLaysOutThePieces) {
    Job job = Imperial({{180, 144}, {108, 144}});
    EXPECT_EQ(MakeEstimate(job, Request(144)), ConvertResult::Fills);
    EXPECT_THAT(Cuts(job), ElementsAre(Corners{0, 14400, 0, 14400}));
    EXPECT_THAT(Pieces(job),
                ElementsAre(Corners{14400, 18000, 0, 14400}, Corners{0, 10800, 0, 14400}));
    EXPECT_EQ(job.Engine.LayDir, 0);
    EXPECT_EQ(job.Engine.ResultLen, 144);
    ASSERT_EQ(job.Engine.PosCount, 2);
    EXPECT_EQ(job.Engine.PosW[0], 36);
    EXPECT_EQ(job.Engine.PosL[0], 144);
    EXPECT_EQ(job.Engine.PosY[0], 0);
    EXPECT_EQ(job.Engine.PosY[1], 0);
}

TEST(RunEstimate, CrossLayHandsThePiecesBackInTheRoomsOrientation) {
    Job job = Imperial({{130, 180}, {150, 108}});
    EXPECT_EQ(MakeEstimate(job, Request(144, false)), ConvertResult::Fills);
    EXPECT_THAT(Cuts(job), ElementsAre(Corners{0, 13000, 0, 14400}));
    EXPECT_THAT(Pieces(job),
                ElementsAre(Corners{0, 13000, 14400, 18000}, Corners{0, 15000, 0, 10800}));
    EXPECT_EQ(job.Engine.LayDir, 1);
    ASSERT_EQ(job.Engine.PosCount, 2);
    EXPECT_EQ(job.Engine.PosW[0], 36);
    EXPECT_EQ(job.Engine.PosL[0], 130);
    EXPECT_EQ(job.Engine.PosW[1], 108);
    EXPECT_EQ(job.Engine.PosL[1], 150);
    EXPECT_EQ(job.Engine.ResultLen, 150);
}

TEST(RunEstimate, RebuildsTheRoomsUnderTheUnitInForce) {
    Job job = Imperial({{366, 500}});
    BuildAllRoomExtents(job.State);
    job.State.MetricFlag = 1;
    EXPECT_EQ(MakeEstimate(job, Request(Centimetres("366"))), ConvertResult::CutsOnly);
    EXPECT_EQ(job.State.ECutCount, 1);
}

TEST(RunEstimate, MetricStripsThatFillTheRollLieSideBySide) {
    Job job = Metric({{100, 500}, {266, 500}});
    EXPECT_EQ(MakeEstimate(job, Request(Centimetres("366"))), ConvertResult::Fills);
    ASSERT_EQ(job.Engine.PosCount, 2);
    EXPECT_EQ(job.Engine.PosY[0], 0);
    EXPECT_EQ(job.Engine.PosY[1], 0);
    EXPECT_EQ(job.Engine.BestLen, 197);
    EXPECT_EQ(job.Engine.ResultLen, 198);
}

TEST(RunEstimate, StoresTheChoices) {
    Job job = Imperial({{100, 100, 4}});
    EstimateRequest request = Request(162, false, 21);
    request.Carpet = 4;
    request.Match = EstimateRequest::Repeat{"18", "24"};
    MakeEstimate(job, request);
    EXPECT_EQ(job.Estimate.CarpetNo, 4);
    EXPECT_EQ(job.Engine.RollWidth, 162);
    EXPECT_EQ(job.Engine.LayDir, 1);
    EXPECT_EQ(job.State.EstOption, 21);
    EXPECT_TRUE(job.Estimate.MatchFlag);
    EXPECT_EQ(job.Estimate.MatchWidth, 18);
    EXPECT_EQ(job.Estimate.MatchLength, 24);
}

TEST(RunEstimate, WithoutARepeatTheSizesOfTheLastOneStay) {
    Job job = Imperial({{100, 100}});
    EstimateRequest request = Request(144);
    request.Match = EstimateRequest::Repeat{"18", "24"};
    MakeEstimate(job, request);
    MakeEstimate(job, Request(144));
    EXPECT_FALSE(job.Estimate.MatchFlag);
    EXPECT_EQ(job.Estimate.MatchWidth, 18);
    EXPECT_EQ(job.Estimate.MatchLength, 24);
}

TEST(RunEstimate, ReadsTheRepeatInTheUnitInForce) {
    Job job = Metric({{100, 100}});
    EstimateRequest request = Request(144);
    request.Match = EstimateRequest::Repeat{"30", "64"};
    MakeEstimate(job, request);
    EXPECT_EQ(job.Estimate.MatchWidth, 12);
    EXPECT_EQ(job.Estimate.MatchWidthCm, 30);
    EXPECT_EQ(job.Estimate.MatchLengthCm, 64);
}

class Watcher : public SearchObserver {
  public:
    int Calls = 0;
    bool Over = false;
    Long StopAt = -1;
    Long FailAt = -1;

    void Started(Long maximum) override { Calls += maximum > 0 ? 1 : 0; }
    bool Scored(Long done) override {
        ++Calls;
        if (done == FailAt) {
            throw std::domain_error("the watcher failed");
        }
        return done != StopAt;
    }
    void Finished() override { ++Calls; }
    void Ended() noexcept override { Over = true; }
};

TEST(RunEstimate, DoesNotSearchWithoutPieces) {
    Watcher watcher;
    Job cuts = Imperial({{144, 100}});
    EXPECT_EQ(RunWith(cuts, Request(144), watcher), ConvertResult::CutsOnly);
    Job nothing = Imperial({{144, 100, 8}});
    EXPECT_EQ(RunWith(nothing, Request(144), watcher), ConvertResult::Nothing);
    EXPECT_EQ(watcher.Calls, 0);
    EXPECT_FALSE(watcher.Over);
}

TEST(RunEstimate, AStopByTheObserverLeavesAnEmptyEstimate) {
    for (const Long stop : {1, 2, 6}) {
        Job job = Imperial({{200, 120}, {100, 100}});
        Watcher watcher;
        watcher.StopAt = stop;
        EXPECT_EQ(RunWith(job, Request(144), watcher), ConvertResult::Nothing);
        EXPECT_TRUE(watcher.Over);
        ExpectEmpty(job);
    }
}

TEST(RunEstimate, AnErrorOfTheSearchLeavesAnEmptyEstimate) {
    Job job = Imperial({{200, 120}, {100, 100}});
    EXPECT_EQ(ErrorOf([&] { MakeEstimate(job, Request(144, true, 30)); }).Number(),
              DivisionByZeroNumber);
    ExpectEmpty(job);
    EXPECT_EQ(ErrorOf([&] { MakeEstimate(job, Request(144, true, 40)); }).Number(),
              SubscriptNumber);
    ExpectEmpty(job);
}

TEST(RunEstimate, AnErrorInCuttingLeavesAnEmptyEstimate) {
    Job job = Imperial({{200, 120}, {100, 100}});
    MakeEstimate(job, Request(144));
    EXPECT_EQ(ErrorOf([&] { MakeEstimate(job, Request(0)); }).Number(), SubscriptNumber);
    ExpectEmpty(job);
}

TEST(RunEstimate, AnUnreadableRepeatLeavesAnEmptyEstimate) {
    Job job = Imperial({{200, 120}, {100, 100}});
    MakeEstimate(job, Request(144));
    EstimateRequest request = Request(144);
    request.Match = EstimateRequest::Repeat{"18", "99999"};
    EXPECT_EQ(ErrorOf([&] { MakeEstimate(job, request); }).Number(), OverflowNumber);
    ExpectEmpty(job);
}

TEST(RunEstimate, FillsLongerThanAnIntegerAreRefusedWithTheWayOut) {
    Job job = Imperial({{100, 32000}, {100, 32000}});
    const RunTimeError error = ErrorOf([&] { MakeEstimate(job, Request(144)); });
    EXPECT_EQ(error.Number(), OverflowNumber);
    EXPECT_EQ(error.Advice(), "The fills need more than 32767 inches of roll: estimate the rooms "
                              "in two projects.");
    ExpectEmpty(job);
}

TEST(RunEstimate, AFailureOfTheObserverLeavesAnEmptyEstimate) {
    Job job = Imperial({{200, 120}, {100, 100}});
    Watcher watcher;
    watcher.FailAt = 2;
    EXPECT_THROW(RunWith(job, Request(144), watcher), std::domain_error);
    EXPECT_TRUE(watcher.Over);
    ExpectEmpty(job);
}

TEST(RunEstimate, CanBeRunAgainAfterAStop) {
    Job job = Imperial({{180, 144}, {108, 144}});
    Watcher watcher;
    watcher.StopAt = 2;
    RunWith(job, Request(144), watcher);
    EXPECT_EQ(MakeEstimate(job, Request(144)), ConvertResult::Fills);
    EXPECT_EQ(job.Engine.ResultLen, 144);
    EXPECT_EQ(job.Engine.PosCount, 2);
}

} // namespace
} // namespace tarn
