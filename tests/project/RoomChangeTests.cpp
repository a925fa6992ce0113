#include "project/RoomChange.h"
#include "project/RoomTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using Rooms = std::vector<Room>;

/// A room that differs from those of other numbers.
Room Numbered(int number) {
    return {static_cast<Integer>(100 + number), 200, 3, 250, std::to_string(number), "remark"};
}

Rooms Numbered(std::initializer_list<int> numbers) {
    Rooms rooms;
    for (const int number : numbers) {
        rooms.push_back(Numbered(number));
    }
    return rooms;
}

/// What a change from one to the other is, after making it and taking it back.
RoomChange Between(const Rooms& before, const Rooms& after, std::size_t about = AnyRoom) {
    RoomChange change = ChangeBetween(before, after, about);
    Rooms rooms = before;
    MakeChange(rooms, change);
    EXPECT_EQ(rooms, after);
    TakeBackChange(rooms, change);
    EXPECT_EQ(rooms, before);
    return change;
}

TEST(RoomChange, IsNoneBetweenTheSameRooms) {
    EXPECT_TRUE(Between({}, {}).IsNone());
    EXPECT_TRUE(Between(Numbered({1, 2}), Numbered({1, 2})).IsNone());
    EXPECT_TRUE(Between(Numbered({1, 1}), Numbered({1, 1}), 0).IsNone());
}

TEST(RoomChange, HoldsNoMoreThanWhatDiffers) {
    EXPECT_EQ(Between(Numbered({1, 2, 3}), Numbered({1, 9, 3})),
              (RoomChange{1, Numbered({2}), Numbered({9})}));
    EXPECT_EQ(Between(Numbered({1, 2}), Numbered({1, 2, 3})), (RoomChange{2, {}, Numbered({3})}));
    EXPECT_EQ(Between(Numbered({1, 2, 3}), Numbered({1, 3})), (RoomChange{1, Numbered({2}), {}}));
    EXPECT_EQ(Between(Numbered({1, 2, 3, 4}), Numbered({1, 8, 9, 7, 4})),
              (RoomChange{1, Numbered({2, 3}), Numbered({8, 9, 7})}));
    EXPECT_EQ(Between({}, Numbered({1, 2})), (RoomChange{0, {}, Numbered({1, 2})}));
}

TEST(RoomChange, IsOfTheRoomThatItIsAboutWhereRoomsAreAlike) {
    const Rooms three = Numbered({5, 5, 5});
    const Rooms two = Numbered({5, 5});
    for (std::size_t about = 0; about < 3; ++about) {
        EXPECT_EQ(Between(three, two, about), (RoomChange{about, Numbered({5}), {}}));
    }
    EXPECT_EQ(Between(two, three, 2), (RoomChange{2, {}, Numbered({5})}));
}

TEST(RoomChange, HasAName) {
    const Rooms rooms = Numbered({1, 2, 3});
    EXPECT_EQ(NameOf(Between(rooms, Numbered({1, 2, 3, 4}))), "new room 4");
    EXPECT_EQ(NameOf(Between(rooms, Numbered({1, 2, 4}))), "change room 3");
    EXPECT_EQ(NameOf(Between(rooms, Numbered({2, 3}))), "delete room 1");
    EXPECT_EQ(NameOf(Between(rooms, {})), "change rooms");
    EXPECT_EQ(NameOf(Between(rooms, Numbered({1, 7, 8, 3}))), "change rooms");
}

TEST(RoomChange, LeadsBetweenAnyRooms) {
    std::mt19937 random(20260314);
    const auto any = [&random] {
        Rooms rooms;
        for (int count = Below(random, 12); count > 0; --count) {
            rooms.push_back(Numbered(Below(random, 3))); // many are alike
        }
        return rooms;
    };
    for (int i = 0; i < 3000; ++i) {
        SCOPED_TRACE(i);
        const Rooms before = any();
        const Rooms after = any();
        const auto about = static_cast<std::size_t>(Below(random, 14));
        const RoomChange change = Between(before, after, about);
        EXPECT_LE(change.Place, about);
        EXPECT_EQ(change.IsNone(), before == after);
    }
}

} // namespace
} // namespace tarn
