#include "estimate/Picture.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using Kind = DrawingStep::Kind;

TEST(Picture, BeginsEmptyAndHiddenWithBlackNinePoints) {
    const Picture picture;
    EXPECT_TRUE(picture.Steps().empty());
    EXPECT_FALSE(picture.Visible);
    EXPECT_EQ(picture.FontSize, 9);
    EXPECT_EQ(picture.ForeColor, QBColor::Black);
    EXPECT_EQ(picture.FarthestX(), 0);
    EXPECT_EQ(picture.FarthestY(), 0);
}

TEST(Picture, PrintWritesAtThePenAndGoesToTheNextLine) {
    Picture picture;
    picture.CurrentX = 300;
    picture.CurrentY = 400;
    picture.FontSize = 10;
    picture.ForeColor = QBColor::Green;
    picture.Print("A line");
    ASSERT_EQ(picture.Steps().size(), 1U);
    const DrawingStep& step = picture.Steps()[0];
    EXPECT_EQ(step.What, Kind::Text);
    EXPECT_EQ(step.Text, "A line");
    EXPECT_EQ(step.X1, 300);
    EXPECT_EQ(step.Y1, 400);
    EXPECT_EQ(step.X2, 300 + picture.TextWidth("A line"));
    EXPECT_EQ(step.FontSize, 10);
    EXPECT_EQ(step.Color, QBColor::Green);
    EXPECT_EQ(picture.CurrentX, 0);
    EXPECT_EQ(picture.CurrentY, 400 + picture.LineHeight());
}

TEST(Picture, LineDrawsABoxAndLeavesThePen) {
    Picture picture;
    picture.CurrentX = 11;
    picture.CurrentY = 12;
    picture.Line(100, 200, 300, 500, QBColor::Red, "what it is");
    ASSERT_EQ(picture.Steps().size(), 1U);
    const DrawingStep& step = picture.Steps()[0];
    EXPECT_EQ(step.What, Kind::Box);
    EXPECT_EQ(step.X1, 100);
    EXPECT_EQ(step.Y1, 200);
    EXPECT_EQ(step.X2, 300);
    EXPECT_EQ(step.Y2, 500);
    EXPECT_EQ(step.Color, QBColor::Red);
    EXPECT_EQ(step.Tip, "what it is");
    EXPECT_EQ(picture.CurrentX, 11);
    EXPECT_EQ(picture.CurrentY, 12);
}

TEST(Picture, KeepsStepsInTheOrderDrawn) {
    Picture picture;
    picture.Print("1");
    picture.Line(0, 0, 1, 1, QBColor::Black);
    picture.Print("2");
    ASSERT_EQ(picture.Steps().size(), 3U);
    EXPECT_EQ(picture.Steps()[0].Text, "1");
    EXPECT_EQ(picture.Steps()[1].What, Kind::Box);
    EXPECT_EQ(picture.Steps()[2].Text, "2");
}

TEST(Picture, TheFarthestPointIsThatOfAllStepsOnEachAxis) {
    Picture picture;
    picture.Line(0, 0, 500, 100, QBColor::Black);
    picture.Line(0, 0, 50, 1000, QBColor::Black);
    EXPECT_EQ(picture.FarthestX(), 500);
    EXPECT_EQ(picture.FarthestY(), 1000);
    picture.CurrentX = 400;
    picture.CurrentY = 990;
    const double width = picture.TextWidth("far");
    picture.Print("far");
    EXPECT_EQ(picture.FarthestX(), 400 + width);
    EXPECT_EQ(picture.FarthestY(), 990 + picture.LineHeight());
}

TEST(Picture, ClsRemovesEverythingAndGoesHomeButKeepsFontAndColour) {
    Picture picture;
    picture.Visible = true;
    picture.FontSize = 11;
    picture.ForeColor = QBColor::Red;
    picture.Line(0, 0, 500, 100, QBColor::Black);
    picture.CurrentX = 5;
    picture.CurrentY = 6;
    picture.Cls();
    EXPECT_TRUE(picture.Steps().empty());
    EXPECT_EQ(picture.FarthestX(), 0);
    EXPECT_EQ(picture.FarthestY(), 0);
    EXPECT_EQ(picture.CurrentX, 0);
    EXPECT_EQ(picture.CurrentY, 0);
    EXPECT_EQ(picture.FontSize, 11);
    EXPECT_EQ(picture.ForeColor, QBColor::Red);
    EXPECT_TRUE(picture.Visible);
}

TEST(Picture, LineHeightFollowsTheTypeSize) {
    Picture picture;
    EXPECT_DOUBLE_EQ(picture.LineHeight(), 9 * 20 * 1.15);
    picture.FontSize = 12;
    EXPECT_DOUBLE_EQ(picture.LineHeight(), 12 * 20 * 1.15);
}

// By hand from the face's letter widths: N 722, O 778, blank 278, F 611, I 278, L 556, S 667,
// T 611, D 722, P 667, A 667, Y 667.
TEST(Picture, TextWidthIsTheSumOfTheLettersAdvances) {
    Picture picture;
    picture.FontSize = 12;
    constexpr double Thousandths = (722 + 778) + 278 + (611 + 278 + 556 + 556 + 667) + 278 +
                                   (611 + 778) + 278 + (722 + 278 + 667 + 667 + 556 + 667 + 667);
    EXPECT_DOUBLE_EQ(picture.TextWidth("NO FILLS TO DISPLAY"), Thousandths * 12 * 20 / 1000);
    EXPECT_EQ(picture.TextWidth(""), 0);
}

TEST(Picture, TheOutermostCharactersOfTheTableHaveTheirOwnWidths) {
    Picture picture;
    picture.FontSize = 50;
    EXPECT_DOUBLE_EQ(picture.TextWidth(" "), 278);
    EXPECT_DOUBLE_EQ(picture.TextWidth("~"), 584);
    EXPECT_DOUBLE_EQ(picture.TextWidth("@"), 1015);
}

TEST(Picture, OtherCharactersCountOnceAndWide) {
    Picture picture;
    picture.FontSize = 50;
    EXPECT_DOUBLE_EQ(picture.TextWidth("Ä"), 1000);
    EXPECT_DOUBLE_EQ(picture.TextWidth("日本"), 2000);
    EXPECT_DOUBLE_EQ(picture.TextWidth("\x7f"), 1000);
    EXPECT_DOUBLE_EQ(picture.TextWidth("\t"), 1000);
}

} // namespace
} // namespace tarn
