// Files of other kinds that are taken for a CSV file.

#pragma once

#include <string_view>

namespace tarn {

/// What a file is that is no text, by its first bytes, as the user would call it: "an Excel
/// workbook (XLSX)"; empty for what may be a text.
std::string_view ForeignKind(std::string_view bytes);

} // namespace tarn
