#pragma once

#include <cstdint>

namespace tarn {

/// The byte of a character in the code page Windows-1252; that of "?" for one that it lacks. The
/// five bytes to which the code page gives no character stand for the control characters of their
/// number.
std::uint8_t ToAnsi(char32_t character);
/// The character of a byte: the inverse of ToAnsi.
char32_t FromAnsi(std::uint8_t byte);

} // namespace tarn
