#include "engine/CleanUp.h"
#include "engine/PieceGeometry.h"
#include "engine/ResultLength.h"
#include "engine/reference/JobOfPlain.h"
#include "engine/reference/RandomJobs.h"
#include "improve/ImproveFills.h"
#include "improve/ImproveFillsTesting.h"
#include "improve/RollJob.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tarn {
namespace {

using testing::Divisible;
using testing::Improved;
using testing::InSteps;
using testing::MakeJob;
using testing::Searched;
using testing::SixInches;

class Stopper : public ImproveObserver {
  public:
    int StopAt = 0;
    int RaiseAt = 0;
    std::vector<ImproveProgress> Told;

    bool Progress(const ImproveProgress& progress) override {
        Told.push_back(progress);
        const int asked = static_cast<int>(Told.size());
        if (asked == RaiseAt) {
            throw std::runtime_error("the screen's own");
        }
        return asked != StopAt;
    }
};

double Wide(Single value) {
    return static_cast<double>(value);
}

/// The extent that two placed pieces share across (with X and Width) or along.
double Common(const Placed& a, const Placed& b, Single Placed::*from, Single Placed::*extent) {
    return std::min(Wide(a.*from) + Wide(a.*extent), Wide(b.*from) + Wide(b.*extent)) -
           std::max(Wide(a.*from), Wide(b.*from));
}

/// What is wrong with a layout; empty when nothing is. Written from the rules alone, in Double.
std::string FaultOf(const std::vector<Placed>& layout, Single rollWidth) {
    constexpr double Tolerance = 0.0051;
    for (std::size_t i = 0; i < layout.size(); ++i) {
        const Placed& a = layout[i];
        if (a.X < 0 || a.Y < 0 || Wide(a.X) + Wide(a.Width) > Wide(rollWidth) + Tolerance) {
            return "piece " + std::to_string(i) + " is not on the roll";
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (Common(a, layout[j], &Placed::X, &Placed::Width) > Tolerance &&
                Common(a, layout[j], &Placed::Y, &Placed::Length) > Tolerance) {
                return "pieces " + std::to_string(j) + " and " + std::to_string(i) + " overlap";
            }
        }
    }
    return "";
}

using Edges = std::vector<std::pair<Single, Single>>;

/// The edges along the roll of the parts of every fill, in order, by the fill's number and its
/// edges across.
using FillParts = std::map<std::tuple<Integer, Single, Single>, Edges>;

void AddPart(FillParts& parts, const Piece& piece, Lay direction) {
    const Piece along = direction == Lay::Cross ? Transposed(piece) : piece;
    Edges& edges = parts[{along.Number, along.X1, along.X2}];
    edges.emplace_back(along.Y1, along.Y2);
    std::sort(edges.begin(), edges.end());
}

/// Every fill's parts follow each other without a gap and are together exactly the fill; the number
/// of parts and the minimum part of the rules are kept.
void ExpectFillsWhole(const SearchJob& job, const SearchResult& result, const ImproveRules& rules) {
    FillParts given;
    for (const Piece& piece : job.Pieces) {
        AddPart(given, piece, job.Direction);
    }
    FillParts laid;
    for (const Placed& placed : result.Layout) {
        AddPart(laid, placed.Part, job.Direction);
    }
    std::map<Integer, double> areas;
    for (const auto& [fill, edges] : laid) {
        const auto& [number, left, right] = fill;
        EXPECT_LE(edges.size(), static_cast<std::size_t>(job.MostParts)) << "fill " << number;
        for (std::size_t i = 0; i < edges.size(); ++i) {
            const double length = (Wide(edges[i].second) - Wide(edges[i].first)) / 100;
            areas[number] += length * (Wide(right) - Wide(left));
            if (i > 0) {
                EXPECT_EQ(edges[i].first, edges[i - 1].second) << "fill " << number;
            }
            if (edges.size() > 1) {
                EXPECT_GE(length, rules.ShortestPart - 0.005) << "fill " << number;
            }
        }
    }
    for (const auto& [fill, edges] : given) {
        const auto& [number, left, right] = fill;
        const double length = (Wide(edges[0].second) - Wide(edges[0].first)) / 100;
        const double area = length * (Wide(right) - Wide(left));
        EXPECT_NEAR(areas[number], area, area * 1e-4 + 0.01) << "fill " << number;
    }
}

/// The rules of the caption that stands for a job's minimum cut.
ImproveRules RulesOf(const reference::PlainJob& job) {
    switch (job.minCut) {
    case 300:
        return {Units::Imperial, 36};
    case 150:
        return {Units::Imperial, 18};
    case 50:
        return {Units::Imperial, 6};
    case 762:
        return {Units::Metric, 91 / 2.54};
    case 381:
        return {Units::Metric, 46 / 2.54};
    default:
        return {Units::Metric, 15 / 2.54};
    }
}

// Every kind of job that the program makes and more: fractions, remainders, both lays.
TEST(ImproveFills, KeepsRandomJobsWholeAndNeverMakesThemLonger) {
    int improved = 0;
    for (std::uint32_t seed = 1; seed <= 150; ++seed) {
        const reference::PlainJob plain = reference::RandomJob(seed);
        SCOPED_TRACE(std::to_string(seed) + " " + reference::Describe(plain));
        const SearchJob job = reference::JobOfPlain(plain);
        const ImproveRules rules = RulesOf(plain);
        const SearchResult start = Searched(job);
        Stopper watcher;
        const ImproveResult result = ImproveFills(job, start, rules, InSteps(250), watcher);
        const std::vector<Placed>& layout = result.Fills.Layout;
        if (!watcher.Told.empty()) {
            EXPECT_NEAR(watcher.Told.back().Best, Wide(LengthInUse(layout)), 0.005);
        }
        EXPECT_EQ(result.StartLength, LengthInUse(start.Layout));
        EXPECT_EQ(result.Length, LengthInUse(layout));
        EXPECT_LT(Wide(result.Length) - Wide(result.StartLength), 0.005);
        EXPECT_LE(result.Bound, Wide(result.Length));
        EXPECT_LE(result.Fills.Length, start.Length);
        if (!result.Improved) {
            EXPECT_EQ(result.Fills, start);
            continue;
        }
        ++improved;
        const RollJob roll = RollJobOf(job, rules);
        EXPECT_TRUE(LayoutMeritOf(roll, layout).BetterThan(LayoutMeritOf(roll, start.Layout)));
        EXPECT_EQ(FaultOf(layout, job.RollWidth), "");
        EXPECT_NO_THROW(CheckLayout(layout, job.RollWidth));
        ExpectFillsWhole(job, result.Fills, rules);
    }
    EXPECT_GT(improved, 50);
}

SearchJob FiveFills() {
    return Divisible(MakeJob(144, {{100, 150}, {60, 170}, {84, 90}, {44, 110}, {80, 60}}), 3, 50);
}

TEST(ImproveFills, ReturnsALayoutAsTheSearchDoes) {
    const SearchJob job = FiveFills();
    const SearchResult start = Searched(job);
    const ImproveResult result = Improved(job, start);
    ASSERT_TRUE(result.Improved);
    const SearchResult& fills = result.Fills;
    EXPECT_EQ(result.StartPieces, static_cast<Integer>(start.Layout.size()));
    EXPECT_EQ(result.Pieces, static_cast<Integer>(fills.Layout.size()));
    EXPECT_EQ(fills.BestLength, static_cast<Long>(LengthInUse(fills.Layout)));
    EXPECT_EQ(fills.Length, (fills.BestLength + 2) / 3 * 3)
        << "whole inches, raised to a multiple of 3";
    EXPECT_EQ(fills.BestPower, start.BestPower);
    EXPECT_EQ(fills.Cases, start.Cases);
    ASSERT_EQ(fills.BestParts.size(), job.Pieces.size());
    std::size_t parts = 0;
    for (const Integer cuts : fills.BestParts) {
        EXPECT_GE(cuts, 0);
        parts += static_cast<std::size_t>(cuts) + 1;
    }
    EXPECT_GE(parts, fills.Layout.size());
    for (std::size_t i = 0; i < fills.Layout.size(); ++i) {
        const Placed& placed = fills.Layout[i];
        EXPECT_GE(placed.Part.Number, i > 0 ? fills.Layout[i - 1].Part.Number : 0)
            << "in the order of creation";
        EXPECT_FLOAT_EQ(placed.Width, (placed.Part.X2 - placed.Part.X1) / 100);
        EXPECT_FLOAT_EQ(placed.Length, (placed.Part.Y2 - placed.Part.Y1) / 100);
    }
}

TEST(ImproveFills, GivesTheSameForEqualStepsAndSeed) {
    const SearchJob job = FiveFills();
    const SearchResult start = Searched(job);
    const ImproveResult first = Improved(job, start);
    const ImproveResult again = Improved(job, start);
    EXPECT_EQ(again.Fills, first.Fills);
    EXPECT_EQ(again.Steps, first.Steps);
}

// Down lay and cross lay of the same fills are the same job, with X and Y exchanged.
TEST(ImproveFills, HandsCrossLayBackInTheJobsOrientation) {
    const SearchJob down = FiveFills();
    SearchJob cross = down;
    cross.Direction = Lay::Cross;
    for (Piece& piece : cross.Pieces) {
        piece = Transposed(piece);
    }
    const ImproveResult fromDown = Improved(down, Searched(down));
    const ImproveResult fromCross = Improved(cross, Searched(cross));
    ASSERT_TRUE(fromCross.Improved);
    std::vector<Placed> expected = fromDown.Fills.Layout;
    for (Placed& placed : expected) {
        placed.Part = Transposed(placed.Part);
    }
    EXPECT_EQ(fromCross.Fills.Layout, expected);
}

TEST(ImproveFills, GoesOnFromAnImprovedLayout) {
    const SearchJob job = FiveFills();
    const ImproveResult first = Improved(job, Searched(job), SixInches, 30);
    const ImproveResult second = Improved(job, first.Fills, SixInches, 3000);
    EXPECT_EQ(second.StartLength, first.Length);
    EXPECT_LE(second.Length, first.Length);
    EXPECT_EQ(FaultOf(second.Fills.Layout, job.RollWidth), "");
}

constexpr ImproveRules MetricRules{Units::Metric, 91 / 2.54};
constexpr double Cm = 1 / 2.54;

// 3 x 122 cm fill a roll of 366 cm exactly, although 122 / 2.54 is no round number.
TEST(ImproveFills, MetricWidthsThatFillTheRollExactlyStandSideBySide) {
    const SearchJob job =
        MakeJob(static_cast<Single>(366 * Cm),
                {{122 * Cm, 200 * Cm}, {122 * Cm, 210 * Cm}, {122 * Cm, 220 * Cm}});
    const ImproveResult result = Improved(job, Searched(job), MetricRules);
    EXPECT_NEAR(Wide(LengthInUse(result.Fills.Layout)), 220 * Cm, 0.005);
    const RollJob roll = RollJobOf(job, MetricRules);
    EXPECT_EQ(roll.Job.Width, 3) << "in units of 122 cm";
    EXPECT_EQ(roll.Job.Fills.at(0).Length, 22);
}

// 172 + 82 cm are 100 inches; a sum of Singles lies just below or just above that.
TEST(ImproveFills, AnEquallyLongLayoutIsNotTakenWhenMoreWouldHaveToBeOrdered) {
    const SearchJob job =
        MakeJob(static_cast<Single>(366 * Cm), {{250 * Cm, 172 * Cm}, {300 * Cm, 82 * Cm}});
    const SearchResult start = Searched(job);
    ASSERT_LT(LengthInUse(start.Layout), 100.0F);
    ASSERT_EQ(start.Length, 99);
    const ImproveResult result = Improved(job, start, MetricRules);
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Fills, start);
    EXPECT_EQ(result.Length, LengthInUse(start.Layout));
}

