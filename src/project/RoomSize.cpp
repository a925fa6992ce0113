#include "project/RoomSize.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/UnicodeNumbers.h"
#include "base/Words.h"
#include "project/WholeLength.h"

namespace tarn {

namespace {

bool HasBlankBetweenDigits(std::string_view text) {
    const std::size_t first = text.find_first_of(DecimalDigits);
    if (first == std::string_view::npos) {
        return false;
    }
    const std::size_t last = text.find_last_of(DecimalDigits);
    return text.substr(first, last - first).find_first_of(" \t") != std::string_view::npos;
}

} // namespace

std::string_view SmallUnitName(Units units) {
    return units == Units::Metric ? Words("centimetres") : Words("inches");
}

SizeParts SplitSize(Integer size, Units units) {
    const Integer small = SmallUnitsOf(units);
    const Double major = Int(static_cast<Double>(size) / small);
    return {TrimStr(static_cast<long long>(major)), TrimStr(Mod(size, small))};
}

bool IsRefusedSizeText(std::string_view text) {
    const std::size_t length = ReadVal(text).Length;
    // Digits of every script, and signs such as ½ that stand for digits: dropping one would shorten
    // the room.
    return HasNumberCharacter(text.substr(length)) || HasBlankBetweenDigits(text.substr(0, length));
}

Double JoinedSize(const SizeParts& parts, Units units) {
    return Val(parts.Major) * SmallUnitsOf(units) + Val(parts.Minor);
}

std::optional<Integer> ReadSize(const SizeParts& typed, Units units) {
    const SpreadSize size = Spread(typed, units);
    if (size.Why != SpreadSize::Fault::None) {
        return std::nullopt;
    }
    return CInt(JoinedSize(size.Parts, units));
}

} // namespace tarn
