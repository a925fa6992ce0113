#include "project/WholeLength.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "project/InchFraction.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <utility>

namespace tarn {

namespace {

constexpr std::string_view Blanks = " \t";

/// Most digits on each side of the point: what is computed from them fits a whole number exactly.
constexpr std::size_t MostDigits = 9;

struct UnitName {
    std::string_view Name;
    LengthUnit Is;
};

constexpr LengthUnit Feet{Units::Imperial, SizePart::Major};
constexpr LengthUnit Inches{Units::Imperial, SizePart::Minor};
constexpr LengthUnit Metres{Units::Metric, SizePart::Major};
constexpr LengthUnit Centimetres{Units::Metric, SizePart::Minor};
constexpr LengthUnit NotTaken{std::nullopt, SizePart::Major};

/// How units are written. Where one name begins another, the longer one stands first.
constexpr std::array<UnitName, 30> UnitNames{{
    {"feet", Feet},
    {"foot", Feet},
    {"ft", Feet},
    {"inches", Inches},
    {"inch", Inches},
    {"ins", Inches},
    {"in", Inches},
    {"''", Inches},
    {"\"", Inches},
    {"'", Feet},
    {"centimetres", Centimetres},
    {"centimetre", Centimetres},
    {"centimeters", Centimetres},
    {"centimeter", Centimetres},
    {"cms", Centimetres},
    {"cm", Centimetres},
    {"millimetres", NotTaken},
    {"millimeters", NotTaken},
    {"mm", NotTaken},
    {"metres", Metres},
    {"metre", Metres},
    {"meters", Metres},
    {"meter", Metres},
    {"m", Metres},
    {"yards", NotTaken},
    {"yard", NotTaken},
    {"yds", NotTaken},
    {"yd", NotTaken},
    {"km", NotTaken},
    {"dm", NotTaken},
}};

/// Quotes as they are set in type, and the plain ones that they stand for.
constexpr std::array<std::pair<std::string_view, std::string_view>, 6> Quotes{{
    {"\u2018", "'"},
    {"\u2019", "'"},
    {"\u2032", "'"},
    {"\u201C", "\""},
    {"\u201D", "\""},
    {"\u2033", "\""},
}};

std::string WithPlainQuotes(std::string_view text) {
    std::string plain(text);
    for (const auto& [set, quote] : Quotes) {
        for (std::size_t at = plain.find(set); at != std::string::npos; at = plain.find(set, at)) {
            plain.replace(at, set.size(), quote);
        }
    }
    return plain;
}

/// The digits on both sides of the point, without zeros that say nothing.
struct Decimal {
    std::string Whole;
    std::string Places;

    bool IsWhole() const { return Places.empty(); }
    std::string Text() const { return Places.empty() ? Whole : Whole + "." + Places; }
};

long long ValueOf(std::string_view digits) {
    long long value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

/// `value` / 10 ^ `places`.
Decimal DecimalOf(long long value, std::size_t places) {
    std::string digits = TrimStr(value);
    digits.insert(0, places - std::min(places, digits.size()), '0');
    Decimal decimal{digits.substr(0, digits.size() - places),
                    digits.substr(digits.size() - places)};
    decimal.Whole.erase(0, decimal.Whole.find_first_not_of('0'));
    decimal.Places.erase(decimal.Places.find_last_not_of('0') + 1);
    return decimal;
}

/// Reads a length from its beginning on. What cannot be read is left.
class Reader {
  public:
    explicit Reader(std::string_view text)
        : rest_(text) {}

    std::string_view Rest() {
        SkipBlanks();
        return rest_;
    }
    bool IsAtEnd() { return Rest().empty(); }
    bool Take(char mark) {
        if (Rest().starts_with(mark)) {
            rest_.remove_prefix(1);
            return true;
        }
        return false;
    }
    std::optional<long long> TakeWhole() {
        SkipBlanks();
        const std::string_view digits = TakeDigits();
        return digits.empty() || digits.size() > MostDigits ? std::nullopt
                                                            : std::optional(ValueOf(digits));
    }
    std::optional<Decimal> TakeDecimal() {
        SkipBlanks();
        const std::string_view whole = TakeDigits();
        std::string_view places;
        if (rest_.starts_with('.')) {
            rest_.remove_prefix(1);
            places = TakeDigits();
        }
        if ((whole.empty() && places.empty()) || whole.size() > MostDigits ||
            places.size() > MostDigits) {
            return std::nullopt;
        }
        Decimal decimal{std::string(whole), std::string(places)};
        decimal.Whole.erase(0, decimal.Whole.find_first_not_of('0'));
        decimal.Places.erase(decimal.Places.find_last_not_of('0') + 1);
        return decimal;
    }
    /// A unit, also one that is written short with a point, "ft.".
    std::optional<LengthUnit> TakeUnit() {
        SkipBlanks();
        for (const UnitName& each : UnitNames) {
            const std::size_t size = each.Name.size();
            if (rest_.size() >= size && EqualsIgnoringCase(rest_.substr(0, size), each.Name)) {
                rest_.remove_prefix(size);
                const bool isMark = each.Name.ends_with('\'') || each.Name.ends_with('"');
                if (!isMark && rest_.starts_with('.')) {
                    rest_.remove_prefix(1);
                }
                return each.Is;
            }
        }
        return std::nullopt;
    }

  private:
    void SkipBlanks() {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(Blanks), rest_.size()));
    }
    std::string_view TakeDigits() {
        const std::size_t count = std::min(rest_.find_first_not_of(DecimalDigits), rest_.size());
        const std::string_view digits = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return digits;
    }

