#include "project/OrderEntry.h"

#include "base/Lengths.h"
#include "base/Text.h"
#include "base/Words.h"
#include "project/OrderLengths.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tarn {

namespace {

constexpr auto HowLengthsAreWritten = Words("write the length as 12ft6in, 18in, 366cm or 3.66m.");
constexpr auto NoComma =
    Words("a comma is not taken. Write the length as 12ft6in, 9.5in, 366cm or 3.66m.");

/// A number that is no number, which FaultOf refuses in its own words.
constexpr Double NoNumber = std::numeric_limits<Double>::quiet_NaN();

std::string_view WithoutBlanks(std::string_view text) {
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

bool IsEmpty(std::string_view text) {
    return WithoutBlanks(text).empty();
}

/// The number that all of a text is, of whatever size and sign; else NoNumber.
Double NumberOf(std::string_view text) {
    text = WithoutBlanks(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    Double number = 0;
    const char* const end = text.data() + text.size();
    const auto [read, fault] = std::from_chars(text.data(), end, number);
    return fault == std::errc() && read == end ? number : NoNumber;
}

/// A text of a field that is not what it must be; it never gets out of here.
struct Unread {
    OrderRequestFault Fault;
};

template <class Value>
Value Require(const std::string& option, std::string_view text, const Reading<Value>& reading) {
    if (!reading.Read) {
        throw Unread{{option, Words("%1 \"%2\": %3", NameOfOption(option), ShownText(text),
                                    reading.Reason)}};
    }
    return *reading.Read;
}

/// Put what a field says into `length`, which stays as is usual without a text.
void TakeRaised(const std::string& option, std::string_view text, Units units, Long& length) {
    if (!IsEmpty(text)) {
        length = Require(option, text, ReadRaisedLength(text, units));
    }
}

void TakeRepeat(const std::string& option, std::string_view text, Units units, Long& repeat) {
    if (IsEmpty(text)) {
        return;
    }
    const auto whole = WholeRepeat(Require(option, text, ReadLength(text, units)));
    if (!whole) {
        throw Unread{FaultOfRepeat(option, units)};
    }
    repeat = *whole;
}

/// The price of a roll, of any size. A comma is told apart from other faults: it is how many write
/// a decimal point.
Double PriceOf(const RollChoice& roll, std::string_view text) {
    const Double price = NumberOf(text);
    if (std::isnan(price) && text.find(',') != std::string_view::npos) {
        throw Unread{{"price", Words("The price \"%1\" of the roll %2: a comma is not taken. Write "
                                     "it with a point, as 18.50.",
                                     ShownText(TrimStr(std::string(text))), RollName(roll))}};
    }
    return price;
}

RollChoice RollOf(const TypedRoll& typed, Units units) {
    RollChoice roll;
    roll.AsTyped = TrimStr(typed.Width);
    if (roll.AsTyped.empty()) {
        throw Unread{{"roll", Words("A roll has no width: %1", HowLengthsAreWritten)}};
    }
    roll.Width = Require("roll", typed.Width, ReadLength(typed.Width, units));
    roll.Name = TrimStr(typed.Name);
    if (!IsEmpty(typed.Price)) {
        roll.Price = PriceOf(roll, typed.Price);
    }
    return roll;
}

bool IsNone(const TypedRoll& roll) {
    return IsEmpty(roll.Width) && IsEmpty(roll.Name) && IsEmpty(roll.Price);
}

/// The request, and for each of its rolls the number among those typed.
OrderRequest RequestOf(const TypedOrder& typed, std::vector<std::size_t>& places) {
    const Units units = typed.In;
    OrderRequest request = DefaultOrderRequest(units);
    for (std::size_t place = 0; place < typed.Rolls.size(); ++place) {
        if (!IsNone(typed.Rolls[place])) {
            places.push_back(place);
            request.Rolls.push_back(RollOf(typed.Rolls[place], units));
        }
    }
    request.Lays.clear();
    if (typed.DownLay) {
        request.Lays.push_back(Lay::Down);
    }
    if (typed.CrossLay) {
        request.Lays.push_back(Lay::Cross);
    }
    TakeRaised("selvage", typed.Selvage, units, request.Selvage);
    TakeRaised("trim along", typed.TrimAlong, units, request.TrimAlong);
    TakeRaised("trim across", typed.TrimAcross, units, request.TrimAcross);
    request.MostParts = typed.MostParts;
    TakeRaised("shortest part", typed.ShortestPart, units, request.ShortestPart);
    request.JoinRooms = typed.JoinRooms;
    TakeRepeat("pattern across", typed.PatternAcross, units, request.Pattern.Across);
    TakeRepeat("pattern along", typed.PatternAlong, units, request.Pattern.Along);
    request.Pattern.HalfDrop = typed.HalfDrop;
    request.PatternDrift =
        IsEmpty(typed.PatternDrift) ? DriftOf(request) : NumberOf(typed.PatternDrift);
    TakeRaised("step", typed.Step, units, request.Step);
    if (!IsEmpty(typed.Seconds)) {
        request.Seconds = NumberOf(typed.Seconds);
    }
    return request;
}

/// A length of the request as it is typed.
std::string TypedLength(Long length, Units units) {
    constexpr Long FeetFrom = 36;
    constexpr Long InFoot = static_cast<Long>(InchesPerFoot);
    if (length == 0) {
        return "0";
    }
    if (units == Units::Metric) {
        return TrimStr(length) + "cm";
    }
    return length >= FeetFrom && length % InFoot == 0 ? TrimStr(length / InFoot) + "ft"
                                                      : TrimStr(length) + "in";
}

/// A number as it is typed, exactly.
std::string TypedNumber(Double number) {
    std::array<char, 64> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), written.ptr};
}

} // namespace

