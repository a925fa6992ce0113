#include "base/RunTimeError.h"
#include "project/OrderRequest.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace tarn {
namespace {

OrderRequest Sound(Units units = Units::Imperial) {
    OrderRequest request = DefaultOrderRequest(units);
    request.Rolls = {{144, "", "12ft", std::nullopt}};
    return request;
}

using Change = std::function<void(OrderRequest&)>;

/// The option that is at fault after a change of a sound request; empty for none.
std::string FaultAfter(const Change& change, Units units = Units::Imperial) {
    OrderRequest request = Sound(units);
    change(request);
    const auto fault = FaultOf(request);
    return fault ? fault->Option : "";
}

TEST(DefaultOrderRequest, HasTheUsualLengthsOfItsUnits) {
    const OrderRequest inches = DefaultOrderRequest(Units::Imperial);
    EXPECT_EQ(inches, OrderRequest{});
    EXPECT_EQ(inches.ShortestPart, 36);
    EXPECT_EQ(inches.Step, 3);
    const OrderRequest metric = DefaultOrderRequest(Units::Metric);
    EXPECT_EQ(metric.In, Units::Metric);
    EXPECT_EQ(metric.ShortestPart, 91);
    EXPECT_EQ(metric.Step, 5);
}

TEST(DriftOf, IsOnePercentWithARepeatAlongUnlessItIsAskedFor) {
    OrderRequest request = Sound();
    EXPECT_EQ(DriftOf(request), 0);
    request.Pattern.Across = 18;
    EXPECT_EQ(DriftOf(request), 0);
    request.Pattern.Along = 24;
    EXPECT_EQ(DriftOf(request), 1);
    request.PatternDrift = 0;
    EXPECT_EQ(DriftOf(request), 0);
    request.PatternDrift = 2.5;
    EXPECT_EQ(DriftOf(request), 2.5);
}

TEST(OrderRequestFault, IsNoneForASoundRequest) {
    EXPECT_FALSE(FaultOf(Sound()));
    EXPECT_FALSE(FaultOf(Sound(Units::Metric)));
}

TEST(OrderRequestFault, NamesTheOptionThatIsOutOfItsBounds) {
    struct Case {
        std::string Option;
        Units In;
        Long Most;
        std::function<Long&(OrderRequest&)> Member;
    };
    const auto along = [](OrderRequest& r) -> Long& { return r.TrimAlong; };
    const auto across = [](OrderRequest& r) -> Long& { return r.TrimAcross; };
    const auto selvage = [](OrderRequest& r) -> Long& { return r.Selvage; };
    const std::vector<Case> cases{{"selvage", Units::Imperial, 6, selvage},
                                  {"selvage", Units::Metric, 15, selvage},
                                  {"trim along", Units::Imperial, 24, along},
                                  {"trim along", Units::Metric, 60, along},
                                  {"trim across", Units::Imperial, 24, across},
                                  {"trim across", Units::Metric, 60, across},
                                  {"pattern across", Units::Imperial, 32767,
                                   [](OrderRequest& r) -> Long& { return r.Pattern.Across; }},
                                  {"pattern along", Units::Imperial, 32767,
                                   [](OrderRequest& r) -> Long& { return r.Pattern.Along; }}};
    for (const Case& each : cases) {
        SCOPED_TRACE(each.Option);
        const auto to = [&](Long value) {
            return FaultAfter([&](OrderRequest& r) { each.Member(r) = value; }, each.In);
        };
        EXPECT_EQ(to(0), "");
        EXPECT_EQ(to(each.Most), "");
        EXPECT_EQ(to(-1), each.Option);
        EXPECT_EQ(to(each.Most + 1), each.Option);
    }
}

TEST(OrderRequestFault, NamesTheBounds) {
    OrderRequest request = Sound();
    request.TrimAlong = 25;
    EXPECT_EQ(FaultOf(request)->Reason, "The trim along must be between 0'0\" and 2'0\".");
    request = Sound(Units::Metric);
    request.Selvage = 16;
    EXPECT_EQ(FaultOf(request)->Reason, "The selvage must be between 0 cm and 15 cm.");
}

TEST(OrderRequestFault, OfTheLeastValues) {
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.Step = 0; }), "step");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.Step = 121; }), "step");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.ShortestPart = 0; }), "shortest part");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.MostParts = 0; }), "parts");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.MostParts = 6; }), "");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.MostParts = 7; }), "parts");
}

