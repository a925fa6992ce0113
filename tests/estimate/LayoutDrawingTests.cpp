#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "estimate/LayoutDrawing.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using Kind = DrawingStep::Kind;
using testing::AddPlaced;
using testing::ErrorOf;
using testing::Estimated;
using testing::MetricRequest;
using testing::Request;

void ExpectBox(const DrawingStep& step, DrawingColor color, std::array<double, 4> box) {
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
    EXPECT_EQ(step.Color, DrawingColor::Black);
    EXPECT_EQ(step.Text, text);
    EXPECT_DOUBLE_EQ(step.X1, x);
    EXPECT_DOUBLE_EQ(step.Y1, y);
    EXPECT_EQ(step.FontSize, fontSize);
}

/// A roll of that width with a reported length, and nothing on it yet.
Estimate Roll(Single width, Integer length) {
    Estimate estimate;
    estimate.Request = Request(width);
    estimate.Fills.Length = length;
    return estimate;
}

Drawing Drawn(const Estimate& estimate, PieceSizes sizes = PieceSizes::Hidden) {
    Drawing drawing;
    DrawLayout(drawing, estimate, sizes);
    return drawing;
}

//      0      60   100
//    0 +------+----+
//      |  A   |    |
//   40 +----+-+    |
//      |    |  B   |    the along scale decides: 6400 / 160 = 40 twips an inch
//  160 +----+------+
TEST(DrawLayout, DrawsEveryBoxWithItsLabelAndThenTheRoll) {
    Estimate estimate = Roll(100, 160);
    AddPlaced(estimate, 0, 0, 60, 40);
    AddPlaced(estimate, 40, 40, 60, 120);
    const Drawing drawing = Drawn(estimate);
    ASSERT_EQ(drawing.Steps().size(), 5U);
    ExpectBox(drawing.Steps()[0], DrawingColor::Red, {7500, 500, 7500 + 2400, 500 + 1600});
    ExpectText(drawing.Steps()[1], "A", 7450 + 1200, 450 + 800);
    ExpectBox(drawing.Steps()[2], DrawingColor::Red,
              {7500 + 1600, 500 + 1600, 7500 + 4000, 500 + 6400});
    ExpectText(drawing.Steps()[3], "B", 7450 + 2800, 450 + 4000);
    ExpectBox(drawing.Steps()[4], DrawingColor::Black, {7500, 500, 7500 + 4000, 500 + 6400});
    EXPECT_TRUE(drawing.Visible);
}

TEST(DrawLayout, ALongRollIsDrawn3400TwipsWideAndRunsOn) {
    Estimate estimate = Roll(170, 800);
    AddPlaced(estimate, 0, 0, 170, 800);
    ExpectBox(Drawn(estimate).Steps().back(), DrawingColor::Black,
              {7500, 500, 7500 + 3400, 500 + 16000});
}

TEST(DrawLayout, AShortRollIsDrawn6400TwipsLongAndRunsOn) {
    Estimate estimate = Roll(144, 48);
    AddPlaced(estimate, 0, 0, 144, 48);
    ExpectBox(Drawn(estimate).Steps().back(), DrawingColor::Black,
              {7500, 500, 7500 + 19200, 500 + 6400});
}

TEST(DrawLayout, PiecesPastTheReportedLengthAreDrawnPastTheRoll) {
    Estimate estimate = Roll(100, 160);
    AddPlaced(estimate, 0, 0, 100, 160.5F);
    const Drawing drawing = Drawn(estimate);
    EXPECT_DOUBLE_EQ(drawing.Steps()[0].Y2, 500 + 160.5 * 40);
    EXPECT_DOUBLE_EQ(drawing.Steps()[2].Y2, 500 + 160 * 40);
    EXPECT_DOUBLE_EQ(drawing.FarthestY(), 500 + 160.5 * 40);
}

TEST(DrawLayout, LabelsAreThoseOfTheCutList) {
    Estimate estimate = Roll(100, 160);
    for (int i = 0; i < 27; ++i) {
        AddPlaced(estimate, 0, 0, 10, 20);
    }
    const Drawing drawing = Drawn(estimate);
    EXPECT_EQ(drawing.Steps()[1].Text, "AA");
    EXPECT_EQ(drawing.Steps()[51].Text, "AZ");
    EXPECT_EQ(drawing.Steps()[53].Text, "BA");
}

