// Every alignment at a number of escapements, in colours and clipped: where ink is, and where there
// is none, pixel by pixel, on each kind of surface.

#include "paper/PdfTesting.h"
#include "text/TextSheetChecks.h"

#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::PaintTextSheet;
using testing::Pdf;
using testing::SheetCell;
using testing::SheetCells;
using testing::SheetInk;
using testing::SheetPictures;
using testing::SheetSize;

QImage OnImage(SheetInk ink) {
    QImage image(SheetSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    PaintTextSheet(painter, ink);
    return image;
}

QImage OnWidget(SheetInk ink) {
    struct Sheet : QWidget {
        explicit Sheet(SheetInk drawn)
            : ink(drawn) {}
        void paintEvent(QPaintEvent*) override {
            QPainter painter(this);
            PaintTextSheet(painter, ink);
        }
        SheetInk ink;
    } sheet(ink);
    sheet.resize(SheetSize());
    return sheet.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// A page of the same size in points, rendered twice as large, for the renderer puts letters on
/// whole pixels, and brought down to a pixel for each point.
QImage OnPage(SheetInk ink) {
    constexpr int PointsPerInch = 72;
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("sheet.pdf"));
    {
        QPdfWriter page(path);
        page.setPageMargins({});
        page.setPageSize(
            QPageSize(QSizeF(SheetSize()), QPageSize::Point, {}, QPageSize::ExactMatch));
        QPainter painter(&page);
        painter.scale(page.resolution() / double{PointsPerInch},
                      page.resolution() / double{PointsPerInch});
        PaintTextSheet(painter, ink);
    }
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return Pdf(file.readAll().toStdString())
        .Image(1, 2 * PointsPerInch)
        .convertToFormat(QImage::Format_RGB32)
        .scaled(SheetSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

using Paint = QImage (*)(SheetInk);

SheetPictures Pictures(Paint paint, double letterEdge, int clipEdge) {
    return {paint(SheetInk::None), paint(SheetInk::Unclipped), paint(SheetInk::All), letterEdge,
            clipEdge};
}

void ExpectSheet(const SheetPictures& pictures) {
    ASSERT_EQ(pictures.All.size(), SheetSize());
    ExpectPaperAroundLetters(pictures);
    ExpectInkInStrokes(pictures);
    ExpectPaperInCounters(pictures);
    ExpectClipsToCutExactly(pictures);
}

TEST(TextSheet, OnAnImageEachPixelIsInkOrPaperAsItsTextSays) {
    ExpectSheet(Pictures(OnImage, 1.25, 0));
}

TEST(TextSheet, OnAWidgetItIsTheSame) {
    ExpectSheet(Pictures(OnWidget, 1.25, 0));
}

TEST(TextSheet, OnAPageItIsTheSame) {
    ExpectSheet(Pictures(OnPage, 1.5, 1));
}

TEST(TextSheet, AFullTurnIsNoTurn) {
    const QImage sheet = OnImage(SheetInk::All);
    int compared = 0;
    for (const SheetCell& turned : SheetCells()) {
        for (const SheetCell& level : SheetCells()) {
            if (turned.Row.Escapement == 3600 && level.Row.Escapement == 0 &&
                level.Row.Label == turned.Row.Label && turned.Area.left() == level.Area.left()) {
                EXPECT_EQ(sheet.copy(turned.Area), sheet.copy(level.Area));
                ++compared;
            }
        }
    }
    EXPECT_EQ(compared, 9);
}

} // namespace
} // namespace tarn
