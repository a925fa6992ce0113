// The description of a font, byte for byte.

#include "base/Text.h"
#include "text/AnsiText.h"
#include "text/LogicalFont.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <set>

namespace tarn {
namespace {

constexpr std::size_t FaceNameBegin = 28;

/// The bytes of the face name alone.
std::string FaceBytes(std::string_view name) {
    FontRecord record;
    record.FaceName = name;
    const LogicalFont font = EncodeFont(record);
    return {font.begin() + FaceNameBegin, font.end()};
}

// --- the layout ---

TEST(LogicalFont, LaysTheDefaultsOut) {
    const LogicalFont expected{
        0x0A, 0x00, 0x00, 0x00,                       // height 10
        0x06, 0x00, 0x00, 0x00,                       // width 6
        0x00, 0x00, 0x00, 0x00,                       // escapement
        0x00, 0x00, 0x00, 0x00,                       // orientation
        0x58, 0x02, 0x00, 0x00,                       // weight 600
        0x00, 0x00, 0x00,                             // italic, underline, strike-out
        0x00, 0x00, 0x00, 0x00, 0x00,                 // character set to pitch and family
        'V',  'e',  'r',  'd',  'a',  'n', 'a', 0x00, // the face, ended by a NUL
        ' ',  ' ',  ' ',  ' ',  ' ',  ' ', ' ', ' ',  ' ', ' ', ' ', ' ', ' ', ' ', //
        ' ',  ' ',  ' ',  ' ',  ' ',  ' ', ' ', ' ',  ' ', ' ', ' ', ' ', ' ', ' ', //
        ' ',  ' ',  ' ',  ' ',  ' ',  ' ', ' ', ' ',  ' ', ' ', ' ', ' ', ' ', ' '};
    EXPECT_EQ(EncodeFont(FontRecord()), expected);
    EXPECT_EQ(DecodeFont(expected), FontRecord());
}

TEST(LogicalFont, LaysEveryFieldOutInItsPlace) {
    FontRecord record;
    record.Height = -2;
    record.Width = std::numeric_limits<Long>::min();
    record.Escapement = std::numeric_limits<Long>::max();
    record.Orientation = 0x12345678;
    record.Weight = -700;
    record.Italic = 1;
    record.UnderLine = 2;
    record.StrikeOut = 255;
    record.CharacterSet = 4;
    record.OutputPrecision = 5;
    record.ClipPrecision = 6;
    record.Quality = 7;
    record.PitchAndFamily = 0x80;
    record.FaceName = FaceField("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMN");
    const LogicalFont expected{
        0xFE, 0xFF, 0xFF, 0xFF,                                                    //
        0x00, 0x00, 0x00, 0x80,                                                    //
        0xFF, 0xFF, 0xFF, 0x7F,                                                    //
        0x78, 0x56, 0x34, 0x12,                                                    //
        0x44, 0xFD, 0xFF, 0xFF,                                                    //
        0x01, 0x02, 0xFF,                                                          //
        0x04, 0x05, 0x06, 0x07, 0x80,                                              //
        '0',  '1',  '2',  '3',  '4',  '5', '6', '7', '8', '9', 'a', 'b', 'c', 'd', //
        'e',  'f',  'g',  'h',  'i',  'j', 'k', 'l', 'm', 'n', 'o', 'p', 'q', 'r', //
        's',  't',  'u',  'v',  'w',  'x', 'y', 'z', 'A', 'B', 'C', 'D', 'E', 'F', //
        'G',  'H',  'I',  'J',  'K',  'L', 'M', 'N'};
    EXPECT_EQ(EncodeFont(record), expected);
    EXPECT_EQ(DecodeFont(expected), record);
}

// --- the face name ---

TEST(LogicalFont, AFaceNameIsAnsi) {
    EXPECT_EQ(FaceBytes("Café €5"), "Caf\xE9 \x80"
                                    "5" +
                                        Space(43));
    EXPECT_EQ(FaceBytes("Шрифт"), "?????" + Space(45));
    EXPECT_EQ(FaceBytes("A\U0001D538Z"), "A?Z" + Space(47)); // one character, whatever its number
    EXPECT_EQ(FaceBytes("\u0080\u0100"), "??" + Space(48));  // neither is in the code page
    EXPECT_EQ(FaceBytes(""), Space(50));
}

TEST(LogicalFont, AFaceNameHasFiftyCharacters) {
    const std::string fifty = "é" + std::string(48, 'x') + "y";
    EXPECT_EQ(FaceField(fifty), fifty);
    EXPECT_EQ(FaceBytes(fifty), "\xE9" + std::string(48, 'x') + "y");
    EXPECT_EQ(FaceField(fifty + "z"), fifty);
    EXPECT_EQ(FaceBytes(fifty + "z"), FaceBytes(fifty));
    EXPECT_EQ(FaceField("Ж"), "Ж" + Space(49)); // as it was set
    EXPECT_EQ(FaceField(FaceField("Ж")), FaceField("Ж"));
}

TEST(LogicalFont, TheFaceEndsAtTheFirstNulAndItsBlanks) {
    using namespace std::string_view_literals;
    EXPECT_EQ(FaceIn(FontRecord().FaceName), "Verdana");
    EXPECT_EQ(FaceIn(FaceField("Liberation Mono")), "Liberation Mono");
    EXPECT_EQ(FaceIn("Liberation Mono\0garbage\0  "sv), "Liberation Mono");
    EXPECT_EQ(FaceIn("Mono  \0   "sv), "Mono");
    EXPECT_EQ(FaceIn(" Mono "), " Mono"); // blanks before it are its own
    EXPECT_EQ(FaceIn("\0Mono"sv), "");
    EXPECT_EQ(FaceIn(Space(50)), "");
    EXPECT_EQ(FaceIn(std::string(50, 'x')), std::string(50, 'x'));
}

// --- the code page ---

TEST(AnsiText, HasTheCharactersOfWindows1252) {
    for (const auto& [byte, character] : {std::pair<int, char32_t>{0x00, U'\0'},
                                          {0x41, U'A'},
                                          {0x7F, U'\x7F'},
                                          {0x80, U'€'},
                                          {0x82, U'‚'},
                                          {0x83, U'ƒ'},
                                          {0x8A, U'Š'},
                                          {0x8C, U'Œ'},
                                          {0x8E, U'Ž'},
                                          {0x91, U'‘'},
                                          {0x97, U'—'},
                                          {0x99, U'™'},
                                          {0x9C, U'œ'},
                                          {0x9E, U'ž'},
                                          {0x9F, U'Ÿ'},
                                          {0xA0, U'\u00A0'},
                                          {0xE9, U'é'},
                                          {0xFF, U'ÿ'}}) {
        EXPECT_EQ(FromAnsi(static_cast<std::uint8_t>(byte)), character) << byte;
        EXPECT_EQ(ToAnsi(character), byte);
    }
}

TEST(AnsiText, EveryByteIsACharacterOfItsOwn) {
    std::set<char32_t> characters;
    for (int byte = 0; byte < 256; ++byte) {
        const char32_t character = FromAnsi(static_cast<std::uint8_t>(byte));
        EXPECT_EQ(ToAnsi(character), byte);
        characters.insert(character);
    }
    EXPECT_EQ(characters.size(), 256U);
    for (char32_t character = 0; character < 0x11000; ++character) {
        if (!characters.contains(character)) {
            ASSERT_EQ(ToAnsi(character), '?') << static_cast<unsigned>(character);
        }
    }
}

// --- there and back ---

TEST(LogicalFont, NothingOfAnAnsiRecordIsLost) {
    constexpr unsigned Seed = 20611;
    SCOPED_TRACE(Seed);
    std::mt19937 random(Seed);
    const auto byte = [&random] { return static_cast<std::uint8_t>(random() & 0xFFU); };
    for (int i = 0; i < 5000; ++i) {
        LogicalFont font{};
        std::generate(font.begin(), font.end(), byte);
        const FontRecord record = DecodeFont(font);
        ASSERT_EQ(Len(record.FaceName), 50);
        ASSERT_EQ(EncodeFont(record), font);
        ASSERT_EQ(DecodeFont(EncodeFont(record)), record);
    }
}

} // namespace
} // namespace tarn