TEST(DrawLayout, EveryBoxTellsWhatItStandsFor) {
    Estimate estimate = Roll(100, 160);
    AddPlaced(estimate, 0, 0, 60, 40);
    const Drawing drawing = Drawn(estimate);
    EXPECT_EQ(drawing.Steps()[0].Tip, "A: 5'0\" X 3'4\"");
    EXPECT_EQ(drawing.Steps()[2].Tip, "");
}

TEST(DrawLayout, ClearsWhatWasDrawnBefore) {
    Estimate estimate = Roll(100, 160);
    AddPlaced(estimate, 0, 0, 60, 40);
    Drawing drawing;
    drawing.AddBox(0, 0, 90000, 90000, DrawingColor::Black);
    DrawLayout(drawing, estimate);
    EXPECT_EQ(drawing.Steps().size(), 3U);
    EXPECT_LT(drawing.FarthestX(), 90000);
}

TEST(DrawLayout, LabelsInBlackInTheDrawingsFontAndLeavesFontAndColour) {
    Estimate estimate = Roll(100, 160);
    AddPlaced(estimate, 0, 0, 60, 40);
    for (const PieceSizes sizes : {PieceSizes::Hidden, PieceSizes::Shown}) {
        Drawing drawing;
        drawing.FontSize = 10;
        drawing.Color = DrawingColor::Green;
        DrawLayout(drawing, estimate, sizes);
        EXPECT_EQ(drawing.Steps()[1].FontSize, 10);
        EXPECT_EQ(drawing.Steps()[1].Color, DrawingColor::Black);
        EXPECT_EQ(drawing.FontSize, 10);
        EXPECT_EQ(drawing.Color, DrawingColor::Green);
    }
}

TEST(DrawLayout, WithoutPiecesSaysSoInLightRedAndTwelvePointsAndLeavesFontAndColour) {
    Drawing drawing;
    drawing.FontSize = 10;
    drawing.Color = DrawingColor::Green;
    drawing.AddBox(0, 0, 90000, 90000, DrawingColor::Black);
    Drawing alike = drawing;
    DrawLayout(drawing, Roll(144, 0));
    DrawNoFills(alike);
    ASSERT_EQ(alike.Steps().size(), 1U);
    EXPECT_EQ(alike.Steps()[0].Text, "NO FILLS TO DISPLAY");
    EXPECT_TRUE(alike.Visible);
    ASSERT_EQ(drawing.Steps().size(), 1U);
    const DrawingStep& notice = drawing.Steps()[0];
    EXPECT_EQ(notice.What, Kind::Text);
    EXPECT_EQ(notice.Text, "NO FILLS TO DISPLAY");
    EXPECT_EQ(notice.X1, 7500);
    EXPECT_EQ(notice.Y1, 3000);
    EXPECT_EQ(notice.FontSize, 12);
    EXPECT_EQ(notice.Color, DrawingColor::Red);
    EXPECT_EQ(drawing.FontSize, 10);
    EXPECT_EQ(drawing.Color, DrawingColor::Green);
    EXPECT_TRUE(drawing.Visible);
}

TEST(DrawLayout, AReportedLengthOfZeroWithPiecesIsADivisionByZeroAndLeavesThePen) {
    for (const auto& [width, length] : {std::pair{144.0F, 0}, std::pair{0.0F, 160}}) {
        Estimate estimate = Roll(width, static_cast<Integer>(length));
        AddPlaced(estimate, 0, 0, 60, 40);
        Drawing drawing;
        drawing.FontSize = 10;
        drawing.Color = DrawingColor::Green;
        const RunTimeError error = ErrorOf([&] { DrawLayout(drawing, estimate); });
        EXPECT_EQ(error.Number(), DivisionByZeroNumber);
        EXPECT_EQ(error.Advice(), length > 0 ? ""
                                             : "The fills are shorter than 1 inch: check the sizes "
                                               "of this carpet's rooms.");
        EXPECT_EQ(drawing.FontSize, 10);
        EXPECT_EQ(drawing.Color, DrawingColor::Green);
        EXPECT_TRUE(drawing.Steps().empty());
    }
}

