#include "drawing/Drawing.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using Kind = DrawingStep::Kind;

TEST(Drawing, BeginsEmptyAndHiddenWithBlackNinePoints) {
    const Drawing drawing;
    EXPECT_TRUE(drawing.Steps().empty());
    EXPECT_FALSE(drawing.Visible);
    EXPECT_EQ(drawing.FontSize, 9);
    EXPECT_EQ(drawing.Color, DrawingColor::Black);
    EXPECT_EQ(drawing.FarthestX(), 0);
    EXPECT_EQ(drawing.FarthestY(), 0);
}

TEST(Drawing, WriteLineWritesAtThePenAndGoesToTheNextLine) {
    Drawing drawing;
    drawing.PenX = 300;
    drawing.PenY = 400;
    drawing.FontSize = 10;
    drawing.Color = DrawingColor::Green;
    drawing.WriteLine("A line");
    ASSERT_EQ(drawing.Steps().size(), 1U);
    const DrawingStep& step = drawing.Steps()[0];
    EXPECT_EQ(step.What, Kind::Text);
    EXPECT_EQ(step.Text, "A line");
    EXPECT_EQ(step.X1, 300);
    EXPECT_EQ(step.Y1, 400);
    EXPECT_EQ(step.X2, 300 + drawing.TextWidth("A line"));
    EXPECT_EQ(step.FontSize, 10);
    EXPECT_EQ(step.Color, DrawingColor::Green);
    EXPECT_EQ(drawing.PenX, 0);
    EXPECT_EQ(drawing.PenY, 400 + drawing.LineHeight());
}

TEST(Drawing, AddBoxDrawsABoxAndLeavesThePen) {
    Drawing drawing;
    drawing.PenX = 11;
    drawing.PenY = 12;
    drawing.AddBox(100, 200, 300, 500, DrawingColor::Red, "what it is");
    ASSERT_EQ(drawing.Steps().size(), 1U);
    const DrawingStep& step = drawing.Steps()[0];
    EXPECT_EQ(step.What, Kind::Box);
    EXPECT_EQ(step.X1, 100);
    EXPECT_EQ(step.Y1, 200);
    EXPECT_EQ(step.X2, 300);
    EXPECT_EQ(step.Y2, 500);
    EXPECT_EQ(step.Color, DrawingColor::Red);
    EXPECT_EQ(step.Tip, "what it is");
    EXPECT_EQ(drawing.PenX, 11);
    EXPECT_EQ(drawing.PenY, 12);
}

TEST(Drawing, KeepsStepsInTheOrderDrawn) {
    Drawing drawing;
    drawing.WriteLine("1");
    drawing.AddBox(0, 0, 1, 1, DrawingColor::Black);
    drawing.WriteLine("2");
    ASSERT_EQ(drawing.Steps().size(), 3U);
    EXPECT_EQ(drawing.Steps()[0].Text, "1");
    EXPECT_EQ(drawing.Steps()[1].What, Kind::Box);
    EXPECT_EQ(drawing.Steps()[2].Text, "2");
}

TEST(Drawing, TheFarthestPointIsThatOfAllStepsOnEachAxis) {
    Drawing drawing;
    drawing.AddBox(0, 0, 500, 100, DrawingColor::Black);
    drawing.AddBox(0, 0, 50, 1000, DrawingColor::Black);
    EXPECT_EQ(drawing.FarthestX(), 500);
    EXPECT_EQ(drawing.FarthestY(), 1000);
    drawing.PenX = 400;
    drawing.PenY = 990;
    const double width = drawing.TextWidth("far");
    drawing.WriteLine("far");
    EXPECT_EQ(drawing.FarthestX(), 400 + width);
    EXPECT_EQ(drawing.FarthestY(), 990 + drawing.LineHeight());
}

TEST(Drawing, ClearRemovesEverythingAndGoesHomeButKeepsFontAndColour) {
    Drawing drawing;
    drawing.Visible = true;
    drawing.FontSize = 11;
    drawing.Color = DrawingColor::Red;
    drawing.AddBox(0, 0, 500, 100, DrawingColor::Black);
    drawing.PenX = 5;
    drawing.PenY = 6;
    drawing.Clear();
    EXPECT_TRUE(drawing.Steps().empty());
    EXPECT_EQ(drawing.FarthestX(), 0);
    EXPECT_EQ(drawing.FarthestY(), 0);
    EXPECT_EQ(drawing.PenX, 0);
    EXPECT_EQ(drawing.PenY, 0);
    EXPECT_EQ(drawing.FontSize, 11);
    EXPECT_EQ(drawing.Color, DrawingColor::Red);
    EXPECT_TRUE(drawing.Visible);
}

TEST(Drawing, LineHeightFollowsTheTypeSize) {
    Drawing drawing;
    EXPECT_DOUBLE_EQ(drawing.LineHeight(), 9 * 20 * 1.15);
    drawing.FontSize = 12;
    EXPECT_DOUBLE_EQ(drawing.LineHeight(), 12 * 20 * 1.15);
}

