#include "order/OrderStrips.h"
#include "order/OrderTesting.h"

namespace tarn {
namespace {

using testing::ProjectOf;
using testing::RequestFor;

OrderRequest Trimmed(Long along, Long across) {
    OrderRequest request = RequestFor(144);
    request.TrimAlong = along;
    request.TrimAcross = across;
    return request;
}

std::vector<OrderStrip> Cut(testing::RoomSides room, const OrderRequest& request,
                            Lay lay = Lay::Down) {
    const OrderStrips strips = StripsOf(ProjectOf({room}), 0, request, 144, lay);
    EXPECT_EQ(strips.Refused, "");
    return strips.Strips;
}

TEST(OrderStrips, ARoomNoWiderThanTheRollIsOneStripWithItsTrim) {
    const std::vector<OrderStrip> strips = Cut({100, 200}, Trimmed(3, 2));
    ASSERT_EQ(strips.size(), 1U);
    EXPECT_EQ(strips[0].Width, 102);
    EXPECT_EQ(strips[0].NetWidth, 100);
    EXPECT_EQ(strips[0].Length, 203);
    EXPECT_EQ(strips[0].NetLength, 200);
    EXPECT_EQ(strips[0].Count, 1);
    EXPECT_FALSE(strips[0].MayDivide);
}

TEST(OrderStrips, TrimAcrossGoesNoFurtherThanTheRoll) {
    EXPECT_EQ(Cut({143, 200}, Trimmed(0, 3))[0].Width, 144);
    EXPECT_EQ(Cut({144, 200}, Trimmed(0, 3))[0].Width, 144);
    const std::vector<OrderStrip> strips = Cut({285, 100}, Trimmed(3, 3));
    ASSERT_EQ(strips.size(), 2U);
    EXPECT_EQ(strips[1].Width, 144);
    EXPECT_EQ(strips[1].NetWidth, 141);
}

TEST(OrderStrips, AWiderRoomIsDropsAndAFill) {
    const std::vector<OrderStrip> strips = Cut({300, 200}, Trimmed(3, 2));
    ASSERT_EQ(strips.size(), 3U);
    for (const Long number : {0, 1, 2}) {
        const OrderStrip& strip = strips[static_cast<std::size_t>(number)];
        EXPECT_EQ(strip.Number, number);
        EXPECT_EQ(strip.Count, 3);
        EXPECT_EQ(strip.Begin, number * 144);
        EXPECT_EQ(strip.Width, number < 2 ? 144 : 14);
        EXPECT_EQ(strip.Length, 203);
        EXPECT_EQ(strip.MayDivide, number == 2);
    }
    EXPECT_EQ(Cut({288, 200}, Trimmed(0, 2)).size(), 2U) << "no fill";
}

TEST(OrderStrips, CrossLayTurnsTheRooms) {
    const std::vector<OrderStrip> strips = Cut({300, 100}, Trimmed(0, 0), Lay::Cross);
    ASSERT_EQ(strips.size(), 1U);
    EXPECT_EQ(strips[0].Width, 100);
    EXPECT_EQ(strips[0].Length, 300);
}

TEST(OrderStrips, NarrowRoomsAreDividedOnlyWhenTheyMayBe) {
    OrderRequest request = Trimmed(0, 3);
    request.JoinRooms = true;
    EXPECT_TRUE(Cut({140, 200}, request)[0].MayDivide);
    EXPECT_FALSE(Cut({141, 200}, request)[0].MayDivide) << "with its trim as wide as the roll";
    EXPECT_FALSE(Cut({200, 200}, request)[0].MayDivide) << "a drop";
}

TEST(OrderStrips, LeavesOutOtherCoveringsAndRoomsWithoutAnArea) {
    Project project = ProjectOf({{100, 10}, {0, 10}, {10, 0}, {-5, 10}, {100, 20}, {100, 30}});
    project.Rooms[0].Covering = 8;
    const OrderStrips strips = StripsOf(project, 0, RequestFor(144), 144, Lay::Down);
    ASSERT_EQ(strips.Strips.size(), 2U);
    EXPECT_EQ(strips.Strips[0].Room, 4);
    EXPECT_EQ(strips.Strips[1].Room, 5);
}

TEST(UsableWidth, IsWhatTheSelvageLeavesOfWholeUnits) {
    OrderRequest request = RequestFor(144);
    request.Selvage = 2;
    EXPECT_EQ(UsableWidth({144.9, "", "", std::nullopt}, request), 140);
    EXPECT_EQ(UsableWidth({3, "", "", std::nullopt}, request), -1);
}

} // namespace
} // namespace tarn
