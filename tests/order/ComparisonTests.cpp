#include "order/Comparison.h"
#include "order/OrderTesting.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using ::testing::ElementsAre;
using testing::MakeOrderOf;
using testing::ProjectOf;
using testing::RequestFor;

TEST(LengthToOrder, IsRaisedByTheDriftAndThenToWholeSteps) {
    OrderRequest request = RequestFor(144);
    EXPECT_EQ(LengthToOrder(300, request), 300);
    EXPECT_EQ(LengthToOrder(301, request), 303);
    request.PatternDrift = 1;
    EXPECT_EQ(LengthToOrder(300, request), 303) << "exactly one percent more";
    EXPECT_EQ(LengthToOrder(301, request), 306) << "304.01";
    request.Step = 1;
    EXPECT_EQ(LengthToOrder(301, request), 305);
    request.PatternDrift = 0.1;
    EXPECT_EQ(LengthToOrder(1000, request), 1001);
    EXPECT_EQ(LengthToOrder(999, request), 1000);
    request.PatternDrift = 1e-9;
    EXPECT_EQ(LengthToOrder(1000, request), 1001) << "more than 1000, if not by much";
    request.PatternDrift = 10;
    EXPECT_EQ(LengthToOrder(300000000, request), 330000000);
}

TEST(LengthToOrder, IsNeverRoundedDown) {
    for (Long tenths = 0; tenths <= 100; ++tenths) {
        for (Long needed = 1; needed < 400; needed += 7) {
            OrderRequest request = RequestFor(144);
            request.PatternDrift = tenths / 10.0;
            request.Step = 1;
            const std::int64_t exact = std::int64_t{needed} * (1000 + tenths);
            EXPECT_EQ(LengthToOrder(needed, request), (exact + 999) / 1000) << needed << tenths;
        }
    }
}

//       0      144
//     0 +-------+
//       | drop  |   a room of 180 x 180 with 3 of trim along, its fill in two parts
//   183 +--+--+-+
//       |  |  |
//   275 +--+--+
TEST(Figures, OfARoomInParts) {
    OrderRequest request = RequestFor(144);
    request.TrimAlong = 3;
    request.TrimAcross = 2;
    request.MostParts = 2;
    request.Rolls[0].Price = 9.99;
    const Order order = MakeOrderOf(ProjectOf({{180, 180}}), request, 20000);
    const OrderFigures& figures = order.Candidates.at(0).Figures.value();
    EXPECT_EQ(figures.LengthNeeded, 183 + 92);
    EXPECT_EQ(figures.LeastLength, 275);
    EXPECT_EQ(figures.Length, 276);
    EXPECT_EQ(figures.AreaBought, 276 * 144);
    EXPECT_EQ(figures.AreaRooms, 180 * 180);
    EXPECT_EQ(figures.AreaRoomsTrimmed, 183 * (144 + 38));
    EXPECT_DOUBLE_EQ(figures.WastePercent, 100.0 * (276 * 144 - 180 * 180) / (276 * 144));
    EXPECT_EQ(figures.SideSeams, (SeamTotal{1, 180}));
    EXPECT_EQ(figures.CrossJoins, (SeamTotal{1, 36}));
    EXPECT_EQ(figures.Price, 306.36) << "9.99 times 30 2/3";
    EXPECT_TRUE(figures.Notes.empty());
}

TEST(Figures, BuyTheRollWithItsSelvage) {
    OrderRequest request = RequestFor(144);
    request.Selvage = 1;
    const Order order = MakeOrderOf(ProjectOf({{142, 30}}), request);
    EXPECT_EQ(order.Candidates[0].UsableWidth, 142);
    EXPECT_EQ(order.Candidates[0].Figures->AreaBought, 144 * 30);
}

TEST(Figures, PriceIsByTheSquareMetreWithMetric) {
    OrderRequest request = RequestFor(400, Units::Metric);
    request.Rolls[0].Price = 10;
    const Order order = MakeOrderOf(ProjectOf({{400, 250}}), request);
    EXPECT_EQ(order.Candidates[0].Figures->Price, 100);
}

std::vector<std::string> NotesFor(const Project& project, const OrderRequest& request) {
    const Order order = MakeOrderOf(project, request);
    std::vector<std::string> notes;
    for (const Saying& note : order.Candidates.at(0).Figures.value().Notes) {
        notes.push_back(note.English);
    }
    return notes;
}

