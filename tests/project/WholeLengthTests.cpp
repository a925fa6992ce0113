#include "base/Text.h"
#include "project/WholeLength.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace {

using Fault = SpreadSize::Fault;

std::string Shown(const SizeParts& parts) {
    return parts.Major + "|" + parts.Minor;
}

/// What a text comes to that is typed into an empty size, in each of its fields.
void ExpectSpread(const char* text, Units units, const SizeParts& expected) {
    for (const SizeParts& typed : {SizeParts{text, ""}, SizeParts{"", text}}) {
        const SpreadSize size = Spread(typed, units);
        EXPECT_EQ(size.Why, Fault::None) << Shown(typed);
        EXPECT_EQ(size.Parts, expected) << Shown(typed) << " is " << Shown(size.Parts);
    }
}

/// What is wrong with a text that is typed into an empty size, in each of its fields.
void ExpectFault(const char* text, Units units, Fault expected) {
    for (const SizePart field : {SizePart::Major, SizePart::Minor}) {
        const SizeParts typed =
            field == SizePart::Major ? SizeParts{text, ""} : SizeParts{"", text};
        const SpreadSize size = Spread(typed, units);
        EXPECT_EQ(size.Why, expected) << Shown(typed);
        EXPECT_EQ(size.Wrong, field) << Shown(typed);
        EXPECT_EQ(size.Parts, typed) << "it stays as it was typed";
    }
}

TEST(Spread, TakesFeetAndInchesInOneText) {
    const std::pair<const char*, SizeParts> cases[] = {
        {"12'6\"", {"12", "6"}},
        {"12' 6\"", {"12", "6"}},
        {" 12 ' 6 \" ", {"12", "6"}},
        {"12'6.5\"", {"12", "6.5"}},
        {"12' 6 1/2\"", {"12", "6.5"}},
        {"12'6 3/16\"", {"12", "6.1875"}},
        {"12' 1/64\"", {"12", ".015625"}},
        {"12'-6\"", {"12", "6"}},
        {"12' - 6 1/2\"", {"12", "6.5"}},
        {"12'6''", {"12", "6"}},
        {"12'0\"", {"12", ""}},
        {"12'00\"", {"12", ""}},
        {"012'06\"", {"12", "6"}},
        {"11'13\"", {"11", "13"}},
        {"12\u20196\u201D", {"12", "6"}},
        {"12\u20326\u2033", {"12", "6"}},
        {"12\u20186\u201C", {"12", "6"}},
        {"12\u2019 6\u2019\u2019", {"12", "6"}},
        {"12-6", {"12", "6"}},
        {"12 - 6", {"12", "6"}},
        {"12-6.25", {"12", "6.25"}},
        {"12-6 1/4", {"12", "6.25"}},
        {"12-6\"", {"12", "6"}},
        {"12-6in", {"12", "6"}},
        {"12-0", {"12", ""}},
        {"12ft 6in", {"12", "6"}},
        {"12ft6in", {"12", "6"}},
        {"12FT 6IN", {"12", "6"}},
        {"12 Ft. 6 In.", {"12", "6"}},
        {"12 feet 6 inches", {"12", "6"}},
        {"1 foot 1 inch", {"1", "1"}},
        {"12ft-6in", {"12", "6"}},
        {"12ft 6\"", {"12", "6"}},
        {"12'6in", {"12", "6"}},
        {"12\t'\t6\"", {"12", "6"}},
        {"3 ft 6 ins", {"3", "6"}},
    };
    for (const auto& [text, parts] : cases) {
        ExpectSpread(text, Units::Imperial, parts);
        ExpectFault(text, Units::Metric, Fault::OtherUnits);
    }
}

