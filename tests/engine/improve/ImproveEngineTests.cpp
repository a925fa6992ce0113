#include "app/RunTimeError.h"
#include "engine/CleanUp.h"
#include "engine/EngineTesting.h"
#include "engine/EstOptions.h"
#include "engine/MultiEstimate.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"
#include "engine/improve/ImproveEngine.h"
#include "engine/improve/ImproveEngineTesting.h"
#include "engine/improve/RollJob.h"
#include "engine/reference/RandomJobs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tarn {
namespace {

using testing::FillBeginningAt;
using testing::Improved;
using testing::Limits;
using testing::MakeEngine;
using testing::Search;

/// A search's pieces and the arrays after it.
struct Searched {
    SharedState State;
    EngineArrays Given;
    EngineArrays Engine;
};

Searched SearchedJob(const reference::PlainJob& job) {
    Searched searched;
    searched.State.EstOption = static_cast<Integer>(job.estOption);
    searched.State.MetricFlag = job.metric ? 1 : 0;
    EngineArrays& engine = searched.Engine;
    engine.RollWidth = job.rollWidth;
    engine.LayDir = static_cast<Integer>(job.layDir);
    engine.FillFlag = static_cast<Integer>(job.fillFlag);
    for (const reference::PlainPiece& piece : job.pieces) {
        const Integer row = engine.PieceCount++;
        engine.PCX1[row] = piece.x1;
        engine.PCX2[row] = piece.x2;
        engine.PCY1[row] = piece.y1;
        engine.PCY2[row] = piece.y2;
        engine.OrgPC[row] = row;
        engine.PCDivide[row] = static_cast<Integer>(piece.divide);
        engine.PCTurn[row] = static_cast<Integer>(piece.turn);
    }
    engine.OrgCount = engine.PieceCount;
    searched.Given = engine;
    Search(searched.State, engine);
    return searched;
}

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

/// What is wrong with the layout in the arrays; empty when nothing is. Written from the rules
/// alone, in Double.
std::string FaultOf(const EngineArrays& engine) {
    constexpr double Tolerance = 0.0051;
    if (engine.PosCount != engine.PieceCount) {
        return "not as many placed as pieces";
    }
    const auto usable = static_cast<double>(engine.RollWidth) - (engine.FillFlag == 1 ? 0.0 : 2.0);
    const auto at = [](const BoundedArray<Single>& values, Integer i) {
        return static_cast<double>(values[i]);
    };
    for (Integer i = 0; i < engine.PosCount; ++i) {
        if (at(engine.PosX, i) < 0 || at(engine.PosY, i) < 0 ||
            at(engine.PosX, i) + at(engine.PosW, i) > usable + Tolerance) {
            return "piece " + std::to_string(i) + " is not on the roll";
        }
        for (Integer j = 0; j < i; ++j) {
            const double across = std::min(at(engine.PosX, i) + at(engine.PosW, i),
                                           at(engine.PosX, j) + at(engine.PosW, j)) -
                                  std::max(at(engine.PosX, i), at(engine.PosX, j));
            const double along = std::min(at(engine.PosY, i) + at(engine.PosL, i),
                                          at(engine.PosY, j) + at(engine.PosL, j)) -
                                 std::max(at(engine.PosY, i), at(engine.PosY, j));
            if (across > Tolerance && along > Tolerance) {
                return "pieces " + std::to_string(j) + " and " + std::to_string(i) + " overlap";
            }
        }
    }
    return "";
}

using Edges = std::vector<std::pair<Single, Single>>;

/// The edges along the roll of the parts of every fill, in order, by the fill's number and its
/// edges across. In the caller's orientation `along` is Y for down lay.
std::map<std::tuple<Integer, Single, Single>, Edges> PartsOf(const EngineArrays& engine) {
    std::map<std::tuple<Integer, Single, Single>, Edges> parts;
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        const bool turned = (engine.PCTurn[i] & 1) != 0;
        const auto across = turned ? std::pair(engine.PCY1[i], engine.PCY2[i])
                                   : std::pair(engine.PCX1[i], engine.PCX2[i]);
        const auto along = turned ? std::pair(engine.PCX1[i], engine.PCX2[i])
                                  : std::pair(engine.PCY1[i], engine.PCY2[i]);
        parts[{engine.OrgPC[i], across.first, across.second}].push_back(along);
    }
    for (auto& [fill, edges] : parts) {
        std::sort(edges.begin(), edges.end());
    }
    return parts;
}

