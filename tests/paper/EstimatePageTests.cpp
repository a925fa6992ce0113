#include "estimate/EstimateTesting.h"
#include "paper/EstimatePage.h"

#include <gtest/gtest.h>

#include <optional>

namespace tarn {
namespace {

using testing::Estimated;
using testing::MetricRequest;
using testing::Request;
using testing::WithCarpet;

using Lines = std::vector<std::string>;

std::string TitleOf(const std::string& project) {
    const Drawing drawing;
    return MakeEstimatePage(project, std::nullopt, drawing, {}, "11/21/2031").Title;
}

Lines CarpetLinesOf(const std::optional<Estimate>& estimate) {
    const Drawing drawing;
    return MakeEstimatePage("MAPLE HOUSE", estimate, drawing, {}, "11/21/2031").CarpetLines;
}

TEST(MakeEstimatePage, HasTheTitleWithProjectAndDate) {
    EXPECT_EQ(TitleOf("MAPLE HOUSE"), "     TARN RESULT  (PROJECT: MAPLE HOUSE)  11/21/2031");
    EXPECT_EQ(TitleOf(""), "     TARN RESULT  (PROJECT: )  11/21/2031");
}

TEST(MakeEstimatePage, TakesOverTheDrawingAndThePrintersPage) {
    Drawing drawing;
    drawing.WriteLine("A");
    const EstimatePage page = MakeEstimatePage("", std::nullopt, drawing, {16838, 11906}, "");
    EXPECT_EQ(page.Picture, drawing);
    EXPECT_EQ(page.Sheet, (PageTwips{16838, 11906}));
}

TEST(MakeEstimatePage, NamesCarpetWidthAndDownLay) {
    EXPECT_EQ(CarpetLinesOf(Estimated({{144, 120}}, Request(144))),
              (Lines{"Carpet-1  Width=12'0\"", "DOWNLAY"}));
}

TEST(MakeEstimatePage, NamesCrossLayAndTheOtherCarpets) {
    EXPECT_EQ(CarpetLinesOf(Estimated({{144, 120, 7}}, WithCarpet(Request(162, Lay::Cross), 7))),
              (Lines{"Carpet-8  Width=13'6\"", "CROSSLAY"}));
}

TEST(MakeEstimatePage, GivesTheWidthInWholeCentimetresInMetricUnits) {
    Estimate estimate = Estimated({{366, 500}}, MetricRequest("366"));
    EXPECT_EQ(CarpetLinesOf(estimate), (Lines{"Carpet-1  Width=366", "DOWNLAY"}));
    estimate.Request.RollWidth = 144.09F;
    EXPECT_EQ(CarpetLinesOf(estimate).at(0), "Carpet-1  Width=366");
}

TEST(MakeEstimatePage, HasNoCarpetLineBeforeACarpetWasEstimated) {
    EXPECT_EQ(CarpetLinesOf(std::nullopt), Lines());
}

TEST(MakeEstimatePage, HasNoCarpetLineWithoutACutAndAFill) {
    EXPECT_EQ(CarpetLinesOf(Estimated({{0, 120}}, Request(144))), Lines());
}

TEST(MakeEstimatePage, HasTheCarpetLinesForAFillAloneAsForACutAlone) {
    const Estimate fillAlone = Estimated({{100, 120}}, Request(144));
    EXPECT_TRUE(fillAlone.Cuts.empty());
    EXPECT_EQ(CarpetLinesOf(fillAlone).size(), 2U);
    const Estimate cutAlone = Estimated({{144, 120}}, Request(144));
    EXPECT_TRUE(cutAlone.Job.Pieces.empty());
    EXPECT_EQ(CarpetLinesOf(cutAlone).size(), 2U);
}

} // namespace
} // namespace tarn
