#include "project/SizeNotes.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

std::string Dropped(const char* dropped, const char* standing, Units units = Units::Imperial) {
    return DroppedNote(dropped, standing, units);
}

std::string Kept(const std::string& major, const std::string& minor, Units units) {
    return KeptNote({major, minor}, units);
}

TEST(DroppedNote, WritesACommaAsAPoint) {
    EXPECT_EQ(Dropped("", "3,45"), "A comma is not taken: type 3.45");
    EXPECT_EQ(Dropped("", "3,4"), "A comma is not taken: type 3.4");
    EXPECT_EQ(Dropped("0,", "5"), "A comma is not taken: type 0.5");
    EXPECT_EQ(Dropped(",", "5"), "A comma is not taken: type 0.5");
    EXPECT_EQ(Dropped("", "1,234.5"), "A comma is not taken: type 1234.5");
}

TEST(DroppedNote, ShowsHowAPointIsWrittenWhereNoNumberStands) {
    EXPECT_EQ(Dropped(",", ""), "A comma is not taken: type 3.45");
    EXPECT_EQ(Dropped("0,", ""), "A comma is not taken: type 3.45");
    EXPECT_EQ(Dropped("0,0", ""), "A comma is not taken: type 3.45");
}

TEST(DroppedNote, LeavesACommaBehindTheNumberAlone) {
    EXPECT_EQ(Dropped("", "3,"), "");
    EXPECT_EQ(Dropped("", "12, about"), "");
}

TEST(DroppedNote, NamesSignsLettersAndMarks) {
    const std::string how = ": type the number alone, such as ";
    EXPECT_EQ(Dropped("-", ""), "A sign is not taken" + how + "12");
    EXPECT_EQ(Dropped("-", "5"), "A sign is not taken" + how + "5");
    EXPECT_EQ(Dropped("+", "7.5"), "A sign is not taken" + how + "7.5");
    EXPECT_EQ(Dropped("", "-5"), "A sign is not taken" + how + "5");
    EXPECT_EQ(Dropped("abc", ""), "Letters are not taken" + how + "12");
    EXPECT_EQ(Dropped("a", "9"), "Letters are not taken" + how + "9");
    EXPECT_EQ(Dropped("ü", "9"), "Letters are not taken" + how + "9");
    EXPECT_EQ(Dropped("'", "6"), "Only a number is taken" + how + "6");
}

TEST(DroppedNote, TellsHowInchesAreTypedBehindADroppedZero) {
    EXPECT_EQ(Dropped("0'", "6"), "0' is dropped: for inches type 6\"");
    EXPECT_EQ(Dropped("0ft ", "6.5"), "0ft is dropped: for inches type 6.5\"");
    EXPECT_EQ(Dropped("0m", "66", Units::Metric), "0m is dropped: for centimetres type 66cm");
    EXPECT_EQ(Dropped("0'", "6\""), "") << "it comes out right";
    EXPECT_EQ(Dropped("0' ", "6 1/2\""), "");
    EXPECT_EQ(Dropped("0m ", "66cm", Units::Metric), "");
    EXPECT_NE(Dropped("-0'", "6\""), "");
    EXPECT_EQ(Dropped("0-", "6"), "0- is dropped: for inches type 6\"");
    EXPECT_EQ(Dropped("0-", "6", Units::Metric),
              "A sign is not taken: type the number alone, such as 6");
}

TEST(DroppedNote, WritesACommaAsAPointInAWholeLengthToo) {
    EXPECT_EQ(Dropped("", "12'6,5\""), "A comma is not taken: type 12'6.5\"");
    EXPECT_EQ(Dropped("", "3,66m"), "A comma is not taken: type 3.66m");
    EXPECT_EQ(Dropped("", "12'6,5"), "A comma is not taken: type 3.45");
}

