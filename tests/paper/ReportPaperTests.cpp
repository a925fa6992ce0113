#include "paper/ColumnTesting.h"
#include "paper/PdfFile.h"
#include "paper/PdfTesting.h"
#include "paper/PrintTesting.h"
#include "paper/ReportPages.h"
#include "paper/ReportPaper.h"

#include <QFile>
#include <QPdfWriter>
#include <QPrinter>

#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace {

using testing::A4Height;
using testing::A4Width;
using testing::Advance;
using testing::ExpectColumns;
using testing::Margin;
using testing::Pdf;
using testing::PdfWord;
using testing::ReportOf;

TEST(PaintReport, EveryWordStandsInItsColumnOnEveryPage) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        const EnteredDataReport report = ReportOf(120, units);
        const Pdf pdf(ReportPdf(report));
        const auto pages = ReportPages(report, 111, 41);
        ASSERT_EQ(pdf.Pages(), static_cast<int>(pages.size()));
        EXPECT_EQ(pdf.PageSize(), QSizeF(A4Width, A4Height));
        for (int page = 1; page <= pdf.Pages(); ++page) {
            ExpectColumns(pdf.Words(page), pages[static_cast<std::size_t>(page - 1)], Advance);
        }
    }
}

TEST(PaintReport, ReadsLineByLineAsTheReportDoes) {
    const EnteredDataReport report = ReportOf(20);
    QStringList found;
    for (const QString& line : Pdf(ReportPdf(report)).Layout(1).split(u'\n')) {
        if (!line.trimmed().isEmpty()) {
            found << line.simplified();
        }
    }
    QStringList expected;
    for (const ReportLine& line : report.Lines) {
        const QString words = testing::Words(line.Text);
        if (!words.isEmpty()) {
            expected << words;
        }
    }
    EXPECT_EQ(found, expected);
}

TEST(PaintReport, HasEveryBlankOfTheReportWhereReadersCountColumns) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        const EnteredDataReport report = ReportOf(30, units);
        const QString margin(static_cast<qsizetype>(std::lround(Margin / Advance)), u' ');
        QStringList found;
        for (const QString& line :
             Pdf(ReportPdf(report)).FixedPitchLayout(1, Advance).split(u'\n')) {
            if (!line.trimmed().isEmpty()) {
                found << line;
            }
        }
        QStringList expected;
        for (const ReportLine& line : report.Lines) {
            QString text = margin + QString::fromStdString(line.Text);
            while (text.endsWith(u' ')) {
                text.chop(1);
            }
            if (!text.isEmpty()) {
                expected << text;
            }
        }
        EXPECT_EQ(found, expected);
    }
}

TEST(PaintReport, NothingIsNearerToTheEdgeThanTheMargin) {
    Project project;
    project.Rooms.resize(30, {150, 168, 0, 5, "WWWWWWWW", std::string(255, 'W')});
    const Pdf pdf(ReportPdf(MakeReport(project, Units::Imperial, "11/21/2031")));
    for (int page = 1; page <= pdf.Pages(); ++page) {
        const QImage image = pdf.Image(page, 72);
        const QRect ink = testing::InkOf(image);
        EXPECT_GE(ink.left(), 17);
        EXPECT_GE(ink.top(), 17);
        EXPECT_LE(ink.right(), image.width() - 18);
        EXPECT_LE(ink.bottom(), image.height() - 18);
    }
}

TEST(PaintReport, OnASmallSheetTheLettersGetSmallerUntilTheHeadingFits) {
    Paper a5;
    a5.Size = {11906, 8391};
    const EnteredDataReport report = ReportOf(3);
    const Pdf pdf(ReportPdf(report, a5));
    const double advance = 0.6 * std::floor((11906 - 720) / (87 * 0.6)) / 20;
    ExpectColumns(pdf.Words(1), ReportPages(report, 87, 41)[0], advance);
}

/// The remark behind that room number stands where it does behind a plain one.
void ExpectRemarkInItsColumnBehind(const std::string& roomNo) {
    const EnteredDataReport report = testing::ReportOfRooms(
        {{150, 168, 0, 0, roomNo, "Remark"}, {150, 168, 0, 0, "12", "Remark"}});
    std::vector<double> lefts;
    for (const PdfWord& word : Pdf(ReportPdf(report)).Words(1)) {
        if (word.Text == QStringLiteral("Remark")) {
            lefts.push_back(word.Box.left());
        }
    }
    ASSERT_EQ(lefts.size(), 2U);
    EXPECT_NEAR(lefts[0], lefts[1], 0.1);
}

TEST(PaintReport, LettersThatTheFaceLacksLeaveTheColumnsBehindThemInPlace) {
    ExpectRemarkInItsColumnBehind("浴室浴室");
}

TEST(PaintReport, WiderLettersOfAnotherFaceKeepToTheirCells) {
    const QString wide = QStringLiteral("⨌⨌⨌⨌"); // each wider than a cell
    const EnteredDataReport report =
        testing::ReportOfRooms({{150, 168, 0, 0, wide.toStdString(), "Remark"}});
    int found = 0;
    for (const PdfWord& word : Pdf(ReportPdf(report)).Words(1)) {
        if (word.Text == wide) {
            EXPECT_NEAR(word.Box.width(), 4 * Advance, 0.3);
            ++found;
        }
    }
    EXPECT_EQ(found, 1);
}

TEST(PaintReport, ARemarkStandsInItsColumnBehindARoomNumberOfWideLetters) {
    ExpectRemarkInItsColumnBehind("⨌⨌⨌⨌⨌⨌⨌⨌"); // one blank is left
}

TEST(PaintReport, PaintsOnAPrinterThatCountsFromItsMarginsToo) {
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("printer.pdf"));
    const EnteredDataReport report = ReportOf(40);
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                          QMarginsF(Margin, Margin, Margin, Margin)));
        ASSERT_EQ(printer.pageLayout().mode(), QPageLayout::StandardMode);
        PaintReport(printer, report);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const Pdf pdf(file.readAll().toStdString());
    ASSERT_EQ(pdf.Pages(), 2);
    const auto pages = ReportPages(report, 111, 41);
    ExpectColumns(pdf.Words(1), pages[0], Advance);
    ExpectColumns(pdf.Words(2), pages[1], Advance);
}

TEST(PaintReport, ADeviceThatCannotBePaintedOnIsAnError) {
    QPdfWriter writer(QStringLiteral("/no/such/folder/report.pdf"));
    EXPECT_THROW(PaintReport(writer, ReportOf(1)), PrinterError);
}

} // namespace
} // namespace tarn
