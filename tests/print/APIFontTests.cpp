#include "app/RunTimeError.h"
#include "print/APIFont.h"
#include "print/PdfTesting.h"

#include <QFile>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <map>
#include <optional>

namespace tarn {
namespace {

using testing::InkIn;
using testing::InkOf;

constexpr Integer True = -1;
constexpr Integer False = 0;

/// A white image of 400 by 200 pixels with a surface on it.
class Canvas {
  public:
    Canvas()
        : image_(400, 200, QImage::Format_RGB32) {
        image_.fill(Qt::white);
        painter_.begin(&image_);
        QFont own(QStringLiteral("Liberation Sans"));
        own.setPixelSize(20);
        painter_.setFont(own);
        surface_.emplace(painter_);
    }

    PainterSurface& Surface() { return *surface_; }
    QPainter& Painter() { return painter_; }
    const QImage& Image() const { return image_; }
    QRect Ink() const { return InkOf(image_); }
    void Clear() {
        painter_.save();
        painter_.setClipping(false);
        painter_.fillRect(image_.rect(), Qt::white);
        painter_.restore();
    }

  private:
    QImage image_;
    QPainter painter_;
    std::optional<PainterSurface> surface_;
};

APIFont Sans(Long height) {
    APIFont font;
    font.FaceName("Liberation Sans");
    font.Height(height);
    font.Width(0);
    font.Weight(400);
    return font;
}

/// The ink of "HHH" in a font, alone on a canvas.
QRect InkWith(APIFont font, const char* text = "HHH") {
    Canvas canvas;
    font.SelectFont(canvas.Surface());
    font.FontOut(text, canvas.Surface(), 50, 50);
    return canvas.Ink();
}

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
    const FontRecord record;
    EXPECT_EQ(record.Orientation, 0);
    EXPECT_EQ(record.CharacterSet + record.OutputPrecision + record.ClipPrecision + record.Quality +
                  record.PitchAndFamily,
              0);
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
}

TEST(APIFont, TheFaceEndsAtTheFirstNulOrTheBlanks) {
    APIFont plain = Sans(48);
    APIFont withNul = Sans(48);
    withNul.FaceName(std::string_view("Liberation Sans\0Mono", 20));
    APIFont other = Sans(48);
    other.FaceName("Liberation Mono");
    EXPECT_EQ(InkWith(withNul), InkWith(plain));
    EXPECT_NE(InkWith(other), InkWith(plain));
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

// --- clipped text ---

TEST(APIFont, CharPlaceClipsToTwiceTheSizeInTheSurfacesOwnFont) {
    Canvas canvas;
    const QFontMetricsF own(canvas.Painter().font(), canvas.Painter().device());
    EXPECT_DOUBLE_EQ(canvas.Surface().TextWidth("HHH"),
                     own.horizontalAdvance(QStringLiteral("HHH")));
    EXPECT_DOUBLE_EQ(canvas.Surface().TextHeight("HHH"), own.ascent() + own.descent());
    APIFont font = Sans(150); // much larger than the surface's own
    font.SelectFont(canvas.Surface());
    font.CharPlace(canvas.Surface(), "HHH", 40, 30);
    const QRect ink = canvas.Ink();
    EXPECT_GE(ink.left(), 40);
    EXPECT_NEAR(ink.right() + 1, 40 + 2 * own.horizontalAdvance(QStringLiteral("HHH")), 1);
    EXPECT_NEAR(ink.bottom() + 1, 30 + 2 * (own.ascent() + own.descent()), 1);
}

TEST(APIFont, TheClipOfCharPlaceStaysInForce) {
    Canvas canvas;
    APIFont font = Sans(20);
    font.SelectFont(canvas.Surface());
    font.CharPlace(canvas.Surface(), "H", 10, 10);
    canvas.Clear();
    font.FontOut("H", canvas.Surface(), 200, 100);
    EXPECT_TRUE(canvas.Ink().isEmpty());
    font.SelectOrg(canvas.Surface());
    font.FontOut("H", canvas.Surface(), 200, 100);
    EXPECT_TRUE(canvas.Ink().isEmpty());
    font.FontOut("H", canvas.Surface(), 12, 12);
    EXPECT_FALSE(canvas.Ink().isEmpty());
}

TEST(APIFont, ALaterCharPlaceReplacesTheClip) {
    Canvas canvas;
    APIFont font = Sans(20);
    font.SelectFont(canvas.Surface());
    font.CharPlace(canvas.Surface(), "H", 10, 10);
    font.CharPlace(canvas.Surface(), "H", 200, 100);
    EXPECT_FALSE(InkIn(canvas.Image(), {200, 100, 100, 50}).isEmpty());
}

TEST(APIFont, TheClipDoesNotTurnWithTheText) {
    Canvas canvas;
    APIFont font = Sans(40);
    font.Escapement(-900); // downwards, with the letters' feet on the left
    font.SelectFont(canvas.Surface());
    font.SetAlign(canvas.Surface(), False, False, True, False, False, False);
    font.CharPlace(canvas.Surface(), "HHHHHH", 150, 20);
    const Double height = canvas.Surface().TextHeight("HHHHHH");
    EXPECT_NEAR(canvas.Ink().bottom() + 1, 20 + 2 * height, 1); // cut off there
    EXPECT_GE(canvas.Ink().left(), 150);
    EXPECT_LT(canvas.Ink().width(), canvas.Ink().height());
}

TEST(APIFont, PositionsAreRoundedToWholeUnitsAndMustFitALong) {
    Canvas canvas;
    APIFont font = Sans(48);
    font.SelectFont(canvas.Surface());
    font.FontOut("H", canvas.Surface(), 50.4, 50.5); // halves to even
    EXPECT_EQ(canvas.Ink(), InkWith(Sans(48), "H"));
    EXPECT_THROW(font.FontOut("H", canvas.Surface(), 3e9, 0), RunTimeError);
    EXPECT_THROW(font.CharPlace(canvas.Surface(), "H", 0, -3e9), RunTimeError);
}

// --- selecting ---

TEST(APIFont, SelectOrgGivesTheSurfaceItsFontBack) {
    Canvas canvas;
    APIFont writer;
    writer.FontOut("HHH", canvas.Surface(), 50, 50);
    const QImage own = canvas.Image().copy();
    canvas.Clear();
    APIFont font = Sans(100);
    font.SelectFont(canvas.Surface());
    font.SelectOrg(canvas.Surface());
    writer.FontOut("HHH", canvas.Surface(), 50, 50);
    EXPECT_EQ(canvas.Image(), own);
}

TEST(APIFont, SelectOrgWithoutASelectedFontDoesNothing) {
    Canvas canvas;
    APIFont selected = Sans(100);
    selected.SelectFont(canvas.Surface());
    APIFont idle;
    idle.SelectOrg(canvas.Surface());
    selected.FontOut("HHH", canvas.Surface(), 50, 50);
    EXPECT_EQ(canvas.Ink(), InkWith(Sans(100)));
    selected.SelectOrg(canvas.Surface());
    selected.SelectOrg(canvas.Surface()); // there is nothing left to give back
    canvas.Clear();
    selected.FontOut("HHH", canvas.Surface(), 50, 50);
    EXPECT_NEAR(canvas.Ink().height(), 20 * 0.688, 1.5);
}

TEST(APIFont, ASecondSelectFontKeepsTheFontThatWasSavedFirst) {
    Canvas canvas;
    APIFont font = Sans(100);
    font.SelectFont(canvas.Surface());
    font.Height(60);
    font.SelectFont(canvas.Surface());
    font.SelectOrg(canvas.Surface());
    font.FontOut("HHH", canvas.Surface(), 50, 50);
    EXPECT_NEAR(canvas.Ink().height(), 20 * 0.688, 1.5); // the surface's own
}

// --- surfaces ---

TEST(PainterSurface, CountsTheLinesOfAText) {
    Canvas canvas;
    PainterSurface& surface = canvas.Surface();
    EXPECT_DOUBLE_EQ(surface.TextHeight("a\r\nb\r\nc"), 3 * surface.TextHeight("a"));
    EXPECT_DOUBLE_EQ(surface.TextWidth("a\r\nHHHH\r\nc"), surface.TextWidth("HHHH"));
    EXPECT_EQ(surface.TextWidth(""), 0);
}

TEST(PainterSurface, IsAWidgetInItsPaintEvent) {
    struct Sheet : QWidget {
        void paintEvent(QPaintEvent*) override {
            QPainter painter(this);
            painter.fillRect(rect(), Qt::white);
            PainterSurface surface(painter);
            APIFont font = Sans(48);
            font.SelectFont(surface);
            font.SetAlign(surface, False, False, True, False, False, True);
            font.FontOut("HHH", surface, 350, 150);
            font.SelectOrg(surface);
        }
    } sheet;
    sheet.resize(400, 200);
    const QRect ink = InkOf(sheet.grab().toImage());
    EXPECT_NEAR(ink.height(), 48 / 1.117 * 0.688, 1.5);
    EXPECT_NEAR(ink.right(), 350, 5);
    EXPECT_NEAR(ink.bottom(), 150 - 48 / 1.117 * 0.212, 1.5);
}

TEST(PainterSurface, IsAPrintersPageInItsOwnUnits) {
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("page.pdf"));
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setFullPage(true);
        QPainter painter(&printer);
        painter.scale(printer.resolution() / 1440.0, printer.resolution() / 1440.0); // twips
        PainterSurface surface(painter);
        APIFont font = Sans(480);
        font.SelectFont(surface);
        font.SetAlign(surface, False, True, False, False, False, False);
        font.FontOut("Level", surface, 1440, 2880);
        font.Escapement(900);
        font.SelectFont(surface);
        font.FontOut("Turned", surface, 7200, 7200);
        font.SelectOrg(surface);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const testing::Pdf pdf(file.readAll().toStdString());
    EXPECT_EQ(pdf.Images(), 0);
    std::map<QString, QRectF> boxes;
    for (const testing::PdfWord& word : pdf.Words(1)) {
        boxes[word.Text] = word.Box;
    }
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_NEAR(boxes[QStringLiteral("Level")].left(), 72, 0.5);
    const QRectF turned = boxes[QStringLiteral("Turned")];
    EXPECT_NEAR(turned.bottom(), 360, 1); // it runs upwards from its position
    EXPECT_GT(turned.height(), 2 * turned.width());
    const QRect ink = InkOf(pdf.Image(1, 72));
    EXPECT_NEAR(ink.left(), 72 + 24 / 1.117 * 0.08, 1.5);
}

} // namespace
} // namespace tarn