TEST(Notes, SayWhatAnInstallerHasToKnow) {
    OrderRequest request = RequestFor(144);
    EXPECT_THAT(NotesFor(ProjectOf({{100, 100}}), request),
                ElementsAre("Nothing is allowed for trimming."));
    EXPECT_THAT(
        NotesFor(ProjectOf({{149, 100}}), request),
        ElementsAre("A fill narrower than 0'6\": room 1.", "Nothing is allowed for trimming."))
        << "what holds of this row first";
    request.TrimAcross = 3;
    EXPECT_THAT(
        NotesFor(ProjectOf({{141, 10}, {142, 10}, {150, 10}, {149, 10}, {286, 10}}), request),
        ElementsAre("Less trim than asked for: room 2, room 5.",
                    "A fill narrower than 0'6\": room 4."));
    EXPECT_THAT(NotesFor(ProjectOf({{288, 10}}), request),
                ElementsAre("Less trim than asked for: room 1."));
}

TEST(Notes, NameAMetricRollThatIsShortOfAStandardOne) {
    OrderRequest request = RequestFor(365.76, Units::Metric);
    request.TrimAlong = 5;
    request.Rolls[0].AsTyped = "12ft";
    const Project project = ProjectOf({{100, 100}});
    EXPECT_THAT(NotesFor(project, request),
                ElementsAre("The roll of 12ft counts as 365 cm, a centimetre short of the standard "
                            "one."));
    request.Rolls[0].AsTyped = "365cm";
    EXPECT_TRUE(NotesFor(project, request).empty());
    request.Rolls[0] = {411.48, "", "13.5ft", std::nullopt};
    EXPECT_TRUE(NotesFor(project, request).empty()) << "it is the standard one";
    EXPECT_THAT(NotesFor(ProjectOf({{420, 100}}), request),
                ElementsAre("A fill narrower than 15 cm: room 1."));
}

OrderCandidate Row(std::int64_t area, std::optional<Double> price, std::int64_t seams,
                   std::int64_t joins) {
    OrderCandidate row;
    row.Figures.emplace();
    row.Figures->AreaBought = area;
    row.Figures->Price = price;
    row.Figures->SideSeams.Length = seams;
    row.Figures->CrossJoins.Length = joins;
    return row;
}

TEST(BestRow, HasTheLeastPriceWhereEachHasOne) {
    EXPECT_EQ(BestOf({Row(10, 5, 0, 0), Row(20, 4, 9, 9), Row(5, 6, 0, 0)}), 1U);
    EXPECT_EQ(BestOf({Row(10, 5, 0, 0), Row(20, 4, 9, 9), Row(5, std::nullopt, 0, 0)}), 2U);
    OrderCandidate refused;
    refused.Refused = "it cannot be";
    EXPECT_EQ(BestOf({refused, Row(10, 5, 0, 0), Row(20, 4, 9, 9)}), 2U)
        << "a refused row needs no price";
}

TEST(BestRow, HasTheShortestSeamsOfEqualOnesAndComesFirst) {
    EXPECT_EQ(BestOf({Row(10, 5, 3, 3), Row(10, 5, 5, 0), Row(10, 5, 0, 5)}), 1U);
    EXPECT_EQ(BestOf({Row(10, {}, 3, 3), Row(10, {}, 3, 3)}), 0U);
    EXPECT_EQ(BestOf({Row(10, {}, 3, 3), Row(10, {}, 3, 2)}), 1U);
}

TEST(BestRow, IsNoneWhereAllAreRefused) {
    EXPECT_EQ(BestOf({}), std::nullopt);
    EXPECT_EQ(BestOf({OrderCandidate{}, OrderCandidate{}}), std::nullopt);
}

TEST(PieceLabel, GoesOnWithTwoAndThreeLetters) {
    EXPECT_EQ(PieceLabel(0), "A");
    EXPECT_EQ(PieceLabel(25), "Z");
    EXPECT_EQ(PieceLabel(26), "AA");
    EXPECT_EQ(PieceLabel(27), "AB");
    EXPECT_EQ(PieceLabel(26 + 26 * 26 - 1), "ZZ");
    EXPECT_EQ(PieceLabel(26 + 26 * 26), "AAA");
}

TEST(OrderArea, IsInSquareFeetOrSquareMetres) {
    EXPECT_DOUBLE_EQ(OrderArea(288, Units::Imperial), 2);
    EXPECT_DOUBLE_EQ(OrderArea(25000, Units::Metric), 2.5);
}

} // namespace
} // namespace tarn
