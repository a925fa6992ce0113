#include "improve/ColumnKnapsack.h"
#include "improve/CoveringSimplex.h"
#include "improve/ImproveTesting.h"
#include "improve/Knapsack.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

/// The greatest worth, by trying every choice from item `from` on.
std::int64_t BestOf(const std::vector<KnapsackItem>& items, const std::vector<std::int64_t>& worth,
                    Long width, std::size_t from = 0) {
    if (from == items.size()) {
        return 0;
    }
    std::int64_t best = 0;
    for (Long copies = 0; copies <= items[from].Copies && copies * items[from].Width <= width;
         ++copies) {
        best =
            std::max(best, copies * worth[from] +
                               BestOf(items, worth, width - copies * items[from].Width, from + 1));
    }
    return best;
}

TEST(Knapsack, FindsTheBestChoice) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const Long width = testing::Between(random, 1, 25);
        std::vector<KnapsackItem> items;
        std::vector<std::int64_t> worth;
        for (Long count = testing::Between(random, 1, 6); count > 0; --count) {
            items.push_back({testing::Between(random, 1, 12), testing::Between(random, 1, 4)});
            worth.push_back(testing::Between(random, 0, 20));
        }
        Knapsack knapsack(items, width);
        const std::int64_t best = knapsack.Solve(worth);
        EXPECT_EQ(best, BestOf(items, worth, width));
        std::int64_t sum = 0;
        Long used = 0;
        for (std::size_t i = 0; i < items.size(); ++i) {
            EXPECT_LE(knapsack.Chosen()[i], items[i].Copies);
            sum += knapsack.Chosen()[i] * worth[i];
            used += knapsack.Chosen()[i] * items[i].Width;
        }
        EXPECT_EQ(sum, best);
        EXPECT_LE(used, width);
        EXPECT_EQ(knapsack.Solve(worth), best) << "again";
    }
}

/// The greatest worth of items in a cross section, by trying every place of every copy.
std::int64_t BestSection(const std::vector<ColumnItem>& items,
                         const std::vector<std::int64_t>& worth, Long width, Long column,
                         std::vector<Long> left, Long from = 0) {
    std::int64_t best = 0;
    for (std::size_t item = 0; item < items.size(); ++item) {
        for (Long x = from; left[item] > 0 && x + items[item].Width <= width; ++x) {
            if (items[item].InColumns && (width - x) % column != 0) {
                continue;
            }
            --left[item];
            best = std::max(best, worth[item] + BestSection(items, worth, width, column, left,
                                                            x + items[item].Width));
            ++left[item];
        }
    }
    return best;
}

TEST(ColumnKnapsack, IsNeverWorthLessThanACrossSectionNorMoreThanWithoutColumns) {
    int exact = 0;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const Long width = testing::Between(random, 2, 12);
        const Long column = testing::Between(random, 1, 5);
        std::vector<ColumnItem> items;
        std::vector<KnapsackItem> plain;
        std::vector<std::int64_t> worth;
        std::vector<Long> left;
        for (Long count = testing::Between(random, 1, 4); count > 0; --count) {
            items.push_back({testing::Between(random, 1, 7), testing::Between(random, 1, 3),
                             testing::Between(random, 0, 2) > 0});
            plain.push_back({items.back().Width, items.back().Copies});
            left.push_back(items.back().Copies);
            worth.push_back(testing::Between(random, 0, 20));
        }
        ColumnKnapsack knapsack(items, width, column);
        const std::int64_t best = knapsack.Solve(worth);
        const std::int64_t section = BestSection(items, worth, width, column, left);
        EXPECT_GE(best, section);
        EXPECT_LE(best, BestOf(plain, worth, width));
        exact += best == section ? 1 : 0;
        std::int64_t sum = 0;
        for (std::size_t i = 0; i < items.size(); ++i) {
            EXPECT_LE(knapsack.Chosen()[i], items[i].Copies);
            sum += knapsack.Chosen()[i] * worth[i];
        }
        EXPECT_EQ(sum, best);
        EXPECT_EQ(knapsack.Solve(worth), best) << "again";
    }
    EXPECT_GT(exact, 250);
}

TEST(CoveringSimplex, BeginsWithTheColumnsOfOneRow) {
    const CoveringSimplex simplex({10, 9}, {2, 1});
    EXPECT_EQ(simplex.Prices(), (std::vector<Double>{0.5, 1}));
}

// Demand 10 and 9. With (1 1) the least sum is 10: 9 of it, and 1/2 of (2 0) twice.. in prices:
// (2 0) costs 1, (1 1) costs 1, so 1/2 and 1/2, 5 + 4.5 in all.
TEST(CoveringSimplex, PricesFollowTheColumnsOfTheBasis) {
    CoveringSimplex simplex({10, 9}, {2, 1});
    EXPECT_TRUE(simplex.Enter({1, 1}));
    const std::vector<Double> prices = simplex.Prices();
    EXPECT_DOUBLE_EQ(prices[0], 0.5);
    EXPECT_DOUBLE_EQ(prices[1], 0.5);
}

// Demand 2 and 9: (1 1) takes the place of (2 0), for 2 of it cover the first row. The first row
// then has the price 0: what is laid beyond its demand costs nothing.
TEST(CoveringSimplex, ANegativePriceIsRemovedByASurplus) {
    CoveringSimplex simplex({2, 9}, {2, 1});
    EXPECT_TRUE(simplex.Enter({1, 3}));
    EXPECT_TRUE(simplex.RemoveNegativePrices(5, [] { return true; }));
    const std::vector<Double> prices = simplex.Prices();
    EXPECT_GE(prices[0], 0);
    EXPECT_GE(prices[1], 0);
    EXPECT_DOUBLE_EQ(prices[0] + 3 * prices[1], 1) << "the column in the basis is worth its cost";
    EXPECT_DOUBLE_EQ(2 * prices[0] + 9 * prices[1], 3) << "3 of it cover both";
}

TEST(CoveringSimplex, AColumnThatCoversNothingCannotEnter) {
    CoveringSimplex simplex({2, 9}, {2, 1});
    EXPECT_FALSE(simplex.Enter({0, 0}));
}

} // namespace
} // namespace tarn
