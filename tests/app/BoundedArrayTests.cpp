#include "app/BoundedArray.h"
#include "app/ErrorNumber.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tarn {
namespace {

constexpr long long Farthest = std::numeric_limits<long long>::max();
constexpr long long Nearest = std::numeric_limits<long long>::min();

TEST(BoundedArray, HoldsEveryIndexUpToItsBound) {
    BoundedArray<long long> array(500);
    EXPECT_EQ(array.UpperBound(), 500);
    for (long long i = 0; i <= 500; ++i) {
        ASSERT_EQ(array[i], 0);
        array[i] = i * i;
    }
    for (long long i = 0; i <= 500; ++i) {
        ASSERT_EQ(array[i], i * i);
    }
}

TEST(BoundedArray, RefusesTheIndexBeforeAndBehind) {
    BoundedArray<int> array(500);
    const BoundedArray<int>& constant = array;
    for (const long long index : {-1LL, 501LL, Nearest, Farthest}) {
        EXPECT_EQ(ErrorNumber([&] { return array[index]; }), SubscriptNumber) << index;
        EXPECT_EQ(ErrorNumber([&] { return constant[index]; }), SubscriptNumber) << index;
    }
    EXPECT_EQ(ErrorNumber([&] { return array[500] = 1; }), 0);
}

TEST(BoundedArray, HasNoElementsUntilItHasBounds) {
    BoundedArray<int> array;
    EXPECT_EQ(array.UpperBound(), -1);
    EXPECT_EQ(ErrorNumber([&] { return array[0]; }), SubscriptNumber);
    array = BoundedArray<int>(0);
    EXPECT_EQ(array.UpperBound(), 0);
    EXPECT_EQ(array[0], 0);
    EXPECT_EQ(ErrorNumber([&] { return array[1]; }), SubscriptNumber);
}

TEST(BoundedArray, FillsEveryElement) {
    BoundedArray<std::string> array(12);
    array.Fill("x");
    for (long long i = 0; i <= 12; ++i) {
        EXPECT_EQ(array[i], "x");
    }
    EXPECT_EQ(array.UpperBound(), 12);
}

TEST(BoundedTable, KeepsEveryCellApart) {
    BoundedTable<long long> table(30, 2);
    for (long long row = 0; row <= 30; ++row) {
        for (long long column = 0; column <= 2; ++column) {
            ASSERT_EQ(table(row, column), 0);
            table(row, column) = row * 100 + column;
        }
    }
    const BoundedTable<long long>& constant = table;
    for (long long row = 0; row <= 30; ++row) {
        for (long long column = 0; column <= 2; ++column) {
            ASSERT_EQ(constant(row, column), row * 100 + column);
        }
    }
}

TEST(BoundedTable, RefusesEitherIndexBeforeAndBehind) {
    BoundedTable<int> table(30, 2);
    const BoundedTable<int>& constant = table;
    const auto refused = [&](long long row, long long column) {
        return ErrorNumber([&] { return table(row, column); }) == SubscriptNumber &&
               ErrorNumber([&] { return constant(row, column); }) == SubscriptNumber;
    };
    for (long long column = 0; column <= 2; ++column) {
        EXPECT_TRUE(refused(-1, column)) << column;
        EXPECT_TRUE(refused(31, column)) << column;
        EXPECT_TRUE(refused(Nearest, column)) << column;
        EXPECT_TRUE(refused(Farthest, column)) << column;
    }
    // A column beyond the bound would be a cell of the next row, if only the sum were tested.
    for (long long row = 0; row <= 30; ++row) {
        EXPECT_TRUE(refused(row, -1)) << row;
        EXPECT_TRUE(refused(row, 3)) << row;
        EXPECT_TRUE(refused(row, Farthest)) << row;
    }
    // Three times these rows is 2 ^ 64 + 2: they would come round to a cell that is there.
    EXPECT_TRUE(refused(6148914691236517206, 0));
    EXPECT_TRUE(refused(-6148914691236517206, 2));
    EXPECT_FALSE(refused(30, 2));
    EXPECT_FALSE(refused(0, 0));
}

TEST(BoundedTable, HasNoCellsUntilItHasBounds) {
    BoundedTable<int> table;
    EXPECT_EQ(ErrorNumber([&] { return table(0, 0); }), SubscriptNumber);
}

} // namespace
} // namespace tarn
