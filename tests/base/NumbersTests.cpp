#include "base/ErrorNumber.h"
#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarn {
namespace {

constexpr Double Infinity = std::numeric_limits<Double>::infinity();
constexpr Double NotANumber = std::numeric_limits<Double>::quiet_NaN();
constexpr long long IntegerMin = -32768;
constexpr long long IntegerMax = 32767;
constexpr long long LongMin = -2147483648LL;
constexpr long long LongMax = 2147483647LL;

Double Below(Double value) {
    return std::nextafter(value, -Infinity);
}
Double Above(Double value) {
    return std::nextafter(value, Infinity);
}

/// The even one of `n` and `n` + 1.
long long EvenOf(long long n) {
    return n % 2 == 0 ? n : n + 1;
}

TEST(CInt, RoundsEveryHalfToTheEvenNeighbour) {
    for (long long n = IntegerMin; n < IntegerMax; ++n) {
        ASSERT_EQ(CInt(static_cast<Double>(n) + 0.5), EvenOf(n)) << n << ".5";
    }
}

TEST(CInt, RoundsToTheNearerNeighbourOneStepBesideEveryHalf) {
    for (long long n = IntegerMin; n < IntegerMax; ++n) {
        const Double half = static_cast<Double>(n) + 0.5;
        ASSERT_EQ(CInt(Below(half)), n) << "below " << half;
        ASSERT_EQ(CInt(Above(half)), n + 1) << "above " << half;
    }
}

TEST(CInt, KeepsEveryInteger) {
    for (long long n = IntegerMin; n <= IntegerMax; ++n) {
        ASSERT_EQ(CInt(static_cast<Double>(n)), n);
    }
}

TEST(CInt, OverflowsWhereTheRoundedNumberDoesNotFit) {
    EXPECT_EQ(CInt(Below(32767.5)), IntegerMax);
    EXPECT_EQ(ErrorNumber([] { return CInt(32767.5); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { return CInt(32768); }), OverflowNumber);
    EXPECT_EQ(CInt(-32768.5), IntegerMin);
    EXPECT_EQ(ErrorNumber([] { return CInt(Below(-32768.5)); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { return CInt(-32769); }), OverflowNumber);
    for (const Double value : {Infinity, -Infinity, NotANumber, 1e300, -1e300}) {
        EXPECT_EQ(ErrorNumber([value] { return CInt(value); }), OverflowNumber) << value;
    }
}

TEST(CLng, RoundsHalvesToEvenOverTheIntegerRange) {
    for (long long n = IntegerMin; n < IntegerMax; ++n) {
        const Double half = static_cast<Double>(n) + 0.5;
        ASSERT_EQ(CLng(half), EvenOf(n)) << half;
        ASSERT_EQ(CLng(Below(half)), n) << "below " << half;
        ASSERT_EQ(CLng(Above(half)), n + 1) << "above " << half;
    }
}

TEST(CLng, RoundsHalvesToEvenNearItsBounds) {
    for (long long n = LongMax - 1000; n < LongMax; ++n) {
        ASSERT_EQ(CLng(static_cast<Double>(n) + 0.5), EvenOf(n));
    }
    for (long long n = LongMin; n < LongMin + 1000; ++n) {
        ASSERT_EQ(CLng(static_cast<Double>(n) + 0.5), EvenOf(n));
    }
}

TEST(CLng, OverflowsWhereTheRoundedNumberDoesNotFit) {
    EXPECT_EQ(CLng(Below(2147483647.5)), LongMax);
    EXPECT_EQ(ErrorNumber([] { return CLng(2147483647.5); }), OverflowNumber);
    EXPECT_EQ(CLng(-2147483648.5), LongMin);
    EXPECT_EQ(ErrorNumber([] { return CLng(Below(-2147483648.5)); }), OverflowNumber);
    for (const Double value : {Infinity, -Infinity, NotANumber}) {
        EXPECT_EQ(ErrorNumber([value] { return CLng(value); }), OverflowNumber) << value;
    }
}

TEST(Int, IsTheGreatestWholeNumberNotAbove) {
    for (long long n = IntegerMin; n <= IntegerMax; ++n) {
        const auto whole = static_cast<Double>(n);
        ASSERT_EQ(Int(whole), whole);
        ASSERT_EQ(Int(whole + 0.25), whole);
        ASSERT_EQ(Int(Below(whole)), whole - 1) << whole;
    }
}

TEST(Narrowing, KeepsWhatFitsAndOverflowsOneBeyond) {
    EXPECT_EQ(ToInteger(IntegerMin), IntegerMin);
    EXPECT_EQ(ToInteger(IntegerMax), IntegerMax);
    EXPECT_EQ(ErrorNumber([] { return ToInteger(IntegerMin - 1); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { return ToInteger(IntegerMax + 1); }), OverflowNumber);

    EXPECT_EQ(ToLong(LongMin), LongMin);
    EXPECT_EQ(ToLong(LongMax), LongMax);
    EXPECT_EQ(ErrorNumber([] { return ToLong(LongMin - 1); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { return ToLong(LongMax + 1); }), OverflowNumber);

    EXPECT_EQ(ToByte(0), 0);
    EXPECT_EQ(ToByte(255), 255);
    EXPECT_EQ(ErrorNumber([] { return ToByte(-1); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { return ToByte(256); }), OverflowNumber);
}

TEST(CSng, RoundsOnceToTheNearestSingle) {
    EXPECT_EQ(CSng(0.1), 0.1F);
    // The neighbours of 2 ^ 24 are 1 below and 2 above: a tie goes to the even one.
    EXPECT_EQ(CSng(16777217.0), 16777216.0F);
    EXPECT_EQ(CSng(Above(16777217.0)), 16777218.0F);
}

TEST(CSng, OverflowsBeyondTheGreatestSingle) {
    constexpr Single Greatest = std::numeric_limits<Single>::max();
    const Double halfBeyond = std::ldexp(2.0 - std::ldexp(1.0, -24), 127);
    EXPECT_EQ(CSng(Greatest), Greatest);
    EXPECT_EQ(CSng(Below(halfBeyond)), Greatest);
    EXPECT_EQ(CSng(-Below(halfBeyond)), -Greatest);
    EXPECT_EQ(ErrorNumber([=] { return CSng(halfBeyond); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([=] { return CSng(-halfBeyond); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { return CSng(NotANumber); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { return CSng(Infinity); }), OverflowNumber);
}

TEST(Mod, TakesTheSignOfTheDividend) {
    EXPECT_EQ(Mod(7, 3), 1);
    EXPECT_EQ(Mod(-7, 3), -1);
    EXPECT_EQ(Mod(7, -3), 1);
    EXPECT_EQ(Mod(-7, -3), -1);
}

TEST(Mod, IsWhatTheTruncatedQuotientLeavesOverARange) {
    for (Long divisor = -40; divisor <= 40; ++divisor) {
        if (divisor == 0) {
            continue;
        }
        for (Long dividend = -500; dividend <= 500; ++dividend) {
            // Counted down in steps, without a division.
            Long rest = dividend < 0 ? -dividend : dividend;
            const Long step = divisor < 0 ? -divisor : divisor;
            while (rest >= step) {
                rest -= step;
            }
            ASSERT_EQ(Mod(dividend, divisor), dividend < 0 ? -rest : rest)
                << dividend << " Mod " << divisor;
        }
    }
}

TEST(Mod, HoldsAtTheBoundsOfALong) {
    EXPECT_EQ(Mod(static_cast<Long>(LongMin), -1), 0);
    EXPECT_EQ(Mod(static_cast<Long>(LongMin), 1), 0);
    EXPECT_EQ(Mod(static_cast<Long>(LongMin), 10), -8);
    EXPECT_EQ(Mod(static_cast<Long>(LongMax), static_cast<Long>(LongMin)), LongMax);
}

TEST(Mod, RefusesADivisorOfZero) {
    EXPECT_EQ(ErrorNumber([] { return Mod(5, 0); }), DivisionByZeroNumber);
    EXPECT_EQ(ErrorNumber([] { return Mod(0, 0); }), DivisionByZeroNumber);
}

} // namespace
} // namespace tarn
