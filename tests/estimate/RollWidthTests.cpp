#include "base/Lengths.h"
#include "base/RunTimeError.h"
#include "estimate/RollWidth.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace {

TEST(RollWidth, ImperialCaptionsAreFeet) {
    EXPECT_EQ(CaptionRollWidth("CARPET WIDTH 6 FT.", Units::Imperial), 72);
    EXPECT_EQ(CaptionRollWidth("CARPET WIDTH 12 FT.", Units::Imperial), 144);
    EXPECT_EQ(CaptionRollWidth("CARPET WIDTH 13.5 FT.", Units::Imperial), 162);
    EXPECT_EQ(CaptionRollWidth("CARPET WIDTH 15 FT.", Units::Imperial), 180);
}

TEST(RollWidth, MetricCaptionsAreCentimetres) {
    EXPECT_NEAR(CaptionRollWidth("CARPET WIDTH 183 CMS", Units::Metric), 72.0472, 5e-5);
    EXPECT_NEAR(CaptionRollWidth("CARPET WIDTH 366 CMS", Units::Metric), 144.0945, 5e-5);
    EXPECT_NEAR(CaptionRollWidth("CARPET WIDTH 411 CMS", Units::Metric), 161.8110, 5e-5);
    EXPECT_NEAR(CaptionRollWidth("CARPET WIDTH 457 CMS", Units::Metric), 179.9213, 5e-5);
}

TEST(RollWidth, AMetricWidthTurnsBackIntoItsCentimetres) {
    for (const int figure : {183, 366, 411, 457}) {
        const Single width =
            CaptionRollWidth("CARPET WIDTH " + std::to_string(figure) + " CMS", Units::Metric);
        EXPECT_EQ(RoundedCentimetres(static_cast<double>(width)), figure);
        EXPECT_NEAR(static_cast<double>(width) * 2.54, figure, 2e-5);
    }
}

TEST(RollWidth, TheCaptionsOfBothUnitsAreTheFourStandardWidths) {
    EXPECT_EQ(WidthCaptions(Units::Imperial)[0], "CARPET WIDTH 6 FT.");
    EXPECT_EQ(WidthCaptions(Units::Imperial)[1], "CARPET WIDTH 12 FT.");
    EXPECT_EQ(WidthCaptions(Units::Imperial)[2], "CARPET WIDTH 13.5 FT.");
    EXPECT_EQ(WidthCaptions(Units::Imperial)[3], "CARPET WIDTH 15 FT.");
    EXPECT_EQ(WidthCaptions(Units::Metric)[0], "CARPET WIDTH 183 CMS");
    EXPECT_EQ(WidthCaptions(Units::Metric)[1], "CARPET WIDTH 366 CMS");
    EXPECT_EQ(WidthCaptions(Units::Metric)[2], "CARPET WIDTH 411 CMS");
    EXPECT_EQ(WidthCaptions(Units::Metric)[3], "CARPET WIDTH 457 CMS");
}

TEST(RollWidth, AStandardOneIsThatOfItsCaption) {
    EXPECT_EQ(StandardRollWidth(0, Units::Imperial), 72);
    EXPECT_EQ(StandardRollWidth(3, Units::Imperial), 180);
    EXPECT_EQ(StandardRollWidth(2, Units::Metric), ReadRollWidth("411cm"));
    EXPECT_THROW(StandardRollWidth(4, Units::Metric), std::out_of_range);
}

TEST(RollWidth, TwelveFeetOr366CentimetresIsTheDefault) {
    EXPECT_EQ(StandardRollWidth(DefaultWidth, Units::Imperial), 144);
    EXPECT_NEAR(StandardRollWidth(DefaultWidth, Units::Metric), 144.09, 5e-3);
}

TEST(RollWidth, OtherTakesFeetAndInchesWhateverTheUnit) {
    EXPECT_EQ(OtherRollWidth("12", "6"), 150);
    EXPECT_EQ(OtherRollWidth("13", ""), 156);
    EXPECT_EQ(OtherRollWidth("", "100.5"), 100.5F);
    EXPECT_EQ(OtherRollWidth("1.5", "3"), 21);
}

TEST(RollWidth, OtherReadsTheLeadingNumberOfEachText) {
    EXPECT_EQ(OtherRollWidth("12abc", "6 in"), 150);
    EXPECT_EQ(OtherRollWidth("abc", "x"), 0);
    EXPECT_EQ(OtherRollWidth("", ""), 0);
    EXPECT_EQ(OtherRollWidth("-12", "6"), -138);
}

TEST(RollWidth, OtherBeyondASingleOverflows) {
    EXPECT_THROW(OtherRollWidth("1e38", "0"), RunTimeError);
}

