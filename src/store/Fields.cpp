#include "store/Fields.h"

#include "app/Numbers.h"
#include "app/Text.h"

#include <array>
#include <charconv>

namespace tarn {

namespace {

std::string DecimalText(Double value) {
    std::array<char, 32> buffer{}; // the shortest exact text of a Double has at most 24 characters
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return std::string(buffer.data(), end);
}

} // namespace

std::optional<Double> NumberIn(const Recordset& rows, std::string_view field) {
    const FieldValue value = rows.Field(field);
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return static_cast<Double>(*whole);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return *number;
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        throw DatabaseError("The field " + std::string(field) +
                            " should hold a number and holds \"" + *text + "\".");
    }
    return std::nullopt;
}

Integer IntegerIn(const Recordset& rows, std::string_view field) {
    return CInt(NumberIn(rows, field).value_or(0));
}

Byte ByteIn(const Recordset& rows, std::string_view field) {
    return ToByte(CLng(NumberIn(rows, field).value_or(0)));
}

std::string TextIn(const Recordset& rows, std::string_view field) {
    const FieldValue value = rows.Field(field);
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return TrimStr(*whole);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return DecimalText(*number);
    }
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? std::string() : *text;
}

} // namespace tarn
