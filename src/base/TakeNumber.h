#pragma once

#include <string_view>

namespace tarn {

/// Take the number that `text` begins with off it: digits, or digits on both sides of a point;
/// without a sign or an exponent. Returns its text, empty where there is none; `text` stays then.
std::string_view TakeNumber(std::string_view& text);

} // namespace tarn
