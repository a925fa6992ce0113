// UTF-8 texts counted and changed by characters, and the texts that belong to every part.

#pragma once

#include <string>
#include <string_view>

namespace tarn {

/// Breaks lines in message boxes and reports.
inline constexpr std::string_view CrLf = "\r\n";

/// The application's title: product title of every screen, title of every box.
inline constexpr std::string_view ApplicationTitle = "SOLVANE 2040";

/// The digits of decimal numbers.
inline constexpr std::string_view DecimalDigits = "0123456789";

/// The decimal text of a whole number, without blanks.
std::string TrimStr(long long value);
/// `text` without the blanks at both ends.
std::string TrimStr(std::string_view text);

/// `count` blanks; none for a negative count.
std::string Space(long long count);

/// Number of characters (not bytes) of a UTF-8 text.
long long Len(std::string_view utf8);

/// Whether a byte of a UTF-8 text continues a character instead of beginning one.
constexpr bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The text with the letters a to z in upper case; every other character stays.
std::string UpperCaseLetters(std::string_view text);

/// Whether two texts are the same but for the case of the letters A to Z.
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

/// Whether a character is a control character: U+0000 to U+001F and U+007F to U+009F.
constexpr bool IsControlCharacter(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

/// What no text may hold that is kept.
enum class TextFault {
    None,
    NotUtf8,          ///< a byte that belongs to no character; half a surrogate pair counts as such
    ControlCharacter, ///< IsControlCharacter
    NoCharacter       ///< U+FFFE or U+FFFF
};

/// The first fault of a text.
TextFault FindTextFault(std::string_view utf8);

/// U+FFFD, which stands for what no text may hold.
inline constexpr std::string_view ReplacementCharacter = "\xEF\xBF\xBD";

/// The text as it is shown: with ReplacementCharacter for each fault, and so without any.
std::string ShownText(std::string_view utf8);

/// The text with ReplacementCharacter for each byte that is not UTF-8.
std::string WellFormedText(std::string_view utf8);

/// The text with a blank for each control character: what can stand in one line.
std::string OneLine(std::string_view utf8);

} // namespace tarn
