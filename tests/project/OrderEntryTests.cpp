// Orders as they are typed into fields.

#include "project/OrderEntry.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarn {
namespace {

TypedOrder Typed(Units units = Units::Imperial) {
    TypedOrder typed;
    typed.In = units;
    typed.Rolls = {{"12ft", "", ""}};
    return typed;
}

OrderRequest Read(const TypedOrder& typed) {
    auto request = RequestOf(typed);
    if (const auto* fault = std::get_if<OrderRequestFault>(&request)) {
        ADD_FAILURE() << fault->Reason;
        return {};
    }
    return std::get<OrderRequest>(request);
}

OrderRequestFault FaultAfter(const std::function<void(TypedOrder&)>& change,
                             Units units = Units::Imperial) {
    TypedOrder typed = Typed(units);
    change(typed);
    const auto request = RequestOf(typed);
    const auto* fault = std::get_if<OrderRequestFault>(&request);
    return fault != nullptr ? *fault : OrderRequestFault{"none", ""};
}

TEST(TypedOrder, AsksForWhatIsUsualWhereNothingIsTyped) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        OrderRequest usual = DefaultOrderRequest(units);
        usual.Rolls = {{units == Units::Metric ? 365.76 : 144.0, "", "12ft", std::nullopt}};
        usual.PatternDrift = 0;
        EXPECT_EQ(Read(Typed(units)), usual);
    }
}

TEST(TypedOrder, TakesEveryText) {
    TypedOrder typed;
    typed.Rolls = {{" 13.5ft ", " Shop ", " 18.50 "}, {"366cm", "", ""}};
    typed.DownLay = false;
    typed.CrossLay = true;
    typed.Selvage = "2.54cm";
    typed.TrimAlong = " 2.1in";
    typed.TrimAcross = "1";
    typed.MostParts = 4;
    typed.ShortestPart = "2'6\"";
    typed.JoinRooms = true;
    typed.PatternAcross = "18in";
    typed.PatternAlong = "2ft";
    typed.HalfDrop = true;
    typed.PatternDrift = "2.5";
    typed.Step = "1ft";
    typed.Seconds = "0.5";
    const OrderRequest expected{Units::Imperial,
                                {{162, "Shop", "13.5ft", 18.5}, {366 / 2.54, "", "366cm", {}}},
                                {Lay::Cross},
                                1,
                                3,
                                1,
                                4,
                                30,
                                true,
                                {18, 24, true},
                                2.5,
                                12,
                                0.5};
    EXPECT_EQ(Read(typed), expected);
}

TEST(TypedOrder, AllowsForTheDriftOfThePatternUnlessItIsTyped) {
    TypedOrder typed = Typed();
    typed.PatternAcross = "18";
    EXPECT_EQ(Read(typed).PatternDrift, 0);
    typed.PatternAlong = "24";
    EXPECT_EQ(Read(typed).PatternDrift, 1);
    typed.PatternDrift = "0";
    EXPECT_EQ(Read(typed).PatternDrift, 0);
}

TEST(TypedOrder, PassesOverRollsThatAreEmpty) {
    TypedOrder typed = Typed();
    typed.Rolls = {{"", " ", ""}, {"12ft", "", ""}, {}};
    EXPECT_EQ(Read(typed).Rolls.size(), 1U);
    typed.Rolls = {{}, {}};
    const auto fault = std::get<OrderRequestFault>(RequestOf(typed));
    EXPECT_EQ(fault.Option, "roll");
    EXPECT_EQ(fault.Reason, "There is no roll to order from: name its width.");
}

TEST(TypedOrder, RefusesALengthThatCannotBeReadByItsName) {
    struct Field {
        std::string Option;
        std::string TypedOrder::*Text;
    };
    for (const Field& field : {Field{"selvage", &TypedOrder::Selvage},
                               {"trim along", &TypedOrder::TrimAlong},
                               {"trim across", &TypedOrder::TrimAcross},
                               {"shortest part", &TypedOrder::ShortestPart},
                               {"pattern across", &TypedOrder::PatternAcross},
                               {"pattern along", &TypedOrder::PatternAlong},
                               {"step", &TypedOrder::Step}}) {
        const auto fault = FaultAfter([&](TypedOrder& typed) { typed.*field.Text = "3 yd"; });
        EXPECT_EQ(fault.Option, field.Option);
        EXPECT_EQ(fault.Reason, "The " + field.Option +
                                    " \"3 yd\": write the length as 12ft6in, 18in, 366cm or "
                                    "3.66m.");
        const auto comma = FaultAfter([&](TypedOrder& typed) { typed.*field.Text = "9,5"; });
        EXPECT_EQ(comma.Option, field.Option);
        EXPECT_EQ(comma.Reason, "The " + field.Option +
                                    " \"9,5\": a comma is not taken. Write the length as 12ft6in, "
                                    "9.5in, 366cm or 3.66m.");
    }
}

