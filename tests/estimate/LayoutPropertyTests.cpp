#include "app/Lengths.h"
#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace tarn {
namespace {

using testing::Corners;
using testing::Job;
using testing::Turned;

constexpr double Tolerance = 0.005; ///< inches
/// Shares of a part below this are dropped, inches: six parts come at most so much short.
constexpr double DroppedShares = 6 * 0.1 * 0.01;

struct Strip {
    double Left, Right, Begin, End; ///< inches on the roll
};

std::vector<Strip> Layout(const EngineArrays& engine) {
    std::vector<Strip> strips;
    for (Integer i = 0; i < engine.PosCount; ++i) {
        const auto x = static_cast<double>(engine.PosX[i]);
        const auto y = static_cast<double>(engine.PosY[i]);
        strips.push_back({x, x + static_cast<double>(engine.PosW[i]), y,
                          y + static_cast<double>(engine.PosL[i])});
    }
    return strips;
}

void ExpectSoundLayout(const Job& job) {
    const std::vector<Strip> strips = Layout(job.Engine);
    const auto roll = static_cast<double>(job.Engine.RollWidth);
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
    EXPECT_EQ(job.Engine.ResultLen % 3, 0);
    EXPECT_GT(job.Engine.ResultLen, end - 1);
    EXPECT_LT(job.Engine.ResultLen, end + 3);
    EXPECT_LE(end, job.Engine.BestLen + 0.5 + 1e-3);
}

/// The size of every strip on the roll is that of the piece it is listed as.
void ExpectPlacedAsListed(const Job& job, bool downLay) {
    const EngineArrays& engine = job.Engine;
    ASSERT_EQ(engine.PosCount, engine.PieceCount);
    const std::vector<Corners> pieces = testing::Pieces(job);
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        const Corners piece = Turned(pieces[static_cast<std::size_t>(i)], downLay);
        EXPECT_NEAR(engine.PosW[i], (piece[1] - piece[0]) * 0.01, 1e-3);
        EXPECT_NEAR(engine.PosL[i], (piece[3] - piece[2]) * 0.01, 4e-3);
    }
}

/// The parts of every fill lie end to end over the whole fill, each exactly as wide as it.
void ExpectFillsWhole(const Job& job, bool downLay) {
    const EngineArrays& engine = job.Engine;
    const std::vector<Corners> pieces = testing::Pieces(job);
    std::map<Integer, std::vector<Corners>> parts;
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        parts[engine.OrgPC[i]].push_back(Turned(pieces[static_cast<std::size_t>(i)], downLay));
    }
    const auto fills = testing::RowsOf(job.Estimate.SavedFills, job.Estimate.SavedFillCount);
    ASSERT_EQ(parts.size(), fills.size());
    for (auto& [number, strips] : parts) {
        SCOPED_TRACE(::testing::Message() << "fill " << number);
        const Corners fill = Turned(fills.at(static_cast<std::size_t>(number)), downLay);
        std::sort(strips.begin(), strips.end(),
                  [](const Corners& a, const Corners& b) { return a[2] < b[2]; });
        Single reached = fill[2];
        for (const Corners& strip : strips) {
            EXPECT_EQ(strip[0], fill[0]);
            EXPECT_EQ(strip[1], fill[1]);
            EXPECT_EQ(strip[2], reached);
            reached = strip[3];
        }
        EXPECT_GE(reached * 0.01, fill[3] * 0.01 - DroppedShares - 1e-3);
    }
}

double ListedLength(const std::string& text, bool metric) {
    return metric ? std::stoi(text) / 2.54 : ReadFtIn(text).value();
}

/// What the list says of a strip is not less than the strip is, and less than a unit more.
void ExpectListed(const std::string& line, const Corners& strip, bool metric) {
    SCOPED_TRACE(line);
    const std::size_t colon = line.find(": ");
    const std::size_t cross = line.find(" X ");
    ASSERT_NE(colon, std::string::npos);
    ASSERT_NE(cross, std::string::npos);
    const std::array<double, 2> listed{
        ListedLength(line.substr(colon + 2, cross - colon - 2), metric),
        ListedLength(line.substr(cross + 3), metric)};
    const std::array<double, 2> actual{(strip[1] - strip[0]) * 0.01, (strip[3] - strip[2]) * 0.01};
    const double slack = (metric ? 0.03 / 2.54 : Tolerance) + 1e-6;
    const double unit = metric ? 1 / 2.54 : 1;
    for (std::size_t side = 0; side < 2; ++side) {
        EXPECT_GT(listed.at(side), actual.at(side) - slack);
        EXPECT_LT(listed.at(side), actual.at(side) + unit);
    }
}

