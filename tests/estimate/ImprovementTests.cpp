#include "app/Lengths.h"
#include "engine/FinishLayout.h"
#include "engine/Placement.h"
#include "estimate/CutList.h"
#include "estimate/EstimateJson.h"
#include "estimate/EstimateTesting.h"
#include "estimate/ImproveEstimate.h"
#include "estimate/LayoutDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using testing::Imperial;
using testing::Job;
using testing::MakeEstimate;
using testing::Metric;
using testing::Request;
using ::testing::StartsWith;

constexpr Integer SixPiecesOfHalfAFoot = 25;

ImproveResult Improve(Job& job, std::int64_t steps = 2000) {
    ImproveObserver nobody;
    return ImproveEstimate(job.State, job.Engine, job.Estimate, {0, steps, 1}, nobody);
}

/// Rooms whose layout the search leaves well above the least possible.
Job Estimated() {
    Job job = Imperial({{100, 150}, {60, 170}, {84, 90}, {44, 110}, {80, 60}, {200, 130}});
    MakeEstimate(job, Request(144, true, SixPiecesOfHalfAFoot));
    return job;
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
    Job job = Imperial({{72, 201}});
    MakeEstimate(job, Request(144, true, 1));
    const ImproveResult result = Improve(job);
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Length, 100.5F);
    EXPECT_EQ(NothingBetterReason(result), "none whose parts keep the minimum cut is as short");
}

TEST(ImproveEstimate, ListsTheImprovedPiecesAndSaysSoBelowTheFills) {
    Job job = Estimated();
    const std::vector<std::string> before = CutListLines(job.State, job.Engine, job.Estimate);
    EXPECT_EQ(LineOf(before, "Improved:"), -1);
    const ImproveResult result = Improve(job);
    ASSERT_TRUE(result.Improved);
    ASSERT_LT(result.Length, result.StartLength);
    const std::vector<std::string> lines = CutListLines(job.State, job.Engine, job.Estimate);
    const int fills = LineOf(lines, "Total Fills:");
    EXPECT_EQ(LineOf(lines, "Improved:"), fills + 1);
    EXPECT_EQ(LineOf(lines, "Total Length:"), fills + 2);
    EXPECT_EQ(lines.at(static_cast<std::size_t>(fills)),
              "Total Fills:" + std::to_string(job.Engine.PieceCount) +
                  "   Total Fill-Len:" + LengthText(job.Engine.ResultLen, false));
    EXPECT_EQ(LineOf(lines, "A: "), 2) << "heading, a cut, the pieces";
}

// A length of whole centimetres is no whole number of inches: the line that tells where the fills
// end comes first.
TEST(ImproveEstimate, SaysSoBelowTheLineThatTellsWhereTheFillsEnd) {
    for (int length = 201; length < 230; ++length) {
        Job job = Metric({{254, 381}, {152, 432}, {213, length}, {112, 279}, {203, 152}});
        MakeEstimate(job, Request(testing::Centimetres("366"), true, SixPiecesOfHalfAFoot));
        if (!Improve(job).Improved) {
            continue;
        }
        const std::vector<std::string> lines = CutListLines(job.State, job.Engine, job.Estimate);
        const int end = LineOf(lines, "Fills end at:");
        if (end >= 0) {
            EXPECT_EQ(LineOf(lines, "Improved:"), end + 1);
            return;
        }
    }
    FAIL() << "no such job";
}

TEST(ImproveEstimate, TheDrawingShowsTheImprovedLayoutAndTheLine) {
    Job job = Estimated();
    ASSERT_TRUE(Improve(job).Improved);
    Picture picture;
    RedrawPC(picture, job.State, job.Engine, job.Estimate);
    ShowECutsInfo(picture, job.State, job.Engine, job.Estimate, 0, 0);
    int boxes = 0;
    bool said = false;
    for (const DrawingStep& step : picture.Steps()) {
        boxes += step.What == DrawingStep::Kind::Box ? 1 : 0;
        said = said || step.Text.rfind("Improved: ", 0) == 0;
    }
    EXPECT_EQ(boxes, job.Engine.PieceCount + 1);
    EXPECT_TRUE(said);
}

TEST(ImproveEstimate, ResultLenFollowsTheSameRule) {
    Job job = Estimated();
    ASSERT_TRUE(Improve(job).Improved);
    const Integer result = job.Engine.ResultLen;
    ShowResultPic(job.Engine);
    EXPECT_EQ(job.Engine.ResultLen, result);
    EXPECT_EQ(result % 3, 0);
}

TEST(ImproveEstimate, CountsTheGainFromTheFirstLayoutAndKeepsTheBestBound) {
    Job job = Estimated();
    const ImproveResult first = Improve(job, 150);
    ASSERT_TRUE(first.Improved);
    Improve(job, 3000);
    ASSERT_TRUE(job.Estimate.Improved.has_value());
    EXPECT_EQ(job.Estimate.Improved->StartLength, static_cast<Double>(first.StartLength));
    EXPECT_EQ(job.Estimate.Improved->StartPieces, first.StartPieces);
    EXPECT_EQ(job.Estimate.Improved->Length, static_cast<Double>(GetPCLen(job.Engine)));
    EXPECT_GE(job.Estimate.Improved->Bound, first.Bound);
    EXPECT_EQ(job.Estimate.Improved->Pieces, job.Engine.PieceCount);
}

// One layout is tried: the bound that was known before counts all the same.
TEST(ImproveEstimate, HandsTheBestBoundOfAllBack) {
    Job job = Estimated();
    Improve(job, 3000);
    ASSERT_TRUE(job.Estimate.Improved.has_value());
    ASSERT_GT(job.Estimate.Improved->Bound, 0);
    job.Estimate.Improved->Bound = job.Estimate.Improved->Length;
    const ImproveResult result = Improve(job, 1);
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Bound, static_cast<Double>(result.Length));
}

TEST(ImproveEstimate, LeavesAnEstimateThatCannotBeImprovedAsItIs) {
    Job job = Imperial({{144, 100}, {72, 90}, {72, 90}});
    MakeEstimate(job, Request(144));
    const std::vector<std::string> before = CutListLines(job.State, job.Engine, job.Estimate);
    const ImproveResult result = Improve(job);
    EXPECT_FALSE(result.Improved);
    EXPECT_EQ(result.Bound, 90);
    EXPECT_FALSE(job.Estimate.Improved.has_value());
    EXPECT_EQ(CutListLines(job.State, job.Engine, job.Estimate), before);
}

TEST(ImproveEstimate, TheRecordGoesWithTheEstimate) {
    Job job = Estimated();
    ASSERT_TRUE(Improve(job).Improved);
    EmptyEstimate(job.State, job.Engine, job.Estimate);
    EXPECT_FALSE(job.Estimate.Improved.has_value());
    Improve(job);
    EXPECT_FALSE(job.Estimate.Improved.has_value()) << "there is nothing to improve";
}

TEST(EstimateJson, HoldsTheImprovementOnlyWhenThereIsOne) {
    Job job = Estimated();
    EXPECT_THAT(EstimateJson(job.State, job.Engine, job.Estimate),
                ::testing::Not(HasSubstr("\"improved\"")));
    ASSERT_TRUE(Improve(job).Improved);
    const std::string json = EstimateJson(job.State, job.Engine, job.Estimate);
    for (const char* key :
         {"\"improved\"", "\"startLength\"", "\"length\"", "\"bound\"", "\"startPieces\""}) {
        EXPECT_THAT(json, HasSubstr(key));
    }
}

} // namespace
} // namespace tarn
