#include "base/RunTimeError.h"
#include "engine/EngineTesting.h"
#include "engine/Search.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn {
namespace {

using testing::Divisible;
using testing::MakeJob;
using testing::Searched;
using Numbers = std::vector<Integer>;

class Recorder : public SearchObserver {
  public:
    std::vector<std::string> Events;
    Long Maximum = 0;
    std::vector<Long> Done;
    Long StopAfter = -1;

    void Started(Long maximum) override {
        Maximum = maximum;
        Events.emplace_back("started");
    }
    bool Scored(Long done) override {
        Done.push_back(done);
        return done != StopAfter;
    }
    void Ended() noexcept override { Events.emplace_back("ended"); }
};

RunTimeError SearchError(const SearchJob& job) {
    Recorder recorder;
    try {
        Search(job, recorder);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(recorder.Events.back(), "ended");
        return error;
    }
    ADD_FAILURE() << "the search raised nothing";
    return {0, ""};
}

//   0     72    144
//  0+------+------+
//   |  A   |  B   |
// 96+------+------+     a third of the same size goes below
TEST(Search, TwoHalfWidthStripsLieSideBySide) {
    const SearchResult result = Searched(MakeJob(144, {{72, 96}, {72, 96}, {72, 96}}));
    EXPECT_EQ(result.Cases, 1);
    EXPECT_EQ(result.BestLength, 192);
    EXPECT_EQ(result.BestPower, 1);
    EXPECT_EQ(result.Length, 192);
    ASSERT_EQ(result.Layout.size(), 3U);
    EXPECT_EQ(result.Layout[1].X, 72);
    EXPECT_EQ(result.Layout[1].Y, 0);
    EXPECT_EQ(result.Layout[2].Y, 96);
}

// A long strip divided in two fits beside itself.
TEST(Search, DividingALongStripHalvesTheRoll) {
    const SearchResult result = Searched(Divisible(MakeJob(144, {{72, 200}}), 2));
    EXPECT_EQ(result.Cases, 2);
    EXPECT_EQ(result.BestLength, 100);
    EXPECT_EQ(result.BestParts, (Numbers{1}));
    EXPECT_EQ(result.Layout, (std::vector<Placed>{{{0, 7200, 0, 10000}, 0, 0, 72, 100},
                                                  {{0, 7200, 10000, 20000}, 72, 0, 72, 100}}));
}

TEST(Search, WithOnePartPerFillNothingIsEverDivided) {
    const SearchResult result = Searched(MakeJob(144, {{72, 200}, {30, 500}}));
    EXPECT_EQ(result.Cases, 1);
    EXPECT_EQ(result.Layout.size(), 2U);
}

TEST(Search, OfEqualLengthsTheEarlierCaseAndPowerAreKept) {
    const SearchResult result = Searched(Divisible(MakeJob(144, {{144, 90}}), 3));
    EXPECT_EQ(result.Cases, 3);
    EXPECT_EQ(result.BestParts, (Numbers{0})) << "dividing a whole-width piece gains nothing";
    EXPECT_EQ(result.BestPower, 1) << "area comes before the other orders";
    EXPECT_EQ(result.Layout.size(), 1U);
}

TEST(Search, APieceShorterThanTheMinimumCutStillGetsALayout) {
    const SearchResult result = Searched(Divisible(MakeJob(144, {{100, 2}, {100, 2}}), 6));
    EXPECT_EQ(result.Cases, 0);
    EXPECT_EQ(result.BestLength, 4);
    EXPECT_EQ(result.Layout.size(), 2U);
    EXPECT_EQ(result.Length, 6);
}

TEST(Search, TheLengthIsRaisedToAMultipleOfThree) {
    for (int length = 1; length < 400; ++length) {
        ASSERT_EQ(Searched(MakeJob(144, {{100, static_cast<double>(length)}})).Length,
                  (length + 2) / 3 * 3);
    }
}

TEST(Search, CrossLayComesBackInTheJobsOrientation) {
    // Along X 300, along Y 72: 72 across the roll.
    SearchJob job = MakeJob(144, {{300, 72}, {300, 72}});
    job.Direction = Lay::Cross;
    const SearchResult result = Searched(job);
    ASSERT_EQ(result.Layout.size(), 2U);
    EXPECT_EQ(result.Layout[0], (Placed{job.Pieces[0], 0, 0, 72, 300}));
    EXPECT_EQ(result.BestLength, 300);
}

TEST(Search, APieceWiderThanTheRollIsCutInAStripAndARest) {
    const SearchResult result = Searched(MakeJob(144, {{200, 50}}));
    ASSERT_EQ(result.Layout.size(), 2U);
    EXPECT_EQ(result.BestParts.size(), 2U);
    EXPECT_EQ(result.BestLength, 100);
    EXPECT_EQ(result.Layout[0].Width + result.Layout[1].Width, 200);
}

TEST(Search, CountsOneStepForEachScoredPlacement) {
    Recorder recorder;
    const SearchResult result =
        Search(Divisible(MakeJob(144, {{30, 300}, {40, 200}}), 3), recorder);
    EXPECT_EQ(result.Cases, 9);
    EXPECT_EQ(recorder.Maximum, 3 * (9 + 3));
    ASSERT_EQ(recorder.Done.size(), 36U);
    EXPECT_EQ(recorder.Done.front(), 1);
    EXPECT_EQ(recorder.Done.back(), 36);
    EXPECT_EQ(recorder.Events, (std::vector<std::string>{"started", "ended"}));
}

TEST(Search, StopsAfterThePlacementInHand) {
    const SearchJob job = Divisible(MakeJob(144, {{30, 300}, {40, 200}}), 3);
    for (const Long stop : {1, 5, 28, 36}) {
        Recorder recorder;
        recorder.StopAfter = stop;
        EXPECT_THROW(Search(job, recorder), SearchStopped);
        EXPECT_EQ(recorder.Done.back(), stop);
        EXPECT_EQ(recorder.Events, (std::vector<std::string>{"started", "ended"}));
    }
}

TEST(Search, ACaseWithTooManyPartsIsLeftOutAndCountsAsDone) {
    SearchJob job = Divisible(MakeJob(144), 6, 50);
    for (int i = 0; i < 501; ++i) {
        testing::AddPiece(job, {144, 3});
    }
    Recorder recorder;
    const SearchResult result = Search(job, recorder);
    // 501 pieces of 6 parts would be 3006.
    EXPECT_EQ(recorder.Done.back(), recorder.Maximum);
    EXPECT_EQ(static_cast<Long>(recorder.Done.size()), recorder.Maximum - 2);
    EXPECT_EQ(result.BestLength, 1503);
}

TEST(Search, LeavesTheJobAndGivesTheSameWhenItIsRepeated) {
    const auto make = [] { return Divisible(MakeJob(144, {{100, 150}, {60, 170}, {200, 90}}), 3); };
    const SearchJob job = make();
    const SearchResult first = Searched(job);
    EXPECT_EQ(job, make());
    EXPECT_EQ(Searched(job), first);
}

TEST(Search, MoreThanThreeThousandPiecesIsASubscriptError) {
    SearchJob job = MakeJob(144);
    for (int i = 0; i < 3001; ++i) {
        testing::AddPiece(job, {1, 1});
    }
    EXPECT_EQ(SearchError(job).Number(), SubscriptNumber);
}

TEST(Search, AMinimumCutOfZeroIsADivisionByZero) {
    EXPECT_EQ(SearchError(Divisible(MakeJob(144, {{1, 1}}), 1, 0)).Number(), DivisionByZeroNumber);
}

TEST(Search, MoreRollThanAnIntegerHoldsIsAnOverflowWithAWayOut) {
    SearchJob job = MakeJob(144, {{100, 30000}, {100, 2766}});
    EXPECT_EQ(Searched(job).Length, 32766);
    testing::AddPiece(job, {100, 1});
    const RunTimeError error = SearchError(job);
    EXPECT_EQ(error.Number(), OverflowNumber);
    EXPECT_EQ(error.Advice(), "The fills need more than 32767 inches of roll: estimate the rooms "
                              "in two projects.");
}

} // namespace
} // namespace tarn
