#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "estimate/MakeEstimate.h"
#include "estimate/MinCuts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>
#include <stdexcept>

namespace tarn {
namespace {

using testing::EdgesOf;
using ::testing::ElementsAre;
using testing::ErrorOf;
using testing::Estimated;
using testing::EstimateOf;
using ::testing::IsEmpty;
using testing::MetricRequest;
using testing::ProjectOf;
using testing::Request;
using testing::WithCarpet;
using testing::WithParts;
using testing::WithRepeat;

//      0     36                144
//    0 +-----+-----------------+
//      |  A  |        B        |
TEST(MakeEstimate, DownLayCutsTheRoomsAndLaysOutTheFills) {
    const Estimate estimate = Estimated({{180, 144}, {108, 144}}, Request(144));
    EXPECT_THAT(estimate.Cuts, ElementsAre(Cut{0, 14400, 0, 14400}));
    const std::vector<Placed>& layout = estimate.Fills.Layout;
    EXPECT_THAT(EdgesOf(layout), ElementsAre(Cut{14400, 18000, 0, 14400}, Cut{0, 10800, 0, 14400}));
    EXPECT_EQ(estimate.Job.Direction, Lay::Down);
    EXPECT_EQ(estimate.Fills.Length, 144);
    ASSERT_EQ(layout.size(), 2U);
    EXPECT_EQ(layout[0].Width, 36);
    EXPECT_EQ(layout[0].Length, 144);
    EXPECT_EQ(layout[0].Y, 0);
    EXPECT_EQ(layout[1].Y, 0);
}

TEST(MakeEstimate, CrossLayHandsTheFillsBackInTheRoomsOrientation) {
    const Estimate estimate = Estimated({{130, 180}, {150, 108}}, Request(144, Lay::Cross));
    EXPECT_THAT(estimate.Cuts, ElementsAre(Cut{0, 13000, 0, 14400}));
    const std::vector<Placed>& layout = estimate.Fills.Layout;
    EXPECT_THAT(EdgesOf(layout), ElementsAre(Cut{0, 13000, 14400, 18000}, Cut{0, 15000, 0, 10800}));
    EXPECT_EQ(estimate.Job.Direction, Lay::Cross);
    ASSERT_EQ(layout.size(), 2U);
    EXPECT_EQ(layout[0].Width, 36);
    EXPECT_EQ(layout[0].Length, 130);
    EXPECT_EQ(layout[1].Width, 108);
    EXPECT_EQ(layout[1].Length, 150);
    EXPECT_EQ(estimate.Fills.Length, 150);
}

// The same rooms in the other units: only the request tells.
TEST(MakeEstimate, ReadsTheRoomsInTheUnitsOfTheRequest) {
    const Project project = ProjectOf({{366, 500}});
    const Estimate metric = EstimateOf(project, MetricRequest("366"));
    EXPECT_EQ(metric.Cuts.size(), 1U);
    EXPECT_THAT(metric.Fills.Layout, IsEmpty());
    const Estimate imperial = EstimateOf(project, Request(144));
    EXPECT_EQ(imperial.Cuts.size(), 2U);
    EXPECT_EQ(imperial.Fills.Layout.size(), 1U);
}

TEST(MakeEstimate, MetricStripsThatFillTheRollLieSideBySide) {
    const Estimate estimate = Estimated({{100, 500}, {266, 500}}, MetricRequest("366"));
    ASSERT_EQ(estimate.Fills.Layout.size(), 2U);
    EXPECT_EQ(estimate.Fills.Layout[0].Y, 0);
    EXPECT_EQ(estimate.Fills.Layout[1].Y, 0);
    EXPECT_EQ(estimate.Fills.BestLength, 197);
    EXPECT_EQ(estimate.Fills.Length, 198);
}

TEST(MakeEstimate, KeepsTheRequestAndTheJobOfTheSearch) {
    Project project = ProjectOf({{100, 100, 4}});
    project.Name = "MAPLE HOUSE";
    EstimateRequest request = WithCarpet(Request(162, Lay::Cross), 4);
    request = WithRepeat(WithParts(request, MinCut::HalfFoot, 2), 18, 24);
    const Estimate estimate = EstimateOf(project, request);
    EXPECT_EQ(estimate.ProjectName, "MAPLE HOUSE");
    EXPECT_EQ(estimate.Request, request);
    EXPECT_EQ(estimate.Job.RollWidth, 162);
    EXPECT_EQ(estimate.Job.Direction, Lay::Cross);
    EXPECT_EQ(estimate.Job.Scale, 0.01);
    EXPECT_EQ(estimate.Job.MostParts, 2);
    EXPECT_EQ(estimate.Job.MinCut, 50);
    EXPECT_FALSE(estimate.Improved.has_value());
}

TEST(MakeEstimate, ASearchThatDividesFillsLeavesThemWholeInTheJob) {
    const Estimate estimate = Estimated({{72, 200}}, WithParts(Request(144), MinCut::ThreeFeet, 2));
    EXPECT_EQ(estimate.Fills.Layout.size(), 2U);
    EXPECT_THAT(EdgesOf(estimate.Job.Pieces), ElementsAre(Cut{0, 7200, 0, 20000}));
}

TEST(MakeEstimate, ACarpetWithoutFillsHasNoLayoutAndNoLength) {
    const Project project = ProjectOf({{200, 120}, {288, 100, 1}});
    ASSERT_GT(EstimateOf(project, Request(144)).Fills.Length, 0);
    const Estimate cutsOnly = EstimateOf(project, WithCarpet(Request(144), 1));
    EXPECT_EQ(cutsOnly.Cuts.size(), 2U);
    EXPECT_THAT(cutsOnly.Job.Pieces, IsEmpty());
    EXPECT_EQ(cutsOnly.Fills, SearchResult());
    EXPECT_FALSE(HasNothingToCut(cutsOnly));
}

TEST(MakeEstimate, ACarpetWithoutAnAreaHasNothingToCut) {
    const Estimate estimate = Estimated({{0, 120}, {144, 100, 8}}, Request(144));
    EXPECT_TRUE(HasNothingToCut(estimate));
    EXPECT_EQ(estimate.Fills, SearchResult());
}

TEST(MakeEstimate, HasTheTilesThatHaveRoomsAndTheBaseOfAllRooms) {
    const Estimate estimate =
        Estimated({{144, 100, 0, 1}, {20, 30, 11, 3}, {10, 10, 9}, {100, 50, 11}}, Request(144));
    ASSERT_EQ(estimate.Tiles.size(), 2U);
    EXPECT_EQ(estimate.Tiles[0], (TileFloor{9, 100, 40}));
    EXPECT_EQ(estimate.Tiles[1], (TileFloor{11, 5600, 400}));
    EXPECT_EQ(estimate.Base, 144 + 30);
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
    void Ended() noexcept override { Over = true; }
};

TEST(MakeEstimate, DoesNotSearchWithoutFills) {
    Watcher watcher;
    MakeEstimate(ProjectOf({{144, 100}}), Request(144), watcher);
    MakeEstimate(ProjectOf({{144, 100, 8}}), Request(144), watcher);
    EXPECT_EQ(watcher.Calls, 0);
    EXPECT_FALSE(watcher.Over);
}

TEST(MakeEstimate, ASearchThatTheObserverStopsIsRaised) {
    for (const Long stop : {1, 2, 6}) {
        Watcher watcher;
        watcher.StopAt = stop;
        EXPECT_THROW(MakeEstimate(ProjectOf({{200, 120}, {100, 100}}), Request(144), watcher),
                     SearchStopped);
        EXPECT_TRUE(watcher.Over);
    }
}

TEST(MakeEstimate, PassesOnWhatTheObserverRaises) {
    Watcher watcher;
    watcher.FailAt = 2;
    EXPECT_THROW(MakeEstimate(ProjectOf({{200, 120}, {100, 100}}), Request(144), watcher),
                 std::domain_error);
    EXPECT_TRUE(watcher.Over);
}

TEST(MakeEstimate, CanBeMadeAgainAfterAStop) {
    const Project project = ProjectOf({{180, 144}, {108, 144}});
    Watcher watcher;
    watcher.StopAt = 2;
    EXPECT_THROW(MakeEstimate(project, Request(144), watcher), SearchStopped);
    const Estimate estimate = EstimateOf(project, Request(144));
    EXPECT_EQ(estimate.Fills.Length, 144);
    EXPECT_EQ(estimate.Fills.Layout.size(), 2U);
}

TEST(MakeEstimate, FillsLongerThanAnIntegerAreRefusedWithTheWayOut) {
    const RunTimeError error = ErrorOf([&] {
        Estimated({{100, 32000}, {100, 32000}}, Request(144));
    });
    EXPECT_EQ(error.Number(), OverflowNumber);
    EXPECT_EQ(error.Advice(), "The fills need more than 32767 inches of roll: estimate the rooms "
                              "in two projects.");
}

// Half a foot counts as half an inch: 0 units of more than that.
TEST(MakeEstimate, AMinimumCutOfNothingIsAnErrorWhenThereAreFills) {
    Project project = ProjectOf({{200, 120}, {144, 100, 1}});
    project.Scale = 1;
    const EstimateRequest request = WithParts(Request(144), MinCut::HalfFoot, 2);
    EXPECT_EQ(ErrorOf([&] { EstimateOf(project, request); }).Number(), DivisionByZeroNumber);
    EXPECT_EQ(EstimateOf(project, WithCarpet(request, 1)).Cuts.size(), 1U);
}

TEST(MakeEstimate, AFailureLeavesTheEstimateInHandUntouched) {
    const Project project = ProjectOf({{200, 120}, {100, 100}});
    Estimate inHand = EstimateOf(project, Request(144));
    const Estimate before = inHand;
    Project unusable = project;
    unusable.Scale = 0;
    EXPECT_THROW(inHand = EstimateOf(unusable, Request(144)), RunTimeError);
    EXPECT_EQ(inHand, before);
    EXPECT_THROW(inHand = EstimateOf(project, Request(0)), RunTimeError);
    EXPECT_EQ(inHand, before);
    Watcher watcher;
    watcher.StopAt = 2;
    EXPECT_THROW(inHand = MakeEstimate(project, Request(162), watcher), SearchStopped);
    EXPECT_EQ(inHand, before);
    Watcher failing;
    failing.FailAt = 2;
    EXPECT_THROW(inHand = MakeEstimate(project, Request(162), failing), std::domain_error);
    EXPECT_EQ(inHand, before);
}

/// Random projects and requests, and what each asks for made alone.
struct RandomJob {
    Project Rooms;
    EstimateRequest Asked;
};

RandomJob RandomJobOf(unsigned seed) {
    std::mt19937 random(seed);
    RandomJob job;
    job.Asked.In = seed % 2 == 0 ? Units::Metric : Units::Imperial;
    job.Asked.Direction = seed % 3 == 0 ? Lay::Cross : Lay::Down;
    job.Asked.RollWidth = testing::RandomRollWidth(random, job.Asked.In);
    job.Asked.ShortestPart =
        AllMinCuts.at(static_cast<std::size_t>(testing::Between(random, 0, 2)));
    job.Asked.PiecesPerFill = static_cast<Integer>(testing::Between(random, 1, 4));
    job.Rooms = testing::RandomProject(random, job.Asked.In, job.Asked.RollWidth, 7);
    return job;
}

TEST(MakeEstimate, ACopyOfAnEstimateEqualsItAndChangesAlone) {
    int withFills = 0;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        const RandomJob job = RandomJobOf(seed);
        const Estimate estimate = EstimateOf(job.Rooms, job.Asked);
        Estimate copy = estimate;
        ASSERT_EQ(copy, estimate);
        ASSERT_EQ(CutListLines(copy), CutListLines(estimate));
        if (copy.Fills.Layout.empty()) {
            continue;
        }
        ++withFills;
        copy.Fills.Layout.back().X += 1;
        EXPECT_NE(copy, estimate);
        EXPECT_EQ(estimate, EstimateOf(job.Rooms, job.Asked));
    }
    EXPECT_GT(withFills, 100);
}

/// Makes another estimate in the midst of its own search.
class Interrupter : public SearchObserver {
  public:
    explicit Interrupter(const RandomJob& other)
        : other_(other) {}