/// Every fill's parts follow each other without a gap and are together exactly the fill; the number
/// of parts and the minimum cut of the caption are kept.
void ExpectFillsWhole(const Searched& searched) {
    const double minCut = MinCutOfCaption(searched.State, searched.State.EstOption / 10);
    const Integer most = static_cast<Integer>(searched.State.EstOption % 10 + 1);
    std::map<Integer, double> areas;
    for (const auto& [fill, edges] : PartsOf(searched.Engine)) {
        const Integer number = std::get<0>(fill);
        EXPECT_LE(edges.size(), static_cast<std::size_t>(most)) << "fill " << number;
        for (std::size_t i = 0; i < edges.size(); ++i) {
            const double length =
                (static_cast<double>(edges[i].second) - static_cast<double>(edges[i].first)) / 100;
            areas[number] += length * (static_cast<double>(std::get<2>(fill)) -
                                       static_cast<double>(std::get<1>(fill)));
            if (i > 0) {
                EXPECT_EQ(edges[i].first, edges[i - 1].second) << "fill " << number;
            }
            if (edges.size() > 1) {
                EXPECT_GE(length, minCut - 0.005) << "fill " << number;
            }
        }
    }
    for (const auto& [fill, edges] : PartsOf(searched.Given)) {
        if ((searched.Given.PCTurn[std::get<0>(fill)] & 1) != searched.Given.LayDir) {
            continue; // its coordinates were rounded when it was turned
        }
        const double length =
            (static_cast<double>(edges[0].second) - static_cast<double>(edges[0].first)) / 100;
        const double area = length * (static_cast<double>(std::get<2>(fill)) -
                                      static_cast<double>(std::get<1>(fill)));
        EXPECT_NEAR(areas[std::get<0>(fill)], area, area * 1e-4 + 0.01)
            << "fill " << std::get<0>(fill);
    }
}

// Every kind of job that the program makes and more: fractions, remainders, both lays, mixed turns.
TEST(ImproveEngine, KeepsRandomJobsWholeAndNeverMakesThemLonger) {
    int improved = 0;
    for (std::uint32_t seed = 1; seed <= 150; ++seed) {
        const reference::PlainJob job = reference::RandomJob(seed);
        SCOPED_TRACE(std::to_string(seed) + " " + reference::Describe(job));
        Searched searched = SearchedJob(job);
        const EngineArrays before = searched.Engine;
        Stopper watcher;
        const ImproveResult result =
            ImproveEngine(searched.State, searched.Engine, Limits(250), watcher);
        if (!watcher.Told.empty()) {
            EXPECT_NEAR(watcher.Told.back().Best, static_cast<double>(GetPCLen(searched.Engine)),
                        0.005);
        }
        EXPECT_EQ(result.StartLength, GetPCLen(before));
        EXPECT_EQ(result.Length, GetPCLen(searched.Engine));
        EXPECT_LT(static_cast<double>(result.Length) - static_cast<double>(result.StartLength),
                  0.005);
        EXPECT_LE(result.Bound, static_cast<double>(result.Length));
        EXPECT_LE(searched.Engine.ResultLen, before.ResultLen);
        if (!result.Improved) {
            EXPECT_EQ(PartsOf(searched.Engine), PartsOf(before));
            continue;
        }
        ++improved;
        const RollJob roll = RollJobOf(searched.State, searched.Engine);
        EXPECT_TRUE(LayoutMeritOf(roll, searched.Engine).BetterThan(LayoutMeritOf(roll, before)));
        EXPECT_EQ(FaultOf(searched.Engine), "");
        EXPECT_NO_THROW(CheckFill(searched.Engine));
        ExpectFillsWhole(searched);
    }
    EXPECT_GT(improved, 50);
}

