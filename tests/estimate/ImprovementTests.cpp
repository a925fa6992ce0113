#include "base/Lengths.h"
#include "engine/ResultLength.h"
#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "estimate/ImproveEstimate.h"
#include "estimate/LayoutDrawing.h"
#include "estimate/Totals.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace {

using testing::Estimated;
using testing::MetricRequest;
using testing::Request;
using testing::WithParts;

EstimateRequest SixPiecesOfHalfAFoot(const EstimateRequest& request) {
    return WithParts(request, MinCut::HalfFoot, 6);
}

ImprovedEstimate Improve(const Estimate& estimate, std::int64_t steps = 2000) {
    ImproveObserver nobody;
    return ImproveEstimate(estimate, {0, steps, 1}, nobody);
}

/// Rooms whose layout the search leaves well above the least possible.
Estimate House() {
    return Estimated({{100, 150}, {60, 170}, {84, 90}, {44, 110}, {80, 60}, {200, 130}},
                     SixPiecesOfHalfAFoot(Request(144)));
}

/// The number of the first line that begins so; -1 without one.
int LineOf(const std::vector<std::string>& lines, const std::string& begin) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].rfind(begin, 0) == 0) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

TEST(ImprovementText, RoundsWhatWasGainedDownAndWhatMayBeLeftUp) {
    EXPECT_EQ(ImprovementText({200, 193.61, 190.2, 5, 6}),
              "Improved: fills 3.1% shorter, at most 1.8% above the least possible");
    EXPECT_EQ(ImprovementText({1000, 999.5, 999.49, 5, 5}),
              "Improved: fills less than 0.1% shorter, at most 0.1% above the least possible");
}

TEST(ShorterText, SaysWhatTheListedTotalsDifferBy) {
    const Estimate estimate = Estimated({{144, 120}, {100, 150}}, Request(144));
    Estimate better = estimate;
    EXPECT_EQ(ShorterText(estimate, better), "");
    better.Fills.Length -= 99;
    EXPECT_EQ(ShorterText(estimate, better), "8'3\" shorter");
    better.Fills.Length += 200;
    EXPECT_EQ(ShorterText(estimate, better), "") << "longer";
}

TEST(ShorterText, IsInWholeCentimetresInMetricUnits) {
    const Estimate estimate = Estimated({{366, 300}, {250, 380}}, MetricRequest("366"));
    Estimate better = estimate;
    better.Fills.Length -= 9;
    const auto listed = [](const Estimate& of) { return RoundedCentimetres(TotalRoll(of).Length); };
    EXPECT_EQ(ShorterText(estimate, better),
              std::to_string(listed(estimate) - listed(better)) + " shorter");
}

TEST(ImprovementText, SaysWhenNothingIsShorter) {
    EXPECT_EQ(ImprovementText({200, 190, 190, 5, 6}),
              "Improved: fills 5.0% shorter, the least possible");
    EXPECT_EQ(ImprovementText({200, 190.004, 190, 5, 6}),
              "Improved: fills 4.9% shorter, the least possible")
        << "the same length as the bound";
    EXPECT_EQ(LeastPossibleText(110, 100), "at most 10.0% above the least possible");
}

TEST(ImprovementText, NamesTheGainOfALayoutOfTheSameLength) {
    EXPECT_EQ(ImprovementText({200, 200, 190, 5, 4}),
              "Improved: 1 join fewer, at most 5.3% above the least possible");
    EXPECT_EQ(ImprovementText({200, 200, 200, 9, 4}),
              "Improved: 5 joins fewer, the least possible");
    EXPECT_EQ(ImprovementText({200, 200, 200, 4, 4}),
              "Improved: larger free end, the least possible");
}

TEST(GapText, ClaimsNothingOfAStartThatIsShorterThanTheRulesAllow) {
    EXPECT_EQ(GapText({110, 0, false}), "");
    EXPECT_EQ(GapText({110, 100, false}), "at most 10.0% above the least possible");
    EXPECT_EQ(GapText({110, 110, true}), "none whose parts keep the minimum cut is as short");
}

