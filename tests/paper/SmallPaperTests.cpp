// Sheets of every size: everything is on them, or there is an error.

#include "paper/PdfFile.h"
#include "paper/PdfTesting.h"
#include "paper/PrintTesting.h"
#include "paper/Printer.h"

#include <gtest/gtest.h>

#include <array>

namespace tarn {
namespace {

using testing::CornersDrawing;
using testing::InkOf;
using testing::PageOf;
using testing::Pdf;
using testing::ReportOf;

Paper SheetOf(Double width, Double height) {
    Paper paper;
    paper.Size = {width, height};
    return paper;
}

/// Whether all words are there, and no ink nearer to an edge than the margin.
void ExpectWhole(const std::string& document, const QString& words) {
    const Pdf pdf(document);
    QString found;
    for (int page = 1; page <= pdf.Pages(); ++page) {
        found += pdf.Layout(page) + u' ';
        const QImage image = pdf.Image(page, 144);
        const QRect inner = image.rect().adjusted(35, 35, -35, -35);
        EXPECT_TRUE(inner.contains(InkOf(image))) << "page " << page;
    }
    EXPECT_EQ(found.simplified(), words);
}

TEST(SmallPaper, TheReportIsWholeOnALabelOrANarrowRoll) {
    for (const auto& [width, height] : {std::pair{8640, 5760}, {16838, 2200}, {4535, 4535}}) {
        SCOPED_TRACE(width);
        const EnteredDataReport report = ReportOf(1);
        ExpectWhole(ReportPdf(report, SheetOf(width, height)), testing::Words(report.Text()));
    }
}

TEST(SmallPaper, TheEstimateIsWholeOnALabel) {
    const Drawing drawing = CornersDrawing();
    EstimatePage page = PageOf(drawing);
    page.Sheet.Width = 0; // the sheet's own size
    const QString words = testing::Words(page.Title + " Total Length:30'0\" " +
                                         page.CarpetLines[0] + " " + page.CarpetLines[1]);
    for (const auto& [width, height] : {std::pair{8640, 5760}, {4320, 2880}}) {
        SCOPED_TRACE(width);
        ExpectWhole(EstimatePdf(page, SheetOf(width, height)), words);
    }
}

TEST(SmallPaper, AStripOfPaperWithoutRoomForTheHeadingIsAnError) {
    for (const auto& [width, height] : {std::pair{3000, 2880}, {16838, 1000}}) {
        EXPECT_THROW(ReportPdf(ReportOf(1), SheetOf(width, height)), PrinterError) << width;
    }
}

TEST(SmallPaper, ASheetThatIsAllMarginOrNoSheetIsAnError) {
    const Drawing drawing = CornersDrawing();
    Paper wideMargins;
    wideMargins.Left = wideMargins.Right = 9000;
    Paper highMargins;
    highMargins.Top = highMargins.Bottom = 6000;
    const std::array papers{SheetOf(720, 720), SheetOf(500, 400), SheetOf(16838, 300),
                            SheetOf(0, 0),     SheetOf(11906, 0), SheetOf(0, 11906),
                            SheetOf(-5, -5),   wideMargins,       highMargins};
    for (const Paper& paper : papers) {
        SCOPED_TRACE(std::to_string(paper.Size.Width) + " x " + std::to_string(paper.Size.Height));
        EXPECT_THROW(ReportPdf(ReportOf(1), paper), PrinterError);
        EXPECT_THROW(EstimatePdf(PageOf(drawing), paper), PrinterError);
    }
}

} // namespace
} // namespace tarn
