#include "app/RunTimeError.h"
#include "engine/MultiEstimate.h"
#include "engine/reference/PlainSearch.h"
#include "engine/reference/RandomJobs.h"
#include "engine/reference/StoredJobs.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace tarn {
namespace {

using reference::PlainJob;
using reference::PlainPiece;
using reference::PlainResult;

struct Job {
    SharedState State;
    EngineArrays Engine;

    explicit Job(const PlainJob& plain) {
        State.MetricFlag = plain.metric ? 1 : 0;
        State.EstOption = static_cast<Integer>(plain.estOption);
        Engine.RollWidth = plain.rollWidth;
        Engine.LayDir = static_cast<Integer>(plain.layDir);
        Engine.FillFlag = static_cast<Integer>(plain.fillFlag);
        for (const PlainPiece& piece : plain.pieces) {
            const Integer row = Engine.PieceCount;
            Engine.PCX1[row] = piece.x1;
            Engine.PCX2[row] = piece.x2;
            Engine.PCY1[row] = piece.y1;
            Engine.PCY2[row] = piece.y2;
            Engine.OrgPC[row] = static_cast<Integer>(piece.org);
            Engine.PCDivide[row] = static_cast<Integer>(piece.divide);
            Engine.PCTurn[row] = static_cast<Integer>(piece.turn);
            Engine.PCOrder[row] = static_cast<Integer>(piece.order);
            Engine.PieceCount = static_cast<Integer>(row + 1);
        }
        Engine.OrgCount = Engine.PieceCount;
    }

    void Search() {
        SearchObserver nobody;
        ASSERT_EQ(MultiEstimate(State, Engine, nobody), SearchOutcome::Done);
    }
};

/// Everything that a search hands back, compared to the last bit.
void ExpectSame(const EngineArrays& engine, const PlainResult& plain) {
    ASSERT_EQ(engine.CaseCount, plain.cases);
    ASSERT_EQ(engine.BestLen, plain.bestLen);
    ASSERT_EQ(engine.BestMode, plain.bestMode);
    ASSERT_EQ(engine.ResultLen, plain.resultLen);
    ASSERT_EQ(engine.OrgCount, plain.orgCount);
    for (int k = 0; k < plain.orgCount; ++k) {
        const auto at = static_cast<std::size_t>(k);
        ASSERT_EQ(engine.CaseRadix[k], plain.radix[at]) << "radix " << k;
        ASSERT_EQ(engine.BestCase[k], plain.digits[at]) << "digit " << k;
    }
    ASSERT_EQ(static_cast<std::size_t>(engine.PieceCount), plain.pieces.size());
    ASSERT_EQ(static_cast<std::size_t>(engine.PosCount), plain.placed.size());
    for (int i = 0; i < engine.PieceCount; ++i) {
        SCOPED_TRACE(i);
        const auto& piece = plain.pieces[static_cast<std::size_t>(i)];
        const auto& placed = plain.placed[static_cast<std::size_t>(i)];
        ASSERT_EQ(engine.PCX1[i], piece.x1);
        ASSERT_EQ(engine.PCX2[i], piece.x2);
        ASSERT_EQ(engine.PCY1[i], piece.y1);
        ASSERT_EQ(engine.PCY2[i], piece.y2);
        ASSERT_EQ(engine.OrgPC[i], piece.org);
        ASSERT_EQ(engine.PCDivide[i], piece.divide);
        ASSERT_EQ(engine.PCTurn[i], piece.turn);
        ASSERT_EQ(engine.PCOrder[i], piece.order);
        ASSERT_EQ(engine.PosX[i], placed.x);
        ASSERT_EQ(engine.PosY[i], placed.y);
        ASSERT_EQ(engine.PosW[i], placed.w);
        ASSERT_EQ(engine.PosL[i], placed.l);
    }
}

void Compare(const PlainJob& plain) {
    Job job(plain);
    job.Search();
    ExpectSame(job.Engine, reference::PlainMultiEstimate(plain));
    if (::testing::Test::HasFatalFailure()) {
        ADD_FAILURE() << reference::Describe(plain);
    }
}

/// The plain search is slow under the sanitizers, which look for other faults than the comparison.
#ifdef TARN_SANITIZED
constexpr std::uint32_t JobsInBlock = 40;
#else
constexpr std::uint32_t JobsInBlock = 500;
#endif

/// Blocks of seeds, so that they run beside each other.
class SearchOfRandomJobs : public ::testing::TestWithParam<std::uint32_t> {};

TEST_P(SearchOfRandomJobs, GivesTheSameAsThePlainOne) {
    const std::uint32_t first = GetParam() * JobsInBlock;
    for (std::uint32_t seed = first; seed < first + JobsInBlock; ++seed) {
        SCOPED_TRACE(seed);
        Compare(reference::RandomJob(seed));
        if (HasFatalFailure()) {
            return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Block, SearchOfRandomJobs, ::testing::Range(0U, 8U));

/// Jobs far larger than a house, with so many parts that every band of the roll is crowded.
class SearchOfLargeJobs : public ::testing::TestWithParam<int> {};

TEST_P(SearchOfLargeJobs, GivesTheSameAsThePlainOne) {
    const int fills = GetParam();
    reference::RandomSource random(static_cast<std::uint32_t>(fills));
    std::vector<reference::Extent> extents(static_cast<std::size_t>(fills));
    for (reference::Extent& extent : extents) {
        extent = {random.Whole(1, 143), random.Whole(12, 60)};
    }
    for (const int option : {0, 1, 25}) {
        SCOPED_TRACE(option);
        Compare(reference::DownLayJob(144, option, extents));
    }
}

INSTANTIATE_TEST_SUITE_P(Fills, SearchOfLargeJobs, ::testing::Values(60, 100, 150));

TEST(SearchAgainstThePlainOne, GivesTheSameOnStoredJobs) {
    for (const auto& stored : reference::StoredJobs()) {
        SCOPED_TRACE(stored.name);
        Compare(stored.job);
    }
}

TEST(SearchAgainstThePlainOne, FailsWithTheSameErrors) {
    for (const auto& failing : reference::FailingJobs()) {
        SCOPED_TRACE(failing.name);
        Job job(failing.job);
        SearchObserver nobody;
        try {
            MultiEstimate(job.State, job.Engine, nobody);
            ADD_FAILURE() << "no error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), failing.error);
        }
    }
}

TEST(SearchAgainstThePlainOne, GivesTheSameWhenItIsRepeated) {
    for (std::uint32_t seed = 0; seed < 50; ++seed) {
        SCOPED_TRACE(seed);
        const PlainJob plain = reference::RandomJob(seed);
        Job first(plain);
        first.Search();
        Job again(plain);
        again.Engine = first.Engine; // leftovers of another search must not matter
        const Job fresh(plain);
        CopyRows(fresh.Engine, again.Engine, fresh.Engine.PieceCount);
        again.Engine.PieceCount = fresh.Engine.PieceCount;
        again.Engine.OrgCount = fresh.Engine.PieceCount;
        again.Search();
        ExpectSame(again.Engine, reference::PlainMultiEstimate(plain));
    }
}

} // namespace
} // namespace tarn