TEST(Spread, TakesMetresAndCentimetresInOneText) {
    const std::pair<const char*, SizeParts> cases[] = {
        {"3.66m", {"3", "66"}},
        {"366cm", {"3", "66"}},
        {"3.66 M", {"3", "66"}},
        {"366 CM", {"3", "66"}},
        {"3.6m", {"3", "60"}},
        {"3.06m", {"3", "6"}},
        {"3.455m", {"3", "45.5"}},
        {".5m", {"", "50"}},
        {"366.5 cm", {"3", "66.5"}},
        {"3m 66cm", {"3", "66"}},
        {"3m66cm", {"3", "66"}},
        {"3 metres 66 centimetres", {"3", "66"}},
        {"300cm", {"3", ""}},
        {"3.66 meters", {"3", "66"}},
        {"1000000.01m", {"1000000", "1"}},
        {"366 cms", {"3", "66"}},
    };
    for (const auto& [text, parts] : cases) {
        ExpectSpread(text, Units::Metric, parts);
        ExpectFault(text, Units::Imperial, Fault::OtherUnits);
    }
}

TEST(Spread, PutsALoneUnitIntoItsField) {
    const std::pair<const char*, SizeParts> imperial[] = {
        {"12'", {"12", ""}},        {"12ft", {"12", ""}},        {"12 FT.", {"12", ""}},
        {"12 feet", {"12", ""}},    {"12\u2019", {"12", ""}},    {"12.'", {"12", ""}},
        {"12.5'", {"12", "6"}},     {"12.52ft", {"12", "6.24"}}, {"6\"", {"", "6"}},
        {"6in", {"", "6"}},         {"6 IN", {"", "6"}},         {"6 inch", {"", "6"}},
        {"6\u201D", {"", "6"}},     {"6''", {"", "6"}},          {"6 1/2\"", {"", "6.5"}},
        {"1/2\"", {"", ".5"}},      {"18\"", {"1", "6"}},        {"12\"", {"1", ""}},
        {"18.25in", {"1", "6.25"}}, {"12''", {"1", ""}}};
    for (const auto& [text, parts] : imperial) {
        ExpectSpread(text, Units::Imperial, parts);
        ExpectFault(text, Units::Metric, Fault::OtherUnits);
    }
    const std::pair<const char*, SizeParts> metric[] = {
        {"3m", {"3", ""}}, {"3.m", {"3", ""}}, {"66cm", {"", "66"}}, {"6 cm", {"", "6"}}};
    for (const auto& [text, parts] : metric) {
        ExpectSpread(text, Units::Metric, parts);
        ExpectFault(text, Units::Imperial, Fault::OtherUnits);
    }
}

TEST(Spread, RefusesWhatCanBeReadInTwoWays) {
    for (const char* text :
         {"12'6",      "12 ft 6",  "6 1/2",       "12 6",      "12'6 1/2", "12'-6",
          "12'1/2",    "6-1/2",    "6-1/2\"",     "12'-1/2\"", "12.5'6\"", "12.5-6",
          "12--6",     "12-6-3",   "12-6'",       "12'6'",     "12\"6'",   "6 1/3\"",
          "6 3/2\"",   "6 1/0\"",  "6 1/2 1/2\"", "6.5 1/2\"", "12 1/2'",  "6\u00BD\"",
          "12\u00BD'", "1,5\"",    "12'6,5\"",    "3m 66",     "3m 66in",  "12ft 66cm",
          "x12\"",     "12'6\"\"", "12'6\"x",     "9'6\"8",    "12\u20136"}) {
        for (const Units units : {Units::Imperial, Units::Metric}) {
            ExpectFault(text, units, Fault::Unreadable);
        }
    }
    ExpectFault("1 2'", Units::Imperial, Fault::Unreadable);
}

TEST(Spread, RefusesUnitsInWhichNoSizeIsTyped) {
    for (const char* text : {"3660mm", "366 MM", "4yd", "4 yds", "4 yards", "3dm", "1km"}) {
        for (const Units units : {Units::Imperial, Units::Metric}) {
            ExpectFault(text, units, Fault::UnitNotTaken);
        }
    }
}

