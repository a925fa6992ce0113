#include "app/RunTimeError.h"
#include "engine/EngineTesting.h"
#include "engine/MultiEstimate.h"
#include "engine/Placement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn {
namespace {

using testing::MakeEngine;

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
    void Finished() override { Events.emplace_back("finished"); }
    void Ended() noexcept override { Events.emplace_back("ended"); }
};

EngineArrays Searched(SharedState& state, EngineArrays engine) {
    SearchObserver nobody;
    EXPECT_EQ(MultiEstimate(state, engine, nobody), SearchOutcome::Done);
    return engine;
}

RunTimeError SearchError(const SharedState& state, EngineArrays engine) {
    Recorder recorder;
    try {
        MultiEstimate(state, engine, recorder);
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
TEST(MultiEstimate, TwoHalfWidthStripsLieSideBySide) {
    SharedState state;
    const EngineArrays engine = Searched(state, MakeEngine(144, {{72, 96}, {72, 96}, {72, 96}}));
    EXPECT_EQ(engine.CaseCount, 1);
    EXPECT_EQ(engine.BestLen, 192);
    EXPECT_EQ(engine.BestMode, 1);
    EXPECT_EQ(engine.ResultLen, 192);
    EXPECT_EQ(engine.PosX[1], 72);
    EXPECT_EQ(engine.PosY[1], 0);
    EXPECT_EQ(engine.PosY[2], 96);
}

// A long strip divided in two fits beside itself.
TEST(MultiEstimate, DividingALongStripHalvesTheRoll) {
    SharedState state;
    state.EstOption = 1;
    const EngineArrays engine = Searched(state, MakeEngine(144, {{72, 200}}));
    EXPECT_EQ(engine.CaseCount, 2);
    EXPECT_EQ(engine.BestLen, 100);
    EXPECT_EQ(engine.BestCase[0], 1);
    ASSERT_EQ(engine.PieceCount, 2);
    EXPECT_EQ(engine.OrgPC[0], 0);
    EXPECT_EQ(engine.OrgPC[1], 0);
    EXPECT_EQ(engine.PCY2[0], 10000);
    EXPECT_EQ(engine.PCY1[1], 10000);
    EXPECT_EQ(engine.PosX[1], 72);
}

TEST(MultiEstimate, WithOnePartPerFillNothingIsEverDivided) {
    SharedState state;
    const EngineArrays engine = Searched(state, MakeEngine(144, {{72, 200}, {30, 500}}));
    EXPECT_EQ(engine.CaseCount, 1);
    EXPECT_EQ(engine.PieceCount, 2);
}

TEST(MultiEstimate, OfEqualLengthsTheEarlierCaseAndModeAreKept) {
    SharedState state;
    state.EstOption = 2;
    const EngineArrays engine = Searched(state, MakeEngine(144, {{144, 90}}));
    EXPECT_EQ(engine.CaseCount, 3);
    EXPECT_EQ(engine.BestCase[0], 0) << "dividing a whole-width piece gains nothing";
    EXPECT_EQ(engine.BestMode, 1) << "area comes before the other orders";
    EXPECT_EQ(engine.PieceCount, 1);
}

TEST(MultiEstimate, APieceShorterThanTheMinimumCutStillGetsALayout) {
    SharedState state;
    state.EstOption = 5;
    const EngineArrays engine = Searched(state, MakeEngine(144, {{100, 2}, {100, 2}}));
    EXPECT_EQ(engine.CaseCount, 0);
    EXPECT_EQ(engine.BestLen, 4);
    EXPECT_EQ(engine.PosCount, 2);
    EXPECT_EQ(engine.ResultLen, 6);
}

TEST(MultiEstimate, TheResultLengthIsRaisedToAMultipleOfThree) {
    SharedState state;
    for (int length = 1; length < 400; ++length) {
        const EngineArrays engine =
            Searched(state, MakeEngine(144, {{100, static_cast<double>(length)}}));
        ASSERT_EQ(engine.ResultLen, (length + 2) / 3 * 3);
    }
    EXPECT_EQ(Searched(state, MakeEngine(144, {{100, 100}})).ResultLen, 102);
    EXPECT_EQ(Searched(state, MakeEngine(144, {{100, 99}})).ResultLen, 99);
    EXPECT_EQ(Searched(state, MakeEngine(144, {{100, 102.5}})).ResultLen, 102)
        << "a length that is not whole inches may run past it";
}

TEST(MultiEstimate, CrossLayComesBackInTheCallersOrientation) {
    SharedState state;
    EngineArrays engine = MakeEngine(144);
    engine.LayDir = 1;
    testing::AddPiece(engine, {300, 72}); // along X 300, along Y 72: 72 across the roll
    testing::AddPiece(engine, {300, 72});
    engine = Searched(state, engine);
    EXPECT_EQ(engine.PCX2[0], 30000);
    EXPECT_EQ(engine.PCY2[0], 7200);
    EXPECT_EQ(engine.PosW[0], 72);
    EXPECT_EQ(engine.PosL[0], 300);
    EXPECT_EQ(engine.BestLen, 300);
}

TEST(MultiEstimate, APieceWiderThanTheRollIsCutInAStripAndARest) {
    SharedState state;
    const EngineArrays engine = Searched(state, MakeEngine(144, {{200, 50}}));
    ASSERT_EQ(engine.PieceCount, 2);
    EXPECT_EQ(engine.OrgCount, 2);
    EXPECT_EQ(engine.BestLen, 100);
    EXPECT_EQ(engine.PosW[0] + engine.PosW[1], 200);
}

TEST(MultiEstimate, CountsOneStepForEachScoredPlacement) {
    SharedState state;
    state.EstOption = 2;
    EngineArrays engine = MakeEngine(144, {{30, 300}, {40, 200}});
    Recorder recorder;
    MultiEstimate(state, engine, recorder);
    EXPECT_EQ(engine.CaseCount, 9);
    EXPECT_EQ(recorder.Maximum, 3 * (9 + 3));
    ASSERT_EQ(recorder.Done.size(), 36U);
    EXPECT_EQ(recorder.Done.front(), 1);
    EXPECT_EQ(recorder.Done.back(), 36);
    EXPECT_EQ(recorder.Events, (std::vector<std::string>{"started", "ended", "finished"}));
}

TEST(MultiEstimate, StopsAfterThePlacementInHand) {
    SharedState state;
    state.EstOption = 2;
    for (const Long stop : {1, 5, 28, 36}) {
        EngineArrays engine = MakeEngine(144, {{30, 300}, {40, 200}});
        Recorder recorder;
        recorder.StopAfter = stop;
        EXPECT_EQ(MultiEstimate(state, engine, recorder), SearchOutcome::Stopped);
        EXPECT_EQ(recorder.Done.back(), stop);
        EXPECT_EQ(recorder.Events, (std::vector<std::string>{"started", "ended"}));
    }
}

TEST(MultiEstimate, ACaseWithTooManyPartsIsLeftOutAndCountsAsDone) {
    SharedState state;
    state.EstOption = 25;
    EngineArrays engine = MakeEngine(144);
    for (int i = 0; i < 501; ++i) {
        testing::AddPiece(engine, {144, 3});
    }
    Recorder recorder;
    ASSERT_EQ(MultiEstimate(state, engine, recorder), SearchOutcome::Done);
    // 501 pieces of 6 parts would be 3006.
    EXPECT_EQ(recorder.Done.back(), recorder.Maximum);
    EXPECT_EQ(static_cast<Long>(recorder.Done.size()), recorder.Maximum - 2);
    EXPECT_EQ(engine.BestLen, 1503);
}

TEST(MultiEstimate, MoreThanThreeThousandPiecesIsASubscriptError) {
    SharedState state;
    EngineArrays engine = MakeEngine(144);
    for (int i = 0; i < 3001; ++i) {
        testing::AddPiece(engine, {1, 1});
    }
    EXPECT_EQ(SearchError(state, engine).Number(), SubscriptNumber);
}

TEST(MultiEstimate, AnOptionBeyondTheMinimumCutsIsASubscriptError) {
    SharedState state;
    state.EstOption = 40;
    EXPECT_EQ(SearchError(state, MakeEngine(144, {{1, 1}})).Number(), SubscriptNumber);
}

TEST(MultiEstimate, AMinimumCutOfZeroIsADivisionByZero) {
    SharedState state;
    state.EstOption = 30;
    EXPECT_EQ(SearchError(state, MakeEngine(144, {{1, 1}})).Number(), DivisionByZeroNumber);
}

TEST(MultiEstimate, MoreRollThanAnIntegerHoldsIsAnOverflowWithAWayOut) {
    SharedState state;
    EngineArrays engine = MakeEngine(144, {{100, 30000}, {100, 2766}});
    EXPECT_EQ(Searched(state, engine).ResultLen, 32766);
    testing::AddPiece(engine, {100, 1});
    const RunTimeError error = SearchError(state, engine);
    EXPECT_EQ(error.Number(), OverflowNumber);
    EXPECT_EQ(error.Advice(), "The fills need more than 32767 inches of roll: estimate the rooms "
                              "in two projects.");
}

} // namespace
} // namespace tarn
