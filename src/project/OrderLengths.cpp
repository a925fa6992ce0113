#include "project/OrderLengths.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/TakeNumber.h"
#include "base/Text.h"

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

/// Inches behind feet, to the end of the text; 0 for none.
std::optional<Double> TakeInches(std::string_view text) {
    SkipBlanks(text);
    if (text.empty()) {
        return 0;
    }
    const std::string_view number = TakeNumber(text);
    if (number.empty() || !(TakeOneOf(text, "in", "\"") || text.empty()) || !text.empty()) {
        return std::nullopt;
    }
    return Val(number);
}

std::optional<Double> LengthOf(std::string_view text, Units units) {
    const std::string_view number = TakeNumber(text);
    if (number.empty()) {
        return std::nullopt;
    }
    const Double value = Val(number);
    SkipBlanks(text);
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