TEST(OrderRequestFault, OfRollsAndPrices) {
    const Double endless = std::numeric_limits<Double>::infinity();
    const auto width = [](Double value) {
        return FaultAfter([&](OrderRequest& r) { r.Rolls[0].Width = value; });
    };
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.Rolls.clear(); }), "roll");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.Rolls.resize(13, r.Rolls[0]); }), "roll");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.Rolls.resize(12, r.Rolls[0]); }), "");
    EXPECT_EQ(width(0.9), "roll");
    EXPECT_EQ(width(1), "");
    EXPECT_EQ(width(32767.5), "");
    EXPECT_EQ(width(32768), "roll");
    EXPECT_EQ(width(-endless), "roll");
    EXPECT_EQ(width(std::numeric_limits<Double>::quiet_NaN()), "roll");
    const auto price = [](Double value) {
        return FaultAfter([&](OrderRequest& r) { r.Rolls[0].Price = value; });
    };
    EXPECT_EQ(price(0), "");
    EXPECT_EQ(price(-0.01), "price");
    EXPECT_EQ(price(endless), "price");
}

TEST(OrderRequestFault, OfLays) {
    const auto lays = [](std::vector<Lay> value) {
        return FaultAfter([&](OrderRequest& r) { r.Lays = value; });
    };
    EXPECT_EQ(lays({Lay::Down}), "");
    EXPECT_EQ(lays({Lay::Cross}), "");
    EXPECT_EQ(lays({Lay::Down, Lay::Cross}), "");
    EXPECT_EQ(lays({Lay::Cross, Lay::Down}), "lay");
    EXPECT_EQ(lays({Lay::Down, Lay::Down}), "lay");
    EXPECT_EQ(lays({}), "lay");
}

TEST(OrderRequestFault, OfAHalfDropWithoutAnEvenRepeatAlong) {
    const auto pattern = [](PatternChoice value) {
        return FaultAfter([&](OrderRequest& r) { r.Pattern = value; });
    };
    EXPECT_EQ(pattern({18, 24, true}), "");
    EXPECT_EQ(pattern({0, 24, true}), "");
    EXPECT_EQ(pattern({18, 25, false}), "");
    EXPECT_EQ(pattern({18, 25, true}), "half drop");
    EXPECT_EQ(pattern({18, 0, true}), "half drop");
}

TEST(OrderRequestFault, OfDriftAndSeconds) {
    const auto drift = [](Double value) {
        return FaultAfter([&](OrderRequest& r) { r.PatternDrift = value; });
    };
    EXPECT_EQ(drift(0), "");
    EXPECT_EQ(drift(10), "");
    EXPECT_EQ(drift(10.01), "pattern drift");
    EXPECT_EQ(drift(-1), "pattern drift");
    EXPECT_EQ(drift(std::numeric_limits<Double>::quiet_NaN()), "pattern drift");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.Seconds = 0; }), "");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.Seconds = -1; }), "seconds");
    EXPECT_EQ(FaultAfter([](OrderRequest& r) { r.Seconds = 3601; }), "seconds");
}

TEST(WholeOrderLengths, RollWidthsAreRoundedDown) {
    EXPECT_EQ(WholeRollWidth(144), 144);
    EXPECT_EQ(WholeRollWidth(365.76), 365);
    EXPECT_EQ(WholeRollWidth(3.66 * 100), 366);
    EXPECT_EQ(WholeRollWidth(366 / 2.54), 144);
}

TEST(WholeOrderLengths, TrimsAreRoundedUp) {
    EXPECT_EQ(RaisedToWhole(3), 3);
    EXPECT_EQ(RaisedToWhole(7.62), 8);
    EXPECT_EQ(RaisedToWhole(0.1 * 30), 3);
    EXPECT_THROW(RaisedToWhole(1e300), RunTimeError);
}

TEST(WholeOrderLengths, RepeatsThatAreNotWholeAreRefused) {
    EXPECT_EQ(WholeRepeat(18), 18);
    EXPECT_EQ(WholeRepeat(45.72 / 2.54), 18);
    EXPECT_EQ(WholeRepeat(45.7 / 2.54), std::nullopt);
    EXPECT_EQ(WholeRepeat(std::numeric_limits<Double>::quiet_NaN()), std::nullopt);
    const OrderRequestFault fault = FaultOfRepeat("pattern across", Units::Imperial);
    EXPECT_EQ(fault.Option, "pattern across");
    EXPECT_EQ(fault.Reason, "The pattern across must be whole inches: give it, and the rooms, in "
                            "the units of the pattern.");
}

TEST(OrderLengthText, StandsByItself) {
    EXPECT_EQ(OrderLengthText(150, Units::Imperial), "12'6\"");
    EXPECT_EQ(OrderLengthText(366, Units::Metric), "366 cm");
}

} // namespace
} // namespace tarn
