#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "estimate/LayoutDrawing.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using Kind = DrawingStep::Kind;
using testing::AddPlaced;
using testing::ErrorOf;
using testing::Imperial;
using testing::Job;
using testing::MakeEstimate;
using testing::Metric;
using testing::Request;

void ExpectBox(const DrawingStep& step, QBColor color, std::array<double, 4> box) {
    EXPECT_EQ(step.What, Kind::Box);
    EXPECT_EQ(step.Color, color);
    EXPECT_DOUBLE_EQ(step.X1, box[0]);
    EXPECT_DOUBLE_EQ(step.Y1, box[1]);
    EXPECT_DOUBLE_EQ(step.X2, box[2]);
    EXPECT_DOUBLE_EQ(step.Y2, box[3]);
}

void ExpectText(const DrawingStep& step, const std::string& text, double x, double y,
                double fontSize = 9) {
    EXPECT_EQ(step.What, Kind::Text);
    EXPECT_EQ(step.Color, QBColor::Black);
    EXPECT_EQ(step.Text, text);
    EXPECT_DOUBLE_EQ(step.X1, x);
    EXPECT_DOUBLE_EQ(step.Y1, y);
    EXPECT_EQ(step.FontSize, fontSize);
}

/// A roll of that width with a reported length, and nothing on it yet.
Job Roll(Single width, Integer length) {
    Job job;
    job.Engine.RollWidth = width;
    job.Engine.ResultLen = length;
    return job;
}

Picture Redrawn(const Job& job, PieceSizes sizes = PieceSizes::Hidden) {
    Picture picture;
    RedrawPC(picture, job.State, job.Engine, job.Estimate, sizes);
    return picture;
}

//      0      60   100
//    0 +------+----+
//      |  A   |    |
//   40 +----+-+    |
//      |    |  B   |    the along scale decides: 6400 / 160 = 40 twips an inch
//  160 +----+------+
TEST(RedrawPC, DrawsEveryBoxWithItsLabelAndThenTheRoll) {
    Job job = Roll(100, 160);
    AddPlaced(job, {0, 0, 60, 40});
    AddPlaced(job, {40, 40, 60, 120});
    const Picture picture = Redrawn(job);
    ASSERT_EQ(picture.Steps().size(), 5U);
    ExpectBox(picture.Steps()[0], QBColor::Red, {7500, 500, 7500 + 2400, 500 + 1600});
    ExpectText(picture.Steps()[1], "A", 7450 + 1200, 450 + 800);
    ExpectBox(picture.Steps()[2], QBColor::Red, {7500 + 1600, 500 + 1600, 7500 + 4000, 500 + 6400});
    ExpectText(picture.Steps()[3], "B", 7450 + 2800, 450 + 4000);
    ExpectBox(picture.Steps()[4], QBColor::Black, {7500, 500, 7500 + 4000, 500 + 6400});
    EXPECT_TRUE(picture.Visible);
}

TEST(RedrawPC, ALongRollIsDrawn3400TwipsWideAndRunsOn) {
    Job job = Roll(170, 800);
    AddPlaced(job, {0, 0, 170, 800});
    ExpectBox(Redrawn(job).Steps().back(), QBColor::Black, {7500, 500, 7500 + 3400, 500 + 16000});
}

TEST(RedrawPC, AShortRollIsDrawn6400TwipsLongAndRunsOn) {
    Job job = Roll(144, 48);
    AddPlaced(job, {0, 0, 144, 48});
    ExpectBox(Redrawn(job).Steps().back(), QBColor::Black, {7500, 500, 7500 + 19200, 500 + 6400});
}

TEST(RedrawPC, PiecesPastTheReportedLengthAreDrawnPastTheRoll) {
    Job job = Roll(100, 160);
    AddPlaced(job, {0, 0, 100, 160.5F});
    const Picture picture = Redrawn(job);
    EXPECT_DOUBLE_EQ(picture.Steps()[0].Y2, 500 + 160.5 * 40);
    EXPECT_DOUBLE_EQ(picture.Steps()[2].Y2, 500 + 160 * 40);
    EXPECT_DOUBLE_EQ(picture.FarthestY(), 500 + 160.5 * 40);
}