TEST(ReadRollWidth, ReadsEveryForm) {
    EXPECT_EQ(ReadRollWidth("12ft"), 144);
    EXPECT_EQ(ReadRollWidth("13.5ft"), 162);
    EXPECT_EQ(ReadRollWidth("12ft6in"), 150);
    EXPECT_EQ(ReadRollWidth("12ft6.5in"), 150.5F);
    EXPECT_EQ(ReadRollWidth("0ft6in"), 6);
    EXPECT_EQ(ReadRollWidth("150in"), 150);
    EXPECT_EQ(ReadRollWidth("100.25in"), 100.25F);
    EXPECT_EQ(ReadRollWidth("012ft"), 144);
    EXPECT_NEAR(ReadRollWidth("259cm"), 259 / 2.54, 1e-5);
    EXPECT_NEAR(ReadRollWidth("182.9cm"), 182.9 / 2.54, 1e-5);
}

TEST(ReadRollWidth, TakesTheUnitInEitherCase) {
    EXPECT_EQ(ReadRollWidth("12FT6In"), 150);
    EXPECT_EQ(ReadRollWidth("150IN"), 150);
    EXPECT_EQ(ReadRollWidth("366CM"), ReadRollWidth("366cm"));
}

TEST(ReadRollWidth, AStandardMetricWidthIsTheCaptionsToTheLastBit) {
    for (const std::string_view caption : MetricWidthCaptions) {
        const std::string figure(caption.substr(13, 3));
        EXPECT_EQ(ReadRollWidth(figure + "cm"), CaptionRollWidth(caption, Units::Metric));
    }
}

std::string Refusal(const std::string& text) {
    try {
        ReadRollWidth(text);
    } catch (const std::invalid_argument& refusal) {
        return refusal.what();
    }
    ADD_FAILURE() << "\"" << text << "\" was read";
    return {};
}

TEST(ReadRollWidth, RefusesWhatItCannotReadAndNamesIt) {
    for (const std::string text :
         {"",           " ",      "12",       "ft",       "in",      "cm",      "12 ft",
          " 12ft",      "12ft ",  "12ft 6in", "12ft6",    "12ft6ft", "12ft6cm", "6in12ft",
          "12ft6in3in", "-12ft",  "+12ft",    "12ft-6in", ".5ft",    "12.ft",   "1.2.3ft",
          "1e2in",      "12,5ft", "12'6\"",   "12m",      "366mm",   "0x90in",  "nancm",
          "infin",      "12ftin", "12f",      "366c",     "366cmx",  "12ſt",    "１２ft"}) {
        EXPECT_EQ(Refusal(text), "The roll width \"" + text +
                                     "\" is not readable: write it as 12ft, 13.5ft, 12ft6in, 150in "
                                     "or 366cm.");
    }
    EXPECT_NE(Refusal(std::string("12ft\0in", 7)), "");
}

TEST(IsUsableRollWidth, WantsMoreThanNothingAndNoMoreThanCanBeListed) {
    for (const Single width : {-1e8F, -1.0F, 0.0F, 0.0049F}) {
        EXPECT_FALSE(IsUsableRollWidth(width)) << width;
    }
    for (const Single width : {0.005001F, 0.01F, 144.0F, 800000000.0F}) {
        EXPECT_TRUE(IsUsableRollWidth(width)) << width;
    }
    EXPECT_THROW(IsUsableRollWidth(1e9F), RunTimeError);
}

TEST(ReadRollWidth, RefusesZero) {
    for (const std::string text : {"0ft", "0in", "0cm", "0ft0in", "0.0ft", "000cm", "0.00cm"}) {
        EXPECT_EQ(Refusal(text), "The roll width \"" + text + "\" must be more than 0.");
    }
}

TEST(ReadRollWidth, RefusesAWidthTooSmallToHold) {
    EXPECT_NE(Refusal("0." + std::string(400, '0') + "1in").find("must be more than 0"),
              std::string::npos);
}

TEST(ReadRollWidth, RefusesAWidthThatIsTheSameLengthAsZero) {
    for (const std::string text : {"0.0049in", "0.0004ft", "0.01cm"}) {
        EXPECT_EQ(Refusal(text), "The roll width \"" + text + "\" must be more than 0.");
    }
    EXPECT_EQ(ReadRollWidth("0.01in"), 0.01F);
}

TEST(ReadRollWidth, RefusesAWidthTooLargeToList) {
    for (const std::string text : {"1000000000ft", "850000000in", "2200000000cm"}) {
        EXPECT_EQ(Refusal(text), "The roll width \"" + text + "\" is too large.");
    }
    EXPECT_EQ(ReadRollWidth("800000000in"), 800000000.0F);
}

TEST(ReadRollWidth, RefusesAWidthTooLargeToHold) {
    for (const std::string unit : {"ft", "in", "cm"}) {
        for (const std::size_t digits : {39U, 400U, 1'000'000U}) {
            const std::string text = std::string(digits, '9') + unit;
            EXPECT_EQ(Refusal(text), "The roll width \"" + text + "\" is too large.");
        }
    }
}

} // namespace
} // namespace tarn
