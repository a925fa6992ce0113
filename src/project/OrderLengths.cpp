#include "project/OrderLengths.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/TakeNumber.h"
#include "base/Text.h"
#include "project/InchFraction.h"

namespace tarn {

namespace {

void SkipBlanks(std::string_view& text) {
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
}

/// Take `unit` off `text`, where it begins with it in either case.
bool TakeUnit(std::string_view& text, std::string_view unit) {
    if (text.size() < unit.size() || !EqualsIgnoringCase(text.substr(0, unit.size()), unit)) {
        return false;
    }
    text.remove_prefix(unit.size());
    return true;
}

bool TakeOneOf(std::string_view& text, std::string_view unit, std::string_view sign) {
    SkipBlanks(text);
    return TakeUnit(text, unit) || TakeUnit(text, sign);
}

/// What an inch, or a centimetre, is in `units`.
Double InUnits(Double length, Units own, Units units) {
    if (own == units) {
        return length;
    }
    return units == Units::Metric ? length * CentimetresPerInch : length / CentimetresPerInch;
}

bool IsWhole(std::string_view number) {
    return !number.empty() && number.find('.') == std::string_view::npos;
}

/// Take a fraction of an inch off `text`, such as 1/2; nothing, with `text` as it was, where it
/// begins with none.
std::optional<Double> TakeFraction(std::string_view& text) {
    std::string_view rest = text;
    SkipBlanks(rest);
    const std::string_view above = TakeNumber(rest);
    if (!IsWhole(above) || !TakeUnit(rest, "/")) {
        return std::nullopt;
    }
    const std::string_view below = TakeNumber(rest);
    constexpr std::size_t MostDigits = 2;
    if (!IsWhole(below) || above.size() > MostDigits || below.size() > MostDigits) {
        return std::nullopt;
    }
    const auto whole = [](std::string_view digits) { return static_cast<long long>(Val(digits)); };
    if (!IsInchFraction(whole(above), whole(below))) {
        return std::nullopt;
    }
    text = rest;
    return Val(above) / Val(below);
}

/// A number at the beginning of a text.
struct TakenNumber {
    Double Value = 0;
    bool HasFraction = false; ///< so it is one of inches
};

/// Take a number off `text`: 6, 6.5, 6 1/2 or 1/2. Nothing where it begins with none.
std::optional<TakenNumber> TakeInchesNumber(std::string_view& text) {
    if (const auto fraction = TakeFraction(text)) {
        return TakenNumber{*fraction, true};
    }
    const std::string_view number = TakeNumber(text);
    if (number.empty()) {
        return std::nullopt;
    }
    const auto fraction = IsWhole(number) ? TakeFraction(text) : std::nullopt;
    return TakenNumber{Val(number) + fraction.value_or(0), fraction.has_value()};
}

/// Inches behind feet, to the end of the text; 0 for none.
std::optional<Double> TakeInches(std::string_view text) {
    SkipBlanks(text);
    if (text.empty()) {
        return 0;
    }
    const auto number = TakeInchesNumber(text);
    if (!number || !(TakeOneOf(text, "in", "\"") || text.empty()) || !text.empty()) {
        return std::nullopt;
    }
    return number->Value;
}

/// The length that a text says whose number was taken off it.
std::optional<Double> InchesOf(Double value, std::string_view text, Units units) {
    const bool isTold = TakeOneOf(text, "in", "\"") || units == Units::Imperial;
    return isTold && text.empty() ? std::optional(InUnits(value, Units::Imperial, units))
                                  : std::nullopt;
}

std::optional<Double> LengthOf(std::string_view text, Units units) {
    const auto number = TakeInchesNumber(text);
    if (!number) {
        return std::nullopt;
    }
    const Double value = number->Value;
    SkipBlanks(text);
    if (number->HasFraction) {
        return InchesOf(value, text, units);
    }
    if (text.empty()) {
        return value;
    }
    if (TakeOneOf(text, "ft", "'")) {
        const auto inches = TakeInches(text);
        return inches
                   ? std::optional(InUnits(value * InchesPerFoot + *inches, Units::Imperial, units))
                   : std::nullopt;
    }
    constexpr Double CentimetresPerMetre = 100;
    std::optional<Double> length;
    if (TakeUnit(text, "cm")) {
        length = InUnits(value, Units::Metric, units);
    } else if (TakeUnit(text, "m")) {
        length = InUnits(value * CentimetresPerMetre, Units::Metric, units);
    } else if (TakeOneOf(text, "in", "\"")) {
        length = InUnits(value, Units::Imperial, units);
    }
    return text.empty() ? length : std::nullopt;
}

} // namespace

std::optional<Double> ReadOrderLength(std::string_view text, Units units) {
    constexpr Double Most = 1e7;
    SkipBlanks(text);
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    try {
        const auto length = LengthOf(text, units);
        return length && *length <= Most ? length : std::nullopt;
    } catch (const RunTimeError&) { // a number beyond all numbers
        return std::nullopt;
    }
}

} // namespace tarn
