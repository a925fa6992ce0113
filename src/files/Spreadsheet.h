#pragma once

#include "files/ValueTable.h"

#include <string>
#include <vector>

namespace tarn {

/// A spreadsheet (XLSX) with a sheet for each table, whose heads are bold and stay in sight. All
/// texts are stored as texts, never as formulas. The same tables give the same bytes. Raises
/// OutputFileError when the document cannot be made.
std::string XlsxOf(const std::vector<ValueTable>& tables);

} // namespace tarn