// At whole inches the halves take 101 inches.
TEST(ImproveEstimate, ClaimsNothingOfAStartThatIsShorterThanTheRulesAllow) {
    const Estimate start = Estimated({{72, 201}}, WithParts(Request(144), MinCut::ThreeFeet, 2));
    const ImprovedEstimate improved = Improve(start);
    EXPECT_FALSE(improved.Result.Improved);
    EXPECT_EQ(improved.Result.Length, 100.5F);
    EXPECT_EQ(NothingBetterReason(improved.Result),
              "none whose parts keep the minimum cut is as short");
    EXPECT_EQ(improved.Value, start);
    EXPECT_EQ(KeptText(improved.Result, start.Request), "8'5\" with parts of at least 3 FT");
    const Estimate keeping = KeepingMinCut(start, improved.Result);
    EXPECT_EQ(LengthInUse(keeping.Fills.Layout), 101.0F);
    EXPECT_FALSE(keeping.Improved.has_value());
    EXPECT_EQ(keeping.Request, start.Request);
}

TEST(KeptText, IsEmptyWhereTheEstimateKeepsTheMinimumCut) {
    const Estimate start = House();
    EXPECT_EQ(KeptText(Improve(start).Result, start.Request), "");
}

TEST(ImproveEstimate, ListsTheImprovedPiecesAndSaysSoBelowTheFills) {
    const Estimate start = House();
    EXPECT_EQ(LineOf(CutListLines(start), "Improved:"), -1);
    const auto [estimate, result] = Improve(start);
    ASSERT_TRUE(result.Improved);
    ASSERT_LT(result.Length, result.StartLength);
    const std::vector<std::string> lines = CutListLines(estimate);
    const int fills = LineOf(lines, "Total Fills:");
    EXPECT_EQ(LineOf(lines, "Improved:"), fills + 1);
    EXPECT_EQ(LineOf(lines, "Total Length:"), fills + 2);
    EXPECT_EQ(lines.at(static_cast<std::size_t>(fills)),
              "Total Fills:" + std::to_string(estimate.Fills.Layout.size()) +
                  "   Total Fill-Len:" + LengthText(estimate.Fills.Length, Units::Imperial));
    EXPECT_EQ(LineOf(lines, "A: "), 2) << "heading, a cut, the pieces";
}

TEST(ImproveEstimate, ChangesTheLayoutAlone) {
    const Estimate start = House();
    const Estimate before = start;
    auto [estimate, result] = Improve(start);
    ASSERT_TRUE(result.Improved);
    EXPECT_EQ(start, before);
    EXPECT_NE(estimate.Fills.Layout, start.Fills.Layout);
    EXPECT_EQ(estimate.Fills, result.Fills);
    estimate.Fills = start.Fills;
    estimate.Improved.reset();
    EXPECT_EQ(estimate, start);
}

// A length of whole centimetres is no whole number of inches: the line that tells where the fills
// end comes first.
TEST(ImproveEstimate, SaysSoBelowTheLineThatTellsWhereTheFillsEnd) {
    for (int length = 201; length < 230; ++length) {
        const ImprovedEstimate improved =
            Improve(Estimated({{254, 381}, {152, 432}, {213, length}, {112, 279}, {203, 152}},
                              SixPiecesOfHalfAFoot(MetricRequest("366"))));
        if (!improved.Result.Improved) {
            continue;
        }
        const std::vector<std::string> lines = CutListLines(improved.Value);
        const int end = LineOf(lines, "Fills end at:");
        if (end >= 0) {
            EXPECT_EQ(LineOf(lines, "Improved:"), end + 1);
            return;
        }
    }
    FAIL() << "no such job";
}

