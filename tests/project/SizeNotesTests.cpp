#include "project/SizeNotes.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

std::string Kept(const std::string& major, const std::string& minor, Units units) {
    return KeptNote({major, minor}, units);
}

TEST(DroppedNote, WritesACommaAsAPoint) {
    EXPECT_EQ(DroppedNote("", "3,45"), "A comma is not taken: type 3.45");
    EXPECT_EQ(DroppedNote("", "3,4"), "A comma is not taken: type 3.4");
    EXPECT_EQ(DroppedNote("0,", "5"), "A comma is not taken: type 0.5");
    EXPECT_EQ(DroppedNote(",", "5"), "A comma is not taken: type 0.5");
    EXPECT_EQ(DroppedNote("", "1,234.5"), "A comma is not taken: type 1234.5");
}

TEST(DroppedNote, ShowsHowAPointIsWrittenWhereNoNumberStands) {
    EXPECT_EQ(DroppedNote(",", ""), "A comma is not taken: type 3.45");
    EXPECT_EQ(DroppedNote("0,", ""), "A comma is not taken: type 3.45");
    EXPECT_EQ(DroppedNote("0,0", ""), "A comma is not taken: type 3.45");
}

TEST(DroppedNote, LeavesACommaBehindTheNumberAlone) {
    EXPECT_EQ(DroppedNote("", "3,"), "");
    EXPECT_EQ(DroppedNote("", "12, about"), "");
}

TEST(DroppedNote, NamesSignsLettersAndMarks) {
    const std::string how = ": type the number alone, such as ";
    EXPECT_EQ(DroppedNote("-", ""), "A sign is not taken" + how + "12");
    EXPECT_EQ(DroppedNote("-", "5"), "A sign is not taken" + how + "5");
    EXPECT_EQ(DroppedNote("+", "7.5"), "A sign is not taken" + how + "7.5");
    EXPECT_EQ(DroppedNote("", "-5"), "A sign is not taken" + how + "5");
    EXPECT_EQ(DroppedNote("abc", ""), "Letters are not taken" + how + "12");
    EXPECT_EQ(DroppedNote("a", "9"), "Letters are not taken" + how + "9");
    EXPECT_EQ(DroppedNote("ü", "9"), "Letters are not taken" + how + "9");
    EXPECT_EQ(DroppedNote("0'", "6\""), "Only a number is taken" + how + "6");
}

TEST(DroppedNote, IsEmptyForWhatChangesNothing) {
    for (const char* dropped : {"", "0", "00", "0.0", " ", ".", "\t"}) {
        EXPECT_EQ(DroppedNote(dropped, "5"), "") << dropped;
        EXPECT_EQ(DroppedNote(dropped, ""), "") << dropped;
    }
    EXPECT_EQ(DroppedNote("", "12 ft"), "");
}

TEST(KeptNote, TellsTheWholeNumberBesideWhatWasTyped) {
    EXPECT_EQ(Kept("12", "6.5", Units::Imperial), "Kept as 12'6\" (typed 12'6.5\")");
    EXPECT_EQ(Kept("12", "7.5", Units::Imperial), "Kept as 12'8\" (typed 12'7.5\")");
    EXPECT_EQ(Kept("12.52", "", Units::Imperial), "Kept as 12'6\" (typed 12.52')");
    EXPECT_EQ(Kept("", ".4", Units::Imperial), "Kept as 0'0\" (typed .4\")");
    EXPECT_EQ(Kept("12.1 ft", "1", Units::Imperial), "Kept as 12'2\" (typed 12.1'1\")");
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
    for (const char* text : {"6 1/2", "12'6.5", "-3.5", "40000.5", "1e999"}) {
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