TEST(TypedOrder, RefusesWhatARequestCannotBeInTheWordsOfTheRequest) {
    EXPECT_EQ(FaultAfter([](TypedOrder& typed) { typed.Selvage = "7in"; }).Reason,
              "The selvage must be between 0'0\" and 0'6\".");
    EXPECT_EQ(FaultAfter([](TypedOrder& typed) { typed.PatternAlong = "1.5"; }, Units::Metric),
              (OrderRequestFault{"pattern along",
                                 "The pattern along must be whole centimetres: give it, and the "
                                 "rooms, in the units of the pattern."}));
    EXPECT_EQ(FaultAfter([](TypedOrder& typed) { typed.DownLay = false; }).Option, "lay");
    EXPECT_EQ(FaultAfter([](TypedOrder& typed) { typed.HalfDrop = true; }).Option, "half drop");
    EXPECT_EQ(FaultAfter([](TypedOrder& typed) { typed.MostParts = 7; }).Option, "parts");
    for (const char* text : {"1%", "11", "-1", "one", "1,5", "nan"}) {
        EXPECT_EQ(FaultAfter([&](TypedOrder& typed) { typed.PatternDrift = text; }).Reason,
                  "The pattern drift must be 0 to 10 percent.")
            << text;
    }
    for (const char* text : {"2s", "3601", "-1", "1e999"}) {
        EXPECT_EQ(FaultAfter([&](TypedOrder& typed) { typed.Seconds = text; }).Reason,
                  "The search may take 0 to 3600 seconds.")
            << text;
    }
}

TEST(TypedOrder, TellsWhichRollIsRefused) {
    struct Case {
        TypedRoll Roll;
        OrderRequestFault Fault;
    };
    for (const Case& each :
         {Case{{"twelve", "", ""},
               {"roll", "The roll \"twelve\": write the length as 12ft6in, 18in, 366cm or 3.66m.",
                2}},
          {{"", "Shop", ""},
           {"roll", "A roll has no width: write the length as 12ft6in, 18in, 366cm or 3.66m.", 2}},
          {{"0.5in", "", ""}, {"roll", "A roll must be between 0'1\" and 2730'7\" wide.", 2}},
          {{"12ft", "Shop", " 18,50 "},
           {"price",
            "The price \"18,50\" of the roll Shop 12ft: a comma is not taken. Write it with a "
            "point, as 18.50.",
            2}},
          {{"12ft", "", "cheap"},
           {"price", "The price of the roll 12ft must be a number of 0 or more.", 2}},
          {{"12ft", "", "-1"},
           {"price", "The price of the roll 12ft must be a number of 0 or more.", 2}}}) {
        TypedOrder typed = Typed();
        typed.Rolls = {{"12ft", "", "1"}, {}, each.Roll};
        EXPECT_EQ(std::get<OrderRequestFault>(RequestOf(typed)), each.Fault);
    }
    TypedOrder many = Typed();
    many.Rolls.assign(MostRolls + 1, {"12ft", "", ""});
    EXPECT_EQ(std::get<OrderRequestFault>(RequestOf(many)).Reason,
              "At most 12 rolls can be compared.");
}

TEST(TypedOrder, HasAPatternWhereARepeatOrAHalfDropIsTyped) {
    TypedOrder typed = Typed();
    EXPECT_FALSE(HasPattern(typed));
    for (const char* none : {"", " ", "0", "0in"}) {
        typed.PatternAcross = typed.PatternAlong = none;
        EXPECT_FALSE(HasPattern(typed)) << none;
    }
    typed.PatternAlong = "24";
    EXPECT_TRUE(HasPattern(typed));
    typed.PatternAlong = "0";
    typed.PatternAcross = "1,5";
    EXPECT_TRUE(HasPattern(typed));
    typed.PatternAcross.clear();
    typed.HalfDrop = true;
    EXPECT_TRUE(HasPattern(typed));
}

