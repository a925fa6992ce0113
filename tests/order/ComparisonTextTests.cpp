// The comparison of rolls and lays in words.

#include "order/Comparison.h"
#include "order/ComparisonText.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using ::testing::ElementsAre;

OrderFigures Figures(Long needed, Long least, std::int64_t area) {
    OrderFigures figures;
    figures.Length = needed + 3;
    figures.LengthNeeded = needed;
    figures.LeastLength = least;
    figures.AreaBought = area;
    figures.AreaRooms = 14400;
    figures.AreaRoomsTrimmed = 15120;
    figures.WastePercent = 12.345;
    figures.SideSeams = {2, 240};
    return figures;
}

/// A refused row, one that is best, and another one.
Order Example(Units units = Units::Imperial) {
    Order order;
    order.Request.In = units;
    order.Request.Rolls = {{144, "Shop", "12ft", 10.0}, {180, "", "15ft", std::nullopt}};
    order.Candidates = {{0, 144, 144, Lay::Down, "The drops do not match.", {}, {}},
                        {0, 144, 144, Lay::Cross, "", Figures(200, 160, 28800), {}},
                        {1, 180, 180, Lay::Down, "", Figures(200, 200, 36000), {}}};
    order.Candidates[1].Figures->Price = 1234.5;
    order.Candidates[1].Figures->Notes = {"Nothing is allowed for trimming.", "One more."};
    order.Best = BestOf(order.Candidates);
    return order;
}

TEST(ComparisonText, HasACellForEachHead) {
    const Order order = Example();
    EXPECT_THAT(ComparisonHeads(Units::Imperial),
                ElementsAre("Roll", "Lay", "Order", "Needed", "Least possible", "Bought sq. ft.",
                            "Rooms sq. ft.", "Trimmed sq. ft.", "Waste %", "Seams", "Joins",
                            "Price"));
    EXPECT_THAT(ComparisonCells(order, order.Candidates[1]),
                ElementsAre("Shop 12ft", "cross", "16'11\"", "16'8\"", "13'4\"", "200.00", "100.00",
                            "105.00", "12.3", "2, 20'0\"", "none", "1,234.50"));
    EXPECT_THAT(ComparisonCells(order, order.Candidates[2]).back(), "");
}

TEST(ComparisonText, IsInCentimetresWithMetric) {
    const Order order = Example(Units::Metric);
    EXPECT_EQ(ComparisonHeads(Units::Metric)[2], "Order cm");
    EXPECT_EQ(ComparisonCells(order, order.Candidates[1])[2], "203");
    EXPECT_EQ(TakenText(order, 1), "Best: Shop 12ft, cross, 203 cm in one length without a join");
}

TEST(ComparisonText, HasNoFiguresOfARefusedRowNorOfOneToCome) {
    Order order = Example();
    auto cells = ComparisonCells(order, order.Candidates[0]);
    EXPECT_EQ(cells.size(), ComparisonHeads(Units::Imperial).size());
    EXPECT_EQ(cells[2], "refused");
    EXPECT_EQ(cells[3], "");
    EXPECT_EQ(RemarksOf(order.Candidates[0]), "The drops do not match.");
    order.Candidates[0].Refused = {};
    cells = ComparisonCells(order, order.Candidates[0]);
    EXPECT_EQ(cells[2], "");
    EXPECT_EQ(RemarksOf(order.Candidates[0]), "");
    EXPECT_EQ(AboveLeastText(order.Candidates[0]), "");
}

TEST(ComparisonText, TellsHowFarARowIsAboveTheLeastPossible) {
    Order order = Example();
    EXPECT_EQ(AboveLeastText(order.Candidates[1]), "25.0");
    EXPECT_EQ(AboveLeastText(order.Candidates[2]), "0.0");
    order.Candidates[2].Figures->LeastLength = 0;
    EXPECT_EQ(AboveLeastText(order.Candidates[2]), "") << "of nothing there is no percentage";
}

TEST(ComparisonText, TellsTheBestFromARowThatWasChosen) {
    const Order order = Example();
    ASSERT_EQ(order.Best, 1U);
    EXPECT_TRUE(IsBest(order, 1));
    EXPECT_FALSE(IsBest(order, 2));
    EXPECT_EQ(TakenText(order, 1), "Best: Shop 12ft, cross, 16'11\" in one length without a join");
    EXPECT_EQ(TakenText(order, 2), "Chosen: 15ft, down, 16'11\" in one length without a join");
    EXPECT_EQ(RemarksOf(order.Candidates[1]), "Nothing is allowed for trimming.\nOne more.");
}

TEST(ComparisonText, TellsByWhatTheBestIsTheBest) {
    Order order = Example();
    order.Request.Rolls.push_back({200, "Fair", "200in", 0.0});
    order.Candidates.push_back({1, 180, 180, Lay::Cross, "", Figures(200, 200, 36000), {}});
    order.Candidates.push_back({2, 200, 200, Lay::Down, "", Figures(200, 200, 40000), {}});
    EXPECT_EQ(RuleOfBest(order), "Best is the least carpet, for these rolls have no price: 15ft, "
                                 "Fair 200in.");
    order.Candidates[1].Figures->Price.reset();
    EXPECT_EQ(RuleOfBest(order),
              "Best is the least carpet, for no roll has a price; of equal ones, "
              "the shortest seams and joins.");
    for (OrderCandidate& candidate : order.Candidates) {
        if (candidate.Figures) {
            candidate.Figures->Price = 100;
        }
    }
    EXPECT_EQ(RuleOfBest(order),
              "Best is the least price; of equal ones, the shortest seams and joins.")
        << "a refused row does not count";
    order.Best.reset();
    EXPECT_EQ(RuleOfBest(order), "");
}

} // namespace
} // namespace tarn
