// Jobs whose least length is known: found by hand, by proof or by trying everything.

#include "order/OrderTesting.h"

#include <functional>
#include <ostream>

namespace tarn {
namespace {

using testing::MakeOrderOf;
using testing::ProjectOf;
using testing::RequestFor;
using testing::RoomSides;

struct KnownOrder {
    std::string Name;
    std::vector<RoomSides> Rooms;
    OrderRequest Request;
    Long Needed;
};

void PrintTo(const KnownOrder& known, std::ostream* out) {
    *out << known.Name;
}

OrderRequest With(const std::function<void(OrderRequest&)>& change) {
    OrderRequest request = RequestFor(144);
    change(request);
    return request;
}

OrderRequest Parts(Long most, PatternChoice pattern = {}) {
    return With([&](OrderRequest& request) {
        request.MostParts = most;
        request.Pattern = pattern;
    });
}

std::vector<RoomSides> Times(std::size_t count, RoomSides room) {
    return std::vector<RoomSides>(count, room);
}

const PatternChoice Straight{18, 24, false};
const PatternChoice HalfDrop{18, 24, true};
const PatternChoice AlongStraight{0, 24, false};
const PatternChoice AlongHalfDrop{0, 24, true};

std::vector<KnownOrder> KnownOrders() {
    const std::vector<RoomSides> two{{240, 136}, {240, 92}};
    const std::vector<RoomSides> three{{240, 136}, {240, 92}, {240, 114}};
    const std::vector<RoomSides> hall{{28, 109}, {65, 239}};
    const OrderRequest plain = RequestFor(144);
    const OrderRequest joined = With([](OrderRequest& request) {
        request.MostParts = 4;
        request.JoinRooms = true;
    });
    const OrderRequest trimmed = With([](OrderRequest& request) {
        request.TrimAlong = 3;
        request.TrimAcross = 3;
    });
    return {{"ThreeNarrowRooms", Times(3, {36, 60}), plain, 60},
            {"TwelveNarrowRooms", Times(12, {36, 18}), plain, 54},
            {"ThreeFillsBesideEachOther", Times(3, {192, 240}), plain, 960},
            {"FillInThreeParts", {{180, 252}}, Parts(3), 336},
            {"FillInFourParts", {{180, 192}}, Parts(4), 240},
            {"FourPartsStraight", {{180, 188}}, Parts(4, Straight), 236},
            {"FourPartsHalfDrop", {{180, 188}}, Parts(4, HalfDrop), 236},
            {"FourPartsHalfDropAlong", {{180, 188}}, Parts(4, AlongHalfDrop), 248},
            {"TwoRoomsStraight", two, Parts(1, Straight), 468},
            {"TwoRoomsHalfDrop", two, Parts(1, HalfDrop), 456},
            {"TwoRoomsStraightAlong", two, Parts(1, AlongStraight), 468},
            {"TwoRoomsHalfDropAlong", two, Parts(1, AlongHalfDrop), 456},
            {"ThreeRoomsStraight", three, Parts(1, Straight), 702},
            {"ThreeRoomsHalfDrop", three, Parts(1, HalfDrop), 690},
            {"ThreeRoomsStraightAlong", three, Parts(1, AlongStraight), 702},
            {"ThreeRoomsHalfDropAlong", three, Parts(1, AlongHalfDrop), 690},
            {"RoomsUndivided", hall, Parts(4), 239},
            {"RoomsJoined", hall, joined, 147},
            {"RoomAsWideAsTheRoll", {{144, 100}}, plain, 100},
            {"RoomAnInchWider", {{145, 100}}, plain, 200},
            {"RoomAnInchWiderInParts", {{145, 100}}, Parts(4), 150},
            {"RoomTwiceAsWide", {{288, 100}}, plain, 200},
            {"FillAsWideAsTheRollWithItsTrim", {{285, 100}}, trimmed, 206},
            {"FillMovedToItsPlace", {{180, 20}}, Parts(1, {18, 36, false}), 56}};
}

class Known : public ::testing::TestWithParam<KnownOrder> {};
INSTANTIATE_TEST_SUITE_P(Orders, Known, ::testing::ValuesIn(KnownOrders()),
                         [](const auto& test) { return test.param.Name; });

TEST_P(Known, IsFoundAndProven) {
    const KnownOrder& known = GetParam();
    const Project project = ProjectOf(known.Rooms);
    const Order order = MakeOrderOf(project, known.Request, 60000);
    EXPECT_EQ(CheckOrder(project, order), "");
    ASSERT_EQ(order.Candidates.size(), 1U);
    ASSERT_TRUE(order.Candidates[0].Figures) << order.Candidates[0].Refused.English;
    const OrderFigures& figures = *order.Candidates[0].Figures;
    EXPECT_EQ(figures.LengthNeeded, known.Needed);
    EXPECT_EQ(figures.LeastLength, known.Needed) << "and is known to be the least";
}

} // namespace
} // namespace tarn
