#include "estimate/EstimateTesting.h"
#include "estimate/LayoutDrawing.h"
#include "paper/EstimatePaper.h"
#include "paper/Paper.h"
#include "paper/PdfFile.h"
#include "paper/PdfTesting.h"
#include "paper/PrintTesting.h"
#include "paper/Printer.h"

#include <QApplication>
#include <QPalette>
#include <QPdfWriter>
#include <QTransform>

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace tarn {
namespace {

using testing::A4Height;
using testing::A4Width;
using testing::CornersDrawing;
using testing::InkIn;
using testing::InkOf;
using testing::PageOf;
using testing::Pdf;
using testing::PdfWord;

constexpr int Dpi = 144;

/// Twips as pixels of a page at Dpi.
int Px(double twips) {
    return static_cast<int>(std::lround(twips * Dpi / TwipsPerInch));
}
QRect PxRect(double left, double top, double right, double bottom) {
    return {QPoint(Px(left), Px(top)), QPoint(Px(right) - 1, Px(bottom) - 1)};
}

bool IsRed(QRgb pixel) {
    return qRed(pixel) > 200 && qGreen(pixel) < 120 && qBlue(pixel) < 120;
}

QRect RedOf(const QImage& image) {
    QRect red;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (IsRed(image.pixel(x, y))) {
                red |= QRect(x, y, 1, 1);
            }
        }
    }
    return red;
}

const PdfWord& WordOf(const std::vector<PdfWord>& words, const char* text) {
    for (const PdfWord& word : words) {
        if (word.Text == QString::fromLatin1(text)) {
            return word;
        }
    }
    throw std::runtime_error(std::string("no word ") + text);
}

TEST(PlacesOn, FollowTheFixedDivisors) {
    const EstimatePlaces places = PlacesOn(16838, 11906);
    EXPECT_EQ(places.Picture.topLeft(), QPointF(500, 800));
    EXPECT_DOUBLE_EQ(places.Picture.width(), 16838 / 1.2);
    EXPECT_DOUBLE_EQ(places.Picture.height(), 11906 / 1.35);
    EXPECT_DOUBLE_EQ(places.CarpetLines.x(), 500);
    EXPECT_DOUBLE_EQ(places.CarpetLines.y(), 600 + 11906 / 1.25);
    EXPECT_LE(places.Title.y() + HeightOfLine(12), 800);
    EXPECT_GT(places.CarpetLines.y(), places.Picture.bottom());
}

TEST(PrintedSource, ReachesToTheFarthestPointAndItsMarginInTheTargetsProportions) {
    Drawing wide;
    wide.AddBox(0, 0, 9900, 900, DrawingColor::Black);
    const QRectF target(500, 800, 10000, 5000);
    EXPECT_EQ(PrintedSource(wide, target), QRectF(0, 0, 10000, 5000)); // lengthened
    Drawing high;
    high.AddBox(0, 0, 100, 9900, DrawingColor::Black);
    EXPECT_EQ(PrintedSource(high, target), QRectF(0, 0, 20000, 10000)); // widened
}

TEST(PrintedSource, IsEmptyWhenNothingIsDrawn) {
    EXPECT_TRUE(PrintedSource(Drawing(), QRectF(500, 800, 10000, 5000)).isEmpty());
}

TEST(FitInto, LeavesAPageAloneThatLiesInsideTheMargins) {
    for (const auto& [width, height] : {std::pair{16838, 11906}, {15840, 12240}, {23811, 16838}}) {
        const QRectF printable =
            QRectF(0, 0, width, height).marginsRemoved(QMarginsF(360, 360, 360, 360));
        EXPECT_TRUE(FitInto(PlacesOn(width, height).All, printable).isIdentity()) << width;
    }
}