TEST(RedrawPC, LabelsAreThoseOfTheCutList) {
    Job job = Roll(100, 160);
    for (int i = 0; i < 27; ++i) {
        AddPlaced(job, {0, 0, 10, 20});
    }
    const Picture picture = Redrawn(job);
    EXPECT_EQ(picture.Steps()[1].Text, "AA");
    EXPECT_EQ(picture.Steps()[51].Text, "AZ");
    EXPECT_EQ(picture.Steps()[53].Text, "BA");
}

TEST(RedrawPC, EveryBoxTellsWhatItStandsFor) {
    Job job = Roll(100, 160);
    AddPlaced(job, {0, 0, 60, 40});
    const Picture picture = Redrawn(job);
    EXPECT_EQ(picture.Steps()[0].Tip, "A: 5'0\" X 3'4\"");
    EXPECT_EQ(picture.Steps()[2].Tip, "");
}

TEST(RedrawPC, ClearsWhatWasDrawnBefore) {
    Job job = Roll(100, 160);
    AddPlaced(job, {0, 0, 60, 40});
    Picture picture;
    picture.Line(0, 0, 90000, 90000, QBColor::Black);
    RedrawPC(picture, job.State, job.Engine, job.Estimate);
    EXPECT_EQ(picture.Steps().size(), 3U);
    EXPECT_LT(picture.FarthestX(), 90000);
}

TEST(RedrawPC, LabelsInBlackInThePicturesFontAndLeavesFontAndColour) {
    Job job = Roll(100, 160);
    AddPlaced(job, {0, 0, 60, 40});
    for (const PieceSizes sizes : {PieceSizes::Hidden, PieceSizes::Shown}) {
        Picture picture;
        picture.FontSize = 10;
        picture.ForeColor = QBColor::Green;
        RedrawPC(picture, job.State, job.Engine, job.Estimate, sizes);
        EXPECT_EQ(picture.Steps()[1].FontSize, 10);
        EXPECT_EQ(picture.Steps()[1].Color, QBColor::Black);
        EXPECT_EQ(picture.FontSize, 10);
        EXPECT_EQ(picture.ForeColor, QBColor::Green);
    }
}

TEST(RedrawPC, WithoutPiecesSaysSoInLightRedAndTwelvePointsAndLeavesFontAndColour) {
    Picture picture;
    picture.FontSize = 10;
    picture.ForeColor = QBColor::Green;
    const Job job = Roll(144, 0);
    RedrawPC(picture, job.State, job.Engine, job.Estimate);
    ASSERT_EQ(picture.Steps().size(), 1U);
    const DrawingStep& notice = picture.Steps()[0];
    EXPECT_EQ(notice.What, Kind::Text);
    EXPECT_EQ(notice.Text, "NO FILLS TO DISPLAY");
    EXPECT_EQ(notice.X1, 7500);
    EXPECT_EQ(notice.Y1, 3000);
    EXPECT_EQ(notice.FontSize, 12);
    EXPECT_EQ(notice.Color, QBColor::Red);
    EXPECT_EQ(picture.FontSize, 10);
    EXPECT_EQ(picture.ForeColor, QBColor::Green);
    EXPECT_TRUE(picture.Visible);
}

TEST(RedrawPC, AReportedLengthOfZeroWithPiecesIsADivisionByZeroAndLeavesThePen) {
    for (const auto& [width, length] : {std::pair{144.0F, 0}, std::pair{0.0F, 160}}) {
        Job job = Roll(width, static_cast<Integer>(length));
        AddPlaced(job, {0, 0, 60, 40});
        Picture picture;
        picture.FontSize = 10;
        picture.ForeColor = QBColor::Green;
        const RunTimeError error =
            ErrorOf([&] { RedrawPC(picture, job.State, job.Engine, job.Estimate); });
        EXPECT_EQ(error.Number(), DivisionByZeroNumber);
        EXPECT_EQ(error.Advice(), length > 0 ? ""
                                             : "The fills are shorter than 1 inch: check the sizes "
                                               "of this carpet's rooms.");
        EXPECT_EQ(picture.FontSize, 10);
        EXPECT_EQ(picture.ForeColor, QBColor::Green);
        EXPECT_TRUE(picture.Steps().empty());
    }
}

