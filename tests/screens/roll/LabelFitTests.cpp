#include "screens/roll/LabelFit.h"
#include "screens/roll/RollTesting.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace tarn {
namespace {

using namespace tarn::testing;

constexpr double Em = 10;

/// Letters of half their height.
LabelMeasure Measure() {
    LabelMeasure measure;
    measure.Width = [](std::string_view text, std::size_t size) {
        return static_cast<double>(text.size()) * LabelSizes[size] * Em / 2;
    };
    measure.Height = [](std::size_t size) { return LabelSizes[size] * Em; };
    measure.LetterHeight = [](std::size_t size) { return LabelSizes[size] * Em * 0.8; };
    measure.Margin = 2;
    return measure;
}

std::string Written(const FittedLabel& label) {
    std::string text;
    for (const LabelLine& line : label.Lines) {
        text += (text.empty() ? "" : "|") + line.Text;
    }
    return text;
}

struct LabelFit : ::testing::Test {
    FittedLabel In(double width, double height) { return FitLabel(piece, width, height, measure); }
    ChartPiece piece = PieceAt("B", 0, 0, 1, 1);
    LabelMeasure measure = Measure();
};

TEST_F(LabelFit, WritesLetterSizeAndRoomWithALargeLetter) {
    const FittedLabel label = In(100, 60);
    EXPECT_EQ(Written(label), "B|12'0\" X 10'0\"|102");
    EXPECT_FALSE(label.Upward);
    EXPECT_EQ(label.Lines[0].Size, 0U);
    EXPECT_EQ(LabelSizes[label.Lines[1].Size], 1.0);
}

TEST_F(LabelFit, SaysInAnotherBoxThatThePieceContinues) {
    const auto continued = [this](double width, double height) {
        return Written(FitLabel(piece, width, height, measure, {true, 0}));
    };
    EXPECT_EQ(continued(100, 60), "B continues|12'0\" X 10'0\"|102");
    EXPECT_EQ(continued(60, 11), "B continues");
    EXPECT_EQ(continued(30, 11), "\u2026B") << "where there is no room for the word";
    EXPECT_EQ(continued(9, 9), "");
}

TEST_F(LabelFit, KeepsToTheLargestLetterThatIsWished) {
    for (const std::size_t largest : {0U, 1U, 2U, 3U}) {
        const FittedLabel label = FitLabel(piece, 100, 60, measure, {false, largest});
        EXPECT_EQ(Written(label), "B|12'0\" X 10'0\"|102");
        EXPECT_EQ(label.Lines[0].Size, largest);
    }
}

TEST_F(LabelFit, JoinsTheLinesInAFlatPiece) {
    EXPECT_EQ(Written(In(200, 11)), "B  12'0\" X 10'0\"  102");
}

TEST_F(LabelFit, WritesUpwardInANarrowPiece) {
    const FittedLabel label = In(40, 100);
    EXPECT_TRUE(label.Upward);
    EXPECT_EQ(Written(label), "B|12'0\" X 10'0\"|102");
}

TEST_F(LabelFit, LeavesOutTheRoomThenTheSize) {
    EXPECT_EQ(Written(In(78, 23)), "B|12'0\" X 10'0\"");
    EXPECT_EQ(Written(In(30, 23)), "B|102");
    EXPECT_EQ(Written(In(14, 14)), "B");
}

TEST_F(LabelFit, WritesNothingRatherThanSomethingSmaller) {
    const double least = LabelSizes.back() * Em * 0.8;
    EXPECT_EQ(Written(In(12, least)), "B");
    EXPECT_EQ(Written(In(6, least - 0.1)), "");
    EXPECT_EQ(Written(In(3, 3)), "");
}

TEST_F(LabelFit, NeverSpillsOutOfTheBox) {
    std::mt19937 random(7);
    for (int i = 0; i < 5000; ++i) {
        const double width = static_cast<double>(random() % 1500) / 10;
        const double height = static_cast<double>(random() % 1500) / 10;
        const FittedLabel label = In(width, height);
        if (label.Lines.empty()) {
            continue;
        }
        double across = 0;
        double down = 0;
        for (const LabelLine& line : label.Lines) {
            across = std::max(across, measure.Width(line.Text, line.Size) + 2 * measure.Margin);
            down +=
                Written(label) == "B" ? measure.LetterHeight(line.Size) : measure.Height(line.Size);
            EXPECT_LT(line.Size, LabelSizes.size());
        }
        EXPECT_LE(across, label.Upward ? height : width);
        EXPECT_LE(down, label.Upward ? width : height);
    }
}

} // namespace
} // namespace tarn
