#include "files/RoomHeadings.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn {
namespace {

constexpr LengthUnit Feet{Units::Imperial, SizePart::Major};
constexpr LengthUnit Inches{Units::Imperial, SizePart::Minor};
constexpr LengthUnit Metres{Units::Metric, SizePart::Major};
constexpr LengthUnit Centimetres{Units::Metric, SizePart::Minor};

void ExpectField(RoomField field, const std::vector<const char*>& texts) {
    for (const char* text : texts) {
        EXPECT_EQ(ReadRoomHeading(text), (RoomHeading{field, std::nullopt})) << text;
    }
}

TEST(ReadRoomHeading, KnowsItsOwnNames) {
    for (std::size_t i = 0; i < RoomFieldNames.size(); ++i) {
        const auto heading = ReadRoomHeading(RoomFieldNames[i]);
        ASSERT_TRUE(heading);
        EXPECT_EQ(heading->Field, static_cast<RoomField>(i));
        EXPECT_EQ(NameOf(heading->Field), RoomFieldNames[i]);
    }
}

TEST(ReadRoomHeading, KnowsTheUsualOthers) {
    ExpectField(RoomField::Width,
                {"WIDTH", " Widths ", "Room width", "room_width", "\u00A0width:"});
    ExpectField(RoomField::Length, {"Lengths", "Room-Length"});
    ExpectField(RoomField::Covering, {"Coverings", "Floor covering", "FLOOR  COVERINGS", "Carpet",
                                      "Carpet / Tile", "TYPE", "Floor"});
    ExpectField(RoomField::Base, {"Bases", "Wall base", "wall-bases"});
    ExpectField(RoomField::Room, {"Rooms", "Room No.", "Room number", "Room #", "ROOM NUMBERS"});
    ExpectField(RoomField::Remark, {"Remarks", "Note", "notes", "Comment", "(comments)"});
}

TEST(ReadRoomHeading, ReadsTheUnitOfASize) {
    const auto expectUnit = [](LengthUnit unit, const std::vector<const char*>& units) {
        for (const char* text : units) {
            EXPECT_EQ(ReadRoomHeading(std::string("Width ") + text),
                      (RoomHeading{RoomField::Width, unit}))
                << text;
            EXPECT_EQ(ReadRoomHeading(std::string("LENGTHS(") + text + ")"),
                      (RoomHeading{RoomField::Length, unit}))
                << text;
        }
    };
    expectUnit(Feet, {"(ft)", "[FT]", "ft.", "in feet", "/ Foot", "(')", "\u2019"});
    expectUnit(Inches, {"(in)", "in", "inches", "in inches", "\"", "(in in)"});
    expectUnit(Metres, {"(m)", "[M]", "in metres", "- meter"});
    expectUnit(Centimetres, {"(cm)", "in cm", ", centimeters"});
    expectUnit({std::nullopt, SizePart::Major}, {"(mm)", "yd", "in yards"});
    EXPECT_EQ(ReadRoomHeading("Room width (ft)"), (RoomHeading{RoomField::Width, Feet}));
}

TEST(ReadRoomHeading, KnowsNothingElse) {
    for (const char* text :
         {"", " ", "144", "colour", "width of hall", "widths length", "wid th", "width (ft/in)",
          "width ft long", "ft", "in", "covering (m)", "No.", "item", "area", "widthss", "s"}) {
        EXPECT_EQ(ReadRoomHeading(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace tarn