TEST(RefusedNote, SaysWhatIsWrongAndHowToWriteIt) {
    const struct {
        SizeParts Typed;
        Units In;
        const char* Note;
    } cases[] = {
        {{"12'6", ""}, Units::Imperial, "12'6 is not taken: type it like 6.5, 6 1/2\" or 12'6\""},
        {{"12", " 6 1/2 "},
         Units::Imperial,
         "6 1/2 is not taken: type it like 6.5, 6 1/2\" or 12'6\""},
        {{"3 66", ""}, Units::Metric, "3 66 is not taken: type it like 3.66, 3.66m or 366cm"},
        {{"3,66", ""}, Units::Metric, "A comma is not taken: type 3.66"},
        {{"-3", ""}, Units::Metric, "A sign is not taken: type the number alone, such as 3"},
        {{"3", " - 5"}, Units::Metric, "A sign is not taken: type the number alone, such as 5"},
        {{"12'6\"", ""},
         Units::Metric,
         "Only metres and centimetres are taken here: type it like 3.66m"},
        {{"3.66m", ""},
         Units::Imperial,
         "Only feet and inches are taken here: type it like 12'6\""},
        {{"3660mm", ""},
         Units::Metric,
         "Only metres and centimetres are taken here: type it like 3.66m"},
        {{"3", "12'6\""}, Units::Imperial, "12'6\" is a whole length: empty the field beside it"},
        {{"1.2.3 and so on and so forth", ""},
         Units::Imperial,
         "1.2.3 and so on and so f.. is not taken: type it like 6.5, 6 1/2\" or 12'6\""},
        {{"12 ft", "6 in"}, Units::Imperial, ""},
        {{"", ""}, Units::Metric, ""}};
    for (const auto& each : cases) {
        EXPECT_EQ(RefusedNote(each.Typed, each.In), each.Note) << each.Typed.Major;
    }
}

TEST(RefusedNote, CutsALongTextBetweenCharacters) {
    std::string typed;
    for (int i = 0; i < 30; ++i) {
        typed += "½";
    }
    const std::string note = RefusedNote({typed, ""}, Units::Imperial);
    EXPECT_EQ(note.find("½.. is not taken"), 11 * std::string("½").size()) << note;
}

TEST(DroppedNote, IsEmptyForWhatChangesNothing) {
    for (const char* dropped : {"", "0", "00", "0.0", " ", ".", "\t"}) {
        EXPECT_EQ(Dropped(dropped, "5"), "") << dropped;
        EXPECT_EQ(Dropped(dropped, ""), "") << dropped;
    }
    EXPECT_EQ(Dropped("", "12 ft"), "");
}

TEST(KeptNote, TellsTheWholeNumberBesideWhatWasTyped) {
    EXPECT_EQ(Kept("12", "6.5", Units::Imperial), "Kept as 12'6\" (typed 12'6.5\")");
    EXPECT_EQ(Kept("12", "7.5", Units::Imperial), "Kept as 12'8\" (typed 12'7.5\")");
    EXPECT_EQ(Kept("12.52", "", Units::Imperial), "Kept as 12'6\" (typed 12.52')");
    EXPECT_EQ(Kept("", ".4", Units::Imperial), "Kept as 0'0\" (typed .4\")");
    EXPECT_EQ(Kept("12.1", "1 in", Units::Imperial), "Kept as 12'2\" (typed 12.1'1\")");
    EXPECT_EQ(Kept("12'6.5\"", "", Units::Imperial), "Kept as 12'6\" (typed 12'6.5\")");
    EXPECT_EQ(Kept("", "12' 6 1/2\"", Units::Imperial), "Kept as 12'6\" (typed 12'6.5\")");
    EXPECT_EQ(Kept("366.4cm", "", Units::Metric), "Kept as 3 m 66 cm (typed 3 m 66.4 cm)");
    EXPECT_EQ(Kept("3.455", "", Units::Metric), "Kept as 3 m 46 cm (typed 3.455 m)");
    EXPECT_EQ(Kept("3", "45.5", Units::Metric), "Kept as 3 m 46 cm (typed 3 m 45.5 cm)");
    EXPECT_EQ(Kept("", "45.5", Units::Metric), "Kept as 46 cm (typed 45.5 cm)");
}

