#include "files/TextEncoding.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace std::string_literals;
using Misfits = std::vector<MisfitBytes>;

TEST(DecodeText, TakesATextWithoutAnythingAsItIs) {
    for (const std::string& text : {""s, "a\nb"s, "\xFF\x81 caf\xE9"s, "a\0b"s}) {
        const DecodedText decoded = DecodeText(text, "");
        EXPECT_EQ(decoded.Utf8, text);
        EXPECT_TRUE(decoded.Misfits.empty());
    }
}

TEST(DecodeText, LeavesTheMarkOut) {
    EXPECT_EQ(DecodeText("\xEF\xBB\xBFwidth", "").Utf8, "width");
    EXPECT_EQ(DecodeText("\xFF\xFEw\0"s, "").Utf8, "w");
    EXPECT_EQ(DecodeText("\xFE\xFF\0w"s, "").Utf8, "w");
    EXPECT_EQ(DecodeText("\xFE\xFF\0w"s, "").Encoding, "UTF-16BE");
}

TEST(DecodeText, BelievesTheMarkBeforeTheName) {
    EXPECT_EQ(DecodeText("\xEF\xBB\xBF\xC3\xBC", "windows-1252").Utf8, "ü");
    EXPECT_EQ(DecodeText("\xFF\xFE\xFC\0"s, "utf-8").Utf8, "ü");
}

TEST(DecodeText, ConvertsFromTheEncodingWhateverTheCaseOfItsName) {
    for (const char* name : {"windows-1252", "WINDOWS-1252", "CP1252"}) {
        EXPECT_EQ(DecodeText("\x80 5 \xE9\x93", name).Utf8, "€ 5 é“") << name;
    }
    EXPECT_EQ(DecodeText("\xA4", "ISO-8859-15").Utf8, "€");
    EXPECT_EQ(DecodeText("\x8F\xC7", "macintosh").Utf8, "è«");
}

TEST(DecodeText, ConvertsLongTexts) {
    std::string text;
    std::string expected;
    for (int i = 0; i < 100'000; ++i) {
        text += '\xFC';
        expected += "ü";
    }
    EXPECT_EQ(DecodeText(text, "ISO-8859-1").Utf8, expected);
}

TEST(DecodeText, KeepsWhatAnEncodingHoldsBackUntilItsEnd) {
    // In TCVN a letter waits for a tone mark that may follow.
    EXPECT_EQ(DecodeText("xa", "TCVN").Utf8, "xa");
}

TEST(DecodeText, TellsMisfitsByLineAndCharacter) {
    EXPECT_EQ(DecodeText("\xFC\x81\r\nab\r\x81\n\n\x81", "windows-1252").Misfits,
              (Misfits{{1, 2, "0x81"}, {3, 1, "0x81"}, {5, 1, "0x81"}}));
    EXPECT_EQ(DecodeText("\xC3\xBC\xC3", "UTF-8").Misfits, (Misfits{{1, 2, "0xC3"}}))
        << "the text ends within a character";
    EXPECT_EQ(DecodeText("\xFF\xFE\x3D\xD8"
                         "a\0\x3D"s,
                         "")
                  .Misfits,
              (Misfits{{1, 1, "0x3D 0xD8"}, {1, 3, "0x3D"}}));
    EXPECT_EQ(DecodeText("a\x81z", "windows-1252").Utf8, "a\uFFFDz");
}

TEST(DecodeText, CountsTheMisfitsThatItDoesNotTell) {
    const DecodedText decoded = DecodeText(std::string(50'000, '\x81'), "windows-1252");
    EXPECT_EQ(decoded.Misfits.size(), MostMisfits);
    EXPECT_EQ(decoded.MoreMisfits, 50'000 - 20);
}

TEST(DecodeText, RefusesNamesOfNoEncoding) {
    for (const char* name :
         {"klingon", " ", "windows-1252//IGNORE", "UTF-8//TRANSLIT", "../windows-1252", "a\nb"}) {
        EXPECT_THROW(DecodeText("", name), UnknownEncoding) << name;
        EXPECT_THROW(DecodeText("\xEF\xBB\xBFx", name), UnknownEncoding) << name;
    }
    try {
        DecodeText("x", "klingon");
        FAIL();
    } catch (const UnknownEncoding& error) {
        EXPECT_STREQ(error.what(),
                     "The encoding \"klingon\" is not known; \"iconv -l\" lists those that are.");
    }
}

} // namespace
} // namespace tarn