Reading<Double> ReadLength(std::string_view text, Units units) {
    const auto length = ReadOrderLength(text, units);
    if (length) {
        return {length, Phrase()};
    }
    return {length, text.find(',') == std::string_view::npos ? HowLengthsAreWritten : NoComma};
}

Reading<Long> ReadRaisedLength(std::string_view text, Units units) {
    const Reading<Double> length = ReadLength(text, units);
    return {length.Read ? std::optional(RaisedToWhole(*length.Read)) : std::nullopt, length.Reason};
}

Reading<Double> ReadPrice(std::string_view text) {
    const Double price = NumberOf(text);
    if (!IsPrice(price)) {
        return {std::nullopt, Words("the price must be a number of 0 or more.")};
    }
    return {price, {}};
}

TypedOrder TypedOf(const OrderRequest& request) {
    const auto length = [&](Long value) { return TypedLength(value, request.In); };
    TypedOrder typed;
    typed.In = request.In;
    for (const RollChoice& roll : request.Rolls) {
        typed.Rolls.push_back(
            {roll.AsTyped, roll.Name, roll.Price ? TypedNumber(*roll.Price) : ""});
    }
    const auto has = [&](Lay lay) {
        return std::find(request.Lays.begin(), request.Lays.end(), lay) != request.Lays.end();
    };
    typed.DownLay = has(Lay::Down);
    typed.CrossLay = has(Lay::Cross);
    typed.Selvage = length(request.Selvage);
    typed.TrimAlong = length(request.TrimAlong);
    typed.TrimAcross = length(request.TrimAcross);
    typed.MostParts = request.MostParts;
    typed.ShortestPart = length(request.ShortestPart);
    typed.JoinRooms = request.JoinRooms;
    typed.PatternAcross = length(request.Pattern.Across);
    typed.PatternAlong = length(request.Pattern.Along);
    typed.HalfDrop = request.Pattern.HalfDrop;
    OrderRequest usual = request;
    usual.PatternDrift.reset();
    typed.PatternDrift =
        DriftOf(request) == DriftOf(usual) ? "" : TypedNumber(*request.PatternDrift);
    typed.Step = length(request.Step);
    typed.Seconds = TypedNumber(request.Seconds);
    return typed;
}

TypedOrder UsualTexts(Units units) {
    return TypedOf(DefaultOrderRequest(units));
}

std::string UsualDriftText(const TypedOrder& typed) {
    OrderRequest pattern;
    const auto along = ReadLength(typed.PatternAlong, typed.In).Read;
    pattern.Pattern.Along = along ? RaisedToWhole(*along) : 0;
    return TypedNumber(DriftOf(pattern));
}

bool HasPattern(const TypedOrder& typed) {
    const auto isRepeat = [&](std::string_view text) {
        return !IsEmpty(text) && ReadLength(text, typed.In).Read != 0;
    };
    return typed.HalfDrop || isRepeat(typed.PatternAcross) || isRepeat(typed.PatternAlong);
}

std::variant<OrderRequest, OrderRequestFault> RequestOf(const TypedOrder& typed) {
    std::vector<std::size_t> places;
    try {
        OrderRequest request = RequestOf(typed, places);
        auto fault = FaultOf(request);
        if (!fault) {
            return request;
        }
        if (fault->Roll < places.size()) {
            fault->Roll = places[fault->Roll];
        }
        return *fault;
    } catch (Unread& unread) {
        if (unread.Fault.Option == "roll" || unread.Fault.Option == "price") {
            unread.Fault.Roll = places.back();
        }
        return unread.Fault;
    }
}

} // namespace tarn
