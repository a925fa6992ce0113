#include "print/APIFontTesting.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn {
namespace {

using testing::Canvas;
using testing::False;
using testing::InkOf;
using testing::InkWith;
using testing::Sans;
using testing::True;

/// The sum of blackness of a text.
long long Blackness(APIFont font) {
    Canvas canvas;
    font.SelectFont(canvas.Surface());
    font.FontOut("HHH", canvas.Surface(), 50, 50);
    long long sum = 0;
    for (int y = 0; y < canvas.Image().height(); ++y) {
        for (int x = 0; x < canvas.Image().width(); ++x) {
            sum += 255 - qGray(canvas.Image().pixel(x, y));
        }
    }
    return sum;
}

constexpr const char* FaceSample = "Rag";
constexpr int FaceSize = 40; ///< of the letters

APIFont FaceOf(std::string_view name) {
    APIFont font = Sans(-FaceSize);
    font.FaceName(name);
    return font;
}

QImage PaintedWith(APIFont font) {
    Canvas canvas;
    font.SelectFont(canvas.Surface());
    font.SetAlign(canvas.Surface(), False, True, False, False, False, False);
    font.FontOut(FaceSample, canvas.Surface(), 50, 100);
    return canvas.Image().copy();
}

/// The same, as the toolkit writes in that family.
QImage PaintedBy(const QString& family) {
    Canvas canvas;
    QFont font(family);
    font.setPixelSize(FaceSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    canvas.Painter().setFont(font);
    canvas.Painter().drawText(QPointF(50, 100), QString::fromUtf8(FaceSample));
    return canvas.Image().copy();
}

// --- properties ---

TEST(APIFont, BeginsWithItsDefaults) {
    const APIFont font;
    EXPECT_EQ(font.Height(), 10);
    EXPECT_EQ(font.Width(), 6);
    EXPECT_EQ(font.Escapement(), 0);
    EXPECT_EQ(font.Weight(), 600);
    EXPECT_EQ(font.Italic(), 0);
    EXPECT_EQ(font.UnderLine(), 0);
    EXPECT_EQ(font.StrikeOut(), 0);
    EXPECT_EQ(font.FaceName(), "Verdana" + std::string(1, '\0') + std::string(42, ' '));
}

TEST(APIFont, EveryPropertyKeepsWhatItIsSetTo) {
    APIFont font;
    font.Height(-2147483647);
    font.Width(2147483647);
    font.Escapement(-450);
    font.Weight(0);
    font.Italic(255);
    font.UnderLine(1);
    font.StrikeOut(2);
    EXPECT_EQ(font.Height(), -2147483647);
    EXPECT_EQ(font.Width(), 2147483647);
    EXPECT_EQ(font.Escapement(), -450);
    EXPECT_EQ(font.Weight(), 0);
    EXPECT_EQ(font.Italic(), 255);
    EXPECT_EQ(font.UnderLine(), 1);
    EXPECT_EQ(font.StrikeOut(), 2);
}

TEST(APIFont, AFaceNameFillsItsFieldOfFiftyCharacters) {
    APIFont font;
    font.FaceName("Arial");
    EXPECT_EQ(font.FaceName(), "Arial" + std::string(45, ' '));
    font.FaceName("");
    EXPECT_EQ(font.FaceName(), std::string(50, ' '));
    font.FaceName(std::string(49, 'x') + "yz");
    EXPECT_EQ(font.FaceName(), std::string(49, 'x') + "y");
    font.FaceName("é" + std::string(60, 'x'));
    EXPECT_EQ(font.FaceName(), "é" + std::string(49, 'x'));
    font.FaceName(font.FaceName());
    EXPECT_EQ(font.FaceName(), "é" + std::string(49, 'x'));
    font.FaceName("Шрифт"); // kept as it was set, though a font is made of its ANSI form
    EXPECT_EQ(font.FaceName(), "Шрифт" + std::string(45, ' '));
}

TEST(APIFont, TheFaceEndsAtTheFirstNulAndItsBlanks) {
    using namespace std::string_view_literals;
    const QImage mono = PaintedBy(QStringLiteral("Liberation Mono"));
    ASSERT_NE(mono, PaintedBy(QStringLiteral("Liberation Sans")));
    ASSERT_NE(mono, PaintedWith(FaceOf("No Such Face"))); // nor is it what such a face gives
    for (const auto name :
         {"Liberation Mono"sv, "Liberation Mono       "sv, "Liberation Mono\0garbage"sv,
          "Liberation Mono  \0 Sans"sv, "Liberation Mono\0"sv}) {
        EXPECT_EQ(PaintedWith(FaceOf(name)), mono) << name;
    }
}

TEST(APIFont, AFaceThatIsNotThereIsReplacedByAnother) {
    const QImage substitute = PaintedWith(FaceOf("No Such Face"));
    EXPECT_FALSE(InkOf(substitute).isEmpty());
    EXPECT_EQ(substitute, PaintedBy(QStringLiteral("No Such Face")));
    EXPECT_EQ(substitute, PaintedWith(FaceOf("No Such Face,Liberation Mono"))); // no list of faces
}

TEST(APIFont, AFontIsMadeOfTheBytesOfItsDescription) {
    LogicalFont description{};
    description.fill(' ');
    std::fill_n(description.begin(), 28, std::uint8_t{0});
    std::fill_n(description.begin(), 4, std::uint8_t{0xFF});
    description[0] = 0xD8; // -40: the letters' height
    constexpr std::string_view Face = "Liberation Mono";
    std::copy(Face.begin(), Face.end(), description.begin() + 28);
    Canvas canvas;
    canvas.Surface().hdc().SelectObject(canvas.Surface().hdc().CreateFont(description));
    canvas.Surface().hdc().SetTextAlign(TA_BASELINE);
    canvas.Surface().hdc().TextOut(50, 100, FaceSample);
    EXPECT_EQ(canvas.Image(), PaintedBy(QStringLiteral("Liberation Mono")));
}

TEST(APIFont, PropertiesTakeEffectAtTheNextSelectFont) {
    Canvas canvas;
    APIFont font = Sans(48);
    font.SelectFont(canvas.Surface());
    font.Height(96);
    font.FontOut("H", canvas.Surface(), 50, 50);
    const QRect before = canvas.Ink();
    canvas.Clear();
    font.SelectFont(canvas.Surface());
    font.FontOut("H", canvas.Surface(), 50, 50);
    EXPECT_NEAR(canvas.Ink().height(), 2 * before.height(), 2);
}

// --- how letters look ---

TEST(APIFont, AHeightAboveZeroIsTheCellsAndBelowZeroTheLetters) {
    // The capitals of Liberation Sans are 0.688 of its size, its cell 1.117.
    EXPECT_NEAR(InkWith(Sans(80)).height(), 80 / 1.117 * 0.688, 1.5);
    EXPECT_NEAR(InkWith(Sans(-80)).height(), 80 * 0.688, 1.5);
    EXPECT_NEAR(InkWith(Sans(80)).top(), 50 + 80 / 1.117 * (0.905 - 0.688), 1.5);
}

TEST(APIFont, AHeightOfZeroIsThatOfTheSurfacesOwnFont) {
    EXPECT_NEAR(InkWith(Sans(0)).height(), 20 * 0.688, 1.5);
}

TEST(APIFont, AWidthIsThatOfTheAverageLetterWhateverTheHeight) {
    APIFont narrow = Sans(48);
    narrow.Width(10);
    APIFont wide = Sans(48);
    wide.Width(30);
    EXPECT_NEAR(InkWith(wide).width(), 3.0 * InkWith(narrow).width(), 4);
    EXPECT_EQ(InkWith(wide).height(), InkWith(narrow).height());
    APIFont high = Sans(96);
    high.Width(30);
    EXPECT_NEAR(InkWith(high).width(), InkWith(wide).width(), 2);
    APIFont negative = Sans(48);
    negative.Width(-30);
    EXPECT_EQ(InkWith(negative), InkWith(wide));
}

TEST(APIFont, WeightMakesLettersBlacker) {
    APIFont bold = Sans(48);
    bold.Weight(700);
    APIFont unset = Sans(48);
    unset.Weight(0);
    EXPECT_GT(Blackness(bold), Blackness(Sans(48)) * 5 / 4);
    EXPECT_EQ(Blackness(unset), Blackness(Sans(48)));
}

TEST(APIFont, ItalicSlantsUnderLineAndStrikeOutAddALine) {
    APIFont italic = Sans(48);
    italic.Italic(1);
    EXPECT_GT(InkWith(italic).width(), InkWith(Sans(48)).width() + 3);
    APIFont under = Sans(48);
    under.UnderLine(1);
    EXPECT_GT(InkWith(under).bottom(), InkWith(Sans(48)).bottom() + 2);
    APIFont strike = Sans(48);
    strike.StrikeOut(1);
    EXPECT_EQ(InkWith(Sans(48), "   "), QRect());
    const QRect line = InkWith(strike, "   ");
    EXPECT_GT(line.width(), 20);
    EXPECT_GT(line.top(), InkWith(Sans(48)).top());
    EXPECT_LT(line.bottom(), InkWith(Sans(48)).bottom());
}

TEST(APIFont, AColourIsRedAndGreenAndBlue) {
    for (const auto& [value, color] : {std::pair<Long, QRgb>{0, qRgb(0, 0, 0)},
                                       {255, qRgb(255, 0, 0)},
                                       {255 * 256, qRgb(0, 255, 0)},
                                       {255 * 65536, qRgb(0, 0, 255)},
                                       {10 + 256 * 20 + 65536 * 30, qRgb(10, 20, 30)}}) {
        Canvas canvas;
        APIFont font = Sans(150);
        font.Weight(900);
        font.SelectFont(canvas.Surface());
        font.setcolor(canvas.Surface(), value);
        font.FontOut("H", canvas.Surface(), 50, 20);
        bool found = false;
        for (int x = 0; x < canvas.Image().width(); ++x) {
            found = found || canvas.Image().pixel(x, 100) == color;
        }
        EXPECT_TRUE(found) << value;
    }
}

TEST(APIFont, TextIsUnicode) {
    EXPECT_NE(InkWith(Sans(48), "Ж"), InkWith(Sans(48), "?"));
    EXPECT_FALSE(InkWith(Sans(48), "Ж").isEmpty());
}

TEST(APIFont, AnEmptyTextDrawsNothing) {
    EXPECT_TRUE(InkWith(Sans(48), "").isEmpty());
}

// --- alignment ---

int AlignAfter(Integer top, Integer baseLine, Integer bottom, Integer left, Integer center,
               Integer right) {
    Canvas canvas;
    APIFont font;
    font.SetAlign(canvas.Surface(), True, True, True, True, True, True); // something else before
    font.SetAlign(canvas.Surface(), top, baseLine, bottom, left, center, right);
    return canvas.Surface().hdc().TextAlign();
}

TEST(APIFont, AlignsAtTheTopLeftWithoutATrueArgument) {
    EXPECT_EQ(AlignAfter(False, False, False, False, False, False), 0);
}

TEST(APIFont, EachArgumentHasItsFlag) {
    EXPECT_EQ(AlignAfter(True, False, False, False, False, False), 0);
    EXPECT_EQ(AlignAfter(False, True, False, False, False, False), 24);
    EXPECT_EQ(AlignAfter(False, False, True, False, False, False), 8);
    EXPECT_EQ(AlignAfter(False, False, False, True, False, False), 0);
    EXPECT_EQ(AlignAfter(False, False, False, False, True, False), 6);
    EXPECT_EQ(AlignAfter(False, False, False, False, False, True), 2);
}

TEST(APIFont, TheLastTrueArgumentOfADirectionWins) {
    EXPECT_EQ(AlignAfter(False, False, False, False, True, True), 2);
    EXPECT_EQ(AlignAfter(False, False, False, True, True, False), 6);
    EXPECT_EQ(AlignAfter(True, True, True, True, True, True), 8 | 2);
    EXPECT_EQ(AlignAfter(True, True, False, True, False, False), 24);
}

TEST(APIFont, OnlyMinusOneIsTrue) {
    EXPECT_EQ(AlignAfter(1, 1, 1, 1, 1, 1), 0);
    EXPECT_EQ(AlignAfter(2, -2, 255, 0, 1, -32768), 0);
}

} // namespace
} // namespace tarn