TEST(ImproveEstimate, TheDrawingShowsTheImprovedLayoutAndTheLine) {
    const ImprovedEstimate improved = Improve(House());
    ASSERT_TRUE(improved.Result.Improved);
    Drawing drawing;
    DrawLayout(drawing, improved.Value);
    DrawCutList(drawing, improved.Value, 0, 0);
    std::size_t boxes = 0;
    bool said = false;
    for (const DrawingStep& step : drawing.Steps()) {
        boxes += step.What == DrawingStep::Kind::Box ? 1 : 0;
        said = said || step.Text.rfind("Improved: ", 0) == 0;
    }
    EXPECT_EQ(boxes, improved.Value.Fills.Layout.size() + 1);
    EXPECT_TRUE(said);
}

TEST(ImproveEstimate, TheReportedLengthFollowsTheSameRule) {
    const ImprovedEstimate improved = Improve(House());
    ASSERT_TRUE(improved.Result.Improved);
    const SearchResult& fills = improved.Value.Fills;
    EXPECT_EQ(fills.Length, ResultLength(fills.Layout));
    EXPECT_EQ(fills.Length % 3, 0);
}

TEST(ImproveEstimate, CountsTheGainFromTheFirstLayoutAndKeepsTheBestBound) {
    const ImprovedEstimate first = Improve(House(), 150);
    ASSERT_TRUE(first.Result.Improved);
    const Estimate second = Improve(first.Value, 3000).Value;
    ASSERT_TRUE(second.Improved.has_value());
    EXPECT_EQ(second.Improved->StartLength, static_cast<Double>(first.Result.StartLength));
    EXPECT_EQ(second.Improved->StartPieces, first.Result.StartPieces);
    EXPECT_EQ(second.Improved->Length, static_cast<Double>(LengthInUse(second.Fills.Layout)));
    EXPECT_GE(second.Improved->Bound, first.Result.Bound);
    EXPECT_EQ(static_cast<std::size_t>(second.Improved->Pieces), second.Fills.Layout.size());
}

// One layout is tried: the bound that was known before counts all the same.
TEST(ImproveEstimate, HandsTheBestBoundOfAllBack) {
    Estimate estimate = Improve(House(), 3000).Value;
    ASSERT_TRUE(estimate.Improved.has_value());
    ASSERT_GT(estimate.Improved->Bound, 0);
    estimate.Improved->Bound = estimate.Improved->Length;
    const ImproveResult result = Improve(estimate, 1).Result;
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Bound, static_cast<Double>(result.Length));
}

TEST(ImproveEstimate, LeavesAnEstimateThatCannotBeImprovedAsItIs) {
    const Estimate start = Estimated({{144, 100}, {72, 90}, {72, 90}}, Request(144));
    const ImprovedEstimate improved = Improve(start);
    EXPECT_FALSE(improved.Result.Improved);
    EXPECT_EQ(improved.Result.Bound, 90);
    EXPECT_EQ(improved.Value, start);
}

TEST(ImproveEstimate, OfAnEstimateWithoutFillsIsThatEstimate) {
    for (const testing::Rooms& rooms : {testing::Rooms{{144, 100}}, {{100, 100, 8}}}) {
        const Estimate start = Estimated(rooms, Request(144));
        const ImprovedEstimate improved = Improve(start);
        EXPECT_FALSE(improved.Result.Improved);
        EXPECT_EQ(improved.Result.Bound, 0) << "there is nothing to improve";
        EXPECT_EQ(improved.Value, start);
    }
}

TEST(ImproveEstimate, PassesOnWhatTheObserverRaises) {
    struct Failing : ImproveObserver {
        bool Progress(const ImproveProgress&) override { throw std::domain_error("it failed"); }
    };
    const Estimate start = House();
    Failing failing;
    EXPECT_THROW(ImproveEstimate(start, {0, 2000, 1}, failing), std::domain_error);
    EXPECT_EQ(start, House());
}

} // namespace
} // namespace tarn
