#include "files/ValueTable.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(CsvOf, WritesHeadsAndRowsOfEachTable) {
    EXPECT_EQ(CsvOf({{"One", {"a", "b c"}, {{std::int64_t{12}, 0.1}, {TableCell(), "x, \"y\""}}},
                     {"Two", {"d"}, {}}}),
              "a,b c\r\n12,0.1\r\n,\"x, \"\"y\"\"\"\r\n\r\nd\r\n");
    EXPECT_EQ(CsvOf({}), "");
}

TEST(CsvOf, MarksTextsThatASpreadsheetWouldRun) {
    EXPECT_EQ(CsvOf({{"", {"a"}, {{"=1"}, {"@x"}, {"+1"}, {"-"}, {"'"}, {std::int64_t{-1}}}}}),
              "a\r\n'=1\r\n'@x\r\n'+1\r\n'-\r\n''\r\n-1\r\n");
}

TEST(CsvOf, WritesNumbersThatAreReadBackAsTheSame) {
    EXPECT_EQ(CsvOf({{"", {"a"}, {{1.0 / 3}, {1e-7}, {123456789.0}}}}),
              "a\r\n0.3333333333333333\r\n1e-07\r\n123456789\r\n");
}

} // namespace
} // namespace tarn
