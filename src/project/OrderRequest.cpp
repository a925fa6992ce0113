#include "project/OrderRequest.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Text.h"

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

/// Lengths that were converted between units are whole when they are so but for this.
constexpr Double Negligible = 1e-6;

/// The largest lengths, and those that count when nothing else is said.
struct OrderLengths {
    Long MostSelvage;
    Long MostTrim;
    Long MostStep;
    Long ShortestPart;
    Long Step;
};
constexpr OrderLengths Inches{6, 24, 120, 36, 3};
constexpr OrderLengths Centimetres{15, 60, 300, 91, 5};

constexpr Double MostDrift = 10;
constexpr Double MostSeconds = 3600;

const OrderLengths& LengthsIn(Units units) {
    return units == Units::Metric ? Centimetres : Inches;
}

using Fault = std::optional<OrderRequestFault>;

Fault FaultOfLength(const std::string& option, Long value, Long least, Long most, Units units) {
    if (value >= least && value <= most) {
        return std::nullopt;
    }
    return OrderRequestFault{option, "The " + option + " must be between " +
                                         OrderLengthText(least, units) + " and " +
                                         OrderLengthText(most, units) + "."};
}

Fault FaultOfRolls(const OrderRequest& request) {
    if (request.Rolls.empty()) {
        return OrderRequestFault{"roll", "There is no roll to order from: name its width."};
    }
    if (request.Rolls.size() > MostRolls) {
        return OrderRequestFault{"roll", "At most " + TrimStr(static_cast<Long>(MostRolls)) +
                                             " rolls can be compared."};
    }
    for (std::size_t place = 0; place < request.Rolls.size(); ++place) {
        const RollChoice& roll = request.Rolls[place];
        const bool isNumber = std::isfinite(roll.Width) && roll.Width < LongestStrip + 1;
        if (!isNumber || WholeRollWidth(roll.Width) < 1) {
            return OrderRequestFault{"roll",
                                     "A roll must be between " + OrderLengthText(1, request.In) +
                                         " and " + OrderLengthText(LongestStrip, request.In) +
                                         " wide.",
                                     place};
        }
        if (roll.Price && !IsPrice(*roll.Price)) {
            return OrderRequestFault{"price",
                                     "The price of the roll " + RollName(roll) + ' ' +
                                         std::string(WhatAPriceMustBe),
                                     place};
        }
    }
    return std::nullopt;
}

Fault FaultOfLays(const OrderRequest& request) {
    static const std::vector<Lay> both{Lay::Down, Lay::Cross};
    const bool known = request.Lays == both ||
                       (request.Lays.size() == 1 &&
                        std::find(both.begin(), both.end(), request.Lays.front()) != both.end());
    if (!known) {
        return OrderRequestFault{"lay", "The lay must be down, cross or both."};
    }
    return std::nullopt;
}

Fault FaultOfLengths(const OrderRequest& request) {
    const OrderLengths& lengths = LengthsIn(request.In);
    const auto fault = [&](const std::string& option, Long value, Long least, Long most) {
        return FaultOfLength(option, value, least, most, request.In);
    };
    for (const Fault& found : {fault("selvage", request.Selvage, 0, lengths.MostSelvage),
                               fault("trim along", request.TrimAlong, 0, lengths.MostTrim),
                               fault("trim across", request.TrimAcross, 0, lengths.MostTrim),
                               fault("shortest part", request.ShortestPart, 1, LongestStrip),
                               fault("pattern across", request.Pattern.Across, 0, LongestStrip),
                               fault("pattern along", request.Pattern.Along, 0, LongestStrip),
                               fault("step", request.Step, 1, lengths.MostStep)}) {
        if (found) {
            return found;
        }
    }
    return std::nullopt;
}

Fault FaultOfHalfDrop(const PatternChoice& pattern) {
    if (!pattern.HalfDrop) {
        return std::nullopt;
    }
    if (pattern.Along == 0) {
        return OrderRequestFault{"half drop", "A half drop needs a pattern repeat along."};
    }
    if (pattern.Along % 2 != 0) {
        return OrderRequestFault{"half drop", "A half drop needs an even pattern repeat along."};
    }
    return std::nullopt;
}

bool IsBetween(Double value, Double least, Double most) {
    return std::isfinite(value) && value >= least && value <= most;
}

Fault FaultOfNumbers(const OrderRequest& request) {
    if (request.MostParts < 1 || request.MostParts > MostPartsOfStrip) {
        return OrderRequestFault{"parts",
                                 "A strip may have 1 to " + TrimStr(MostPartsOfStrip) + " parts."};
    }
    if (request.PatternDrift && !IsBetween(*request.PatternDrift, 0, MostDrift)) {
        return OrderRequestFault{"pattern drift", "The pattern drift must be 0 to 10 percent."};
    }
    if (!IsBetween(request.Seconds, 0, MostSeconds)) {
        return OrderRequestFault{"seconds", "The search may take 0 to 3600 seconds."};
    }
    return std::nullopt;
}

} // namespace

std::string RollName(const RollChoice& roll) {
    return roll.Name.empty() ? ShownText(roll.AsTyped)
                             : ShownText(roll.Name) + ' ' + ShownText(roll.AsTyped);
}

OrderRequest DefaultOrderRequest(Units units) {
    OrderRequest request;
    request.In = units;
    request.ShortestPart = LengthsIn(units).ShortestPart;
    request.Step = LengthsIn(units).Step;
    return request;
}

Double DriftOf(const OrderRequest& request) {
    return request.PatternDrift.value_or(request.Pattern.Along > 0 ? 1 : 0);
}

std::optional<OrderRequestFault> FaultOf(const OrderRequest& request) {
    for (const Fault& fault : {FaultOfRolls(request), FaultOfLays(request), FaultOfLengths(request),
                               FaultOfHalfDrop(request.Pattern), FaultOfNumbers(request)}) {
        if (fault) {
            return fault;
        }
    }
    return std::nullopt;
}

bool IsPrice(Double number) {
    return std::isfinite(number) && number >= 0;
}

Long WholeRollWidth(Double width) {
    return CLng(std::floor(width + Negligible));
}

Long RaisedToWhole(Double length) {
    return CLng(std::ceil(length - Negligible));
}

std::optional<Long> WholeRepeat(Double length) {
    const Double whole = std::round(length);
    if (!(std::abs(length - whole) <= Negligible)) {
        return std::nullopt;
    }
    return CLng(whole);
}

OrderRequestFault FaultOfRepeat(const std::string& option, Units units) {
    const std::string unit = units == Units::Metric ? "centimetres" : "inches";
    return {option, "The " + option + " must be whole " + unit +
                        ": give it, and the rooms, in the units of the pattern."};
}

std::string OrderLengthText(Long length, Units units) {
    const std::string text = WholeLengthText(length, units);
    return units == Units::Metric ? text + " cm" : text;
}

} // namespace tarn
