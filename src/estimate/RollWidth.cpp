#include "estimate/RollWidth.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/TakeNumber.h"
#include "base/Text.h"
#include "base/Words.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace tarn {

namespace {

constexpr std::size_t CaptionNumberAt = 12; ///< behind "CARPET WIDTH"

/// Centimetres as a standard metric roll has them: rounded as a caption's figure is.
Single FromCentimetres(Double centimetres) {
    const Single asFeet = CSng(centimetres * InchesPerFoot);
    return CSng(static_cast<Double>(asFeet) / CentimetresPerInch / InchesPerFoot);
}

/// Take `unit` off `text`, where it begins with it in either case.
bool TakeUnit(std::string_view& text, std::string_view unit) {
    if (!EqualsIgnoringCase(text.substr(0, unit.size()), unit)) {
        return false;
    }
    text.remove_prefix(unit.size());
    return true;
}

/// The width that a command line names, inches; nothing for an unreadable text. Raises "Overflow".
std::optional<Single> WidthOf(std::string_view text) {
    const std::string_view number = TakeNumber(text);
    if (number.empty()) {
        return std::nullopt;
    }
    std::optional<Single> width;
    if (TakeUnit(text, "cm")) {
        width = FromCentimetres(Val(number));
    } else if (TakeUnit(text, "in")) {
        width = OtherRollWidth("", number);
    } else if (TakeUnit(text, "ft")) {
        const std::string_view inches = TakeNumber(text);
        if (inches.empty() || TakeUnit(text, "in")) {
            width = OtherRollWidth(number, inches);
        }
    }
    return text.empty() ? width : std::nullopt;
}

} // namespace

const std::array<Phrase, 4>& WidthCaptions(Units units) {
    return units == Units::Metric ? MetricWidthCaptions : ImperialWidthCaptions;
}

std::string_view CaptionNumber(std::string_view caption) {
    std::string_view rest = caption.substr(CaptionNumberAt);
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    return TakeNumber(rest);
}

Single CaptionRollWidth(std::string_view caption, Units units) {
    const Double number = Val(CaptionNumber(caption));
    return units == Units::Metric ? FromCentimetres(number) : CSng(number * InchesPerFoot);
}

Single StandardRollWidth(std::size_t number, Units units) {
    return CaptionRollWidth(WidthCaptions(units).at(number).English(), units);
}

Single OtherRollWidth(std::string_view feet, std::string_view inches) {
    return CSng(Val(feet) * InchesPerFoot + Val(inches));
}

bool IsUsableRollWidth(Single width) {
    RoundedCentimetres(static_cast<Double>(width)); // as every cut list shows it
    return !IsWithinTolerance(width);
}

Single ReadRollWidth(const std::string& text) {
    std::optional<Single> width;
    bool usable = false;
    try {
        width = WidthOf(text);
        usable = width && IsUsableRollWidth(*width);
    } catch (const RunTimeError&) {
        throw std::invalid_argument(Words("The roll width \"%1\" is too large.", text));
    }
    if (!width) {
        throw std::invalid_argument(
            Words("The roll width \"%1\" is not readable: write it as 12ft, "
                  "13.5ft, 12ft6in, 150in or 366cm.",
                  text));
    }
    if (!usable) {
        throw std::invalid_argument(Words("The roll width \"%1\" must be more than 0.", text));
    }
    return *width;
}

} // namespace tarn