TEST(DrawLayout, OnRequestWritesASizeBelowTheLabelCentredInThePiece) {
    Estimate estimate = Roll(100, 160);
    AddPlaced(estimate, 0, 0, 60, 40);
    const Drawing drawing = Drawn(estimate, PieceSizes::Shown);
    ASSERT_EQ(drawing.Steps().size(), 4U);
    Drawing ruler;
    const double labelHeight = ruler.LineHeight();
    ruler.FontSize = 7;
    const double width = ruler.TextWidth("5'0\" X 3'4\"");
    ExpectText(drawing.Steps()[2], "5'0\" X 3'4\"", 7500 + 1200 - width / 2,
               450 + 800 + labelHeight, 7);
}

TEST(DrawLayout, ASizeThatDoesNotFitItsPieceIsLeftOut) {
    Estimate narrow = Roll(100, 160);
    AddPlaced(narrow, 0, 0, 10, 40);
    EXPECT_EQ(Drawn(narrow, PieceSizes::Shown).Steps().size(), 3U);
    Estimate low = Roll(100, 160);
    AddPlaced(low, 0, 0, 60, 12);
    EXPECT_EQ(Drawn(low, PieceSizes::Shown).Steps().size(), 3U);
}

TEST(DrawLayout, ShownSizesNeverLeaveTheirPieces) {
    int shown = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        const Project project = testing::RandomProject(random, Units::Imperial, 144, 8);
        const Drawing drawing = Drawn(
            testing::EstimateOf(project, Request(144, seed % 2 == 0 ? Lay::Down : Lay::Cross)),
            PieceSizes::Shown);
        DrawingStep box;
        for (const DrawingStep& step : drawing.Steps()) {
            if (step.What == Kind::Box) {
                box = step;
            } else if (step.FontSize == 7) {
                ++shown;
                Drawing ruler;
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

TEST(DrawCutList, EveryLineStartsAtXSpacedByTheLineHeight) {
    const Estimate estimate = Estimated({{180, 144}, {108, 120}}, Request(144));
    const auto lines = CutListLines(estimate);
    Drawing drawing;
    DrawCutList(drawing, estimate, 300, 700);
    ASSERT_EQ(drawing.Steps().size(), lines.size());
    ASSERT_GT(lines.size(), 5U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto row = static_cast<double>(i);
        ExpectText(drawing.Steps()[i], lines[i], 300, 700 + row * drawing.LineHeight());
    }
}

TEST(DrawCutList, IsBlackInNinePointsAndLeavesFontAndColour) {
    const Estimate estimate = Estimated({{400, 400}}, MetricRequest("366"));
    Drawing drawing;
    drawing.FontSize = 14;
    drawing.Color = DrawingColor::Red;
    DrawCutList(drawing, estimate, CutListX, CutListY);
    for (const DrawingStep& step : drawing.Steps()) {
        EXPECT_EQ(step.FontSize, 9);
        EXPECT_EQ(step.Color, DrawingColor::Black);
    }
    EXPECT_EQ(drawing.FontSize, 14);
    EXPECT_EQ(drawing.Color, DrawingColor::Red);
}

TEST(DrawCutList, ErasesNothing) {
    const Estimate estimate = Estimated({{180, 144}}, Request(144));
    Drawing drawing = Drawn(estimate);
    const std::size_t drawn = drawing.Steps().size();
    DrawCutList(drawing, estimate, 100, 100);
    EXPECT_EQ(drawing.Steps()[0].What, Kind::Box);
    EXPECT_EQ(drawing.Steps().size(), drawn + CutListLines(estimate).size());
}

TEST(DrawCutList, WithoutACutAndAFillWritesNothing) {
    Drawing drawing;
    const Estimate estimate = Estimated({{100, 100, 8, 8}}, Request(144));
    DrawCutList(drawing, estimate, CutListX, CutListY);
    EXPECT_TRUE(drawing.Steps().empty());
}

TEST(DrawCutList, StandsAtOneHundredTwipsWhenAnEstimateIsDone) {
    EXPECT_EQ(CutListX, 100);
    EXPECT_EQ(CutListY, 100);
}

} // namespace
} // namespace tarn
