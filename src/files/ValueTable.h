// Tables of values, as other programs and spreadsheets get them.

#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tarn {

/// What stands in a cell: nothing, a number or a text.
using TableCell = std::variant<std::monostate, std::int64_t, double, std::string>;

/// A table: its name, a head for each column, and rows of as many cells.
struct ValueTable {
    std::string Name;
    std::vector<std::string> Heads;
    std::vector<std::vector<TableCell>> Rows;
};

/// Tables as a CSV text, with an empty line between them. Texts are written as CsvTextCell has
/// them.
std::string CsvOf(const std::vector<ValueTable>& tables);

} // namespace tarn
