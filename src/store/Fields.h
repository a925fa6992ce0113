#pragma once

#include "app/Database.h"
#include "app/Types.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Readings of a field of the current row. Each raises DatabaseError when there is no such field or
/// no current row.

/// The number in a field; nothing for a null. Raises DatabaseError for a text.
std::optional<Double> NumberIn(const Recordset& rows, std::string_view field);

/// The number in a field, null as 0; halves are rounded to even. Raises "Overflow" when it does not
/// fit.
Integer IntegerIn(const Recordset& rows, std::string_view field);
Byte ByteIn(const Recordset& rows, std::string_view field);

/// The text in a field, null as the empty text, a number as its decimal text.
std::string TextIn(const Recordset& rows, std::string_view field);

} // namespace tarn