TEST(Spread, LeavesNumbersAndOtherTextAsTyped) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        for (const SizeParts& typed : {SizeParts{"12", "6"},
                                       {"", ""},
                                       {"12.5", ""},
                                       {".85", ""},
                                       {"11", "13"},
                                       {"05", "007"},
                                       {" 12 ", ""},
                                       {"1e2", ""},
                                       {"+5", ""},
                                       {"12ш", ""},
                                       {"12 about", ""},
                                       {"1e400", ""},
                                       {"ft", "7"},
                                       {"m", ""},
                                       {"0", "0"},
                                       {"1234567890123", ""}}) {
            const SpreadSize size = Spread(typed, units);
            EXPECT_EQ(size.Why, Fault::None) << Shown(typed);
            EXPECT_EQ(size.Parts, typed) << Shown(size.Parts);
        }
    }
}

TEST(Spread, TakesAUnitInItsOwnFieldBesideANumber) {
    const std::pair<SizeParts, SizeParts> cases[] = {
        {{"12 ft", "6 in"}, {"12", "6"}},   {{"12'", "6\""}, {"12", "6"}},
        {{"12'", "6"}, {"12", "6"}},        {{"12", "6\""}, {"12", "6"}},
        {{"12", "6 1/2\""}, {"12", "6.5"}}, {{"12", "11in"}, {"12", "11"}}};
    for (const auto& [typed, parts] : cases) {
        const SpreadSize size = Spread(typed, Units::Imperial);
        EXPECT_EQ(size.Why, Fault::None) << Shown(typed);
        EXPECT_EQ(size.Parts, parts) << Shown(typed) << " is " << Shown(size.Parts);
    }
}

TEST(Spread, RefusesALengthForBothFieldsBesideANumber) {
    for (const char* text : {"12'6\"", "12-6", "12.5'", "18\"", "12ft 6in"}) {
        for (const char* number : {"1", "6", ".5", "1e400", "-1"}) {
            SpreadSize size = Spread({text, number}, Units::Imperial);
            EXPECT_EQ(size.Why, Fault::BesideNumber) << text << " and " << number;
            EXPECT_EQ(size.Wrong, SizePart::Major);
            size = Spread({number, text}, Units::Imperial);
            EXPECT_EQ(size.Why, Fault::BesideNumber) << number << " and " << text;
            EXPECT_EQ(size.Wrong, SizePart::Minor);
        }
        for (const char* none : {"", "0", " ", "00.0"}) {
            EXPECT_EQ(Spread({text, none}, Units::Imperial).Why, Fault::None) << text;
        }
    }
    EXPECT_EQ(Spread({"6\"", "3"}, Units::Imperial).Why, Fault::BesideNumber);
    EXPECT_EQ(Spread({"3", "12'"}, Units::Imperial).Why, Fault::BesideNumber);
    EXPECT_EQ(Spread({"6\"", "12'"}, Units::Imperial).Why, Fault::BesideNumber);
    EXPECT_EQ(Spread({"366cm", "5"}, Units::Metric).Why, Fault::BesideNumber);
    EXPECT_EQ(Spread({"4", "366cm"}, Units::Metric).Why, Fault::BesideNumber);
    EXPECT_EQ(Spread({"4.20m", "66"}, Units::Metric).Why, Fault::BesideNumber);
}

TEST(Spread, NamesWhatIsUnreadableBeforeWhatIsNegative) {
    EXPECT_EQ(Spread({"-1", "6 1/2"}, Units::Imperial),
              (SpreadSize{{"-1", "6 1/2"}, Fault::Unreadable, SizePart::Minor}));
    EXPECT_EQ(Spread({"-1", "-6"}, Units::Imperial),
              (SpreadSize{{"-1", "-6"}, Fault::Negative, SizePart::Major}));
    EXPECT_EQ(Spread({"12", "-6"}, Units::Imperial),
              (SpreadSize{{"12", "-6"}, Fault::Negative, SizePart::Minor}));
    EXPECT_EQ(Spread({"-12'", ""}, Units::Imperial).Why, Fault::Negative);
}

