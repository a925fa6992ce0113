#include "estimate/EstimateChoices.h"
#include "estimate/EstimateTesting.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tarn {
namespace {

using testing::BothUnits;
using testing::ProjectOf;

constexpr ChoicesRefusal WidthRefused(std::size_t box) {
    return {ChoicesRefusal::Kind::Width, box};
}
constexpr ChoicesRefusal MatchRefused(std::size_t box) {
    return {ChoicesRefusal::Kind::MatchPattern, box};
}

EstimateChoices Standard() {
    EstimateChoices choices;
    choices.StandardWidth = 1;
    return choices;
}

EstimateChoices Other(const std::string& feet, const std::string& inches) {
    EstimateChoices choices = Standard();
    choices.StandardWidth.reset();
    choices.OtherFeet = feet;
    choices.OtherInches = inches;
    return choices;
}

EstimateChoices Matching(const std::string& width, const std::string& length) {
    EstimateChoices choices = Standard();
    choices.Match = true;
    choices.MatchWidth = width;
    choices.MatchLength = length;
    return choices;
}

/// The request that choices make; a failure when they are refused.
EstimateRequest Made(const EstimateChoices& choices, Units units = Units::Imperial) {
    const auto made = RequestOf(choices, units);
    const auto* request = std::get_if<EstimateRequest>(&made);
    if (request == nullptr) {
        ADD_FAILURE() << RefusalMessage(std::get<ChoicesRefusal>(made));
        return {};
    }
    return *request;
}

std::optional<ChoicesRefusal> RefusalOf(const EstimateChoices& choices,
                                        Units units = Units::Imperial) {
    const auto made = RequestOf(choices, units);
    const auto* refusal = std::get_if<ChoicesRefusal>(&made);
    return refusal != nullptr ? std::optional(*refusal) : std::nullopt;
}

TEST(FindCarpets, NamesTheCarpetsWithRoomsAndTheLowest) {
    const CarpetsFound found =
        FindCarpets(ProjectOf({{10, 10, 4}, {10, 10, 2}, {10, 10, 9}, {10, 10, 4}}));
    EXPECT_EQ(found.HasRooms,
              (std::array<bool, 8>{false, false, true, false, true, false, false, false}));
    EXPECT_EQ(found.Lowest, Byte{2});
}

TEST(FindCarpets, FindsTheFirstAndTheLastCarpet) {
    const CarpetsFound found = FindCarpets(ProjectOf({{10, 10, 7}, {10, 10, 0}}));
    EXPECT_TRUE(found.HasRooms[0]);
    EXPECT_TRUE(found.HasRooms[7]);
    EXPECT_EQ(found.Lowest, Byte{0});
}

TEST(FindCarpets, FindsARoomWithoutAnArea) {
    EXPECT_EQ(FindCarpets(ProjectOf({{0, 0, 3}})).Lowest, Byte{3});
}

TEST(FindCarpets, FindsNoneAmongTilesAndWithoutARoom) {
    EXPECT_FALSE(FindCarpets(ProjectOf({{10, 10, 8}, {10, 10, 11}, {10, 10, 200}})).Lowest);
    EXPECT_FALSE(FindCarpets(Project()).Lowest);
}

TEST(EstimateChoices, MakeARequestWithLayCarpetWidthAndUnits) {
    EXPECT_EQ(Made(Standard()), testing::Request(144));
    EstimateChoices choices = Standard();
    choices.Direction = Lay::Cross;
    choices.Carpet = 6;
    EXPECT_EQ(Made(choices, Units::Metric),
              testing::WithCarpet(testing::MetricRequest("366", Lay::Cross), 6));
}

TEST(EstimateChoices, TakeAStandardWidthInTheUnitInForce) {
    EstimateChoices choices = Standard();
    choices.StandardWidth = 2;
    EXPECT_EQ(Made(choices).RollWidth, 162);
    EXPECT_NEAR(Made(choices, Units::Metric).RollWidth, 411 / 2.54, 1e-4);
}

TEST(EstimateChoices, ReadAFreeWidthAsFeetAndInchesInBothUnits) {
    for (const Units units : BothUnits) {
        EXPECT_EQ(Made(Other("12", "6"), units).RollWidth, 150);
        EXPECT_EQ(Made(Other("12.5 ft", ""), units).RollWidth, 150);
    }
}

TEST(EstimateChoices, RefuseAWidthOfNothingAndHalfReadTexts) {
    const std::tuple<const char*, const char*, std::size_t> refused[] = {
        {"", "", 0},      {"0", "0", 0},     {"0", "0.004", 0},  {"-12", "", 0},
        {"1", "-12", 1},  {"abc", "abc", 0}, {"12'6", "", 0},    {"12,5", "", 0},
        {"6 1/2", "", 0}, {"12", "3,45", 1}, {"12", "6 1/2", 1}, {"12'6", "6 1/2", 0}};
    for (const auto& [feet, inches, box] : refused) {
        EXPECT_EQ(RefusalOf(Other(feet, inches)), WidthRefused(box)) << feet << " and " << inches;
    }
    EXPECT_FALSE(RefusalOf(Other("0", "0.01")));
}

TEST(EstimateChoices, LookOnlyAtTextsInUse) {
    EstimateChoices choices = Standard();
    choices.OtherFeet = "12'6";
    choices.MatchWidth = "3,45";
    EXPECT_EQ(Made(choices), testing::Request(144));
}

TEST(EstimateChoices, RoundARepeatInTheUnitInForce) {
    EXPECT_EQ(Made(Matching("12.5", "13.5")).Repeat, (PatternRepeat{12, 14}));
    EXPECT_EQ(Made(Matching("30", "31"), Units::Metric).Repeat, (PatternRepeat{30, 31}));
    EXPECT_EQ(Made(Matching("", "")).Repeat, (PatternRepeat{0, 0}));
}

TEST(EstimateChoices, RefuseHalfReadRepeats) {
    EXPECT_EQ(RefusalOf(Matching("1'6", "10")), MatchRefused(0));
    EXPECT_EQ(RefusalOf(Matching("10", "6 1/2")), MatchRefused(1));
    EXPECT_EQ(RefusalOf(Matching("1'6", "6 1/2")), MatchRefused(0));
}

TEST(EstimateChoices, RefuseNegativeRepeats) {
    for (const Units units : BothUnits) {
        EstimateChoices negativeAcross = Matching("-5", "10");
        EstimateChoices negativeAlong = Matching("10", "-0.2");
        EXPECT_EQ(RefusalOf(negativeAcross, units), MatchRefused(0));
        EXPECT_EQ(RefusalOf(negativeAlong, units), MatchRefused(1));
    }
    EXPECT_FALSE(RefusalOf(Matching("0", "0")));
}

TEST(EstimateChoices, RefuseTheWidthFirst) {
    EstimateChoices choices = Matching("-5", "10");
    choices.StandardWidth.reset();
    EXPECT_EQ(RefusalOf(choices), WidthRefused(0));
}

TEST(EstimateChoices, RefuseANegativeNumberInEitherBoxOfAWidth) {
    EXPECT_EQ(RefusalOf(Other("-1", "20")), WidthRefused(0));
    EXPECT_EQ(RefusalOf(Other("12", "-6")), WidthRefused(1));
    EXPECT_EQ(RefusalOf(Other("12", "-0.001")), WidthRefused(1));
    EXPECT_FALSE(RefusalOf(Other("12", "-0")));
}

TEST(EstimateChoices, RefuseNumbersThatDoNotFitAnInteger) {
    for (const Units units : BothUnits) {
        for (const char* text : {"32767.5", "40000", "1e9", "1e39", "1e999", "-1e999"}) {
            EXPECT_EQ(RefusalOf(Other(text, "6"), units), WidthRefused(0)) << text;
            EXPECT_EQ(RefusalOf(Other("12", text), units), WidthRefused(1)) << text;
            EXPECT_EQ(RefusalOf(Matching(text, "10"), units), MatchRefused(0)) << text;
            EXPECT_EQ(RefusalOf(Matching("10", text), units), MatchRefused(1)) << text;
        }
    }
    EXPECT_EQ(Made(Other("32767", "32767")).RollWidth, 32767.0F * 13);
    EXPECT_EQ(Made(Matching("32767.4", "32767")).Repeat, (PatternRepeat{32767, 32767}));
}

TEST(EstimateChoices, AreRefusedInWords) {
    EXPECT_EQ(RefusalMessage(WidthRefused(0)), "The carpet width is not correct.");
    EXPECT_EQ(RefusalMessage(MatchRefused(1)), "The match pattern is not correct.");
}

TEST(OtherWidthHint, GivesTheWidthInForceInCentimetres) {
    EXPECT_EQ(OtherWidthHint("8", "6"), "= 259 CM");
    EXPECT_EQ(OtherWidthHint("8.5", ""), "= 259 CM");
    EXPECT_EQ(OtherWidthHint("3", "66"), "= 259 CM");
    EXPECT_EQ(OtherWidthHint("", "1"), "= 3 CM");
}

TEST(OtherWidthHint, IsEmptyForWhatWouldBeRefused) {
    for (const char* feet : {"", "0", "-1", "12'6", "1e999", "1e9"}) {
        EXPECT_EQ(OtherWidthHint(feet, ""), "") << feet;
    }
}

} // namespace
} // namespace tarn
