// The orders as two tables: the comparison and the pieces to be cut. What a spreadsheet gets.

#pragma once

#include "files/OrderDocument.h"
#include "files/ValueTable.h"

#include <string>

namespace tarn {

/// A row for each roll and lay of each carpet. Lengths are whole inches or centimetres, areas
/// square feet or square metres.
ValueTable ComparisonTable(const OrderDocument& document);

/// A row for each piece of each carpet's best row, in cutting order.
ValueTable PieceTable(const OrderDocument& document);

/// Both tables as CsvOf writes them.
std::string OrderCsv(const OrderDocument& document);

/// Both tables as XlsxOf writes them; raises as it does.
std::string OrderXlsx(const OrderDocument& document);

} // namespace tarn
