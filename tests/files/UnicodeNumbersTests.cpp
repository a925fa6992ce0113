// The table of number characters against the toolkit's own.

#include "base/UnicodeNumbers.h"
#include "files/QtText.h"
#include "project/RoomTesting.h"

#include <QList>

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn {
namespace {

TEST(IsNumberCharacter, AgreesWithTheToolkitOnEveryCharacter) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        ASSERT_EQ(IsNumberCharacter(character), QChar::isNumber(character))
            << static_cast<unsigned>(character);
    }
}

TEST(HasNumberCharacter, AgreesWithTheToolkitOnBytesThatAreNotUtf8Too) {
    constexpr std::string_view Bytes =
        "7a\x80\xB2\xBD\xC2\xC0\xD9\xA6\xE2\x85\xAB\xF0\x9D\x9F\x98\xED\xA0\xFF";
    std::mt19937 random(20260301);
    for (int i = 0; i < 200000; ++i) {
        std::string text;
        for (int length = testing::Below(random, 7); length > 0; --length) {
            text += Bytes[static_cast<std::size_t>(
                testing::Below(random, static_cast<int>(Bytes.size())))];
        }
        const auto characters = ToQt(text).toUcs4();
        const bool expected =
            std::any_of(characters.begin(), characters.end(),
                        [](char32_t character) { return QChar::isNumber(character); });
        ASSERT_EQ(HasNumberCharacter(text), expected)
            << QByteArray::fromStdString(text).toHex().toStdString();
    }
}

} // namespace
} // namespace tarn
