#include "project/RoomTesting.h"

#include <array>

namespace tarn::testing {

std::string RandomText(std::mt19937& random, int most) {
    static constexpr std::array Characters{
        "a",  "Z",      "7",      " ",      "-",      "\"",     "\"\"",       ",",
        "\n", "\r",     "\t",     "'",      ";",      "é",      "ß",          "Ж",
        "ש",  "ع",      "浴",     "室",     "\u0301", "\uFEFF", "\u2028",     "\u00A0",
        "½",  "\uFFFD", "\u007F", "\u200F", "क",      "=",      "\U0001F6C1", "\U00020BB7"};
    std::string text;
    int length = Below(random, most + 1);
    while (length > 0) {
        const std::string character =
            Characters[static_cast<std::size_t>(Below(random, Characters.size()))];
        length -= character == "\"\"" ? 2 : 1;
        if (length >= 0) {
            text += character;
        }
    }
    return text;
}

} // namespace tarn::testing
