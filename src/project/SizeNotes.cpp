#include "project/SizeNotes.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "project/WholeLength.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tarn {

namespace {

constexpr auto SignNotTaken = Words("A sign is not taken");

bool IsSign(char c) {
    return c == '-' || c == '+';
}

/// A letter of any language, seen byte by byte.
bool IsLetter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || byte >= 0x80U;
}

bool HasSize(std::string_view text) {
    return text.find_first_of("123456789") != std::string_view::npos;
}

/// The size that the user may have meant: its digits with the last comma or point as the point.
std::string Meant(std::string_view typed) {
    const std::size_t point = typed.find_last_of(",.");
    std::string number;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (DecimalDigits.find(typed[i]) != std::string_view::npos) {
            number += typed[i];
        } else if (i == point && i + 1 < typed.size()) {
            number += number.empty() ? "0." : ".";
        }
    }
    return number;
}

std::string NumberAlone(std::string_view what, std::string_view standing) {
    return Words("%1: type the number alone, such as %2", what,
                 HasSize(standing) ? Meant(standing) : std::string("12"));
}

/// How a text with a comma is written with a point.
std::string WithPoint(const std::string& typed) {
    std::string pointed = typed;
    pointed[pointed.find_last_of(',')] = '.';
    pointed.erase(std::remove(pointed.begin(), pointed.end(), ','), pointed.end());
    if (ReadWholeLength(pointed)) {
        return TrimStr(pointed);
    }
    const bool isNumber = typed.find_first_not_of("0123456789,. \t") == std::string::npos;
    return isNumber && HasSize(typed) ? Meant(typed) : "3.45";
}

/// The same length, whether `dropped` stands before it or not: 6" after 0'.
bool IsSameLength(std::string_view dropped, std::string_view standing) {
    const auto length = ReadWholeLength(standing);
    const auto typed = ReadWholeLength(std::string(dropped).append(standing));
    return length && typed && length->Parts == typed->Parts && length->In == typed->In;
}

/// What it means that the 0 of 0'6 or 0-6 was dropped: the number behind it stands for feet. Empty
/// for nothing.
std::string ZeroPartNote(std::string_view dropped, std::string_view standing, Units units) {
    const auto zero = ReadWholeLength(dropped);
    const bool isZeroUnit = zero && zero->In == units && zero->Alone == SizePart::Major;
    const auto typed = ReadWholeLength(std::string(dropped).append(standing));
    const bool isDashed =
        typed && typed->In == units && !typed->Alone && typed->Parts.Major.empty();
    if (dropped.empty() || !(isZeroUnit || isDashed) || !HasSize(standing)) {
        return {};
    }
    return Words("%1 is dropped: for %2 type %3", TrimStr(dropped), SmallUnitName(units),
                 Meant(standing) + (units == Units::Metric ? "cm" : "\""));
}

/// A text as a note quotes it.
std::string Quoted(const std::string& typed) {
    constexpr std::size_t Most = 24;
    std::string text = TrimStr(typed);
    if (Len(text) <= static_cast<long long>(Most)) {
        return text;
    }
    std::size_t end = Most;
    while (end > 0 && ContinuesCharacter(text[end])) {
        --end;
    }
    return text.substr(0, end) + "..";
}

