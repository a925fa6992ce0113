#pragma once

#include "files/OrderDocument.h"

#include <string>

namespace tarn {

/// The orders as a spreadsheet (XLSX) with a sheet for the comparison and one for the pieces. All
/// texts are stored as texts, never as formulas. Raises OutputFileError when the document cannot be
/// made.
std::string OrderXlsx(const OrderDocument& document);

} // namespace tarn