TEST(TypedOrder, RaisesAFractionOfAnInchToAWholeOne) {
    TypedOrder typed = Typed();
    typed.TrimAlong = "1 1/2\"";
    typed.TrimAcross = "3/8in";
    EXPECT_EQ(Read(typed).TrimAlong, 2);
    EXPECT_EQ(Read(typed).TrimAcross, 1);
}

TEST(TypedOrder, OfARequestMakesItAgain) {
    OrderRequest request = Read(Typed());
    EXPECT_EQ(Read(TypedOf(request)), request);
    request.Rolls = {{162, "Shop", "13.5ft", 18.55}, {144, "", "144", 0.1}};
    request.Lays = {Lay::Down, Lay::Cross};
    request.Selvage = 1;
    request.TrimAlong = 24;
    request.TrimAcross = 13;
    request.MostParts = 6;
    request.ShortestPart = 48;
    request.JoinRooms = true;
    request.Pattern = {18, 36, true};
    request.PatternDrift = 0.25;
    request.Step = 120;
    request.Seconds = 0.125;
    EXPECT_EQ(Read(TypedOf(request)), request);
    request.Rolls.pop_back();
    request.In = Units::Metric;
    request.Rolls[0].Width = 13.5 * 12 * 2.54;
    EXPECT_EQ(Read(TypedOf(request)), request);
}

TEST(TypedOrder, IsWrittenAsOneWouldTypeIt) {
    OrderRequest request = DefaultOrderRequest(Units::Imperial);
    request.TrimAlong = 3;
    request.Pattern.Along = 24;
    const TypedOrder typed = TypedOf(request);
    EXPECT_EQ(typed.Selvage, "0");
    EXPECT_EQ(typed.TrimAlong, "3in");
    EXPECT_EQ(typed.PatternAlong, "24in");
    EXPECT_EQ(typed.ShortestPart, "3ft");
    EXPECT_EQ(typed.Seconds, "2");
    EXPECT_EQ(TypedOf(DefaultOrderRequest(Units::Metric)).ShortestPart, "91cm");
}

TEST(TypedOrder, LeavesTheUsualDriftToThePattern) {
    OrderRequest request = DefaultOrderRequest(Units::Imperial);
    request.Pattern.Along = 24;
    request.PatternDrift = 1;
    EXPECT_EQ(TypedOf(request).PatternDrift, "");
    request.PatternDrift = 0;
    EXPECT_EQ(TypedOf(request).PatternDrift, "0");
    request.Pattern.Along = 0;
    EXPECT_EQ(TypedOf(request).PatternDrift, "");
}

TEST(UsualTexts, StandForTextsThatAreEmpty) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        TypedOrder typed = UsualTexts(units);
        typed.Rolls = Typed().Rolls;
        EXPECT_EQ(Read(typed), Read(Typed(units)));
    }
}

TEST(UsualDriftText, GoesWithThePatternAlong) {
    TypedOrder typed;
    for (const char* along : {"", "0", "two"}) {
        typed.PatternAlong = along;
        EXPECT_EQ(UsualDriftText(typed), "0") << along;
    }
    typed.PatternAlong = "2ft";
    EXPECT_EQ(UsualDriftText(typed), "1");
}

TEST(ReadPrice, TakesNumbersOfNoughtOrMoreWhateverTheLocale) {
    EXPECT_EQ(ReadPrice("18.50").Read, 18.5);
    EXPECT_EQ(ReadPrice(" +2e1 ").Read, 20);
    EXPECT_EQ(ReadPrice("0").Read, 0);
    for (const char* text : {"", " ", "-1", "1,5", "1 5", "five", "inf", "nan", "1e999", "$1"}) {
        EXPECT_FALSE(ReadPrice(text).Read) << text;
        EXPECT_EQ(ReadPrice(text).Reason, "the price must be a number of 0 or more.");
    }
}

} // namespace
} // namespace tarn