/// What is stored of a size; nothing when it cannot be stored.
std::optional<Integer> StoredSize(const SizeParts& typed, Units units) {
    try {
        return ReadSize(typed, units);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// The part of a text that Val reads, without the blanks around it.
std::string NumberIn(const std::string& text) {
    return TrimStr(std::string_view(text).substr(0, ReadVal(text).Length));
}

/// A size in its two units, without a part that is empty.
std::string SizeTextOf(const SizeParts& parts, Units units) {
    const bool isMetric = units == Units::Metric;
    std::string text;
    if (!parts.Major.empty()) {
        text = parts.Major + (isMetric ? " m" : "'");
    }
    if (!parts.Minor.empty()) {
        text += (isMetric && !text.empty() ? " " : "") + parts.Minor + (isMetric ? " cm" : "\"");
    }
    return text;
}

bool HasEmptySize(const Room& room) {
    return room.Width == 0 || room.Length == 0;
}

/// "3", "3 and 5", "3, 5 and 7": at most ten of them, and how many more there are.
std::string Listed(const std::vector<std::size_t>& numbers) {
    constexpr std::size_t Most = 10;
    const std::size_t shown = std::min(numbers.size(), Most);
    const std::size_t more = numbers.size() - shown;
    std::string list;
    for (std::size_t i = 0; i < shown; ++i) {
        const bool isLast = i > 0 && i + 1 == shown && more == 0;
        const std::string number = TrimStr(static_cast<long long>(numbers[i]));
        if (isLast) {
            list = Words("%1 and %2", list, number);
        } else {
            list += (i == 0 ? "" : ", ") + number;
        }
    }
    return more == 0 ? list : Words("%1 and %2 more", list, TrimStr(static_cast<long long>(more)));
}

} // namespace

std::string DroppedNote(std::string_view dropped, std::string_view standing, Units units) {
    const std::string typed = std::string(dropped).append(standing);
    if (!dropped.empty() && IsSameLength(dropped, standing)) {
        return {};
    }
    const std::size_t comma = typed.find_last_of(',');
    if (comma != std::string::npos &&
        (comma < dropped.size() || HasSize(std::string_view(typed).substr(comma)))) {
        return Words("A comma is not taken: type %1",
                     HasSize(standing) ? WithPoint(typed) : std::string("3.45"));
    }
    if (std::string note = ZeroPartNote(dropped, standing, units); !note.empty()) {
        return note;
    }
    const bool isNegative = !standing.empty() && standing.front() == '-';
    if (isNegative || std::any_of(dropped.begin(), dropped.end(), IsSign)) {
        return NumberAlone(SignNotTaken, standing);
    }
    if (std::any_of(dropped.begin(), dropped.end(), IsLetter)) {
        return NumberAlone(Words("Letters are not taken"), standing);
    }
    const bool hasMark = dropped.find_first_not_of("0. \t") != std::string_view::npos;
    return hasMark ? NumberAlone(Words("Only a number is taken"), standing) : std::string();
}

std::string RefusedNote(const SizeParts& typed, Units units) {
    using Fault = SpreadSize::Fault;
    const SpreadSize size = Spread(typed, units);
    const std::string& text = size.Wrong == SizePart::Major ? typed.Major : typed.Minor;
    const bool isMetric = units == Units::Metric;
    switch (size.Why) {
    case Fault::Unreadable: {
        std::string note = DroppedNote({}, text, units);
        return !note.empty() ? note
               : isMetric
                   ? Words("%1 is not taken: type it like 3.66, 3.66m or 366cm", Quoted(text))
                   : Words("%1 is not taken: type it like 6.5, 6 1/2\" or 12'6\"", Quoted(text));
    }
    case Fault::Negative:
        return NumberAlone(SignNotTaken, text);
    case Fault::OtherUnits:
    case Fault::UnitNotTaken:
        return isMetric ? Words("Only metres and centimetres are taken here: type it like 3.66m")
                        : Words("Only feet and inches are taken here: type it like 12'6\"");
    case Fault::BesideNumber:
        return Words("%1 is a whole length: empty the field beside it", Quoted(text));
    case Fault::None:
        break;
    }
    return {};
}

std::string KeptNote(const SizeParts& typed, Units units) {
    constexpr Double RoundingError = 1e-6;
    const auto kept = StoredSize(typed, units);
    if (!kept) {
        return {};
    }
    const SizeParts numbers = Spread(typed, units).Parts;
    const Double exact = JoinedSize(numbers, units);
    if (std::abs(exact - *kept) < RoundingError) {
        return {};
    }
    SizeParts keptParts = SplitSize(*kept, units);
    if (units == Units::Metric && keptParts.Major == "0") {
        keptParts.Major.clear();
    }
    const SizeParts typedParts{NumberIn(numbers.Major), NumberIn(numbers.Minor)};
    return Words("Kept as %1 (typed %2)", SizeTextOf(keptParts, units),
                 SizeTextOf(typedParts, units));
}

bool IsEmptySize(const SizeParts& typed, Units units) {
    return StoredSize(typed, units) == Integer{0};
}

std::string EmptySizeNote(bool isWidthEmpty, bool isLengthEmpty) {
    if (isWidthEmpty && isLengthEmpty) {
        return Words("Width and length are empty and count as 0.");
    }
    if (isWidthEmpty || isLengthEmpty) {
        return isWidthEmpty ? Words("The width is empty and counts as 0.")
                            : Words("The length is empty and counts as 0.");
    }
    return {};
}

std::string EmptyRoomsText(const std::vector<Room>& before, const std::vector<Room>& now) {
    std::vector<std::size_t> numbers;
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (HasEmptySize(now[i]) &&
            std::find(before.begin(), before.end(), now[i]) == before.end()) {
            numbers.push_back(i + 1);
        }
    }
    if (numbers.empty()) {
        return {};
    }
    if (numbers.size() == 1) {
        return Words("Room %1 has no width or no length: it is stored with 0, and nothing is cut "
                     "for it.",
                     Listed(numbers));
    }
    return Words("Rooms %1 have no width or no length: they are stored with 0, and nothing is cut "
                 "for them.",
                 Listed(numbers));
}

} // namespace tarn