TEST(RedrawPC, OnRequestWritesASizeBelowTheLabelCentredInThePiece) {
    Job job = Roll(100, 160);
    AddPlaced(job, {0, 0, 60, 40});
    const Picture picture = Redrawn(job, PieceSizes::Shown);
    ASSERT_EQ(picture.Steps().size(), 4U);
    Picture ruler;
    const double labelHeight = ruler.LineHeight();
    ruler.FontSize = 7;
    const double width = ruler.TextWidth("5'0\" X 3'4\"");
    ExpectText(picture.Steps()[2], "5'0\" X 3'4\"", 7500 + 1200 - width / 2,
               450 + 800 + labelHeight, 7);
}

TEST(RedrawPC, ASizeThatDoesNotFitItsPieceIsLeftOut) {
    Job narrow = Roll(100, 160);
    AddPlaced(narrow, {0, 0, 10, 40});
    EXPECT_EQ(Redrawn(narrow, PieceSizes::Shown).Steps().size(), 3U);
    Job low = Roll(100, 160);
    AddPlaced(low, {0, 0, 60, 12});
    EXPECT_EQ(Redrawn(low, PieceSizes::Shown).Steps().size(), 3U);
}

TEST(RedrawPC, ShownSizesNeverLeaveTheirPieces) {
    Job job;
    int shown = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        job.State.ObjNum = 0;
        testing::AddRandomRooms(job, random, 144, 8);
        MakeEstimate(job, Request(144, seed % 2 == 0));
        const Picture picture = Redrawn(job, PieceSizes::Shown);
        DrawingStep box;
        for (const DrawingStep& step : picture.Steps()) {
            if (step.What == Kind::Box) {
                box = step;
            } else if (step.FontSize == 7) {
                ++shown;
                Picture ruler;
                ruler.FontSize = 7;
                EXPECT_GT(step.X1, box.X1);
                EXPECT_LT(step.X1 + ruler.TextWidth(step.Text), box.X2);
                EXPECT_GT(step.Y1, box.Y1);
                EXPECT_LE(step.Y1 + ruler.LineHeight(), box.Y2);
            }
        }
    }
    EXPECT_GT(shown, 200);
}

TEST(ShowECutsInfo, EveryLineStartsAtXSpacedByTheLineHeight) {
    Job job = Imperial({{180, 144}, {108, 120}});
    MakeEstimate(job, Request(144));
    const auto lines = CutListLines(job.State, job.Engine, job.Estimate);
    Picture picture;
    ShowECutsInfo(picture, job.State, job.Engine, job.Estimate, 300, 700);
    ASSERT_EQ(picture.Steps().size(), lines.size());
    ASSERT_GT(lines.size(), 5U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto row = static_cast<double>(i);
        ExpectText(picture.Steps()[i], lines[i], 300, 700 + row * picture.LineHeight());
    }
}

TEST(ShowECutsInfo, IsBlackInNinePointsAndLeavesFontAndColour) {
    Job job = Metric({{400, 400}});
    MakeEstimate(job, Request(144));
    Picture picture;
    picture.FontSize = 14;
    picture.ForeColor = QBColor::Red;
    ShowECutsInfo(picture, job.State, job.Engine, job.Estimate, CutListX, CutListY);
    for (const DrawingStep& step : picture.Steps()) {
        EXPECT_EQ(step.FontSize, 9);
        EXPECT_EQ(step.Color, QBColor::Black);
    }
    EXPECT_EQ(picture.FontSize, 14);
    EXPECT_EQ(picture.ForeColor, QBColor::Red);
}

TEST(ShowECutsInfo, ErasesNothing) {
    Job job = Imperial({{180, 144}});
    MakeEstimate(job, Request(144));
    Picture picture = Redrawn(job);
    const std::size_t drawn = picture.Steps().size();
    ShowECutsInfo(picture, job.State, job.Engine, job.Estimate, 100, 100);
    EXPECT_EQ(picture.Steps()[0].What, Kind::Box);
    EXPECT_EQ(picture.Steps().size(),
              drawn + CutListLines(job.State, job.Engine, job.Estimate).size());
}

TEST(ShowECutsInfo, AnEmptyEstimatePrintsNothing) {
    Picture picture;
    const Job job = Imperial({{100, 100, 8, 8}});
    ShowECutsInfo(picture, job.State, job.Engine, job.Estimate, CutListX, CutListY);
    EXPECT_TRUE(picture.Steps().empty());
}

TEST(ShowECutsInfo, StandsAtOneHundredTwipsWhenAnEstimateIsDone) {
    EXPECT_EQ(CutListX, 100);
    EXPECT_EQ(CutListY, 100);
}

} // namespace
} // namespace tarn
