#include "text/TextWriterTesting.h"

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
using Vertical = TextAlignment::Vertical;
using Horizontal = TextAlignment::Horizontal;

/// The sum of blackness of a text.
long long Blackness(TextWriter writer) {
    Canvas canvas;
    writer.SelectFont(canvas.Surface());
    TextWriter::Write(canvas.Surface(), "HHH", 50, 50);
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

TextWriter FaceOf(std::string_view name) {
    TextWriter writer = Sans(-FaceSize);
    writer.Font.SetFace(name);
    return writer;
}

QImage PaintedWith(TextWriter writer) {
    Canvas canvas;
    writer.SelectFont(canvas.Surface());
    TextWriter::SetAlignment(canvas.Surface(), False, True, False, False, False, False);
    TextWriter::Write(canvas.Surface(), FaceSample, 50, 100);
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

TEST(TextWriter, BeginsWithItsDefaults) {
    const TextWriter writer;
    EXPECT_EQ(writer.Font.Height, 10);
    EXPECT_EQ(writer.Font.Width, 6);
    EXPECT_EQ(writer.Font.Escapement, 0);
    EXPECT_EQ(writer.Font.Weight, 600);
    EXPECT_EQ(writer.Font.Italic, 0);
    EXPECT_EQ(writer.Font.UnderLine, 0);
    EXPECT_EQ(writer.Font.StrikeOut, 0);
    EXPECT_EQ(writer.Font.FaceName, "Verdana" + std::string(1, '\0') + std::string(42, ' '));
}

TEST(TextWriter, AFaceNameFillsItsFieldOfFiftyCharacters) {
    TextWriter writer;
    writer.Font.SetFace("Arial");
    EXPECT_EQ(writer.Font.FaceName, "Arial" + std::string(45, ' '));
    writer.Font.SetFace("");
    EXPECT_EQ(writer.Font.FaceName, std::string(50, ' '));
    writer.Font.SetFace(std::string(49, 'x') + "yz");
    EXPECT_EQ(writer.Font.FaceName, std::string(49, 'x') + "y");
    writer.Font.SetFace("é" + std::string(60, 'x'));
    EXPECT_EQ(writer.Font.FaceName, "é" + std::string(49, 'x'));
    writer.Font.SetFace(writer.Font.FaceName);
    EXPECT_EQ(writer.Font.FaceName, "é" + std::string(49, 'x'));
    writer.Font.SetFace("Шрифт"); // kept as it was set, though a font is made of its ANSI form
    EXPECT_EQ(writer.Font.FaceName, "Шрифт" + std::string(45, ' '));
}

TEST(TextWriter, TheFaceEndsAtTheFirstNulAndItsBlanks) {
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

TEST(TextWriter, AFaceThatIsNotThereIsReplacedByAnother) {
    const QImage substitute = PaintedWith(FaceOf("No Such Face"));
    EXPECT_FALSE(InkOf(substitute).isEmpty());
    EXPECT_EQ(substitute, PaintedBy(QStringLiteral("No Such Face")));
    EXPECT_EQ(substitute, PaintedWith(FaceOf("No Such Face,Liberation Mono"))); // no list of faces
}

TEST(TextWriter, AFontIsMadeOfTheBytesOfItsDescription) {
    LogicalFont description{};
    description.fill(' ');
    std::fill_n(description.begin(), 28, std::uint8_t{0});
    std::fill_n(description.begin(), 4, std::uint8_t{0xFF});
    description[0] = 0xD8; // -40: the letters' height
    constexpr std::string_view Face = "Liberation Mono";
    std::copy(Face.begin(), Face.end(), description.begin() + 28);
    Canvas canvas;
    canvas.Surface().Context().SelectFont(canvas.Surface().Context().CreateFont(description));
    canvas.Surface().Context().SetAlignment({Vertical::Baseline, Horizontal::Left});
    canvas.Surface().Context().Write(50, 100, FaceSample);
    EXPECT_EQ(canvas.Image(), PaintedBy(QStringLiteral("Liberation Mono")));
}

TEST(TextWriter, PropertiesTakeEffectAtTheNextSelectFont) {
    Canvas canvas;
    TextWriter writer = Sans(48);
    writer.SelectFont(canvas.Surface());
    writer.Font.Height = 96;
    TextWriter::Write(canvas.Surface(), "H", 50, 50);
    const QRect before = canvas.Ink();
    canvas.Clear();
    writer.SelectFont(canvas.Surface());
    TextWriter::Write(canvas.Surface(), "H", 50, 50);
    EXPECT_NEAR(canvas.Ink().height(), 2 * before.height(), 2);
}

// --- how letters look ---

TEST(TextWriter, AHeightAboveZeroIsTheCellsAndBelowZeroTheLetters) {
    // The capitals of Liberation Sans are 0.688 of its size, its cell 1.117.
    EXPECT_NEAR(InkWith(Sans(80)).height(), 80 / 1.117 * 0.688, 1.5);
    EXPECT_NEAR(InkWith(Sans(-80)).height(), 80 * 0.688, 1.5);
    EXPECT_NEAR(InkWith(Sans(80)).top(), 50 + 80 / 1.117 * (0.905 - 0.688), 1.5);
}

TEST(TextWriter, AHeightOfZeroIsThatOfTheSurfacesOwnFont) {
    EXPECT_NEAR(InkWith(Sans(0)).height(), 20 * 0.688, 1.5);
}

TEST(TextWriter, AWidthIsThatOfTheAverageLetterWhateverTheHeight) {
    TextWriter narrow = Sans(48);
    narrow.Font.Width = 10;
    TextWriter wide = Sans(48);
    wide.Font.Width = 30;
    EXPECT_NEAR(InkWith(wide).width(), 3.0 * InkWith(narrow).width(), 4);
    EXPECT_EQ(InkWith(wide).height(), InkWith(narrow).height());
    TextWriter high = Sans(96);
    high.Font.Width = 30;
    EXPECT_NEAR(InkWith(high).width(), InkWith(wide).width(), 2);
    TextWriter negative = Sans(48);
    negative.Font.Width = -30;
    EXPECT_EQ(InkWith(negative), InkWith(wide));
}

TEST(TextWriter, WeightMakesLettersBlacker) {
    TextWriter bold = Sans(48);
    bold.Font.Weight = 700;
    TextWriter unset = Sans(48);
    unset.Font.Weight = 0;
    EXPECT_GT(Blackness(bold), Blackness(Sans(48)) * 5 / 4);
    EXPECT_EQ(Blackness(unset), Blackness(Sans(48)));
}

TEST(TextWriter, ItalicSlantsUnderLineAndStrikeOutAddALine) {
    TextWriter italic = Sans(48);
    italic.Font.Italic = 1;
    EXPECT_GT(InkWith(italic).width(), InkWith(Sans(48)).width() + 3);
    TextWriter under = Sans(48);
    under.Font.UnderLine = 1;
    EXPECT_GT(InkWith(under).bottom(), InkWith(Sans(48)).bottom() + 2);
    TextWriter strike = Sans(48);
    strike.Font.StrikeOut = 1;
    EXPECT_EQ(InkWith(Sans(48), "   "), QRect());
    const QRect line = InkWith(strike, "   ");
    EXPECT_GT(line.width(), 20);
    EXPECT_GT(line.top(), InkWith(Sans(48)).top());
    EXPECT_LT(line.bottom(), InkWith(Sans(48)).bottom());
}

TEST(TextWriter, AColourIsRedAndGreenAndBlue) {
    for (const auto& [value, color] : {std::pair<Long, QRgb>{0, qRgb(0, 0, 0)},
                                       {255, qRgb(255, 0, 0)},
                                       {255 * 256, qRgb(0, 255, 0)},
                                       {255 * 65536, qRgb(0, 0, 255)},
                                       {10 + 256 * 20 + 65536 * 30, qRgb(10, 20, 30)}}) {
        Canvas canvas;
        TextWriter writer = Sans(150);
        writer.Font.Weight = 900;
        writer.SelectFont(canvas.Surface());
        TextWriter::SetColor(canvas.Surface(), value);
        TextWriter::Write(canvas.Surface(), "H", 50, 20);
        bool found = false;
        for (int x = 0; x < canvas.Image().width(); ++x) {
            found = found || canvas.Image().pixel(x, 100) == color;
        }
        EXPECT_TRUE(found) << value;
    }
}

TEST(TextWriter, TextIsUnicode) {
    EXPECT_NE(InkWith(Sans(48), "Ж"), InkWith(Sans(48), "?"));
    EXPECT_FALSE(InkWith(Sans(48), "Ж").isEmpty());
}

TEST(TextWriter, AnEmptyTextDrawsNothing) {
    EXPECT_TRUE(InkWith(Sans(48), "").isEmpty());
}

// --- alignment ---

TextAlignment AlignAfter(Integer top, Integer baseline, Integer bottom, Integer left,
                         Integer center, Integer right) {
    Canvas canvas;
    PainterSurface& surface = canvas.Surface();
    TextWriter::SetAlignment(surface, True, True, True, True, True, True); // something else before
    TextWriter::SetAlignment(surface, top, baseline, bottom, left, center, right);
    return surface.Context().Alignment();
}

constexpr TextAlignment TopLeft{Vertical::Top, Horizontal::Left};

TEST(TextWriter, AlignsAtTheTopLeftWithoutATrueArgument) {
    EXPECT_EQ(AlignAfter(False, False, False, False, False, False), TopLeft);
}

TEST(TextWriter, EachArgumentHasItsPlace) {
    EXPECT_EQ(AlignAfter(True, False, False, False, False, False), TopLeft);
    EXPECT_EQ(AlignAfter(False, True, False, False, False, False),
              (TextAlignment{Vertical::Baseline, Horizontal::Left}));
    EXPECT_EQ(AlignAfter(False, False, True, False, False, False),
              (TextAlignment{Vertical::Bottom, Horizontal::Left}));
    EXPECT_EQ(AlignAfter(False, False, False, True, False, False), TopLeft);
    EXPECT_EQ(AlignAfter(False, False, False, False, True, False),
              (TextAlignment{Vertical::Top, Horizontal::Center}));
    EXPECT_EQ(AlignAfter(False, False, False, False, False, True),
              (TextAlignment{Vertical::Top, Horizontal::Right}));
}

TEST(TextWriter, TheLastTrueArgumentOfADirectionWins) {
    EXPECT_EQ(AlignAfter(False, False, False, False, True, True),
              (TextAlignment{Vertical::Top, Horizontal::Right}));
    EXPECT_EQ(AlignAfter(False, False, False, True, True, False),
              (TextAlignment{Vertical::Top, Horizontal::Center}));
    EXPECT_EQ(AlignAfter(True, True, True, True, True, True),
              (TextAlignment{Vertical::Bottom, Horizontal::Right}));
    EXPECT_EQ(AlignAfter(True, True, False, True, False, False),
              (TextAlignment{Vertical::Baseline, Horizontal::Left}));
}

TEST(TextWriter, OnlyMinusOneIsTrue) {
    EXPECT_EQ(AlignAfter(1, 1, 1, 1, 1, 1), TopLeft);
    EXPECT_EQ(AlignAfter(2, -2, 255, 0, 1, -32768), TopLeft);
}

} // namespace
} // namespace tarn
