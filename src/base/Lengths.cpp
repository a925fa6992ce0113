#include "base/Lengths.h"

#include "base/Numbers.h"
#include "base/Text.h"

#include <charconv>
#include <limits>

namespace tarn {

namespace {

constexpr Double CentimetreTolerance = 0.03;

Long RaisedToWhole(Double length, Double tolerance) {
    const Double below = Int(length);
    return CLng(length - below < tolerance ? below : below + 1);
}

std::optional<long long> ReadDigits(std::string_view text) {
    long long value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || text.front() == '-' || result.ec != std::errc() ||
        result.ptr != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

} // namespace

Long WholeInches(Double inches) {
    return RaisedToWhole(inches, LengthTolerance);
}

Long WholeCentimetres(Double inches) {
    return RaisedToWhole(inches * CentimetresPerInch, CentimetreTolerance);
}

Long RoundedCentimetres(Double inches) {
    return CLng(Int(inches * CentimetresPerInch + 0.5));
}

std::string FeetAndInches(Long inches) {
    const auto feet = static_cast<long long>(Int(inches / InchesPerFoot));
    return TrimStr(feet) + "'" + TrimStr(Mod(inches, 12)) + "\"";
}

std::optional<Long> ReadFeetAndInches(std::string_view text) {
    const std::size_t apostrophe = text.find('\'');
    if (apostrophe == std::string_view::npos) {
        return std::nullopt;
    }
    const auto feet = ReadDigits(text.substr(0, apostrophe));
    std::string_view rest = text.substr(apostrophe + 1);
    if (!rest.empty() && rest.back() == '"') {
        rest.remove_suffix(1);
        if (rest.empty()) {
            return std::nullopt;
        }
    }
    const auto inches = rest.empty() ? std::optional<long long>(0) : ReadDigits(rest);
    constexpr long long Most = std::numeric_limits<Long>::max();
    if (!feet || !inches || *feet > Most / 12 || *inches > Most || *feet * 12 + *inches > Most) {
        return std::nullopt;
    }
    return static_cast<Long>(*feet * 12 + *inches);
}

std::string WholeLengthText(Long length, Units units) {
    return units == Units::Metric ? TrimStr(length) : FeetAndInches(length);
}

std::string LengthText(Double inches, Units units) {
    const Long whole = units == Units::Metric ? WholeCentimetres(inches) : WholeInches(inches);
    return WholeLengthText(whole, units);
}

} // namespace tarn
