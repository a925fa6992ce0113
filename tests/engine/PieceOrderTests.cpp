#include "base/RunTimeError.h"
#include "engine/EngineTesting.h"
#include "engine/PieceOrder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace tarn {
namespace {

using Indices = std::vector<std::size_t>;

Indices OrderOf(const std::vector<PieceSize>& sizes, Integer power) {
    PieceOrder order;
    return order.LargestFirst(sizes, power);
}

TEST(PieceOrder, PowerOneOrdersByAreaLargestFirst) {
    EXPECT_EQ(OrderOf({{5, 5}, {3, 10}}, 1), (Indices{1, 0}));
}

TEST(PieceOrder, PowerTwoPutsLengthFirst) {
    EXPECT_EQ(OrderOf({{12, 10}, {6, 20}}, LongestFirst), (Indices{1, 0}));
}

TEST(PieceOrder, PowerZeroOrdersByWidthAlone) {
    EXPECT_EQ(OrderOf({{5, 900}, {6, 1}, {7, 2}}, 0), (Indices{2, 1, 0}));
}

TEST(PieceOrder, AKeyThatIsNotFiniteIsAnOverflow) {
    EXPECT_THROW(OrderKey({1, std::numeric_limits<Single>::max()}, 9), RunTimeError);
    EXPECT_THROW(OrderOf({{1, 1}, {1, std::numeric_limits<Single>::max()}}, 9), RunTimeError);
}

TEST(PieceOrder, SortsRandomPiecesAndKeepsTheOrderOfEqualKeys) {
    PieceOrder order; // asked again and again, as a search does
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<PieceSize> sizes;
        for (int i = testing::Below(random, 60); i >= 0; --i) {
            sizes.push_back({static_cast<Single>(1 + testing::Below(random, 4)),
                             static_cast<Single>(1 + testing::Below(random, 4))});
        }
        const auto power = static_cast<Integer>(testing::Below(random, 3));
        const Indices numbers = order.LargestFirst(sizes, power);
        ASSERT_EQ(numbers.size(), sizes.size());
        const auto key = [&](std::size_t i) {
            return std::pow(static_cast<double>(sizes[i].Length), power) *
                   static_cast<double>(sizes[i].Width);
        };
        for (std::size_t i = 1; i < numbers.size(); ++i) {
            ASSERT_GE(key(numbers[i - 1]), key(numbers[i]));
            if (key(numbers[i - 1]) == key(numbers[i])) {
                ASSERT_LT(numbers[i - 1], numbers[i]);
            }
        }
    }
}

} // namespace
} // namespace tarn
