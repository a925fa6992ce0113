#include "estimate/EstimateChoices.h"
#include "estimate/EstimateTesting.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tarn {
namespace {

using testing::ErrorOf;
using testing::Imperial;
using testing::Job;

constexpr ChoicesRefusal WidthRefused(std::size_t box) {
    return {ChoicesRefusal::Kind::Width, box};
}
constexpr ChoicesRefusal MatchRefused(std::size_t box) {
    return {ChoicesRefusal::Kind::MatchPattern, box};
}

EstimateChoices Standard() {
    EstimateChoices choices;
    choices.Carpet = 0;
    choices.WidthCaption = "CARPET WIDTH 12 FT.";
    return choices;
}

EstimateChoices Other(const std::string& feet, const std::string& inches) {
    EstimateChoices choices = Standard();
    choices.WidthCaption.clear();
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

/// An earlier estimate's choices, none of which any test chooses.
struct ChoicesTest : ::testing::Test {
    ChoicesTest() {
        job.Engine.LayDir = 1;
        job.Engine.RollWidth = 77;
        job.Estimate.CarpetNo = 6;
        job.Estimate.MatchFlag = true;
        job.Estimate.MatchWidth = 5;
        job.Estimate.MatchLength = 7;
    }
    std::optional<ChoicesRefusal> Take(const EstimateChoices& choices, bool metric = false) {
        return TakeChoices(job.Engine, job.Estimate, choices, metric);
    }
    void ExpectUntouched() const {
        EXPECT_EQ(job.Engine.LayDir, 1);
        EXPECT_EQ(job.Engine.RollWidth, 77);
        EXPECT_EQ(job.Estimate.CarpetNo, 6);
        EXPECT_TRUE(job.Estimate.MatchFlag);
        EXPECT_EQ(job.Estimate.MatchWidth, 5);
        EXPECT_EQ(job.Estimate.MatchLength, 7);
    }
    Job job;
};

using FindCarpetsTest = ChoicesTest;
using OtherWidthHints = ChoicesTest;

TEST_F(FindCarpetsTest, NamesTheCarpetsWithRoomsAndTheLowest) {
    const Job rooms = Imperial({{10, 10, 4}, {10, 10, 2}, {10, 10, 9}, {10, 10, 4}});
    const CarpetsFound found = FindCarpets(rooms.State);
    EXPECT_EQ(found.HasRooms,
              (std::array<bool, 8>{false, false, true, false, true, false, false, false}));
    EXPECT_EQ(found.Lowest, Byte{2});
}

TEST_F(FindCarpetsTest, FindsTheFirstAndTheLastCarpet) {
    const CarpetsFound found = FindCarpets(Imperial({{10, 10, 7}, {10, 10, 0}}).State);
    EXPECT_TRUE(found.HasRooms[0]);
    EXPECT_TRUE(found.HasRooms[7]);
    EXPECT_EQ(found.Lowest, Byte{0});
}

TEST_F(FindCarpetsTest, FindsNoneAmongTilesAndInRoomsThatAreNotInUse) {
    EXPECT_FALSE(FindCarpets(Imperial({{10, 10, 8}, {10, 10, 11}, {10, 10, 200}}).State).Lowest);
    Job dropped = Imperial({{10, 10, 3}});
    dropped.State.ObjNum = 0;
    EXPECT_FALSE(FindCarpets(dropped.State).Lowest);
}

TEST_F(ChoicesTest, SetLayCarpetAndWidth) {
    EXPECT_FALSE(Take(Standard()));
    EXPECT_EQ(job.Engine.LayDir, 0);
    EXPECT_EQ(job.Estimate.CarpetNo, 0);
    EXPECT_EQ(job.Engine.RollWidth, 144);
    EXPECT_FALSE(job.Estimate.MatchFlag);
    EXPECT_EQ(job.Estimate.MatchWidth, 5) << "the sizes keep their values";
    EXPECT_EQ(job.Estimate.MatchLength, 7);

    EstimateChoices cross = Standard();
    cross.DownLay = false;
    EXPECT_FALSE(Take(cross));
    EXPECT_EQ(job.Engine.LayDir, 1);
}

TEST_F(ChoicesTest, KeepTheCarpetWhenNoneIsChosen) {
    EstimateChoices choices = Standard();
    choices.Carpet.reset();
    EXPECT_FALSE(Take(choices));
    EXPECT_EQ(job.Estimate.CarpetNo, 6);
}

TEST_F(ChoicesTest, ReadACaptionInTheUnitInForce) {
    EstimateChoices choices = Standard();
    choices.WidthCaption = "CARPET WIDTH 13.5 FT.";
    EXPECT_FALSE(Take(choices));
    EXPECT_EQ(job.Engine.RollWidth, 162);
    choices.WidthCaption = "CARPET WIDTH 366 CMS";
    EXPECT_FALSE(Take(choices, true));
    EXPECT_NEAR(job.Engine.RollWidth, 366 / 2.54, 1e-4);
}

TEST_F(ChoicesTest, ReadAFreeWidthAsFeetAndInchesInBothUnits) {
    for (const bool metric : testing::BothUnits) {
        EXPECT_FALSE(Take(Other("12", "6"), metric));
        EXPECT_EQ(job.Engine.RollWidth, 150);
        EXPECT_FALSE(Take(Other("12.5 ft", ""), metric));
        EXPECT_EQ(job.Engine.RollWidth, 150);
    }
}

TEST_F(ChoicesTest, RefuseAWidthOfNothingAndHalfReadTexts) {
    const std::tuple<const char*, const char*, std::size_t> refused[] = {
        {"", "", 0},      {"0", "0", 0},     {"0", "0.004", 0},  {"-12", "", 0},
        {"1", "-12", 0},  {"abc", "abc", 0}, {"12'6", "", 0},    {"12,5", "", 0},
        {"6 1/2", "", 0}, {"12", "3,45", 1}, {"12", "6 1/2", 1}, {"12'6", "6 1/2", 0}};
    for (const auto& [feet, inches, box] : refused) {
        EXPECT_EQ(Take(Other(feet, inches)), WidthRefused(box)) << feet << " and " << inches;
        ExpectUntouched();
    }
    EXPECT_FALSE(Take(Other("0", "0.01")));
}

TEST_F(ChoicesTest, LookOnlyAtTextsInUse) {
    EstimateChoices choices = Standard();
    choices.OtherFeet = "12'6";
    choices.MatchWidth = "3,45";
    EXPECT_FALSE(Take(choices));
    EXPECT_EQ(job.Engine.RollWidth, 144);
}

TEST_F(ChoicesTest, RoundARepeat) {
    EXPECT_FALSE(Take(Matching("12.5", "13.5")));
    EXPECT_TRUE(job.Estimate.MatchFlag);
    EXPECT_EQ(job.Estimate.MatchWidth, 12);
    EXPECT_EQ(job.Estimate.MatchLength, 14);
    EXPECT_FALSE(Take(Matching("30", "31"), true));
    EXPECT_EQ(job.Estimate.MatchWidth, 12);
    EXPECT_EQ(job.Estimate.MatchLength, 12);
    EXPECT_EQ(job.Estimate.MatchLengthCm, 31);
    EXPECT_FALSE(Take(Matching("", "")));
    EXPECT_EQ(job.Estimate.MatchLength, 0);
}

TEST_F(ChoicesTest, RefuseHalfReadRepeats) {
    EXPECT_EQ(Take(Matching("1'6", "10")), MatchRefused(0));
    ExpectUntouched();
    EXPECT_EQ(Take(Matching("10", "6 1/2")), MatchRefused(1));
    ExpectUntouched();
    EXPECT_EQ(Take(Matching("1'6", "6 1/2")), MatchRefused(0));
    ExpectUntouched();
}

TEST_F(ChoicesTest, RefuseNegativeRepeats) {
    for (const bool metric : testing::BothUnits) {
        EXPECT_EQ(Take(Matching("-5", "10"), metric), MatchRefused(0));
        ExpectUntouched();
        EXPECT_EQ(Take(Matching("10", "-0.2"), metric), MatchRefused(1));
        ExpectUntouched();
    }
    EXPECT_FALSE(Take(Matching("0", "0")));
}

TEST_F(ChoicesTest, RefuseTheWidthFirst) {
    EstimateChoices choices = Matching("-5", "10");
    choices.WidthCaption.clear();
    EXPECT_EQ(Take(choices), WidthRefused(0));
    ExpectUntouched();
}

TEST_F(ChoicesTest, RaiseForNumbersThatDoNotFitAndChangeNothing) {
    for (const EstimateChoices& choices : {Other("1e999", ""), Other("1e39", ""), Other("1e9", ""),
                                           Matching("40000", "1"), Matching("1", "1e999")}) {
        EXPECT_EQ(ErrorOf([&] { Take(choices); }).Number(), OverflowNumber);
        ExpectUntouched();
    }
}

TEST_F(ChoicesTest, AreRefusedInWords) {
    EXPECT_EQ(RefusalMessage(WidthRefused(0)), "The carpet width is not correct.");
    EXPECT_EQ(RefusalMessage(MatchRefused(1)), "The match pattern is not correct.");
}

TEST_F(OtherWidthHints, GiveTheWidthInForceInCentimetres) {
    EXPECT_EQ(OtherWidthHint("8", "6"), "= 259 CM");
    EXPECT_EQ(OtherWidthHint("8.5", ""), "= 259 CM");
    EXPECT_EQ(OtherWidthHint("3", "66"), "= 259 CM");
    EXPECT_EQ(OtherWidthHint("", "1"), "= 3 CM");
}

TEST_F(OtherWidthHints, AreEmptyForWhatWouldBeRefused) {
    for (const char* feet : {"", "0", "-1", "12'6", "1e999", "1e9"}) {
        EXPECT_EQ(OtherWidthHint(feet, ""), "") << feet;
    }
}

} // namespace
} // namespace tarn
