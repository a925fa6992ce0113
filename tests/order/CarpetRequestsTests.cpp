// Which carpets can be ordered, and what is asked for of each.

#include "order/CarpetRequests.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Requests = std::map<Byte, OrderRequest>;

OrderRequest Request(const char* roll, Units units = Units::Imperial) {
    OrderRequest request = DefaultOrderRequest(units);
    request.Rolls = {{144, "", roll, std::nullopt}};
    return request;
}

TEST(CarpetsToOrder, AreThoseOfRoomsWithAnArea) {
    Project project;
    EXPECT_THAT(CarpetsToOrder(project), IsEmpty());
    const auto add = [&](Integer width, Integer length, Byte covering) {
        project.Rooms.push_back({width, length, covering, 0, "", ""});
    };
    add(0, 100, 1);
    add(100, -1, 2);
    add(100, 100, 8);
    EXPECT_THAT(CarpetsToOrder(project), IsEmpty());
    add(1, 1, 7);
    add(100, 100, 3);
    add(200, 100, 3);
    EXPECT_THAT(CarpetsToOrder(project), ElementsAre(3, 7));
}

TEST(OfferedRequest, ComparesTheStandardRollsInBothLays) {
    const OrderRequest feet = OfferedRequest(Units::Imperial);
    EXPECT_EQ(feet.Rolls, (std::vector<RollChoice>{{72, "", "6ft", {}},
                                                   {144, "", "12ft", {}},
                                                   {162, "", "13.5ft", {}},
                                                   {180, "", "15ft", {}}}));
    EXPECT_THAT(feet.Lays, ElementsAre(Lay::Down, Lay::Cross));
    EXPECT_FALSE(FaultOf(feet));
    const OrderRequest metric = OfferedRequest(Units::Metric);
    EXPECT_EQ(metric.Rolls, (std::vector<RollChoice>{{183, "", "183cm", {}},
                                                     {366, "", "366cm", {}},
                                                     {411, "", "411cm", {}},
                                                     {457, "", "457cm", {}}}));
    EXPECT_EQ(metric.ShortestPart, 91);
    EXPECT_FALSE(FaultOf(metric));
}

TEST(CarpetRequest, IsTheKeptOneInItsUnitsAlone) {
    const Requests kept{{2, Request("12ft")}};
    EXPECT_EQ(RequestFor(kept, 2, Units::Imperial).Value, kept.at(2));
    EXPECT_FALSE(RequestFor(kept, 2, Units::Imperial).InOtherUnits);
    EXPECT_EQ(RequestFor(kept, 2, Units::Metric).Value, OfferedRequest(Units::Metric));
    EXPECT_TRUE(RequestFor(kept, 2, Units::Metric).InOtherUnits);
    EXPECT_EQ(RequestFor(kept, 3, Units::Imperial).Value, OfferedRequest(Units::Imperial));
    EXPECT_FALSE(RequestFor(kept, 3, Units::Imperial).InOtherUnits);
}

TEST(CarpetRequest, AsksForTheSameWithTheUsualDriftToldOrNot) {
    OrderRequest told = Request("12ft");
    told.PatternDrift = 0;
    EXPECT_TRUE(AskForTheSame(told, Request("12ft")));
    told.PatternDrift = 2;
    EXPECT_FALSE(AskForTheSame(told, Request("12ft")));
    EXPECT_FALSE(AskForTheSame(Request("12 ft"), Request("12ft")));
}

TEST(KeepRequest, KeepsWhatDiffersFromWhatIsStored) {
    const Requests stored{{2, Request("12ft")}};
    Requests now = stored;
    KeepRequest(now, stored, 2, Request("15ft"));
    EXPECT_EQ(now.at(2), Request("15ft"));
    OrderRequest again = Request("12ft");
    again.PatternDrift = 0;
    KeepRequest(now, stored, 2, again);
    EXPECT_EQ(now, stored) << "nothing is unsaved";
    KeepRequest(now, stored, 2, OfferedRequest(Units::Imperial));
    EXPECT_EQ(now.at(2), OfferedRequest(Units::Imperial)) << "another one is stored";
    KeepRequest(now, stored, 2, Request("366cm", Units::Metric));
    EXPECT_EQ(now.at(2), Request("366cm", Units::Metric));
    KeepRequest(now, stored, 2, OfferedRequest(Units::Metric));
    EXPECT_EQ(now, stored) << "the one in feet is not used, and stays";
}

TEST(KeepRequest, KeepsNothingOfWhatIsOfferedAnyway) {
    Requests now;
    KeepRequest(now, {}, 4, OfferedRequest(Units::Metric));
    EXPECT_THAT(now, IsEmpty());
    KeepRequest(now, {}, 4, Request("12ft"));
    EXPECT_EQ(now.at(4), Request("12ft"));
    OrderRequest offered = OfferedRequest(Units::Imperial);
    offered.PatternDrift = 0;
    KeepRequest(now, {}, 4, offered);
    EXPECT_THAT(now, IsEmpty());
}

} // namespace
} // namespace tarn
