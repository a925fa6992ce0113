#include "engine/reference/PlainSearch.h"
#include "engine/reference/RandomJobs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

// What must hold for every layout, checked in Double from the outside.

namespace tarn::reference {

namespace {

constexpr int JobsPerBlock = 250;
constexpr int Blocks = 8;

// Inches: the tolerance of 0.005 and the rounding of Singles up to 16384.
constexpr double Slack = 0.008;

double Wide(float value) {
    return static_cast<double>(value);
}

double UsableWidth(const PlainJob& job) {
    return Wide(job.rollWidth) - (job.fillFlag == 1 ? 0.0 : 2.0);
}

bool Turned(const PlainPiece& piece) {
    return (piece.turn & 1) == 1;
}

std::pair<double, double> Across(const PlainPiece& p) {
    return Turned(p) ? std::pair(Wide(p.y1), Wide(p.y2)) : std::pair(Wide(p.x1), Wide(p.x2));
}

std::pair<double, double> Along(const PlainPiece& p) {
    return Turned(p) ? std::pair(Wide(p.x1), Wide(p.x2)) : std::pair(Wide(p.y1), Wide(p.y2));
}

double Size(std::pair<double, double> edges) {
    return edges.second - edges.first;
}

// Edges of pieces whose lay is not the job's are snapped to whole units.
double SnapUnits(const PlainJob& job, const PlainPiece& piece) {
    return (piece.turn & 1) == job.layDir ? 0.0 : 1.0;
}

double LayoutEnd(const PlainResult& result) {
    double end = 0;
    for (const PlainPlaced& p : result.placed) {
        end = std::max(end, Wide(p.y) + Wide(p.l));
    }
    return end;
}

double Common(float a1, float a, float b1, float b) {
    return std::min(Wide(a1) + Wide(a), Wide(b1) + Wide(b)) - std::max(Wide(a1), Wide(b1));
}

void ExpectInsideTheRoll(const PlainJob& job, const PlainResult& result) {
    const double usable = UsableWidth(job);
    for (const PlainPlaced& p : result.placed) {
        EXPECT_GE(p.y, 0.0F);
        if (Wide(p.w) > usable + Slack) {
            EXPECT_EQ(p.x, 0.0F);
        } else {
            EXPECT_GE(p.x, 0.0F);
            EXPECT_LE(Wide(p.x) + Wide(p.w), usable + Slack);
        }
    }
}

void ExpectNoCommonArea(const PlainResult& result) {
    for (std::size_t i = 0; i < result.placed.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const PlainPlaced& a = result.placed[i];
            const PlainPlaced& b = result.placed[j];
            EXPECT_FALSE(Common(a.x, a.w, b.x, b.w) > Slack && Common(a.y, a.l, b.y, b.l) > Slack)
                << "rows " << j << " and " << i;
        }
    }
}

void ExpectSizesOfThePieces(const PlainJob& job, const PlainResult& result) {
    ASSERT_EQ(result.placed.size(), result.pieces.size());
    for (std::size_t i = 0; i < result.pieces.size(); ++i) {
        const PlainPiece& piece = result.pieces[i];
        const double slack = Slack + 0.01 * SnapUnits(job, piece);
        EXPECT_NEAR(Wide(result.placed[i].w), Size(Across(piece)) * 0.01, slack);
        EXPECT_NEAR(Wide(result.placed[i].l), Size(Along(piece)) * 0.01, slack);
    }
}

// The bands across the roll that one piece became (two when it was too wide), and the length of
// each: together as wide as the piece, each at least as long. A part's length share is rounded
// up only when its fraction is 0.1 or more, so six parts may lack six tenths of a unit.
void ExpectWholePiece(const PlainJob& job, const PlainResult& result, const PlainPiece& piece) {
    std::map<std::pair<double, double>, double> bands;
    std::size_t parts = 0;
    for (const PlainPiece& part : result.pieces) {
        if (part.org == piece.org) {
            bands[Across(part)] += Size(Along(part));
            ++parts;
            EXPECT_EQ(part.turn, piece.turn);
        }
    }
    ASSERT_FALSE(bands.empty()) << "piece " << piece.org;
    const double snap = SnapUnits(job, piece);
    double edge = Across(piece).first;
    for (const auto& [across, length] : bands) {
        EXPECT_NEAR(across.first, edge, snap) << "piece " << piece.org;
        EXPECT_GE(length, Size(Along(piece)) - 0.6 - snap - 0.01) << "piece " << piece.org;
        edge = across.second;
    }
    EXPECT_NEAR(edge, Across(piece).second, snap) << "piece " << piece.org;
    if (piece.divide != 1) {
        EXPECT_EQ(parts, bands.size()) << "piece " << piece.org << " was divided";
    }
}

void ExpectLengthsOfTheLayout(const PlainResult& result) {
    const double end = LayoutEnd(result);
    EXPECT_NEAR(static_cast<double>(result.bestLen), end, 0.5 + Slack);
    EXPECT_EQ(result.resultLen % 3, 0);
    EXPECT_LE(result.resultLen, end + 2.0 + Slack);
    EXPECT_GT(result.resultLen, end - 1.0 - Slack);
}

void ExpectCaseWithinItsBounds(const PlainJob& job, const PlainResult& result) {
    const auto count = static_cast<std::size_t>(result.orgCount);
    ASSERT_EQ(result.radix.size(), count);
    ASSERT_EQ(result.digits.size(), count);
    EXPECT_EQ(std::accumulate(result.radix.begin(), result.radix.end(), 1L, std::multiplies<>()),
              result.cases);
    std::size_t parts = 0;
    for (const int digit : result.digits) {
        EXPECT_GE(digit, 0);
        EXPECT_LE(digit, job.estOption % 10);
        parts += static_cast<std::size_t>(digit) + 1;
    }
    EXPECT_LE(result.pieces.size(), parts);
    EXPECT_TRUE(result.bestMode == 0 || result.bestMode == 1 || result.bestMode == 2);
}

std::string Text(const PlainResult& result) {
    std::string text = Describe({result.pieces, 0, 0, 0, 0, false});
    for (const PlainPlaced& p : result.placed) {
        for (const float value : {p.x, p.y, p.w, p.l}) {
            text += std::to_string(value) + ' ';
        }
    }
    return text + std::to_string(result.bestMode) + ' ' + std::to_string(result.bestLen);
}

class PlainSearchOnRandomJobs : public testing::TestWithParam<int> {};

TEST_P(PlainSearchOnRandomJobs, GivesACompleteLayout) {
    for (int i = 0; i < JobsPerBlock && !HasFailure(); ++i) {
        const auto seed = static_cast<std::uint32_t>(GetParam() * JobsPerBlock + i);
        const PlainJob job = RandomJob(seed);
        SCOPED_TRACE("seed " + std::to_string(seed) + ": " + Describe(job));
        const PlainResult result = PlainMultiEstimate(job);
        ExpectInsideTheRoll(job, result);
        ExpectNoCommonArea(result);
        ExpectSizesOfThePieces(job, result);
        for (const PlainPiece& piece : job.pieces) {
            ExpectWholePiece(job, result, piece);
        }
        ExpectLengthsOfTheLayout(result);
        ExpectCaseWithinItsBounds(job, result);
    }
}

TEST_P(PlainSearchOnRandomJobs, NeverLosesByBeingAllowedToDivide) {
    for (int i = 0; i < JobsPerBlock; i += 4) {
        const auto seed = static_cast<std::uint32_t>(GetParam() * JobsPerBlock + i);
        const PlainJob job = RandomJob(seed);
        SCOPED_TRACE("seed " + std::to_string(seed) + ": " + Describe(job));
        PlainJob whole = job;
        whole.estOption -= job.estOption % 10;
        EXPECT_LE(PlainMultiEstimate(job).bestLen, PlainMultiEstimate(whole).bestLen);
    }
}

TEST_P(PlainSearchOnRandomJobs, GivesTheSameLayoutEachTime) {
    for (int i = 0; i < JobsPerBlock; i += 10) {
        const auto seed = static_cast<std::uint32_t>(GetParam() * JobsPerBlock + i);
        SCOPED_TRACE("seed " + std::to_string(seed));
        EXPECT_EQ(Text(PlainMultiEstimate(RandomJob(seed))),
                  Text(PlainMultiEstimate(RandomJob(seed))));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, PlainSearchOnRandomJobs, testing::Range(0, Blocks));

bool HasPieceWiderThanTheRoll(const PlainJob& job) {
    return std::any_of(job.pieces.begin(), job.pieces.end(), [&job](const PlainPiece& p) {
        return Size(Across(p)) * 0.01 > UsableWidth(job) + Slack;
    });
}

bool HasPieceAsWideAsTheRoll(const PlainJob& job) {
    return std::any_of(job.pieces.begin(), job.pieces.end(), [&job](const PlainPiece& p) {
        return std::fabs(Size(Across(p)) * 0.01 - UsableWidth(job)) < 0.001;
    });
}

bool HasMixedTurns(const PlainJob& job) {
    return std::any_of(job.pieces.begin(), job.pieces.end(),
                       [&job](const PlainPiece& p) { return SnapUnits(job, p) > 0; });
}

bool HasIndivisiblePiece(const PlainJob& job) {
    return std::any_of(job.pieces.begin(), job.pieces.end(),
                       [](const PlainPiece& p) { return p.divide != 1; });
}

TEST(RandomJobs, StayTheSameForASeed) {
    // A seed that a failure has logged must give that job again, here and elsewhere.
    EXPECT_EQ(Describe(RandomJob(41)),
              "PlainJob{{{5400.00000F, 10800.0000F, 89.0000000F, 1289.00000F, 0, 1, 0, 0}, "
              "{0.00000000F, 16181.1016F, 0.00000000F, 2.00000000F, 1, 1, 0, 1}, }, "
              "161.811020F, 0, 1, 23, true}");
}

TEST(RandomJobs, MeetWhatAComparisonNeeds) {
    std::map<std::string, int> met;
    std::set<float> rolls;
    std::set<int> options;
    std::size_t most = 0;
    for (std::uint32_t seed = 0; seed < Blocks * JobsPerBlock; ++seed) {
        const PlainJob job = RandomJob(seed);
        rolls.insert(job.rollWidth);
        options.insert(job.estOption);
        most = std::max(most, job.pieces.size());
        met["metric"] += job.metric ? 1 : 0;
        met["cross lay"] += job.layDir;
        met["two inches kept free"] += 1 - job.fillFlag;
        met["wider than the roll"] += HasPieceWiderThanTheRoll(job) ? 1 : 0;
        met["as wide as the roll"] += HasPieceAsWideAsTheRoll(job) ? 1 : 0;
        met["mixed turns"] += HasMixedTurns(job) ? 1 : 0;
        met["indivisible"] += HasIndivisiblePiece(job) ? 1 : 0;
    }
    for (const auto& [what, times] : met) {
        EXPECT_GE(times, 100) << what;
    }
    EXPECT_EQ(options.size(), 18U);
    EXPECT_GE(most, 35U);
    for (const float roll : {72.0F, 144.0F, 162.0F, 180.0F, MetricRollWidth(183),
                             MetricRollWidth(366), MetricRollWidth(411), MetricRollWidth(457)}) {
        EXPECT_EQ(rolls.count(roll), 1U) << roll;
    }
}

TEST(RandomJobs, LeadTheSearchIntoEveryKindOfResult) {
    std::map<std::string, int> met;
    for (std::uint32_t seed = 0; seed < JobsPerBlock; ++seed) {
        const PlainJob job = RandomJob(seed);
        const PlainResult result = PlainMultiEstimate(job);
        int parts = 0;
        int divided = 0;
        bool late = false;
        for (std::size_t k = 0; k < result.digits.size(); ++k) {
            parts += result.digits[k] + 1;
            divided += result.digits[k] > 0 ? 1 : 0;
            late = late || result.digits[k] >= result.radix[k];
        }
        met["mode " + std::to_string(result.bestMode)] += 1;
        met["no case in the first pass"] += result.cases == 0 ? 1 : 0;
        met["divided"] += divided > 0 ? 1 : 0;
        met["second pass"] += late && result.cases > 0 ? 1 : 0;
        met["joined parts"] += static_cast<int>(result.pieces.size()) < parts ? 1 : 0;
    }
    for (const auto& [what, times] : met) {
        EXPECT_GE(times, 5) << what;
    }
    EXPECT_EQ(met.count("mode 0") + met.count("mode 1") + met.count("mode 2"), 3U);
}

} // namespace

} // namespace tarn::reference