    std::string_view rest_;
};

/// A proper fraction of an inch as a tape measure has them, "3/16".
std::optional<Decimal> TakeFraction(Reader& reader) {
    constexpr std::size_t Places = 6; // enough for 64ths
    constexpr long long One = 1'000'000;
    const auto above = reader.TakeWhole();
    if (!above || !reader.Take('/')) {
        return std::nullopt;
    }
    const auto below = reader.TakeWhole();
    return below && IsInchFraction(*above, *below)
               ? std::optional(DecimalOf(*above * One / *below, Places))
               : std::nullopt;
}

/// Inches, whole or with a fraction: "6", "6.5", "6 1/2", and "1/2" alone where `alone` allows it.
std::optional<Decimal> TakeInches(Reader& reader, bool alone) {
    if (Reader fraction = reader; alone) {
        if (auto inches = TakeFraction(fraction)) {
            reader = fraction;
            return inches;
        }
    }
    auto inches = reader.TakeDecimal();
    if (inches && inches->IsWhole()) {
        Reader behind = reader;
        if (const auto fraction = TakeFraction(behind)) {
            inches->Places = fraction->Places;
            reader = behind;
        }
    }
    return inches;
}

/// A length in its large unit alone.
WholeLength OfLargeUnits(const Decimal& number, Units units) {
    if (number.IsWhole()) {
        return {{number.Whole, {}}, units, SizePart::Major};
    }
    const long long small = ValueOf(number.Places) * SmallUnitsOf(units);
    return {{number.Whole, DecimalOf(small, number.Places.size()).Text()}, units, std::nullopt};
}

/// A length in its small unit alone.
WholeLength OfSmallUnits(const Decimal& number, Units units) {
    const long long whole = ValueOf(number.Whole);
    const int each = SmallUnitsOf(units);
    if (whole < each) {
        return {{{}, number.Text()}, units, SizePart::Minor};
    }
    const Decimal rest{DecimalOf(whole % each, 0).Whole, number.Places};
    return {{DecimalOf(whole / each, 0).Whole, rest.Text()}, units, std::nullopt};
}

/// A length in one unit: 12', 6 1/2", 3.66m.
std::optional<WholeLength> ReadOneUnit(std::string_view text) {
    Reader reader(text);
    auto number = reader.TakeDecimal();
    auto unit = number ? reader.TakeUnit() : std::nullopt;
    if (!unit) {
        reader = Reader(text);
        number = TakeInches(reader, true);
        unit = number ? reader.TakeUnit() : std::nullopt;
        if (!unit || unit->In != Units::Imperial || unit->Part != SizePart::Minor) {
            return std::nullopt;
        }
    }
    if (!unit->In || !reader.IsAtEnd()) {
        return std::nullopt;
    }
    return unit->Part == SizePart::Major ? OfLargeUnits(*number, *unit->In)
                                         : OfSmallUnits(*number, *unit->In);
}

/// A length in both units: 12'6", 12'-6", 3m 66cm.
std::optional<WholeLength> ReadTwoUnits(std::string_view text) {
    Reader reader(text);
    const auto large = reader.TakeDecimal();
    const auto largeUnit = large ? reader.TakeUnit() : std::nullopt;
    if (!largeUnit || !large->IsWhole() || !largeUnit->In || largeUnit->Part != SizePart::Major) {
        return std::nullopt;
    }
    const bool isImperial = *largeUnit->In == Units::Imperial;
    const bool isDashed = isImperial && reader.Take('-');
    const auto small = isImperial ? TakeInches(reader, !isDashed) : reader.TakeDecimal();
    const auto smallUnit = small ? reader.TakeUnit() : std::nullopt;
    if (!smallUnit || smallUnit->In != largeUnit->In || smallUnit->Part != SizePart::Minor ||
        !reader.IsAtEnd()) {
        return std::nullopt;
    }
    return WholeLength{{large->Whole, small->Text()}, *largeUnit->In, std::nullopt};
}

/// Feet and inches with a dash between them: 12-6.
std::optional<WholeLength> ReadDashed(std::string_view text) {
    Reader reader(text);
    const auto feet = reader.TakeDecimal();
    if (!feet || !feet->IsWhole() || !reader.Take('-')) {
        return std::nullopt;
    }
    const auto inches = TakeInches(reader, false);
    if (!inches) {
        return std::nullopt;
    }
    if (!reader.IsAtEnd()) {
        const auto unit = reader.TakeUnit();
        if (!unit || unit->In != Units::Imperial || unit->Part != SizePart::Minor ||
            !reader.IsAtEnd()) {
            return std::nullopt;
        }
    }
    return WholeLength{{feet->Whole, inches->Text()}, Units::Imperial, std::nullopt};
}

/// What Val reads; nothing for a number too large for a Double.
std::optional<ValReading> TryToRead(std::string_view text) {
    try {
        return ReadVal(text);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

/// The unit that is all that stands behind the number of a text.
std::optional<LengthUnit> UnitBehindNumber(const std::string& plain) {
    const auto reading = TryToRead(plain);
    if (!reading || !reading->Readable) {
        return std::nullopt;
    }
    Reader reader(std::string_view(plain).substr(reading->Length));
    const auto unit = reader.TakeUnit();
    return reader.IsAtEnd() ? unit : std::nullopt;
}

bool HoldsNumber(std::string_view text) {
    const auto reading = TryToRead(text);
    return !reading || reading->Value != 0;
}

/// What is wrong with a text that is no WholeLength.
SpreadSize::Fault FaultOfNumber(const std::string& text, SizePart field, Units units) {
    const auto unit = UnitBehindNumber(WithPlainQuotes(text));
    if (unit && !unit->In) {
        return SpreadSize::Fault::UnitNotTaken;
    }
    if (unit && *unit->In != units) {
        return SpreadSize::Fault::OtherUnits;
    }
    const bool isRefused = TryToRead(text) && IsRefusedSizeText(text);
    // Such as +6" in the field of feet, where Val would read 6 feet.
    const bool isInWrongField = unit && unit->Part != field;
    return isRefused || isInWrongField ? SpreadSize::Fault::Unreadable : SpreadSize::Fault::None;
}

SizePart OtherOf(SizePart field) {
    return field == SizePart::Major ? SizePart::Minor : SizePart::Major;
}

std::string& TextOf(SizeParts& parts, SizePart field) {
    return field == SizePart::Major ? parts.Major : parts.Minor;
}

const std::string& TextOf(const SizeParts& parts, SizePart field) {
    return field == SizePart::Major ? parts.Major : parts.Minor;
}

/// Put the length that one field holds in its place; what is wrong with it, if anything.
SpreadSize::Fault SpreadField(const SizeParts& typed, SizePart field, Units units,
                              SizeParts& spread) {
    const std::string& text = TextOf(typed, field);
    const auto length = ReadWholeLength(text);
    if (!length) {
        return FaultOfNumber(text, field, units);
    }
    if (length->In != units) {
        return SpreadSize::Fault::OtherUnits;
    }
    if (length->Alone == field) {
        TextOf(spread, field) = TextOf(length->Parts, field);
    } else if (HoldsNumber(TextOf(typed, OtherOf(field)))) {
        return SpreadSize::Fault::BesideNumber;
    } else {
        spread = length->Parts;
    }
    return SpreadSize::Fault::None;
}

bool IsNegative(std::string_view text) {
    const auto reading = TryToRead(text);
    return reading && reading->Value < 0;
}

} // namespace

std::optional<LengthUnit> ReadLengthUnit(std::string_view text) {
    const std::string plain = WithPlainQuotes(text);
    Reader reader(plain);
    const auto unit = reader.TakeUnit();
    return reader.IsAtEnd() ? unit : std::nullopt;
}

std::optional<WholeLength> ReadWholeLength(std::string_view text) {
    const std::string plain = WithPlainQuotes(text);
    if (auto length = ReadOneUnit(plain)) {
        return length;
    }
    auto length = ReadTwoUnits(plain);
    return length ? length : ReadDashed(plain);
}

std::optional<std::string> WithoutZeroPart(std::string_view text) {
    const auto reading = TryToRead(text);
    const auto length = ReadWholeLength(text);
    if (!reading || reading->Value != 0 || !length || length->Parts.Minor.empty()) {
        return std::nullopt;
    }
    return length->Parts.Minor + (length->In == Units::Metric ? "cm" : "\"");
}

SpreadSize Spread(const SizeParts& typed, Units units) {
    SpreadSize size{typed, SpreadSize::Fault::None, SizePart::Major};
    for (const SizePart field : {SizePart::Major, SizePart::Minor}) {
        const SpreadSize::Fault fault = SpreadField(typed, field, units, size.Parts);
        if (fault != SpreadSize::Fault::None) {
            return {typed, fault, field};
        }
    }
    for (const SizePart field : {SizePart::Major, SizePart::Minor}) {
        if (IsNegative(TextOf(typed, field))) {
            return {typed, SpreadSize::Fault::Negative, field};
        }
    }
    return size;
}

} // namespace tarn