TEST(FitInto, MovesAPageOutOfAWideMarginWithoutMakingItSmaller) {
    const QTransform moved =
        FitInto(QRectF(500, 400, 14000, 10500), QRectF(720, 380, 15000, 11000));
    EXPECT_EQ(moved.mapRect(QRectF(500, 400, 14000, 10500)), QRectF(720, 400, 14000, 10500));
    const QTransform up = FitInto(QRectF(500, 400, 14000, 10500), QRectF(360, 360, 16000, 10500));
    EXPECT_EQ(up.mapRect(QRectF(500, 400, 14000, 10500)), QRectF(500, 360, 14000, 10500));
}

TEST(FitInto, MakesAPageSmallerThatIsTooLargeWithoutDistortingIt) {
    const QRectF printable(360, 360, 8000, 5000);
    const QTransform fitted = FitInto(QRectF(500, 400, 16000, 5000), printable);
    EXPECT_DOUBLE_EQ(fitted.m11(), 0.5);
    EXPECT_DOUBLE_EQ(fitted.m22(), 0.5);
    EXPECT_TRUE(printable.contains(fitted.mapRect(QRectF(500, 400, 16000, 5000))));
}

TEST(PaintEstimate, PutsTitleDrawingAndCarpetLinesInTheirPlaces) {
    const Drawing drawing = CornersDrawing();
    const Pdf pdf(EstimatePdf(PageOf(drawing)));
    EXPECT_EQ(pdf.PageSize(), QSizeF(A4Width, A4Height));
    EXPECT_EQ(pdf.Pages(), 1);
    const auto words = pdf.Words(1);
    const EstimatePlaces places = PlacesOn(16838, 11906);
    const PdfWord& title = WordOf(words, "TARN");
    // Five blanks of Arial 12 before it.
    EXPECT_NEAR(title.Box.left(), places.Title.x() / 20 + 5 * 0.278 * 12, 0.5);
    EXPECT_NEAR(title.Box.top(), places.Title.y() / 20, 2);
    const PdfWord& carpet = WordOf(words, "Carpet-1");
    EXPECT_NEAR(carpet.Box.left(), 25, 0.5);
    EXPECT_NEAR(carpet.Box.top(), (600 + 11906 / 1.25) / 20, 2);
    const PdfWord& lay = WordOf(words, "DOWNLAY");
    EXPECT_NEAR(lay.Box.left(), 25, 0.5);
    EXPECT_NEAR(lay.Box.top() - carpet.Box.top(), HeightOfLine(12) / 20, 0.5);

    const QImage image = pdf.Image(1, Dpi);
    const QRectF target = places.Picture;
    const double scale = std::min(target.width() / 12100, target.height() / 7100);
    const QRect red = RedOf(image); // two boxes in opposite corners of the drawing
    EXPECT_NEAR(red.left(), Px(500), 2);
    EXPECT_NEAR(red.top(), Px(800), 2);
    EXPECT_NEAR(red.right(), Px(500 + 12000 * scale), 2);
    EXPECT_NEAR(red.bottom(), Px(800 + 7000 * scale), 2);
    EXPECT_TRUE(InkIn(image, PxRect(0, 0, 490, 11906)).isEmpty());
    EXPECT_TRUE(InkIn(image, PxRect(0, 0, 16838, 390)).isEmpty());
    EXPECT_TRUE(InkIn(image, PxRect(target.right(), 800, 16838, 11906)).isEmpty());
}

TEST(PaintEstimate, TheDrawingIsVectorsAndRealTextInTheRightProportions) {
    const Drawing drawing = CornersDrawing();
    const Pdf pdf(EstimatePdf(PageOf(drawing)));
    EXPECT_EQ(pdf.Images(), 0);
    const EstimatePlaces places = PlacesOn(16838, 11906);
    const double scale = std::min(places.Picture.width() / 12100, places.Picture.height() / 7100);
    const auto words = pdf.Words(1);
    const PdfWord& first = WordOf(words, "Total");
    const PdfWord& last = WordOf(words, "Length:30'0\"");
    EXPECT_NEAR(first.Box.left() * 20, 500 + 3000 * scale, 10);
    EXPECT_NEAR(last.Box.right() * 20, 500 + drawing.Steps().back().X2 * scale, 20);
    // The face's letters are as high as they are wide: nothing is squeezed.
    EXPECT_NEAR(first.Box.height() * 20, 12 * 20 * 1.15 * scale, 30);
}