TEST(ImproveFills, AStartBetweenWholeUnitsIsComparedByItsTrueLength) {
    const testing::OneFill fill(133, 0.34F);
    Stopper watcher;
    const ImproveResult result =
        ImproveFills(fill.Job, fill.Result, {Units::Imperial, 36}, InSteps(500), watcher);
    ASSERT_FALSE(watcher.Told.empty());
    EXPECT_NEAR(watcher.Told.front().Best, 133.34, 0.001);
    EXPECT_TRUE(result.Improved) << "a bound of 133 is not its length";
    EXPECT_EQ(LengthInUse(result.Fills.Layout), 133);
    EXPECT_EQ(result.Bound, 133);
    EXPECT_FALSE(result.StartBelowRules);
}

TEST(ImproveFills, WithoutAPieceNothingIsTried) {
    const ImproveResult result = Improved(MakeJob(144), {});
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Steps, 0);
}

// The rest of a piece more than twice as wide as the roll stays too wide.
TEST(ImproveFills, WithAPieceThatIsTooWideNothingIsTried) {
    const SearchJob job = MakeJob(100, {{250, 50}, {20, 30}});
    const SearchResult start = Searched(job);
    const ImproveResult result = Improved(job, start);
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Fills, start);
    EXPECT_EQ(result.Bound, 0);
}

