// The orders as two tables: the comparison and the pieces to be cut. What a spreadsheet gets.

#pragma once

#include "files/OrderDocument.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarn {

/// What stands in a cell: nothing, a number or a text.
using TableCell = std::variant<std::monostate, std::int64_t, double, std::string>;

/// A table: its name, a head for each column, and rows of as many cells.
struct ValueTable {
    std::string Name;
    std::vector<std::string_view> Heads;
    std::vector<std::vector<TableCell>> Rows;
};

/// A row for each roll and lay of each carpet. Lengths are whole inches or centimetres, areas
/// square feet or square metres.
ValueTable ComparisonTable(const OrderDocument& document);

/// A row for each piece of each carpet's best row, in cutting order.
ValueTable PieceTable(const OrderDocument& document);

/// Both tables as a CSV text, with an empty line between them. Texts are written as CsvTextCell has
/// them.
std::string OrderCsv(const OrderDocument& document);

} // namespace tarn