TEST(ImproveEngine, LeavesTheArraysAsTheSearchDoes) {
    SharedState state;
    state.EstOption = 22;
    EngineArrays engine = MakeEngine(144, {{100, 150}, {60, 170}, {84, 90}, {44, 110}, {80, 60}});
    Search(state, engine);
    const EngineArrays before = engine;
    const ImproveResult result = Improved(state, engine);
    ASSERT_TRUE(result.Improved);
    EXPECT_EQ(result.Pieces, engine.PieceCount);
    EXPECT_EQ(engine.PosCount, engine.PieceCount);
    EXPECT_EQ(engine.CutCount, engine.PieceCount);
    EXPECT_EQ(engine.OrgCount, before.OrgCount);
    EXPECT_EQ(engine.BestLen, static_cast<Long>(GetPCLen(engine)));
    EXPECT_EQ(engine.ResultLen, (engine.BestLen + 2) / 3 * 3)
        << "whole inches, raised to a multiple of 3";
    EXPECT_EQ(engine.BestMode, before.BestMode);
    EXPECT_EQ(engine.CaseCount, before.CaseCount);
    Integer parts = 0;
    for (Integer k = 0; k < engine.OrgCount; ++k) {
        parts = static_cast<Integer>(parts + engine.BestCase[k] + 1);
    }
    EXPECT_GE(parts, engine.PieceCount);
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        EXPECT_GE(engine.OrgPC[i], i > 0 ? engine.OrgPC[i - 1] : 0) << "in the order of creation";
        EXPECT_FLOAT_EQ(engine.PosW[i], (engine.PCX2[i] - engine.PCX1[i]) / 100);
        EXPECT_FLOAT_EQ(engine.PosL[i], (engine.PCY2[i] - engine.PCY1[i]) / 100);
    }
}

// Down lay and cross lay of the same fills are the same job, with X and Y exchanged.
TEST(ImproveEngine, HandsCrossLayBackInTheCallersOrientation) {
    SharedState state;
    state.EstOption = 22;
    EngineArrays down = MakeEngine(144, {{100, 150}, {60, 170}, {84, 90}, {44, 110}, {80, 60}});
    EngineArrays cross = down;
    cross.LayDir = 1;
    for (Integer i = 0; i < cross.PieceCount; ++i) {
        std::swap(cross.PCX1[i], cross.PCY1[i]);
        std::swap(cross.PCX2[i], cross.PCY2[i]);
        cross.PCTurn[i] = 1;
    }
    Search(state, down);
    Search(state, cross);
    Improved(state, down);
    ASSERT_TRUE(Improved(state, cross).Improved);
    ASSERT_EQ(cross.PieceCount, down.PieceCount);
    for (Integer i = 0; i < down.PieceCount; ++i) {
        EXPECT_EQ(cross.PCX1[i], down.PCY1[i]);
        EXPECT_EQ(cross.PCX2[i], down.PCY2[i]);
        EXPECT_EQ(cross.PCY1[i], down.PCX1[i]);
        EXPECT_EQ(cross.PCY2[i], down.PCX2[i]);
        EXPECT_EQ(cross.PosX[i], down.PosX[i]);
        EXPECT_EQ(cross.PosY[i], down.PosY[i]);
    }
}

TEST(ImproveEngine, GoesOnFromAnImprovedLayout) {
    SharedState state;
    state.EstOption = 22;
    EngineArrays engine = MakeEngine(144, {{100, 150}, {60, 170}, {84, 90}, {44, 110}, {80, 60}});
    Search(state, engine);
    const ImproveResult first = Improved(state, engine, 30);
    const ImproveResult second = Improved(state, engine, 3000);
    EXPECT_EQ(second.StartLength, first.Length);
    EXPECT_LE(second.Length, first.Length);
    EXPECT_EQ(FaultOf(engine), "");
}

// 3 x 122 cm fill a roll of 366 cm exactly, although 122 / 2.54 is no round number.
TEST(ImproveEngine, MetricWidthsThatFillTheRollExactlyStandSideBySide) {
    SharedState state;
    state.MetricFlag = 1;
    const double cm = 1 / 2.54;
    EngineArrays engine =
        MakeEngine(static_cast<Single>(366 * cm),
                   {{122 * cm, 200 * cm}, {122 * cm, 210 * cm}, {122 * cm, 220 * cm}});
    Search(state, engine);
    Improved(state, engine);
    EXPECT_NEAR(static_cast<double>(GetPCLen(engine)), 220 * cm, 0.005);
    const RollJob roll = RollJobOf(state, engine);
    EXPECT_EQ(roll.Job.Width, 3) << "in units of 122 cm";
    EXPECT_EQ(roll.Job.Fills.at(0).Length, 22);
}

