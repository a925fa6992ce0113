#include "estimate/EstimatePage.h"
#include "estimate/EstimateTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Job;

using Lines = std::vector<std::string>;

/// The page of a job with the given roll; the drawing must outlive it.
EstimatePage PageOf(const Job& job, const Picture& drawing) {
    return MakeEstimatePage(job.State, job.Engine, job.Estimate, drawing, "11/21/2031");
}

TEST(MakeEstimatePage, HasTheTitleWithProjectAndDate) {
    Job job;
    job.State.CurProjName = "MAPLE HOUSE";
    const Picture drawing;
    EXPECT_EQ(PageOf(job, drawing).Title, "     TARN RESULT  (PROJECT: MAPLE HOUSE)  11/21/2031");
    job.State.CurProjName.clear();
    EXPECT_EQ(PageOf(job, drawing).Title, "     TARN RESULT  (PROJECT: )  11/21/2031");
}

TEST(MakeEstimatePage, TakesOverTheDrawingAndThePrintersPage) {
    Job job;
    job.State.PrnWidth = 16838;
    job.State.PrnHeight = 11906;
    const Picture drawing;
    const EstimatePage page = PageOf(job, drawing);
    EXPECT_EQ(page.Drawing, &drawing);
    EXPECT_EQ(page.PrnWidth, 16838);
    EXPECT_EQ(page.PrnHeight, 11906);
}

TEST(MakeEstimatePage, NamesCarpetWidthAndDownLay) {
    Job job = testing::Imperial({{144, 120}});
    testing::MakeEstimate(job, testing::Request(144));
    const Picture drawing;
    EXPECT_EQ(PageOf(job, drawing).CarpetLines, (Lines{"Carpet-1  Width=12'0\"", "DOWNLAY"}));
}

TEST(MakeEstimatePage, NamesCrossLayAndTheOtherCarpets) {
    Job job = testing::Imperial({{144, 120, 7}});
    EstimateRequest request = testing::Request(162, false);
    request.Carpet = 7;
    testing::MakeEstimate(job, request);
    const Picture drawing;
    EXPECT_EQ(PageOf(job, drawing).CarpetLines, (Lines{"Carpet-8  Width=13'6\"", "CROSSLAY"}));
}

TEST(MakeEstimatePage, GivesTheWidthInWholeCentimetresInMetricMode) {
    Job job = testing::Metric({{366, 500}});
    testing::MakeEstimate(job, testing::Request(testing::Centimetres("366")));
    const Picture drawing;
    EXPECT_EQ(PageOf(job, drawing).CarpetLines, (Lines{"Carpet-1  Width=366", "DOWNLAY"}));
    job.Engine.RollWidth = 144.09F;
    EXPECT_EQ(PageOf(job, drawing).CarpetLines.at(0), "Carpet-1  Width=366");
}

TEST(MakeEstimatePage, HasNoCarpetLineBeforeACarpetWasEstimated) {
    Job job = testing::Imperial({{144, 120}});
    testing::MakeEstimate(job, testing::Request(144));
    job.Estimate.CarpetNo = NoCarpet;
    const Picture drawing;
    EXPECT_EQ(PageOf(job, drawing).CarpetLines, Lines());
}

TEST(MakeEstimatePage, HasNoCarpetLineWithoutACutAndAPiece) {
    Job job = testing::Imperial({{0, 120}});
    testing::MakeEstimate(job, testing::Request(144));
    const Picture drawing;
    EXPECT_NE(job.Estimate.CarpetNo, NoCarpet);
    EXPECT_EQ(PageOf(job, drawing).CarpetLines, Lines());
}

TEST(MakeEstimatePage, HasTheCarpetLinesForAPieceAloneAsForACutAlone) {
    Job pieceAlone = testing::Imperial({{100, 120}});
    testing::MakeEstimate(pieceAlone, testing::Request(144));
    EXPECT_EQ(pieceAlone.State.ECutCount, 0);
    const Picture drawing;
    EXPECT_EQ(PageOf(pieceAlone, drawing).CarpetLines.size(), 2U);
    Job cutAlone = testing::Imperial({{144, 120}});
    testing::MakeEstimate(cutAlone, testing::Request(144));
    EXPECT_EQ(cutAlone.Engine.PieceCount, 0);
    EXPECT_EQ(PageOf(cutAlone, drawing).CarpetLines.size(), 2U);
}

} // namespace
} // namespace tarn