void ExpectCutListTrue(const Job& job, bool downLay) {
    const auto lines = CutListLines(job.State, job.Engine, job.Estimate);
    std::vector<Corners> strips = testing::Cuts(job);
    for (const Corners& piece : testing::Pieces(job)) {
        strips.push_back(piece);
    }
    ASSERT_GT(lines.size(), strips.size());
    for (std::size_t i = 0; i < strips.size(); ++i) {
        ExpectListed(lines[i + 1], Turned(strips[i], downLay), job.State.IsMetric());
    }
    double end = 0;
    for (const Strip& strip : Layout(job.Engine)) {
        end = std::max(end, strip.End);
    }
    const auto told = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.rfind("Fills end at:", 0) == 0;
    });
    if (told == lines.end()) {
        EXPECT_LT(end, job.Engine.ResultLen + Tolerance + 1e-3);
    } else {
        EXPECT_GT(end, job.Engine.ResultLen + Tolerance - 1e-3);
        EXPECT_GT(ListedLength(told->substr(13), job.State.IsMetric()), end - 0.03 / 2.54);
    }
}

void ExpectSameBits(const Job& a, const Job& b) {
    EXPECT_EQ(testing::Cuts(a), testing::Cuts(b));
    EXPECT_EQ(testing::Pieces(a), testing::Pieces(b));
    EXPECT_EQ(a.Engine.PosCount, b.Engine.PosCount);
    EXPECT_EQ(a.Engine.CaseCount, b.Engine.CaseCount);
    EXPECT_EQ(a.Engine.BestLen, b.Engine.BestLen);
    EXPECT_EQ(a.Engine.BestMode, b.Engine.BestMode);
    EXPECT_EQ(a.Engine.ResultLen, b.Engine.ResultLen);
    for (Integer i = 0; i < a.Engine.PosCount; ++i) {
        EXPECT_EQ(a.Engine.PosX[i], b.Engine.PosX[i]);
        EXPECT_EQ(a.Engine.PosY[i], b.Engine.PosY[i]);
        EXPECT_EQ(a.Engine.PosW[i], b.Engine.PosW[i]);
        EXPECT_EQ(a.Engine.PosL[i], b.Engine.PosL[i]);
        EXPECT_EQ(a.Engine.OrgPC[i], b.Engine.OrgPC[i]);
    }
}

/// Unit and lay.
class Estimating : public ::testing::TestWithParam<std::tuple<bool, bool>> {};

TEST_P(Estimating, EveryLayoutIsSoundCompleteRepeatableAndListedTrue) {
    const auto [metric, downLay] = GetParam();
    Job job(metric);
    Job again(metric);
    int layouts = 0;
    for (unsigned seed = 1; seed <= 3000; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        const Single roll = testing::RandomRollWidth(random, metric);
        const auto option = static_cast<Integer>(10 * testing::Between(random, 0, 2) +
                                                 testing::Between(random, 0, 5));
        for (Job* each : {&job, &again}) {
            std::mt19937 rooms(seed);
            each->State.ObjNum = 0;
            testing::AddRandomRooms(*each, rooms, roll, 7);
            testing::MakeEstimate(*each, testing::Request(roll, downLay, option));
        }
        ExpectSameBits(job, again);
        if (job.Engine.PieceCount > 0) {
            ++layouts;
            ExpectSoundLayout(job);
            ExpectPlacedAsListed(job, downLay);
            ExpectFillsWhole(job, downLay);
        }
        if (job.Engine.PieceCount > 0 || job.State.ECutCount > 0) {
            ExpectCutListTrue(job, downLay);
        }
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_GT(layouts, 1500);
}

INSTANTIATE_TEST_SUITE_P(BothUnitsBothLays, Estimating,
                         ::testing::Combine(::testing::Bool(), ::testing::Bool()),
                         [](const auto& job) {
                             return std::string(std::get<0>(job.param) ? "Metric" : "Imperial") +
                                    (std::get<1>(job.param) ? "DownLay" : "CrossLay");
                         });

} // namespace
} // namespace tarn
