#include "rooms/RoomRecord.h"
#include "rooms/RoomTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

std::vector<RoomRecord> NumberedRooms(int count) {
    std::vector<RoomRecord> rooms;
    rooms.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        rooms.push_back({static_cast<Integer>(i + 1), static_cast<Integer>(2 * i + 1),
                         static_cast<Byte>(i % 12), static_cast<Byte>(i % 9), std::to_string(i),
                         "remark " + std::to_string(i)});
    }
    return rooms;
}

TEST(PutRoom, FillsItsSlotAloneAndRefusesTheSlotsOutside) {
    SharedState state;
    const RoomRecord room{150, 168, 1, 5, "101", "bay window"};
    PutRoom(state, 500, room);
    EXPECT_EQ(state.RoomWidth[500], 150);
    EXPECT_EQ(state.RoomRemark[500], "bay window");
    EXPECT_EQ(state.RoomWidth[499], 0);
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_THROW(PutRoom(state, 501, room), RunTimeError);
    EXPECT_THROW(PutRoom(state, -1, room), RunTimeError);
}

TEST(PutRooms, FillsTheArraysAndTheCount) {
    SharedState state;
    PutRooms(state, {{120, 144, 9, 5, "12", "hall"}, {1, 2, 3, 4, "x", "y"}});
    EXPECT_EQ(state.ObjNum, 2);
    EXPECT_EQ(state.RoomWidth[0], 120);
    EXPECT_EQ(state.RoomLength[0], 144);
    EXPECT_EQ(state.RoomCarpet[0], 9);
    EXPECT_EQ(state.RoomBase[0], 5);
    EXPECT_EQ(state.RoomNoStr[0], "12");
    EXPECT_EQ(state.RoomRemark[0], "hall");
    EXPECT_EQ(state.RoomWidth[1], 1);
    EXPECT_EQ(state.RoomRemark[1], "y");
}

TEST(PutRooms, AndTakeRoomsGiveTheSameRoomsUpToTheCapacity) {
    for (const int count : {0, 1, 500, 501}) {
        SharedState state;
        const auto rooms = NumberedRooms(count);
        PutRooms(state, rooms);
        EXPECT_EQ(state.ObjNum, count);
        EXPECT_EQ(TakeRooms(state), rooms);
    }
}

TEST(PutRooms, LeavesTheSlotsBehindTheLastRoomAlone) {
    SharedState state;
    PutRooms(state, NumberedRooms(3));
    PutRooms(state, {{7, 7, 0, 0, "", ""}});
    EXPECT_EQ(state.ObjNum, 1);
    EXPECT_EQ(state.RoomWidth[1], 2);
    EXPECT_EQ(state.RoomRemark[2], "remark 2");
}

TEST(PutRooms, RefusesThe502ndRoomAndChangesNothing) {
    SharedState state;
    PutRooms(state, {{120, 144, 9, 5, "12", "hall"}});
    try {
        PutRooms(state, NumberedRooms(502));
        FAIL() << "502 rooms were taken";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), SubscriptNumber);
        EXPECT_EQ(error.Advice(), "The project is full: it can hold 501 rooms.");
    }
    EXPECT_EQ(TakeRooms(state), (std::vector<RoomRecord>{{120, 144, 9, 5, "12", "hall"}}));
}

} // namespace
} // namespace tarn