TEST(KeptNote, IsEmptyForWholeNumbersHoweverTheyAreTyped) {
    for (const auto& [major, minor] : {std::pair{"12", "6"},
                                       {"12.5", ""},
                                       {"", ""},
                                       {"11", "13"},
                                       {"12.25", "3"},
                                       {"2.75", "0"}}) {
        EXPECT_EQ(Kept(major, minor, Units::Imperial), "") << major << " and " << minor;
    }
    for (int centimetres = 0; centimetres < 1000; ++centimetres) { // 1.1 x 100 is not quite 110
        const std::string tail = std::to_string(100 + centimetres % 100).substr(1);
        const std::string metres = std::to_string(centimetres / 100) + "." + tail;
        EXPECT_EQ(Kept(metres, "", Units::Metric), "") << metres;
    }
}

TEST(KeptNote, IsEmptyForWhatCannotBeStored) {
    for (const char* text : {"6 1/2", "12'6.5", "3.455m", "-3.5", "40000.5", "1e999"}) {
        EXPECT_EQ(Kept("", text, Units::Imperial), "") << text;
    }
}

TEST(IsEmptySize, IsTrueOfNothingAndOfZero) {
    EXPECT_TRUE(IsEmptySize({"", ""}, Units::Imperial));
    EXPECT_TRUE(IsEmptySize({"0", "0"}, Units::Metric));
    EXPECT_TRUE(IsEmptySize({"", ".4"}, Units::Imperial));
    EXPECT_FALSE(IsEmptySize({"", "1"}, Units::Imperial));
    EXPECT_FALSE(IsEmptySize({"1'6", ""}, Units::Imperial)) << "refused";
    EXPECT_FALSE(IsEmptySize({"1e999", ""}, Units::Imperial)) << "too large";
}

TEST(EmptySizeNote, NamesWhatIsEmpty) {
    EXPECT_EQ(EmptySizeNote(true, false), "The width is empty and counts as 0.");
    EXPECT_EQ(EmptySizeNote(false, true), "The length is empty and counts as 0.");
    EXPECT_EQ(EmptySizeNote(true, true), "Width and length are empty and count as 0.");
    EXPECT_EQ(EmptySizeNote(false, false), "");
}

const Room Whole{120, 144, 0, 0, "1", ""};
const Room NoWidth{0, 144, 0, 0, "2", ""};
const Room NoLength{120, 0, 0, 0, "3", ""};

TEST(EmptyRoomsText, NamesRoomsThatLostASize) {
    EXPECT_EQ(EmptyRoomsText({Whole, Whole}, {Whole, NoWidth}),
              "Room 2 has no width or no length: it is stored with 0, and nothing is cut for it.");
    EXPECT_EQ(
        EmptyRoomsText({Whole, Whole}, {NoLength, NoWidth}),
        "Rooms 1 and 2 have no width or no length: they are stored with 0, and nothing is cut "
        "for them.");
}

TEST(EmptyRoomsText, NamesThemOnceUntilTheyChange) {
    EXPECT_EQ(EmptyRoomsText({Whole, NoWidth}, {Whole, NoWidth}), "");
    EXPECT_EQ(EmptyRoomsText({Whole, NoWidth}, {NoWidth}), "") << "a room before it was deleted";
    Room renamed = NoWidth;
    renamed.Remark = "hall";
    EXPECT_NE(EmptyRoomsText({Whole, NoWidth}, {Whole, renamed}), "");
    EXPECT_EQ(EmptyRoomsText({}, {}), "");
    EXPECT_EQ(EmptyRoomsText({}, {Whole}), "");
}

TEST(EmptyRoomsText, NamesTenAtMost) {
    std::vector<Room> rooms(13, NoWidth);
    const std::string text = EmptyRoomsText({}, rooms);
    EXPECT_TRUE(text.starts_with("Rooms 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 and 3 more have ")) << text;
    rooms.resize(10);
    EXPECT_TRUE(
        EmptyRoomsText({}, rooms).starts_with("Rooms 1, 2, 3, 4, 5, 6, 7, 8, 9 and 10 have "));
}

} // namespace
} // namespace tarn
