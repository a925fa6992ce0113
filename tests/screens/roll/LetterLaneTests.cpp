#include "screens/roll/LetterLane.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace tarn {
namespace {

TEST(LetterLane, PutsEachLetterBesideItsPieceWhereThereIsRoom) {
    const auto placed = PlaceInLane({{7, 80, 10}, {3, 20, 10}}, 0, 100);
    ASSERT_EQ(placed.size(), 2U);
    EXPECT_EQ(placed[0].Piece, 3U);
    EXPECT_EQ(placed[0].Begin, 15);
    EXPECT_EQ(placed[1].Piece, 7U);
    EXPECT_EQ(placed[1].Begin, 75);
}

TEST(LetterLane, KeepsLettersApartInTheOrderOfTheirPieces) {
    const auto placed = PlaceInLane({{0, 98, 10}, {1, 97, 10}, {2, 2, 10}, {3, 3, 10}}, 0, 100);
    ASSERT_EQ(placed.size(), 4U);
    const std::size_t pieces[] = {2, 3, 1, 0};
    const double begins[] = {0, 10, 80, 90};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(placed[i].Piece, pieces[i]);
        EXPECT_EQ(placed[i].Begin, begins[i]);
    }
}

TEST(LetterLane, LeavesOutWhatFindsNoRoom) {
    const auto placed = PlaceInLane({{0, 10, 40}, {1, 20, 40}, {2, 30, 40}}, 0, 100);
    ASSERT_EQ(placed.size(), 2U);
    EXPECT_EQ(placed[1].Piece, 1U);
    EXPECT_TRUE(PlaceInLane({}, 0, 100).empty());
    EXPECT_TRUE(PlaceInLane({{0, 5, 11}}, 0, 10).empty());
}

TEST(LetterLane, NeverLetsTwoLettersOverlapNorLeaveTheLane) {
    std::mt19937 random(5);
    const auto between = [&](int least, int most) {
        return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
    };
    for (int i = 0; i < 500; ++i) {
        SCOPED_TRACE(i);
        std::vector<LaneLetter> letters;
        for (int count = between(0, 12); count > 0; --count) {
            letters.push_back({letters.size(), static_cast<double>(between(50, 250)),
                               static_cast<double>(between(5, 30))});
        }
        double at = 50;
        for (const LaneLetter& letter : PlaceInLane(letters, 50, 250)) {
            EXPECT_GE(letter.Begin, at - 1e-9);
            at = letter.Begin + letter.Extent;
        }
        EXPECT_LE(at, 250 + 1e-9);
    }
}

} // namespace
} // namespace tarn
