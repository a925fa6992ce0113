#include "files/OutputFile.h"
#include "paper/PdfFile.h"
#include "paper/PdfTesting.h"
#include "paper/PrintTesting.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::CornersDrawing;
using ::testing::HasSubstr;
using testing::PageOf;
using testing::Pdf;
using testing::ReportOf;

class PdfFile : public ::testing::Test {
  protected:
    std::string Path(const char* name) const {
        return directory_.filePath(QString::fromUtf8(name)).toStdString();
    }
    static std::string Read(const std::string& path) {
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }
    static void Write(const std::string& path, const QByteArray& content) {
        QFile file(QString::fromStdString(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

  private:
    QTemporaryDir directory_;
};

void ExpectEmbeddedText(const Pdf& pdf) {
    const QStringList fonts = pdf.Fonts();
    EXPECT_FALSE(fonts.isEmpty());
    for (const QString& font : fonts) {
        // name, type (two words), encoding, embedded, subset, unicode, object (two words)
        const QStringList columns = font.simplified().split(u' ');
        ASSERT_GE(columns.size(), 8) << font.toStdString();
        EXPECT_EQ(columns[columns.size() - 5], QStringLiteral("yes")) << font.toStdString();
        EXPECT_EQ(columns[columns.size() - 3], QStringLiteral("yes")) << font.toStdString();
    }
    EXPECT_EQ(pdf.Images(), 0);
}

TEST_F(PdfFile, TheReportIsRealTextInEmbeddedFacesWithItsTitle) {
    WriteReportPdf(ReportOf(60), Path("report.pdf"));
    const Pdf pdf(Read(Path("report.pdf")));
    ExpectEmbeddedText(pdf);
    EXPECT_EQ(pdf.InfoOf("Title"), QStringLiteral("ENTERED DATA REPORT"));
    EXPECT_EQ(pdf.InfoOf("Creator"), QStringLiteral("SOLVANE 2040"));
    EXPECT_EQ(pdf.Pages(), 2);
    EXPECT_TRUE(pdf.Text().contains(QStringLiteral("PROJECT NAME: MAPLE HOUSE")));
}

TEST_F(PdfFile, TheEstimateIsRealTextInEmbeddedFacesWithItsTitle) {
    const Drawing drawing = CornersDrawing();
    WriteEstimatePdf(PageOf(drawing), Path("estimate.pdf"));
    const Pdf pdf(Read(Path("estimate.pdf")));
    ExpectEmbeddedText(pdf);
    EXPECT_EQ(pdf.InfoOf("Title").simplified(),
              QStringLiteral("TARN RESULT (PROJECT: MAPLE HOUSE) 11/21/2031"));
    EXPECT_EQ(pdf.Pages(), 1);
}

TEST_F(PdfFile, TextOutsideLatinStaysSearchable) {
    Project project;
    project.Name = "ERLENSTRAßE ŁÓDŹ ЖИЛЬЁ";
    const Pdf pdf(ReportPdf(MakeReport(project, Units::Imperial, "")));
    EXPECT_TRUE(pdf.Text().contains(QStringLiteral("ERLENSTRAßE ŁÓDŹ ЖИЛЬЁ")))
        << pdf.Text().toStdString();
}

TEST_F(PdfFile, TheSheetIsThePagesOwnAndA4WithoutOne) {
    const Drawing drawing = CornersDrawing();
    EstimatePage page = PageOf(drawing);
    page.Sheet = {15840, 12240};
    EXPECT_EQ(Pdf(EstimatePdf(page)).PageSize(), QSizeF(792, 612));
    page.Sheet.Height = 0;
    EXPECT_EQ(Pdf(EstimatePdf(page)).PageSize(), QSizeF(842, 595));
}

TEST_F(PdfFile, AFileThatCannotBeWrittenIsNamed) {
    const std::string path = Path("no/such/folder/report.pdf");
    for (const bool report : {true, false}) {
        try {
            if (report) {
                WriteReportPdf(ReportOf(1), path);
            } else {
                WriteEstimatePdf(EstimatePage(), path);
            }
            FAIL() << "written";
        } catch (const OutputFileError& error) {
            EXPECT_THAT(error.what(), HasSubstr("The file " + path + " cannot be written: "));
        }
    }
}

TEST_F(PdfFile, AnOldFileIsReplacedAndADatabaseIsNot) {
    Write(Path("old.pdf"), QByteArray(100000, 'x'));
    WriteReportPdf(ReportOf(1), Path("old.pdf"));
    EXPECT_EQ(Read(Path("old.pdf")).substr(0, 5), "%PDF-");
    EXPECT_LT(Read(Path("old.pdf")).size(), 100000U);
    const QByteArray database = QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\0');
    Write(Path("Tarn.mdb"), database);
    EXPECT_THROW(WriteReportPdf(ReportOf(1), Path("Tarn.mdb")), OutputFileError);
    EXPECT_EQ(Read(Path("Tarn.mdb")), database.toStdString());
}

} // namespace
} // namespace tarn