/// The picture of one fill of that length on a roll of 36 inches, with or without its cut list.
Drawing LongDrawing(const Estimate& estimate, bool withList = true) {
    Drawing drawing;
    DrawLayout(drawing, estimate);
    if (withList) {
        DrawCutList(drawing, estimate, CutListX, CutListY);
    }
    return drawing;
}
Estimate LongEstimate(int length) {
    return testing::Estimated({{30, length}}, testing::Request(36));
}

TEST(PaintEstimate, SaysWhereTheCutListIsWhenNoLetterOfItIsLeft) {
    const Estimate estimate = LongEstimate(16000);
    const Drawing drawing = LongDrawing(estimate);
    const EstimatePage page = MakeEstimatePage("LONG", estimate, drawing, {}, "11/21/2031");
    EXPECT_TRUE(LosesCutList(page, {}));
    const Pdf pdf(EstimatePdf(page));
    EXPECT_FALSE(pdf.Text().contains(QStringLiteral("Total Length"))) << "it is lost";
    const auto words = pdf.Words(1);
    const PdfWord& first = WordOf(words, "The");
    EXPECT_NEAR(first.Box.left(), (500 + 500) / 20.0, 1);
    EXPECT_NEAR(first.Box.height(), 12 * 1.15, 3) << "of the page's own type";
    for (const std::string_view line : {ListNotShownText, ListElsewhereText}) {
        EXPECT_TRUE(pdf.Text().contains(testing::Words(std::string(line)))) << line;
    }
    EXPECT_TRUE(pdf.Text().contains(QStringLiteral("Carpet-1")));
}

TEST(PaintEstimate, SaysNothingOfACutListThatIsThereOrWasNotDrawn) {
    for (int length = 10000; length < 16000; length += 500) {
        const Estimate estimate = LongEstimate(length);
        const Drawing drawing = LongDrawing(estimate);
        const EstimatePage page = MakeEstimatePage("LONG", estimate, drawing, {}, "");
        const QString text = Pdf(EstimatePdf(page)).Text();
        const bool isThere = text.contains(QStringLiteral("Total Length"));
        EXPECT_EQ(LosesCutList(page, {}), !isThere) << length;
        EXPECT_EQ(text.contains(QStringLiteral("cannot show")), !isThere) << length;
    }
    const Estimate estimate = LongEstimate(16000);
    const Drawing redrawn = LongDrawing(estimate, false);
    const EstimatePage page = MakeEstimatePage("LONG", estimate, redrawn, {}, "");
    EXPECT_FALSE(LosesCutList(page, {}));
    EXPECT_FALSE(Pdf(EstimatePdf(page)).Text().contains(QStringLiteral("cannot show")));
}

TEST(PaintEstimate, LinesStaySharpAtAnyResolution) {
    Drawing drawing;
    drawing.AddBox(0, 0, 12000, 7000, DrawingColor::Black);
    EstimatePage page = PageOf(drawing);
    page.CarpetLines.clear();
    const Pdf pdf(EstimatePdf(page));
    const QImage image = pdf.Image(1, 400);
    const int row = image.height() / 2;
    int edges = 0;
    int grey = 0;
    for (int x = 1; x < image.width(); ++x) {
        const int here = qGray(image.pixel(x, row));
        edges += (here < 128) != (qGray(image.pixel(x - 1, row)) < 128) ? 1 : 0;
        grey += here > 60 && here < 200 ? 1 : 0;
    }
    EXPECT_EQ(edges, 4); // into and out of two lines
    EXPECT_LE(grey, 4);
}

