#include "project/OrderRequest.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

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
    return OrderRequestFault{option,
                             Words("%1 must be between %2 and %3.", NameOfOption(option),
                                   OrderLengthText(least, units), OrderLengthText(most, units))};
}

Fault FaultOfRolls(const OrderRequest& request) {
    if (request.Rolls.empty()) {
        return OrderRequestFault{"roll", Words("There is no roll to order from: name its width.")};
    }
    if (request.Rolls.size() > MostRolls) {
        return OrderRequestFault{"roll", Words("At most %1 rolls can be compared.",
                                               TrimStr(static_cast<Long>(MostRolls)))};
    }
    for (std::size_t place = 0; place < request.Rolls.size(); ++place) {
        const RollChoice& roll = request.Rolls[place];
        const bool isNumber = std::isfinite(roll.Width) && roll.Width < LongestStrip + 1;
        if (!isNumber || WholeRollWidth(roll.Width) < 1) {
            return OrderRequestFault{"roll",
                                     Words("A roll must be between %1 and %2 wide.",
                                           OrderLengthText(1, request.In),
                                           OrderLengthText(LongestStrip, request.In)),
                                     place};
        }
        if (roll.Price && !IsPrice(*roll.Price)) {
            return OrderRequestFault{
                "price",
                Words("The price of the roll %1 must be a number of 0 or more.", RollName(roll)),
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
        return OrderRequestFault{"lay", Words("The lay must be down, cross or both.")};
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
        return OrderRequestFault{"half drop", Words("A half drop needs a pattern repeat along.")};
    }
    if (pattern.Along % 2 != 0) {
        return OrderRequestFault{"half drop",
                                 Words("A half drop needs an even pattern repeat along.")};
    }
    return std::nullopt;
}

bool IsBetween(Double value, Double least, Double most) {
    return std::isfinite(value) && value >= least && value <= most;
}

Fault FaultOfNumbers(const OrderRequest& request) {
    if (request.MostParts < 1 || request.MostParts > MostPartsOfStrip) {
        return OrderRequestFault{
            "parts", Words("A strip may have 1 to %1 parts.", TrimStr(MostPartsOfStrip))};
    }
    if (request.PatternDrift && !IsBetween(*request.PatternDrift, 0, MostDrift)) {
        return OrderRequestFault{"pattern drift",
                                 Words("The pattern drift must be 0 to 10 percent.")};
    }
    if (!IsBetween(request.Seconds, 0, MostSeconds)) {
        return OrderRequestFault{"seconds", Words("The search may take 0 to 3600 seconds.")};
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

std::string_view NameOfOption(std::string_view option) {
    static constexpr std::array<std::pair<std::string_view, Phrase>, 8> Names{
        {{"roll", Words("The roll")},
         {"selvage", Words("The selvage")},
         {"trim along", Words("The trim along")},
         {"trim across", Words("The trim across")},
         {"shortest part", Words("The shortest part")},
         {"pattern across", Words("The pattern across")},
         {"pattern along", Words("The pattern along")},
         {"step", Words("The step")}}};
    const auto* const found = std::find_if(Names.begin(), Names.end(),
                                           [&](const auto& each) { return each.first == option; });
    return found == Names.end() ? option : found->second.Text();
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
    const auto reason = units == Units::Metric
                            ? Words("%1 must be whole centimetres: give it, and the rooms, in the "
                                    "units of the pattern.")
                            : Words("%1 must be whole inches: give it, and the rooms, in the units "
                                    "of the pattern.");
    return {option, Words(reason, NameOfOption(option))};
}

std::string OrderLengthText(Long length, Units units) {
    const std::string text = WholeLengthText(length, units);
    return units == Units::Metric ? Words("%1 cm", text) : text;
}

} // namespace tarn
