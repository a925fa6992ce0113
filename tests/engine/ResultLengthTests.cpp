#include "base/RunTimeError.h"
#include "engine/EngineTesting.h"
#include "engine/ResultLength.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::PlacedAt;

TEST(LengthInUse, IsZeroWithoutPlacedPieces) {
    EXPECT_EQ(LengthInUse({}), 0);
}

TEST(LengthInUse, IsTheFarthestEnd) {
    EXPECT_EQ(LengthInUse({PlacedAt(0, 0, {10, 30}), PlacedAt(0, 30, {10, 20.5}),
                           PlacedAt(20, 10, {10, 10})}),
              50.5F);
}

Integer ResultOf(double length) {
    return ResultLength({PlacedAt(0, 0, {100, length})});
}

TEST(ResultLength, IsRaisedToAMultipleOfThreeByWholeInches) {
    EXPECT_EQ(ResultLength({}), 0);
    EXPECT_EQ(ResultOf(99), 99);
    EXPECT_EQ(ResultOf(100), 102);
    EXPECT_EQ(ResultOf(101), 102);
    EXPECT_EQ(ResultOf(102.5), 102) << "a length that is not whole inches may run past it";
    EXPECT_EQ(ResultOf(102.99), 102);
    EXPECT_EQ(ResultOf(103), 105);
}

TEST(ResultLength, MoreThanAnIntegerHoldsIsAnOverflowWithAWayOut) {
    EXPECT_EQ(ResultOf(32766), 32766);
    try {
        ResultOf(32767);
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), OverflowNumber);
        EXPECT_EQ(error.Advice(), "The fills need more than 32767 inches of roll: estimate the "
                                  "rooms in two projects.");
    }
}

} // namespace
} // namespace tarn
