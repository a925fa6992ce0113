#include "base/RunTimeError.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

template <typename Action>
RunTimeError Raised(Action&& action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error;
    }
    return RunTimeError(0, "nothing was raised");
}

TEST(RunTimeError, HasTheNumberAndTextOfEachKind) {
    const RunTimeError overflow = Raised([] { RaiseOverflow(); });
    EXPECT_EQ(overflow.Number(), 6);
    EXPECT_EQ(overflow.Text(), "Overflow");
    EXPECT_EQ(overflow.Advice(), "");
    EXPECT_STREQ(overflow.what(), "Overflow");

    const RunTimeError subscript = Raised([] { RaiseSubscript(); });
    EXPECT_EQ(subscript.Number(), 9);
    EXPECT_EQ(subscript.Text(), "Subscript out of range");

    const RunTimeError division = Raised([] { RaiseDivisionByZero(); });
    EXPECT_EQ(division.Number(), 11);
    EXPECT_EQ(division.Text(), "Division by zero");

    const RunTimeError internal = Raised([] { RaiseInternal(); });
    EXPECT_EQ(internal.Number(), 51);
    EXPECT_EQ(internal.Text(), "Internal error");
}

TEST(RunTimeError, TellsItselfInOneLine) {
    const RunTimeError error = Raised([] { RaiseOverflow(); });
    EXPECT_EQ(error.Heading(), "Run-time error '6':");
    EXPECT_EQ(error.Sentences(), "Overflow.");
    EXPECT_EQ(error.WithAdvice("Choose fewer.").Sentences(), "Overflow. Choose fewer.");
}

TEST(RunTimeError, CarriesTheAdviceOfEachKind) {
    EXPECT_EQ(Raised([] { RaiseOverflow("a"); }).Advice(), "a");
    EXPECT_EQ(Raised([] { RaiseSubscript("b"); }).Advice(), "b");
    EXPECT_EQ(Raised([] { RaiseDivisionByZero("c"); }).Advice(), "c");
    EXPECT_EQ(Raised([] { RaiseInternal("d"); }).Advice(), "d");
}

TEST(RunTimeError, WithAdviceChangesNothingElse) {
    const RunTimeError error(9, "Subscript out of range", "old");
    const RunTimeError advised = error.WithAdvice("new");
    EXPECT_EQ(advised.Number(), 9);
    EXPECT_EQ(advised.Text(), "Subscript out of range");
    EXPECT_EQ(advised.Advice(), "new");
    EXPECT_EQ(error.Advice(), "old");
}

} // namespace
} // namespace tarn
