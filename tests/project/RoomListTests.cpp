#include "project/RoomEntry.h"
#include "project/RoomList.h"
#include "project/RoomTesting.h"
#include "project/ShortRoomName.h"

#include <gtest/gtest.h>

#include <array>

namespace tarn {
namespace {

using namespace tarn::testing;
using Texts = std::vector<std::string>;
using Lines = std::vector<Texts>;

Texts RowOf(const Room& room, std::size_t place, Units shown) {
    Texts row;
    for (int column = 0; column < RoomColumns; ++column) {
        row.push_back(ListText(static_cast<RoomColumn>(column), room, place, shown));
    }
    return row;
}

Texts Captions(Units shown) {
    Texts captions;
    for (int column = 0; column < RoomColumns; ++column) {
        captions.emplace_back(CaptionOf(static_cast<RoomColumn>(column), shown));
    }
    return captions;
}

TEST(RoomListText, IsOfARoomInFeetOrMetric) {
    const Room room{150, 168, 9, 5, "12b", "bay window"};
    EXPECT_EQ(RowOf(room, 2, Units::Imperial),
              (Texts{"3", "12'6\"", "14'0\"", "T2", "W2L1", "12b", "bay window", "19.44"}));
    EXPECT_EQ(RowOf(room, 500, Units::Metric),
              (Texts{"501", "150", "168", "T2", "W2L1", "12b", "bay window", "2.52"}));
    EXPECT_EQ(Captions(Units::Imperial),
              (Texts{"ITEM", "WIDTH", "LENGTH", "TYPE", "BASE", "ROOM", "REMARK", "SQ. YD."}));
    EXPECT_EQ(Captions(Units::Metric).back(), "SQ. M");
}

TEST(RoomListText, StandsOnOneLineAndTellsOddCodesApart) {
    const Room room{32767, 32767, 12, 9, "1\n2", "hall\tand\r\nstairs"};
    EXPECT_EQ(RowOf(room, 0, Units::Imperial), (Texts{"1", "2730'7\"", "2730'7\"", "T5", "", "1 2",
                                                      "hall and  stairs", "828,453.93"}));
}

/// Two sizes as they are typed, and nothing else.
RoomDraft SizesOnly(const SizeParts& width, const SizeParts& length) {
    RoomDraft draft;
    draft.Width = width;
    draft.Length = length;
    return draft;
}

struct AsTyped : ::testing::Test {
    AsTyped() {
        project.Rooms = {{120, 144, 0, 0, "1", ""}, {130, 150, 12, 250, "2", "odd codes"}};
    }
    std::optional<Room> At(std::size_t room, const RoomDraft& draft) const {
        return RoomAsTyped(project, Units::Imperial, room, draft);
    }
    Project project;
};

TEST_F(AsTyped, IsTheRoomThatWouldBeStored) {
    const RoomDraft draft{{"12", "6"}, {"14", ""}, Byte{9}, "W2L1", "12b", "bay"};
    EXPECT_EQ(At(2, draft), (Room{150, 168, 9, 5, "12b", "bay"}));
    EXPECT_EQ(At(0, draft), (Room{150, 168, 9, 5, "12b", "bay"}));
    EXPECT_EQ(project.Rooms.size(), 2U);
}

TEST_F(AsTyped, KeepsTheCodesThatTheFieldsCannotShow) {
    RoomDraft draft = DraftOf(project.Rooms[1], Units::Imperial);
    EXPECT_EQ(At(1, draft), project.Rooms[1]);
    draft.Length.Minor = "";
    EXPECT_EQ(At(1, draft), (Room{130, 144, 12, 250, "2", "odd codes"}));
}

TEST_F(AsTyped, IsNoneWhereNothingWouldBeStored) {
    EXPECT_EQ(At(2, {}), std::nullopt);
    EXPECT_EQ(At(2, SizesOnly({"12", ""}, {})), std::nullopt);
    EXPECT_EQ(At(0, SizesOnly({"12'6", ""}, {"1", ""})), std::nullopt);
    EXPECT_EQ(At(0, SizesOnly({"2731", ""}, {"1", ""})), std::nullopt) << "too long";
    EXPECT_EQ(At(0, SizesOnly({"1e400", ""}, {"1", ""})), std::nullopt);
    EXPECT_EQ(At(3, SizesOnly({"12", ""}, {"1", ""})), std::nullopt) << "there is no such room";
    EXPECT_EQ(At(0, {}), (Room{0, 0, 0, 0, "", ""})) << "a room of the project is always stored";
    project.Scale = 0;
    EXPECT_EQ(At(0, SizesOnly({"12", ""}, {"1", ""})), std::nullopt);
}

TEST_F(AsTyped, IsNoneInAFullProject) {
    project.Rooms.resize(RoomCapacity);
    const RoomDraft draft = SizesOnly({"12", ""}, {"1", ""});
    EXPECT_EQ(At(RoomCapacity, draft), std::nullopt);
    EXPECT_NE(At(RoomCapacity - 1, draft), std::nullopt);
}

TEST_F(AsTyped, AgreesWithStoring) {
    std::mt19937 random(20260314);
    static constexpr std::array Sizes{"", "0", "3", "12", "12.5", "-1", "1,5", "9999", "1e309"};
    const auto any = [&random] {
        return std::string(
            Sizes.at(static_cast<std::size_t>(Below(random, static_cast<int>(Sizes.size())))));
    };
    int stored = 0;
    for (int i = 0; i < 3000; ++i) {
        const RoomDraft draft{{any(), any()}, {any(), any()}, std::nullopt, "W1", any(), any()};
        const auto room = static_cast<std::size_t>(Below(random, 3));
        Project after = project;
        std::optional<Room> expected;
        try {
            if (StoreRoom(after, Units::Metric, room, draft).IsStored()) {
                expected = after.Rooms.at(room);
                ++stored;
            }
        } catch (const std::exception&) {
            expected.reset();
        }
        EXPECT_EQ(RoomAsTyped(project, Units::Metric, room, draft), expected);
    }
    EXPECT_GT(stored, 300);
}

TEST(RoomListTotals, AreByCovering) {
    const std::vector<Room> rooms{{120, 144, 3, 0, "", ""},
                                  {120, 120, 0, 0, "", ""},
                                  {100, 144, 3, 0, "", ""},
                                  {36, 36, 10, 0, "", ""},
                                  {0, 144, 200, 0, "", ""}};
    const std::vector<CoveringTotal> totals{
        {0, 1, 14400}, {3, 2, 31680}, {10, 1, 1296}, {200, 1, 0}};
    EXPECT_EQ(TotalsByCovering(rooms, 99, std::nullopt), totals);
    EXPECT_EQ(TotalsByCovering({}, 0, std::nullopt), std::vector<CoveringTotal>());
    EXPECT_EQ(TotalLines(totals, Units::Imperial), (Lines{{"CARPET-1", "1", "11.11", "100.00"},
                                                          {"CARPET-4", "2", "24.44", "220.00"},
                                                          {"TILE-3", "1", "1.00", "9.00"},
                                                          {"TILE-193", "1", "0.00", "0.00"},
                                                          {"ALL", "5", "36.56", "329.00"}}));
    EXPECT_EQ(TotalLines({totals[1]}, Units::Metric), (Lines{{"CARPET-4", "2", "3.17"}}));
    EXPECT_EQ(TotalCaptions(Units::Imperial), (Texts{"COVERING", "ROOMS", "SQ. YD.", "SQ. FT."}));
    EXPECT_EQ(TotalCaptions(Units::Metric), (Texts{"COVERING", "ROOMS", "SQ. M"}));
}

TEST(RoomListTotals, CountTheRoomThatIsTyped) {
    const std::vector<Room> rooms{{120, 144, 3, 0, "", ""}, {120, 120, 0, 0, "", ""}};
    const Room typed{10, 10, 8, 0, "", ""};
    EXPECT_EQ(TotalsByCovering(rooms, 2, typed),
              (std::vector<CoveringTotal>{{0, 1, 14400}, {3, 1, 17280}, {8, 1, 100}}));
    EXPECT_EQ(TotalsByCovering(rooms, 0, typed),
              (std::vector<CoveringTotal>{{0, 1, 14400}, {8, 1, 100}}));
    EXPECT_EQ(TotalsByCovering(rooms, 0, std::nullopt),
              (std::vector<CoveringTotal>{{0, 1, 14400}, {3, 1, 17280}}));
}

TEST(RoomListTotals, HoldTheLargestProject) {
    const std::vector<Room> rooms(RoomCapacity, Room{32767, 32767, 1, 0, "", ""});
    EXPECT_EQ(TotalLines(TotalsByCovering(rooms, 0, std::nullopt), Units::Imperial),
              (Lines{{"CARPET-2", "501", "415,055,417.28", "3,735,498,755.48"}}));
}

TEST(NewRoomText, SaysWhetherItIsHalfTyped) {
    EXPECT_EQ(NewRoomText(false), "New room");
    EXPECT_EQ(NewRoomText(true), "New room, half typed");
}

TEST(ShortRoomNames, AreTheNumberOrTheRemarkOrThePlace) {
    Project project;
    project.Rooms = {{1, 2, 0, 0, "101", "Hall"}, {1, 2, 0, 0, "", "two\nlines\xFF"}, {}};
    EXPECT_EQ(ShortRoomName(project, 0), "101");
    EXPECT_EQ(ShortRoomName(project, 1), "two\uFFFDlines\uFFFD");
    EXPECT_EQ(ShortRoomName(project, 2), "room 3");
    EXPECT_EQ(ShortRoomName(project, 9), "room 10");
}

} // namespace
} // namespace tarn