TEST(ImproveFills, StoppedAtAnyMomentItKeepsTheBestSoFar) {
    const SearchJob job = FiveFills();
    const SearchResult start = Searched(job);
    for (int stop = 1; stop <= 20; ++stop) {
        SCOPED_TRACE(stop);
        Stopper stopper;
        stopper.StopAt = stop;
        const ImproveResult result = ImproveFills(job, start, SixInches, InSteps(400), stopper);
        EXPECT_NEAR(Wide(result.Length), stopper.Told.back().Best, 0.001);
        EXPECT_EQ(FaultOf(result.Fills.Layout, job.RollWidth), "");
        EXPECT_LE(LengthInUse(result.Fills.Layout), LengthInUse(start.Layout));
    }
}

TEST(ImproveFills, RaisesAnErrorOfTheObserver) {
    const SearchJob job = FiveFills();
    const SearchResult start = Searched(job);
    Stopper stopper;
    stopper.RaiseAt = 12;
    EXPECT_THROW(ImproveFills(job, start, SixInches, InSteps(400), stopper), std::runtime_error);
    EXPECT_EQ(stopper.Told.size(), 12U) << "and asks no more";
}

TEST(ImproveFills, TellsTheBestTheBoundAndWhatMayBeLeft) {
    const SearchJob job = FiveFills();
    Stopper watcher;
    const ImproveResult result = ImproveFills(job, Searched(job), SixInches, InSteps(400), watcher);
    ASSERT_FALSE(watcher.Told.empty());
    Double best = Wide(result.StartLength);
    for (const ImproveProgress& progress : watcher.Told) {
        EXPECT_LE(progress.Best, best) << "the best never gets longer";
        EXPECT_LE(progress.Bound, progress.Best);
        EXPECT_LE(progress.Bound, result.Bound);
        best = progress.Best;
    }
}

} // namespace
} // namespace tarn
