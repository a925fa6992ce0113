#pragma once

#include "base/Types.h"

#include <string>
#include <string_view>

namespace tarn {

/// `value` as decimal text by a pattern such as "###0.00", "#,##0.00" or "##0.00 SQ. FT.  ".
///
/// The pattern is one run of the characters # 0 , and . with any other text before and behind it,
/// which is copied. A 0 before the point is a digit that is always printed; the places behind the
/// point are always printed; a comma anywhere before the point groups thousands. The point is the
/// decimal sign and the comma the thousands sign, whatever the locale.
///
/// Halves are rounded away from zero on the decimal text of the value, which has 15 significant
/// digits for a Double and 7 for a Single: so 12.505 prints "12.51" although the nearest Double
/// lies below it. A value that rounds to zero has no sign. Raises "Overflow" when the value is not
/// finite.
std::string Format(Double value, std::string_view pattern);
std::string Format(Single value, std::string_view pattern);

} // namespace tarn