TEST(Spread, NeverReadsAUnitInTheFieldOfTheOther) {
    EXPECT_EQ(Spread({"", "+12ft"}, Units::Imperial).Why, Fault::Unreadable);
    EXPECT_EQ(Spread({"1e1\"", ""}, Units::Imperial).Why, Fault::Unreadable);
    EXPECT_EQ(Spread({"", "3.0000000001m"}, Units::Metric).Why, Fault::Unreadable);
    EXPECT_EQ(Spread({"3.0000000001m", ""}, Units::Metric).Why, Fault::None);
}

TEST(Spread, IsExactAndTheSameAsTheNumbersInTheirFields) {
    for (int inches = 0; inches < 2000; ++inches) {
        const SizeParts shown = SplitSize(static_cast<Integer>(inches), Units::Imperial);
        EXPECT_EQ(ReadSize({shown.Major + "'" + shown.Minor + "\"", ""}, Units::Imperial), inches);
        EXPECT_EQ(ReadSize({shown.Major + "-" + shown.Minor, ""}, Units::Imperial), inches);
        EXPECT_EQ(ReadSize({"", std::to_string(inches) + "in"}, Units::Imperial), inches);
    }
    for (int centimetres = 0; centimetres < 2000; ++centimetres) {
        const std::string tail = std::to_string(100 + centimetres % 100).substr(1);
        const std::string metres = std::to_string(centimetres / 100) + "." + tail + "m";
        EXPECT_EQ(ReadSize({metres, ""}, Units::Metric), centimetres) << metres;
        EXPECT_EQ(ReadSize({std::to_string(centimetres) + " cm", ""}, Units::Metric), centimetres);
    }
}

TEST(WithoutZeroPart, LeavesTheSmallUnit) {
    EXPECT_EQ(WithoutZeroPart("0'6\""), "6\"");
    EXPECT_EQ(WithoutZeroPart("0' 6 1/2\""), "6.5\"");
    EXPECT_EQ(WithoutZeroPart("0ft 18in"), "18\"");
    EXPECT_EQ(WithoutZeroPart("0-6"), "6\"");
    EXPECT_EQ(WithoutZeroPart("0m 66cm"), "66cm");
    for (const char* text : {"0", "0'", "0'0\"", "0'6", "6\"", "12'6\"", "-", "abc", "", "1e400"}) {
        EXPECT_EQ(WithoutZeroPart(text), std::nullopt) << text;
    }
}

TEST(LengthUnits, AreReadByEachOfTheirNames) {
    constexpr LengthUnit Feet{Units::Imperial, SizePart::Major};
    constexpr LengthUnit Inches{Units::Imperial, SizePart::Minor};
    constexpr LengthUnit Metres{Units::Metric, SizePart::Major};
    constexpr LengthUnit Centimetres{Units::Metric, SizePart::Minor};
    for (const char* text : {"ft", "FEET", " foot ", "ft.", "'", "\u2019"}) {
        EXPECT_EQ(ReadLengthUnit(text), Feet) << text;
    }
    for (const char* text : {"in", "Inches", "\"", "''", "\u2033"}) {
        EXPECT_EQ(ReadLengthUnit(text), Inches) << text;
    }
    EXPECT_EQ(ReadLengthUnit("m"), Metres);
    EXPECT_EQ(ReadLengthUnit("Centimeters"), Centimetres);
    EXPECT_EQ(ReadLengthUnit("mm")->In, std::nullopt);
    for (const char* text : {"", " ", "f", "ft in", "1ft", "min", "inch x"}) {
        EXPECT_EQ(ReadLengthUnit(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace tarn
