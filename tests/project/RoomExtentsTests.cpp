#include "base/ErrorNumber.h"
#include "project/RoomExtents.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace tarn {
namespace {

constexpr Double UsualScale = 0.01;

Room RoomOf(Integer width, Integer length) {
    Room room;
    room.Width = width;
    room.Length = length;
    return room;
}

TEST(ExtentOf, TurnsInchesIntoHundredths) {
    EXPECT_EQ(ExtentOf(RoomOf(120, 144), Units::Imperial, UsualScale),
              (RoomExtent{12000.0F, 14400.0F}));
}

TEST(ExtentOf, TurnsCentimetresIntoHundredthsOfAnInch) {
    EXPECT_EQ(ExtentOf(RoomOf(254, 508), Units::Metric, UsualScale),
              (RoomExtent{10000.0F, 20000.0F}));
}

TEST(ExtentOf, IsRoundedOnceToSingleForEverySize) {
    for (int size = 0; size <= std::numeric_limits<Integer>::max(); ++size) {
        const auto inches = static_cast<Single>(size / 0.01);
        const auto centimetres = static_cast<Single>(size / 0.01 / 2.54);
        const Room room = RoomOf(static_cast<Integer>(size), static_cast<Integer>(size));
        ASSERT_EQ(ExtentOf(room, Units::Imperial, UsualScale), (RoomExtent{inches, inches}));
        ASSERT_EQ(ExtentOf(room, Units::Metric, UsualScale),
                  (RoomExtent{centimetres, centimetres}));
    }
}

TEST(ExtentOf, FollowsTheUnitsInForce) {
    const Room room = RoomOf(366, 500);
    EXPECT_EQ(ExtentOf(room, Units::Imperial, UsualScale).X, 36600.0F);
    EXPECT_EQ(ExtentOf(room, Units::Metric, UsualScale), (RoomExtent{14409.449F, 19685.04F}));
}

TEST(ExtentOf, FollowsTheScaleOfTheProject) {
    EXPECT_EQ(ExtentOf(RoomOf(10, 20), Units::Imperial, 0.5), (RoomExtent{20.0F, 40.0F}));
}

TEST(ExtentOf, NamesAScaleThatGivesNoExtent) {
    EXPECT_EQ(ErrorNumber([] { ExtentOf(RoomOf(10, 20), Units::Imperial, 0); }),
              DivisionByZeroNumber);
    EXPECT_EQ(ErrorNumber([] { ExtentOf(RoomOf(10, 20), Units::Imperial, 1e-300); }),
              OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { ExtentOf(RoomOf(0, 20), Units::Metric, 1e-300); }), OverflowNumber);
}

Project ProjectOf(std::size_t rooms) {
    Project project;
    project.Rooms = std::vector<Room>(rooms, RoomOf(10, 20));
    return project;
}

TEST(RequireExtents, AcceptsEveryProjectThatHoldsNoMoreThanItCan) {
    for (const std::size_t rooms : {0, 1, 500, 501}) {
        EXPECT_EQ(ErrorNumber([&] { RequireExtents(ProjectOf(rooms), Units::Metric); }), 0)
            << rooms;
    }
}

TEST(RequireExtents, IsOutOfRangeBeyondTheLastRoom) {
    EXPECT_EQ(ErrorNumber([] { RequireExtents(ProjectOf(502), Units::Imperial); }),
              SubscriptNumber);
}

TEST(RequireExtents, RaisesForAnyRoomWithoutAnExtent) {
    Project project = ProjectOf(3);
    project.Scale = 0;
    EXPECT_EQ(ErrorNumber([&] { RequireExtents(project, Units::Imperial); }), DivisionByZeroNumber);
    project.Rooms = std::vector<Room>(3);
    project.Rooms[2].Length = 1;
    project.Scale = 1e-300;
    EXPECT_EQ(ErrorNumber([&] { RequireExtents(project, Units::Imperial); }), OverflowNumber);
    project.Rooms.pop_back();
    EXPECT_EQ(ErrorNumber([&] { RequireExtents(project, Units::Imperial); }), 0);
}

} // namespace
} // namespace tarn