// 172 + 82 cm are 100 inches; a sum of Singles lies just below or just above that.
TEST(ImproveEngine, AnEquallyLongLayoutIsNotTakenWhenMoreWouldHaveToBeOrdered) {
    SharedState state;
    state.MetricFlag = 1;
    const double cm = 1 / 2.54;
    EngineArrays engine =
        MakeEngine(static_cast<Single>(366 * cm), {{250 * cm, 172 * cm}, {300 * cm, 82 * cm}});
    Search(state, engine);
    const EngineArrays before = engine;
    ASSERT_LT(GetPCLen(before), 100.0F);
    ASSERT_EQ(before.ResultLen, 99);
    const ImproveResult result = Improved(state, engine);
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(engine.ResultLen, 99);
    EXPECT_EQ(GetPCLen(engine), GetPCLen(before));
    EXPECT_EQ(result.Length, GetPCLen(before));
    for (Integer i = 0; i < before.PosCount; ++i) {
        EXPECT_EQ(engine.PosY[i], before.PosY[i]);
    }
}

TEST(ImproveEngine, AStartBetweenWholeUnitsIsComparedByItsTrueLength) {
    SharedState state;
    state.EstOption = 1;
    EngineArrays engine = FillBeginningAt(state, 133, 0.34F);
    Stopper watcher;
    const ImproveResult result = ImproveEngine(state, engine, Limits(500), watcher);
    ASSERT_FALSE(watcher.Told.empty());
    EXPECT_NEAR(watcher.Told.front().Best, 133.34, 0.001);
    EXPECT_TRUE(result.Improved) << "a bound of 133 is not its length";
    EXPECT_EQ(GetPCLen(engine), 133);
    EXPECT_EQ(result.Bound, 133);
    EXPECT_FALSE(result.StartBelowRules);
}

TEST(ImproveEngine, WithoutAPieceNothingIsTried) {
    SharedState state;
    EngineArrays engine = MakeEngine(144);
    const ImproveResult result = Improved(state, engine);
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Steps, 0);
}

// The rest of a piece more than twice as wide as the roll stays too wide.
TEST(ImproveEngine, WithAPieceThatIsTooWideNothingIsTried) {
    SharedState state;
    EngineArrays engine = MakeEngine(100, {{250, 50}, {20, 30}});
    Search(state, engine);
    const ImproveResult result = Improved(state, engine);
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Bound, 0);
}

EngineArrays FiveFills(const SharedState& state) {
    EngineArrays engine = MakeEngine(144, {{100, 150}, {60, 170}, {84, 90}, {44, 110}, {80, 60}});
    Search(state, engine);
    return engine;
}

TEST(ImproveEngine, StoppedAtAnyMomentItKeepsTheBestSoFar) {
    SharedState state;
    state.EstOption = 22;
    const EngineArrays start = FiveFills(state);
    for (int stop = 1; stop <= 20; ++stop) {
        SCOPED_TRACE(stop);
        EngineArrays engine = start;
        Stopper stopper;
        stopper.StopAt = stop;
        const ImproveResult result = ImproveEngine(state, engine, Limits(400), stopper);
        EXPECT_NEAR(static_cast<double>(result.Length), stopper.Told.back().Best, 0.001);
        EXPECT_EQ(FaultOf(engine), "");
        EXPECT_LE(GetPCLen(engine), GetPCLen(start));
    }
}

TEST(ImproveEngine, AnErrorOfTheObserverLeavesTheArraysAsTheyWere) {
    SharedState state;
    state.EstOption = 22;
    const EngineArrays start = FiveFills(state);
    EngineArrays engine = start;
    Stopper stopper;
    stopper.RaiseAt = 12;
    EXPECT_THROW(ImproveEngine(state, engine, Limits(400), stopper), std::runtime_error);
    EXPECT_EQ(PartsOf(engine), PartsOf(start));
    EXPECT_EQ(GetPCLen(engine), GetPCLen(start));
    EXPECT_EQ(engine.ResultLen, start.ResultLen);
}

TEST(ImproveEngine, TellsTheBestTheBoundAndWhatMayBeLeft) {
    SharedState state;
    state.EstOption = 22;
    EngineArrays engine = FiveFills(state);
    Stopper watcher;
    const ImproveResult result = ImproveEngine(state, engine, Limits(400), watcher);
    ASSERT_FALSE(watcher.Told.empty());
    Double best = static_cast<Double>(result.StartLength);
    for (const ImproveProgress& progress : watcher.Told) {
        EXPECT_LE(progress.Best, best) << "the best never gets longer";
        EXPECT_LE(progress.Bound, progress.Best);
        EXPECT_LE(progress.Bound, result.Bound);
        best = progress.Best;
    }
}

} // namespace
} // namespace tarn
