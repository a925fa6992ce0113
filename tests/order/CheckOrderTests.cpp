#include "order/OrderTesting.h"
#include "order/PlainOrderCheck.h"

#include <gmock/gmock.h>

#include <functional>
#include <utility>

namespace tarn {
namespace {

using ::testing::HasSubstr;
using testing::MakeOrderOf;
using testing::ProjectOf;
using testing::RequestFor;

/// An order with drops, a fill in parts and a narrow room, by a pattern.
struct Sample {
    Project Rooms = ProjectOf({{180, 188}, {100, 50}});
    Order Made;

    Sample() {
        OrderRequest request = RequestFor(144);
        request.MostParts = 4;
        request.Pattern = {18, 24, false};
        request.Rolls.push_back({162, "", "", 3});
        request.Rolls[0].Price = 2;
        Made = MakeOrderOf(Rooms, request);
    }
};

using Change = std::function<void(Order&)>;

std::string FaultAfter(const Change& change) {
    Sample sample;
    EXPECT_EQ(CheckOrder(sample.Rooms, sample.Made), "");
    change(sample.Made);
    return CheckOrder(sample.Rooms, sample.Made);
}

OrderPiece& PieceWhere(Order& order, const std::function<bool(const OrderPiece&)>& holds) {
    for (OrderPiece& piece : order.Candidates.at(0).Pieces) {
        if (holds(piece)) {
            return piece;
        }
    }
    throw std::logic_error("no such piece");
}

OrderPiece& Part(Order& order, Long number) {
    return PieceWhere(order,
                      [&](const auto& piece) { return piece.Parts > 1 && piece.Part == number; });
}

OrderPiece& NarrowRoom(Order& order) {
    return PieceWhere(order, [](const auto& piece) { return piece.Room == 2; });
}

TEST(CheckOrder, FindsWhatIsWrongWithAPiece) {
    const std::vector<std::pair<std::string, Change>> faults{
        {"is not as wide as its strip", [](Order& order) { ++Part(order, 1).Width; }},
        {"is not on the roll", [](Order& order) { NarrowRoom(order).X = 45; }},
        {"does not begin where its strip does", [](Order& order) { ++Part(order, 1).RoomX; }},
        {"belongs to no room", [](Order& order) { NarrowRoom(order).Room = 3; }},
        {"belongs to no room", [](Order& order) { NarrowRoom(order).Strip = 1; }},
        {"does not know its strips", [](Order& order) { NarrowRoom(order).Strips = 2; }},
        {"has no length", [](Order& order) { NarrowRoom(order).Length = 0; }},
        {"the labels are not in a row", [](Order& order) { NarrowRoom(order).Label = "Z"; }},
        {"is not laid whole", [](Order& order) { --NarrowRoom(order).Length; }},
        {"parts that do not follow each other", [](Order& order) { ++Part(order, 2).RoomY; }},
        {"does not have its parts numbered", [](Order& order) { ++Part(order, 1).Parts; }},
        {"do not match along", [](Order& order) { order.Request.Pattern.Along = 23; }},
        {"do not match across", [](Order& order) { order.Request.Pattern.Across = 25; }},
    };
    for (const auto& [fault, change] : faults) {
        EXPECT_THAT(FaultAfter(change), HasSubstr(fault));
    }
}

TEST(CheckOrder, FindsPiecesThatOverlap) {
    EXPECT_THAT(FaultAfter([](Order& order) {
                    OrderPiece& piece = NarrowRoom(order);
                    --piece.Y;
                }),
                ::testing::AnyOf(HasSubstr("overlap"), HasSubstr("cutting order"),
                                 HasSubstr("not on the roll"), HasSubstr("not the end")));
    Order order;
    order.Request = RequestFor(144);
    order.Candidates.push_back({0, 144, 144, Lay::Down, "", OrderFigures{}, {}});
    order.Candidates[0].Pieces = {{"A", 1, 0, 1, 1, 1, 0, 0, 50, 60, 0, 0},
                                  {"B", 2, 0, 1, 1, 1, 49, 59, 50, 60, 0, 0}};
    const Project rooms = ProjectOf({{50, 60}, {50, 60}});
    EXPECT_THAT(CheckOrder(rooms, order), HasSubstr("pieces A and B overlap"));
    order.Candidates[0].Pieces[1].X = 50;
    EXPECT_THAT(CheckOrder(rooms, order), HasSubstr("length needed")) << "beside each other";
    order.Candidates[0].Pieces[1].X = 0;
    order.Candidates[0].Pieces[1].Y = 60;
    EXPECT_THAT(CheckOrder(rooms, order), HasSubstr("length needed")) << "behind each other";
    std::swap(order.Candidates[0].Pieces[0].Y, order.Candidates[0].Pieces[1].Y);
    EXPECT_THAT(CheckOrder(rooms, order), HasSubstr("not in cutting order"));
    order.Candidates[0].Pieces.pop_back();
    EXPECT_THAT(CheckOrder(rooms, order), HasSubstr("not every strip is laid"));
}

TEST(CheckOrder, FindsPartsThatAreNotAllowed) {
    EXPECT_THAT(FaultAfter([](Order& order) { order.Request.MostParts = 3; }),
                HasSubstr("too many parts"));
    EXPECT_THAT(FaultAfter([](Order& order) { order.Request.ShortestPart = 60; }),
                HasSubstr("a part that is too short"));
    OrderRequest request = RequestFor(144);
    request.MostParts = 4;
    request.JoinRooms = true;
    const Project hall = ProjectOf({{28, 109}, {65, 239}});
    Order order = MakeOrderOf(hall, request, 20000);
    EXPECT_EQ(CheckOrder(hall, order), "");
    order.Request.JoinRooms = false;
    EXPECT_THAT(CheckOrder(hall, order), HasSubstr("too many parts"));
}

TEST(CheckOrder, FindsWrongFigures) {
    using Wrong = std::function<void(OrderFigures&)>;
    const std::vector<std::pair<std::string, Wrong>> faults{
        {"length needed", [](OrderFigures& figures) { ++figures.LengthNeeded; }},
        {"least length", [](OrderFigures& figures) { figures.LeastLength += 1000; }},
        {"to be ordered", [](OrderFigures& figures) { figures.Length += 3; }},
        {"to be ordered", [](OrderFigures& figures) { figures.Length -= 3; }},
        {"area bought", [](OrderFigures& figures) { ++figures.AreaBought; }},
        {"area of the rooms", [](OrderFigures& figures) { ++figures.AreaRooms; }},
        {"area of the rooms", [](OrderFigures& figures) { ++figures.AreaRoomsTrimmed; }},
        {"seams or joins", [](OrderFigures& figures) { ++figures.SideSeams.Count; }},
        {"seams or joins", [](OrderFigures& figures) { --figures.CrossJoins.Length; }},
        {"waste", [](OrderFigures& figures) { figures.WastePercent += 0.01; }},
        {"price is wrong", [](OrderFigures& figures) { *figures.Price += 0.02; }},
        {"price is missing", [](OrderFigures& figures) { figures.Price.reset(); }},
    };
    for (const auto& [fault, wrong] : faults) {
        EXPECT_THAT(
            FaultAfter([&wrong = wrong](Order& order) { wrong(*order.Candidates[0].Figures); }),
            HasSubstr(fault));
    }
}

TEST(CheckOrder, FindsWrongRows) {
    const std::vector<std::pair<std::string, Change>> faults{
        {"a row for each roll", [](Order& order) { order.Candidates.pop_back(); }},
        {"not in their order", [](Order& order) { order.Candidates[0].Direction = Lay::Cross; }},
        {"not in their order",
         [](Order& order) { std::swap(order.Candidates[0], order.Candidates[1]); }},
        {"its whole units", [](Order& order) { ++order.Candidates[0].RollWidth; }},
        {"its whole units", [](Order& order) { --order.Candidates[0].RollWidth; }},
        {"what the selvage leaves", [](Order& order) { --order.Candidates[0].UsableWidth; }},
        {"pieces without figures", [](Order& order) { order.Candidates[0].Figures.reset(); }},
        {"refused row has figures", [](Order& order) { order.Candidates[0].Refused = "no"; }},
        {"not the best", [](Order& order) { order.Best = 1 - *order.Best; }},
        {"not the best", [](Order& order) { order.Best.reset(); }},
    };
    for (const auto& [fault, change] : faults) {
        EXPECT_THAT(FaultAfter(change), HasSubstr(fault));
    }
}

} // namespace
} // namespace tarn
