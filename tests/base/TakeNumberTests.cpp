#include "base/TakeNumber.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace tarn {
namespace {

/// The number taken, and what is left.
std::pair<std::string, std::string> Taken(std::string_view text) {
    const std::string number(TakeNumber(text));
    return {number, std::string(text)};
}

using Parts = std::pair<std::string, std::string>;

TEST(TakeNumber, TakesDigitsAndDigitsOnBothSidesOfAPoint) {
    EXPECT_EQ(Taken("12ft"), Parts("12", "ft"));
    EXPECT_EQ(Taken("13.5ft"), Parts("13.5", "ft"));
    EXPECT_EQ(Taken("007"), Parts("007", ""));
    EXPECT_EQ(Taken("1.2.3"), Parts("1.2", ".3"));
    EXPECT_EQ(Taken("1e3"), Parts("1", "e3"));
}

TEST(TakeNumber, LeavesATextThatBeginsOtherwise) {
    for (const char* text : {"", "ft", "-1", "+1", ".5", "5.", "5.x", " 5"}) {
        EXPECT_EQ(Taken(text), Parts("", text)) << text;
    }
}

} // namespace
} // namespace tarn
