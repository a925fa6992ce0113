#include "base/UnicodeNumbers.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(IsNumberCharacter, IsTrueForDigitsNumeralsAndFractions) {
    for (const char32_t character :
         {U'0', U'9', U'½', U'²', U'٦', U'Ⅻ', U'１', U'〇', U'\U0001D7D8'}) {
        EXPECT_TRUE(IsNumberCharacter(character)) << static_cast<unsigned>(character);
    }
    for (const char32_t character : {U'\0', U'/', U':', U'a', U'\'', U' ', U'ш', U'室', U'\uFFFD',
                                     U'\U0001F6C1', U'\U0010FFFF', char32_t{0xFFFFFFFF}}) {
        EXPECT_FALSE(IsNumberCharacter(character)) << static_cast<unsigned>(character);
    }
}

TEST(HasNumberCharacter, FindsOneAnywhereInAText) {
    for (const char* text : {"7", "ft 7", "½", "ш٦", "a\U0001D7D8", "室1室"}) {
        EXPECT_TRUE(HasNumberCharacter(text)) << text;
    }
    for (const char* text : {"", "ft", "шעع", "室", "\U0001F6C1"}) {
        EXPECT_FALSE(HasNumberCharacter(text)) << text;
    }
}

TEST(HasNumberCharacter, GoesOnBehindBytesThatAreNotUtf8) {
    for (const char* text : {"\xFF\x37", "\xE2\x37", "\xE2\x82\x37", "\xF0\x9F\x37", "\x80\x37"}) {
        EXPECT_TRUE(HasNumberCharacter(text));
    }
    // 7 in a form that is too long, half a character, a surrogate, beyond the last character.
    for (const char* text : {"\xC0\xB7", "\xE0\x80\xB7", "\xC2", "\xE2\x85", "\xED\xA0\x80",
                             "\xF5\x80\x80\x80", "\xF8\x80\x80\x80"}) {
        EXPECT_FALSE(HasNumberCharacter(text));
    }
}

} // namespace
} // namespace tarn
