#include "Sanitized.h"
#include "base/Lengths.h"
#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "estimate/MinCuts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace tarn {
namespace {

using testing::EdgesOf;
using testing::Turned;

constexpr double Tolerance = 0.005; ///< inches
/// Shares of a part below this are dropped, inches: six parts come at most so much short.
constexpr double DroppedShares = 6 * 0.1 * 0.01;

struct Strip {
    double Left, Right, Begin, End; ///< inches on the roll
};

std::vector<Strip> Strips(const Estimate& estimate) {
    std::vector<Strip> strips;
    for (const Placed& placed : estimate.Fills.Layout) {
        const auto x = static_cast<double>(placed.X);
        const auto y = static_cast<double>(placed.Y);
        strips.push_back(
            {x, x + static_cast<double>(placed.Width), y, y + static_cast<double>(placed.Length)});
    }
    return strips;
}

void ExpectSoundLayout(const Estimate& estimate) {
    const std::vector<Strip> strips = Strips(estimate);
    const auto roll = static_cast<double>(estimate.Request.RollWidth);
    double end = 0;
    for (std::size_t i = 0; i < strips.size(); ++i) {
        const Strip& a = strips[i];
        EXPECT_GE(a.Left, 0);
        EXPECT_GE(a.Begin, 0);
        EXPECT_LT(a.Right, roll + Tolerance) << "piece " << i << " is outside the roll";
        end = std::max(end, a.End);
        for (std::size_t j = 0; j < i; ++j) {
            const Strip& b = strips[j];
            const double wide = std::min(a.Right, b.Right) - std::max(a.Left, b.Left);
            const double along = std::min(a.End, b.End) - std::max(a.Begin, b.Begin);
            // A hair more than the tolerance: its test is in Single.
            EXPECT_FALSE(wide > Tolerance + 1e-4 && along > Tolerance + 1e-3)
                << "pieces " << i << " and " << j << " share an area";
        }
    }
    EXPECT_EQ(estimate.Fills.Length % 3, 0);
    EXPECT_GT(estimate.Fills.Length, end - 1);
    EXPECT_LT(estimate.Fills.Length, end + 3);
    EXPECT_LE(end, estimate.Fills.BestLength + 0.5 + 1e-3);
}

/// The size of every strip on the roll is that of the piece it is listed as.
void ExpectPlacedAsListed(const Estimate& estimate) {
    for (const Placed& placed : estimate.Fills.Layout) {
        const Cut piece = Turned(EdgesOf(placed.Part), estimate.Request.Direction);
        EXPECT_NEAR(placed.Width, (piece.X2 - piece.X1) * 0.01, 1e-3);
        EXPECT_NEAR(placed.Length, (piece.Y2 - piece.Y1) * 0.01, 4e-3);
    }
}

/// The parts of every fill lie end to end over the whole fill, each exactly as wide as it.
void ExpectFillsWhole(const Estimate& estimate) {
    const Lay lay = estimate.Request.Direction;
    std::map<Integer, std::vector<Cut>> parts;
    for (const Placed& placed : estimate.Fills.Layout) {
        parts[placed.Part.Number].push_back(Turned(EdgesOf(placed.Part), lay));
    }
    const std::vector<Cut> fills = EdgesOf(estimate.Job.Pieces);
    ASSERT_EQ(parts.size(), fills.size());
    for (auto& [number, strips] : parts) {
        SCOPED_TRACE(::testing::Message() << "fill " << number);
        const Cut fill = Turned(fills.at(static_cast<std::size_t>(number)), lay);
        std::sort(strips.begin(), strips.end(),
                  [](const Cut& a, const Cut& b) { return a.Y1 < b.Y1; });
        Single reached = fill.Y1;
        for (const Cut& strip : strips) {
            EXPECT_EQ(strip.X1, fill.X1);
            EXPECT_EQ(strip.X2, fill.X2);
            EXPECT_EQ(strip.Y1, reached);
            reached = strip.Y2;
        }
        EXPECT_GE(reached * 0.01, fill.Y2 * 0.01 - DroppedShares - 1e-3);
    }
}

double ListedLength(const std::string& text, Units units) {
    return units == Units::Metric ? std::stoi(text) / 2.54 : ReadFeetAndInches(text).value();
}

/// What the list says of a strip is not less than the strip is, and less than a unit more.
void ExpectListed(const std::string& line, const Cut& strip, Units units) {
    SCOPED_TRACE(line);
    const std::size_t colon = line.find(": ");
    const std::size_t cross = line.find(" X ");
    ASSERT_NE(colon, std::string::npos);
    ASSERT_NE(cross, std::string::npos);
    const std::array<double, 2> listed{
        ListedLength(line.substr(colon + 2, cross - colon - 2), units),
        ListedLength(line.substr(cross + 3), units)};
    const std::array<double, 2> actual{(strip.X2 - strip.X1) * 0.01, (strip.Y2 - strip.Y1) * 0.01};
    const bool metric = units == Units::Metric;
    const double slack = (metric ? 0.03 / 2.54 : Tolerance) + 1e-6;
    const double unit = metric ? 1 / 2.54 : 1;
    for (std::size_t side = 0; side < 2; ++side) {
        EXPECT_GT(listed.at(side), actual.at(side) - slack);
        EXPECT_LT(listed.at(side), actual.at(side) + unit);
    }
}

void ExpectCutListTrue(const Estimate& estimate) {
    const Units units = estimate.Request.In;
    const auto lines = CutListLines(estimate);
    std::vector<Cut> strips = estimate.Cuts;
    for (const Cut& piece : EdgesOf(estimate.Fills.Layout)) {
        strips.push_back(piece);
    }
    ASSERT_GT(lines.size(), strips.size());
    for (std::size_t i = 0; i < strips.size(); ++i) {
        ExpectListed(lines[i + 1], Turned(strips[i], estimate.Request.Direction), units);
    }
    double end = 0;
    for (const Strip& strip : Strips(estimate)) {
        end = std::max(end, strip.End);
    }
    const auto told = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.rfind("Fills end at:", 0) == 0;
    });
    if (told == lines.end()) {
        EXPECT_LT(end, estimate.Fills.Length + Tolerance + 1e-3);
    } else {
        EXPECT_GT(end, estimate.Fills.Length + Tolerance - 1e-3);
        EXPECT_GT(ListedLength(told->substr(13), units), end - 0.03 / 2.54);
    }
}

