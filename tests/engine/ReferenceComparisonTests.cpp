#include "Sanitized.h"
#include "base/RunTimeError.h"
#include "engine/Cases.h"
#include "engine/EngineTesting.h"
#include "engine/PreparePieces.h"
#include "engine/reference/JobOfPlain.h"
#include "engine/reference/PlainSearch.h"
#include "engine/reference/RandomJobs.h"
#include "engine/reference/StoredJobs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace tarn {
namespace {

using reference::JobOfPlain;
using reference::PlainJob;
using reference::PlainResult;
using testing::Searched;

/// Everything that a search hands back, compared to the last bit.
void ExpectSame(const SearchResult& result, const PlainResult& plain) {
    ASSERT_EQ(result.Cases, plain.cases);
    ASSERT_EQ(result.BestLength, plain.bestLength);
    ASSERT_EQ(result.BestPower, plain.bestPower);
    ASSERT_EQ(result.Length, plain.resultLength);
    ASSERT_EQ(result.BestParts.size(), static_cast<std::size_t>(plain.undivided));
    for (std::size_t k = 0; k < result.BestParts.size(); ++k) {
        ASSERT_EQ(result.BestParts[k], plain.digits[k]) << "digit " << k;
    }
    ASSERT_EQ(result.Layout.size(), plain.pieces.size());
    ASSERT_EQ(result.Layout.size(), plain.placed.size());
    for (std::size_t i = 0; i < result.Layout.size(); ++i) {
        SCOPED_TRACE(i);
        const Placed& own = result.Layout[i];
        const auto& piece = plain.pieces[i];
        const auto& placed = plain.placed[i];
        ASSERT_EQ(own.Part.X1, piece.x1);
        ASSERT_EQ(own.Part.X2, piece.x2);
        ASSERT_EQ(own.Part.Y1, piece.y1);
        ASSERT_EQ(own.Part.Y2, piece.y2);
        ASSERT_EQ(own.Part.Number, piece.org);
        ASSERT_EQ(own.Part.IsDivisible, piece.divide == 1);
        ASSERT_EQ(own.X, placed.x);
        ASSERT_EQ(own.Y, placed.y);
        ASSERT_EQ(own.Width, placed.w);
        ASSERT_EQ(own.Length, placed.l);
    }
}

/// The alternatives of the first pass, which a result does not hold.
void ExpectSameAlternatives(const SearchJob& job, const PlainResult& plain) {
    const std::vector<Integer> alternatives =
        AlternativesOf(PreparePieces(job), job.MostParts, job.MinCut);
    ASSERT_EQ(std::vector<int>(alternatives.begin(), alternatives.end()), plain.radix);
}

void Compare(const PlainJob& plain) {
    const SearchJob job = JobOfPlain(plain);
    const PlainResult expected = reference::RunPlainSearch(plain);
    ExpectSame(Searched(job), expected);
    ExpectSameAlternatives(job, expected);
    if (::testing::Test::HasFatalFailure()) {
        ADD_FAILURE() << reference::Describe(plain);
    }
}

/// The plain search is slow under the sanitizers, which look for other faults than the comparison.
constexpr std::uint32_t UsualJobsInBlock = testing::UnlessSanitized(400U, 40U);

/// TARN_JOBS times as many where that is set, such as by ./dev prove.
std::uint32_t JobsInBlock() {
    const char* times = std::getenv("TARN_JOBS");
    const unsigned long factor = times == nullptr ? 1 : std::strtoul(times, nullptr, 10);
    return UsualJobsInBlock *
           std::clamp<std::uint32_t>(static_cast<std::uint32_t>(factor), 1, 1000);
}

/// Blocks of seeds, so that they run beside each other.
class SearchOfRandomJobs : public ::testing::TestWithParam<std::uint32_t> {};

TEST_P(SearchOfRandomJobs, GivesTheSameAsThePlainOne) {
    const std::uint32_t jobs = JobsInBlock();
    const std::uint32_t first = GetParam() * jobs;
    for (std::uint32_t seed = first; seed < first + jobs; ++seed) {
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
    Compare(reference::DownLayJob(144, 1, extents));
    Compare(reference::DownLayJob(144, 2, extents));
    Compare(reference::DownLayJob(144, 6, extents, 50));
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
        try {
            Searched(JobOfPlain(failing.job));
            ADD_FAILURE() << "no error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), failing.error);
        }
    }
}

} // namespace
} // namespace tarn
