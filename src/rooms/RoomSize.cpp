#include "rooms/RoomSize.h"

#include "app/Numbers.h"
#include "app/QtText.h"
#include "app/RunTimeError.h"
#include "app/Text.h"

#include <QList>

#include <algorithm>
#include <limits>

namespace tarn {

namespace {

Integer SmallUnits(bool metric) {
    return metric ? 100 : 12;
}

/// Digits of every script, and signs such as ½ that stand for digits: dropping one would shorten
/// the room.
bool HasDigit(std::string_view utf8) {
    const auto characters = ToQt(utf8).toUcs4();
    return std::any_of(characters.begin(), characters.end(),
                       [](char32_t character) { return QChar::isNumber(character); });
}

bool HasBlankBetweenDigits(std::string_view text) {
    constexpr std::string_view Digits = "0123456789";
    const std::size_t first = text.find_first_of(Digits);
    if (first == std::string_view::npos) {
        return false;
    }
    const std::size_t last = text.find_last_of(Digits);
    return text.substr(first, last - first).find_first_of(" \t") != std::string_view::npos;
}

/// The size that two texts make, not rounded.
Double Joined(std::string_view major, std::string_view minor, bool metric) {
    return Val(major) * SmallUnits(metric) + Val(minor);
}

bool IsReadableAndRefused(std::string_view text) {
    try {
        return IsRefusedSizeText(text);
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace

SizeParts SplitSize(Integer size, bool metric) {
    const Integer units = SmallUnits(metric);
    const Double major = Int(static_cast<Double>(size) / units);
    return {TrimStr(static_cast<long long>(major)), TrimStr(Mod(size, units))};
}

bool IsRefusedSizeText(std::string_view text) {
    const std::size_t length = ReadVal(text).Length;
    return HasDigit(text.substr(length)) || HasBlankBetweenDigits(text.substr(0, length));
}

std::optional<SizePart> RefusedPart(std::string_view major, std::string_view minor) {
    if (IsReadableAndRefused(major)) {
        return SizePart::Major;
    }
    return IsReadableAndRefused(minor) ? std::optional(SizePart::Minor) : std::nullopt;
}

std::optional<Integer> ReadSize(std::string_view major, std::string_view minor, bool metric) {
    if (RefusedPart(major, minor)) {
        return std::nullopt;
    }
    const Double size = Joined(major, minor, metric);
    if (size < std::numeric_limits<Integer>::min()) {
        return std::nullopt;
    }
    const Integer whole = CInt(size);
    return whole < 0 ? std::nullopt : std::optional<Integer>(whole);
}

} // namespace tarn