constexpr unsigned RandomEstimates = testing::UnlessSanitized(3000U, 500U);

/// Units and lay.
class Estimating : public ::testing::TestWithParam<std::tuple<Units, Lay>> {};

TEST_P(Estimating, EveryLayoutIsSoundCompleteRepeatableAndListedTrue) {
    const auto [units, lay] = GetParam();
    int layouts = 0;
    for (unsigned seed = 1; seed <= RandomEstimates; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        EstimateRequest request = testing::Request(testing::RandomRollWidth(random, units), lay);
        request.In = units;
        request.ShortestPart =
            AllMinCuts.at(static_cast<std::size_t>(testing::Between(random, 0, 2)));
        request.PiecesPerFill = static_cast<Integer>(testing::Between(random, 1, 6));
        const Project project = testing::RandomProject(random, units, request.RollWidth, 7);

        const Estimate estimate = testing::EstimateOf(project, request);
        EXPECT_EQ(estimate, testing::EstimateOf(project, request));
        if (!estimate.Job.Pieces.empty()) {
            ++layouts;
            ExpectSoundLayout(estimate);
            ExpectPlacedAsListed(estimate);
            ExpectFillsWhole(estimate);
        }
        if (!HasNothingToCut(estimate)) {
            ExpectCutListTrue(estimate);
        }
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_GT(layouts, static_cast<int>(RandomEstimates) / 2);
}

INSTANTIATE_TEST_SUITE_P(BothUnitsBothLays, Estimating,
                         ::testing::Combine(::testing::ValuesIn(testing::BothUnits),
                                            ::testing::ValuesIn(testing::BothLays)),
                         [](const auto& job) {
                             return std::string(std::get<0>(job.param) == Units::Metric
                                                    ? "Metric"
                                                    : "Imperial") +
                                    (std::get<1>(job.param) == Lay::Down ? "DownLay" : "CrossLay");
                         });

} // namespace
} // namespace tarn