    bool Scored(Long done) override {
        if (done == 1) {
            Made = EstimateOf(other_.Rooms, other_.Asked);
        }
        return true;
    }

    std::optional<Estimate> Made;

  private:
    const RandomJob& other_;
};

TEST(MakeEstimate, TwoEstimatesOfOneProjectStandSideBySide) {
    int interrupted = 0;
    for (unsigned seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        const RandomJob job = RandomJobOf(seed);
        RandomJob other = job;
        other.Asked.Direction = job.Asked.Direction == Lay::Down ? Lay::Cross : Lay::Down;
        const Estimate alone = EstimateOf(job.Rooms, job.Asked);
        const Estimate otherAlone = EstimateOf(other.Rooms, other.Asked);

        Interrupter interrupter(other);
        ASSERT_EQ(MakeEstimate(job.Rooms, job.Asked, interrupter), alone);
        if (interrupter.Made) {
            ++interrupted;
            ASSERT_EQ(*interrupter.Made, otherAlone);
        }
    }
    EXPECT_GT(interrupted, 30);
}

TEST(MakeEstimate, TwoThreadsMakeTheSameAsOne) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        const RandomJob job = RandomJobOf(seed);
        const RandomJob other = RandomJobOf(seed + 1000);
        auto made =
            std::async(std::launch::async, [&] { return EstimateOf(job.Rooms, job.Asked); });
        const Estimate otherMade = EstimateOf(other.Rooms, other.Asked);
        EXPECT_EQ(made.get(), EstimateOf(job.Rooms, job.Asked));
        EXPECT_EQ(otherMade, EstimateOf(other.Rooms, other.Asked));
    }
}

} // namespace
} // namespace tarn
