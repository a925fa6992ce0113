// Which characters stand for a number, in every script.

#pragma once

#include <string_view>

namespace tarn {

/// Whether a character stands for a number: the digits of every script, letters that are numerals
/// (Ⅻ) and signs such as ½ (the general categories Nd, Nl and No of Unicode 14).
bool IsNumberCharacter(char32_t character);

/// Whether a UTF-8 text holds such a character. Bytes that are not UTF-8 are none.
bool HasNumberCharacter(std::string_view utf8);

} // namespace tarn