TEST(Drawing, AddTextWritesAnywhereAndLeavesThePen) {
    Drawing drawing;
    drawing.PenX = 11;
    drawing.AddText(300, 400, "A line", 10);
    const DrawingStep& step = drawing.Steps().at(0);
    EXPECT_EQ(step.What, Kind::Text);
    EXPECT_EQ(step.Text, "A line");
    EXPECT_EQ(step.X1, 300);
    EXPECT_EQ(step.Y1, 400);
    EXPECT_EQ(step.X2, 300 + WidthOfText("A line", 10));
    EXPECT_EQ(step.FontSize, 10);
    EXPECT_TRUE(step.IsLoose);
    EXPECT_FALSE(step.IsUpward);
    EXPECT_EQ(drawing.PenX, 11);
    EXPECT_EQ(drawing.FarthestX(), step.X2);
    EXPECT_EQ(drawing.FarthestY(), 400 + HeightOfLine(10));
}

TEST(Drawing, AnUpwardTextEndsAboveWhereItBegins) {
    Drawing drawing;
    drawing.AddUpwardText(300, 4000, "upwards", 9);
    const DrawingStep& step = drawing.Steps().at(0);
    EXPECT_TRUE(step.IsUpward);
    EXPECT_EQ(step.X1, 300);
    EXPECT_EQ(step.X2, 300 + HeightOfLine(9));
    EXPECT_EQ(step.Y1, 4000);
    EXPECT_EQ(step.Y2, 4000 - WidthOfText("upwards", 9));
    EXPECT_EQ(drawing.FarthestX(), step.X2);
    EXPECT_EQ(drawing.FarthestY(), 4000);
}

TEST(Drawing, AddLineDrawsALineBetweenTwoPoints) {
    Drawing drawing;
    drawing.AddLine(500, 20, 100, 300, DrawingColor::Gray, 6);
    const DrawingStep& step = drawing.Steps().at(0);
    EXPECT_EQ(step.What, Kind::Line);
    EXPECT_EQ(step.X1, 500);
    EXPECT_EQ(step.Y1, 20);
    EXPECT_EQ(step.X2, 100);
    EXPECT_EQ(step.Y2, 300);
    EXPECT_EQ(step.Color, DrawingColor::Gray);
    EXPECT_EQ(step.LineWidth, 6);
    EXPECT_EQ(drawing.FarthestX(), 500);
    EXPECT_EQ(drawing.FarthestY(), 300);
}

TEST(Drawing, AppendDrawsAnotherDrawingElsewhere) {
    Drawing part;
    part.AddBox(1, 2, 30, 40, DrawingColor::Red);
    part.AddUpwardText(5, 200, "up", 8);
    Drawing drawing;
    drawing.AddBox(0, 0, 10, 10, DrawingColor::Black);
    drawing.Append(part, 100, 1000);
    ASSERT_EQ(drawing.Steps().size(), 3U);
    const DrawingStep& box = drawing.Steps()[1];
    EXPECT_EQ(box.X1, 101);
    EXPECT_EQ(box.Y1, 1002);
    EXPECT_EQ(box.X2, 130);
    EXPECT_EQ(box.Y2, 1040);
    EXPECT_EQ(box.Color, DrawingColor::Red);
    EXPECT_EQ(drawing.Steps()[2].Y2, 1200 - WidthOfText("up", 8));
    EXPECT_EQ(drawing.FarthestX(), part.FarthestX() + 100);
    EXPECT_EQ(drawing.FarthestY(), 1200);
}

// By hand from the face's letter widths: N 722, O 778, blank 278, F 611, I 278, L 556, S 667,
// T 611, D 722, P 667, A 667, Y 667.
TEST(Drawing, TextWidthIsTheSumOfTheLettersAdvances) {
    Drawing drawing;
    drawing.FontSize = 12;
    constexpr double Thousandths = (722 + 778) + 278 + (611 + 278 + 556 + 556 + 667) + 278 +
                                   (611 + 778) + 278 + (722 + 278 + 667 + 667 + 556 + 667 + 667);
    EXPECT_DOUBLE_EQ(drawing.TextWidth("NO FILLS TO DISPLAY"), Thousandths * 12 * 20 / 1000);
    EXPECT_EQ(drawing.TextWidth(""), 0);
}

TEST(Drawing, TheOutermostCharactersOfTheTableHaveTheirOwnWidths) {
    Drawing drawing;
    drawing.FontSize = 50;
    EXPECT_DOUBLE_EQ(drawing.TextWidth(" "), 278);
    EXPECT_DOUBLE_EQ(drawing.TextWidth("~"), 584);
    EXPECT_DOUBLE_EQ(drawing.TextWidth("@"), 1015);
}

TEST(Drawing, OtherCharactersCountOnceAndWide) {
    Drawing drawing;
    drawing.FontSize = 50;
    EXPECT_DOUBLE_EQ(drawing.TextWidth("Ä"), 1000);
    EXPECT_DOUBLE_EQ(drawing.TextWidth("日本"), 2000);
    EXPECT_DOUBLE_EQ(drawing.TextWidth("\x7f"), 1000);
    EXPECT_DOUBLE_EQ(drawing.TextWidth("\t"), 1000);
}

} // namespace
} // namespace tarn
