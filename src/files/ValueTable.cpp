#include "files/ValueTable.h"

#include "files/CsvText.h"

#include <array>
#include <charconv>

namespace tarn {

namespace {

/// Numbers as they are read back to the same value.
std::string NumberText(double number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return {digits.data(), end};
}

std::string CsvCell(const TableCell& cell) {
    if (const auto* text = std::get_if<std::string>(&cell)) {
        return CsvTextCell(*text);
    }
    if (const auto* whole = std::get_if<std::int64_t>(&cell)) {
        return std::to_string(*whole);
    }
    const auto* number = std::get_if<double>(&cell);
    return number == nullptr ? std::string() : NumberText(*number);
}

void AppendTable(std::string& csv, const ValueTable& table) {
    AppendCsvRecord(csv, table.Heads);
    for (const auto& row : table.Rows) {
        std::vector<std::string> fields;
        fields.reserve(row.size());
        for (const TableCell& cell : row) {
            fields.push_back(CsvCell(cell));
        }
        AppendCsvRecord(csv, fields);
    }
}

} // namespace

std::string CsvOf(const std::vector<ValueTable>& tables) {
    std::string csv;
    for (const ValueTable& table : tables) {
        csv += csv.empty() ? "" : "\r\n";
        AppendTable(csv, table);
    }
    return csv;
}

} // namespace tarn
