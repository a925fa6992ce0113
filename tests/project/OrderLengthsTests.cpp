#include "project/OrderLengths.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

constexpr Double Close = 1e-9;

TEST(OrderLengths, AreReadInEveryUnit) {
    const auto inches = [](const char* text) { return *ReadOrderLength(text, Units::Imperial); };
    for (const char* text : {"12ft6in", "12FT 6 IN", "12'6\"", "12'6", "12 ft 6", "150in", "150\"",
                             "150", " 150 in ", "12.5ft", "381cm", "381 CM", "3.81m"}) {
        EXPECT_NEAR(inches(text), 150, Close) << text;
    }
    const auto centimetres = [](const char* text) { return *ReadOrderLength(text, Units::Metric); };
    for (const char* text : {"381", "381cm", "3.81m", "3.81 M", "150in", "12ft6in", "12'6\""}) {
        EXPECT_NEAR(centimetres(text), 381, Close) << text;
    }
    EXPECT_EQ(inches("0"), 0);
}

TEST(OrderLengths, TakeFractionsOfInches) {
    const auto inches = [](const char* text) { return *ReadOrderLength(text, Units::Imperial); };
    for (const char* text : {"1 1/2\"", "1 1/2in", "1  1/2 IN", "1 1/2", "1.5in", "0'1 1/2\"",
                             "0ft 1 1/2in", "1 32/64"}) {
        EXPECT_NEAR(inches(text), 1.5, Close) << text;
    }
    EXPECT_NEAR(inches("12' 6 3/16\""), 150.1875, Close);
    EXPECT_NEAR(inches("1/2\""), 0.5, Close);
    EXPECT_NEAR(inches("3/8"), 0.375, Close);
    EXPECT_NEAR(*ReadOrderLength("1 1/2in", Units::Metric), 3.81, Close);
    for (const char* text : {"1 1/2", "1 1/2cm", "1/2m"}) {
        EXPECT_FALSE(ReadOrderLength(text, Units::Metric)) << text;
    }
    for (const char* text :
         {"1 1/3in", "1 2/2in", "1 1/128in", "1.5 1/2in", "1 1/2ft", "1/2'", "1 1/", "1 /2x",
          "1//2", "1 1/2.0", "1 1/2 1/2", "1/0", "1/", "1 1/2cm", "1 99999999999999999999/2"}) {
        EXPECT_FALSE(ReadOrderLength(text, Units::Imperial)) << text;
    }
}

TEST(OrderLengths, RefuseEverythingElse) {
    for (const char* text :
         {"", " ", "ft", "12yd", "12ftx", "12ft6cm", "-3in", "+3in", "3,5", "3..5", "12 6",
          "12ft 6in 2", "1e3", "99999999999", "3in in", "nan", "inf"}) {
        EXPECT_FALSE(ReadOrderLength(text, Units::Imperial)) << text;
    }
    EXPECT_FALSE(ReadOrderLength(std::string(400, '9'), Units::Metric));
}

} // namespace
} // namespace tarn