TEST(PaintEstimate, IsBlackOnWhiteAlsoWhenTheScreenIsDark) {
    const Drawing drawing = CornersDrawing();
    const QImage light = Pdf(EstimatePdf(PageOf(drawing))).Image(1, 72);
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    const QImage underDark = Pdf(EstimatePdf(PageOf(drawing))).Image(1, 72);
    const Pdf report(ReportPdf(testing::ReportOf(2)));
    QApplication::setPalette(before);
    EXPECT_EQ(underDark, light);
    EXPECT_EQ(light.pixel(1, 1), qRgb(255, 255, 255));
    EXPECT_FALSE(InkOf(report.Image(1, 72)).isEmpty());
    EXPECT_EQ(report.Image(1, 72).pixel(1, 1), qRgb(255, 255, 255));
}

TEST(PaintEstimate, ATitleThatIsTooLongGetsSmallerLettersAndLosesNone) {
    const Drawing drawing = CornersDrawing();
    EstimatePage page = PageOf(drawing);
    const std::string name(200, 'W');
    page.Title = "     TARN RESULT  (PROJECT: " + name + ")  11/21/2031";
    const Pdf pdf(EstimatePdf(page));
    EXPECT_TRUE(pdf.Text().startsWith(testing::Words(page.Title)));
    const QRect ink = InkOf(pdf.Image(1, Dpi));
    EXPECT_LE(ink.right(), Px(PlacesOn(16838, 11906).Picture.right()) + 2);
    const auto words = pdf.Words(1);
    const auto plainWords = Pdf(EstimatePdf(PageOf(drawing))).Words(1);
    const QRectF small = WordOf(words, "TARN").Box;
    const QRectF plain = WordOf(plainWords, "TARN").Box;
    EXPECT_LT(small.width(), plain.width() / 2);
    EXPECT_NEAR(small.height() / plain.height(), small.width() / plain.width(), 0.02);
}

TEST(PaintEstimate, AnUnknownPageIsTheSheetOfTheDevice) {
    const Drawing drawing = CornersDrawing();
    EstimatePage page = PageOf(drawing);
    page.Sheet.Width = 0;
    Paper letter;
    letter.Size = {15840, 12240};
    const Pdf pdf(EstimatePdf(page, letter));
    EXPECT_EQ(pdf.PageSize(), QSizeF(792, 612));
    EXPECT_NEAR(WordOf(pdf.Words(1), "Carpet-1").Box.top(), (600 + 12240 / 1.25) / 20, 2);
}

TEST(PaintEstimate, OnASmallerSheetThanItWasMadeForNothingIsCutOff) {
    const Drawing drawing = CornersDrawing();
    Paper a5;
    a5.Size = {11906, 8391};
    const Pdf pdf(EstimatePdf(PageOf(drawing), a5));
    const QImage image = pdf.Image(1, Dpi);
    const QRect ink = InkOf(image);
    EXPECT_GE(ink.left(), Px(360) - 1);
    EXPECT_GE(ink.top(), Px(360) - 1);
    EXPECT_LE(ink.right(), Px(11906 - 360) + 1);
    EXPECT_LE(ink.bottom(), Px(8391 - 360) + 1);
    EXPECT_GT(ink.width(), Px(11906 - 720) * 3 / 4);
    EXPECT_TRUE(pdf.Text().endsWith(QStringLiteral("DOWNLAY")));
}

TEST(PaintEstimate, WithoutADrawingAndCarpetThereIsTheTitleAlone) {
    EstimatePage page;
    page.Title = "     TARN RESULT  (PROJECT: A)  1/2/2031";
    EXPECT_EQ(Pdf(EstimatePdf(page)).Text().toStdString(), "TARN RESULT (PROJECT: A) 1/2/2031");
}

TEST(PaintEstimate, ADeviceThatCannotBePaintedOnIsAnError) {
    QPdfWriter writer(QStringLiteral("/no/such/folder/estimate.pdf"));
    EXPECT_THROW(PaintEstimate(writer, EstimatePage()), PrinterError);
}

} // namespace
} // namespace tarn
