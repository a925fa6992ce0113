#include "project/RoomSize.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/UnicodeNumbers.h"

#include <limits>

namespace tarn {

namespace {

/// How many of the minor part make one of the major part.
Integer SmallUnits(Units units) {
    return units == Units::Metric ? 100 : 12;
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

bool IsReadableAndRefused(std::string_view text) {
    try {
        return IsRefusedSizeText(text);
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace

std::string_view SmallUnitName(Units units) {
    return units == Units::Metric ? "centimetres" : "inches";
}

SizeParts SplitSize(Integer size, Units units) {
    const Integer small = SmallUnits(units);
    const Double major = Int(static_cast<Double>(size) / small);
    return {TrimStr(static_cast<long long>(major)), TrimStr(Mod(size, small))};
}

bool IsRefusedSizeText(std::string_view text) {
    const std::size_t length = ReadVal(text).Length;
    // Digits of every script, and signs such as ½ that stand for digits: dropping one would shorten
    // the room.
    return HasNumberCharacter(text.substr(length)) || HasBlankBetweenDigits(text.substr(0, length));
}

std::optional<SizePart> RefusedPart(std::string_view major, std::string_view minor) {
    if (IsReadableAndRefused(major)) {
        return SizePart::Major;
    }
    return IsReadableAndRefused(minor) ? std::optional(SizePart::Minor) : std::nullopt;
}

Double JoinedSize(std::string_view major, std::string_view minor, Units units) {
    return Val(major) * SmallUnits(units) + Val(minor);
}

std::optional<Integer> ReadSize(std::string_view major, std::string_view minor, Units units) {
    if (RefusedPart(major, minor)) {
        return std::nullopt;
    }
    const Double size = JoinedSize(major, minor, units);
    if (size < std::numeric_limits<Integer>::min()) {
        return std::nullopt;
    }
    const Integer whole = CInt(size);
    return whole < 0 ? std::nullopt : std::optional<Integer>(whole);
}

} // namespace tarn
