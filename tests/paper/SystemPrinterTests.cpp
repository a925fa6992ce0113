#include "files/OrderDocument.h"
#include "files/QtText.h"
#include "order/SheetTesting.h"
#include "paper/ColumnTesting.h"
#include "paper/PdfFile.h"
#include "paper/PdfTesting.h"
#include "paper/PrintServer.h"
#include "paper/PrintTesting.h"
#include "paper/PrinterPage.h"
#include "paper/ReportPages.h"
#include "paper/SystemPrinter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cups/ipp.h>

namespace tarn {
namespace {

using testing::A4Height;
using testing::A4Width;
using testing::CornersDrawing;
using testing::DeadAddress;
using testing::Driven;
using ::testing::HasSubstr;
using testing::HouseOf;
using testing::HouseOrder;
using testing::PageOf;
using testing::Pdf;
using testing::PrintedJob;
using testing::PrintServer;
using testing::QueueSetup;
using testing::ReportOf;
using testing::UserChoice;
using testing::UseServer;

/// Every way of using the printer, each refused with a text that holds `reason`, and with `advice`.
void ExpectRefused(const std::string& reason, const std::string& advice) {
    SystemPrinter printer;
    const auto refused = [&](const char* what, auto action) {
        try {
            action();
            ADD_FAILURE() << what << " went through";
        } catch (const PrinterError& error) {
            EXPECT_THAT(error.what(), HasSubstr(reason)) << what;
            EXPECT_THAT(error.Advice(), HasSubstr(advice)) << what;
        }
    };
    const Drawing drawing = CornersDrawing();
    refused("Page", [&] { printer.Page(); });
    refused("PrintReport", [&] { printer.PrintReport(ReportOf(3)); });
    refused("PrintEstimate", [&] { printer.PrintEstimate(PageOf(drawing)); });
    refused("PrintOrder", [&] { printer.PrintOrder(OrderDocument(), ""); });
}

// --- jobs that arrive ---

TEST(SystemPrinter, TheReportArrivesAsOneLandscapeJobWithAllItsTextInItsColumns) {
    const PrintServer server({QueueSetup()});
    const EnteredDataReport report = ReportOf(100);
    SystemPrinter().PrintReport(report);
    const PrintedJob job = server.Printed(1).at(0);
    EXPECT_EQ(job.Title, "ENTERED DATA REPORT");
    const Pdf pdf(job.Document);
    EXPECT_EQ(pdf.PageSize(), QSizeF(A4Width, A4Height));
    EXPECT_EQ(pdf.Pages(), 3);
    QString words;
    const auto pages = ReportPages(report, 111, 41);
    for (std::size_t page = 0; page < pages.size(); ++page) {
        testing::ExpectColumns(pdf.Words(static_cast<int>(page) + 1), pages[page],
                               testing::Advance);
        // A page after the first begins with the heads of the columns again.
        const std::size_t repeated = page == 0 ? 0 : ReportColumnHeadLines;
        for (std::size_t line = repeated; line < pages[page].size(); ++line) {
            words += ToQt(pages[page][line].Text) + u' ';
        }
    }
    EXPECT_EQ(words.simplified(), testing::Words(report.Text()));
    EXPECT_EQ(server.JobStates().size(), 1U);
}

TEST(SystemPrinter, TheEstimateArrivesAsOneLandscapeJobOfOnePage) {
    const PrintServer server({QueueSetup()});
    const Drawing drawing = CornersDrawing();
    SystemPrinter().PrintEstimate(PageOf(drawing));
    const PrintedJob job = server.Printed(1).at(0);
    EXPECT_EQ(job.Title, "TARN RESULT  (PROJECT: MAPLE HOUSE)  11/21/2031");
    const Pdf pdf(job.Document);
    EXPECT_EQ(pdf.PageSize(), QSizeF(A4Width, A4Height));
    EXPECT_EQ(pdf.Pages(), 1);
    EXPECT_EQ(pdf.Text().toStdString(), "TARN RESULT (PROJECT: MAPLE HOUSE) 11/21/2031 "
                                        "Total Length:30'0\" Carpet-1 Width=12'0\" DOWNLAY");
}

TEST(SystemPrinter, TheOrderArrivesAsOneUprightJob) {
    const PrintServer server({QueueSetup()});
    OrderDocument document{HouseOf({4, Units::Imperial, false}), Units::Imperial, {}};
    document.Orders.push_back(HouseOrder({4, Units::Imperial, false}, document.Of));
    SystemPrinter().PrintOrder(document, "11/22/2026");
    const PrintedJob job = server.Printed(1).at(0);
    EXPECT_EQ(job.Title, "ORDER (PROJECT: MAPLE HOUSE)");
    const Pdf pdf(job.Document);
    EXPECT_EQ(pdf.PageSize(), QSizeF(A4Height, A4Width));
    EXPECT_EQ(pdf.Text(), Pdf(OrderPdf(document, "11/22/2026")).Text());
    EXPECT_TRUE(pdf.Text().contains(QStringLiteral("11/22/2026")));
}

TEST(SystemPrinter, ATitleTooLongForAJobsNameIsCutBetweenCharacters) {
    const PrintServer server({QueueSetup()});
    const Drawing drawing = CornersDrawing();
    EstimatePage page = PageOf(drawing);
    page.Title = std::string(255, 'T');
    SystemPrinter().PrintEstimate(page);
    page.Title = std::string(256, 'T');
    SystemPrinter().PrintEstimate(page);
    page.Title = std::string(254, 'T') + "\u00c9\u00c9"; // two bytes each
    SystemPrinter().PrintEstimate(page);
    page.Title = std::string(252, 'T') + "\U0001F600"; // four bytes
    SystemPrinter().PrintEstimate(page);
    const auto jobs = server.Printed(4);
    ASSERT_EQ(jobs.size(), 4U);
    EXPECT_EQ(jobs[0].Title, std::string(255, 'T'));
    EXPECT_EQ(jobs[1].Title, std::string(255, 'T'));
    EXPECT_EQ(jobs[2].Title, std::string(254, 'T'));
    EXPECT_EQ(jobs[3].Title, std::string(252, 'T'));
}

TEST(SystemPrinter, TwoPrintsAreTwoJobs) {
    const PrintServer server({QueueSetup()});
    SystemPrinter printer;
    printer.PrintReport(ReportOf(1));
    printer.PrintReport(ReportOf(2));
    EXPECT_EQ(server.Printed(2).size(), 2U);
}

TEST(SystemPrinter, TakesTheDefaultQueueAmongOthers) {
    QueueSetup other;
    other.Name = "Another";
    other.Default = false;
    other.Stopped = true;
    QueueSetup last = other;
    last.Name = "Zebra";
    const PrintServer server({other, QueueSetup(), last});
    SystemPrinter().PrintReport(ReportOf(1));
    EXPECT_EQ(server.Printed(1).size(), 1U);
}

TEST(SystemPrinter, TheUsersOwnDefaultComesBeforeTheSystems) {
    QueueSetup stopped;
    stopped.Name = "Stopped";
    stopped.Default = false;
    stopped.Stopped = true;
    const PrintServer server({QueueSetup(), stopped});
    EXPECT_NO_THROW(SystemPrinter().Page());
    qputenv("LPDEST", "Stopped");
    ExpectRefused("The printer Stopped is stopped.", "Start it again");
    qunsetenv("LPDEST");
}

// --- paper ---

TEST(SystemPrinter, APageIsTheDefaultPaperInLandscapeTwips) {
    const PrintServer server({Driven("Letter")});
    const Printer::PageSize page = SystemPrinter().Page();
    EXPECT_NEAR(page.Width, 15840, 1);
    EXPECT_NEAR(page.Height, 12240, 1);
}

TEST(SystemPrinter, APageIsA4WhereTheQueueDoesNotTell) {
    const PrintServer server({QueueSetup()});
    const Printer::PageSize page = SystemPrinter().Page();
    EXPECT_EQ(page.Width, 16838);
    EXPECT_EQ(page.Height, 11906);
}

TEST(SystemPrinter, TheUsersChoiceOfPaperHoldsAndIsAskedFor) {
    const PrintServer server({Driven("Letter")});
    const UserChoice choice{{"media", "A4"}};
    EXPECT_NEAR(SystemPrinter().Page().Width, 842 * 20, 1); // as its driver has it
    SystemPrinter().PrintReport(ReportOf(1));
    EXPECT_THAT(server.Printed(1).at(0).Options, HasSubstr("media=iso_a4_210x297mm"));
}

TEST(SystemPrinter, AChoiceOfMediaWithATrayHoldsInAnyOrder) {
    for (const char* media : {"A4,Tray2", "Tray2,A4"}) {
        const PrintServer server({Driven("Letter")});
        const UserChoice choice{{"media", media}};
        EXPECT_NEAR(SystemPrinter().Page().Width, 842 * 20, 1) << media;
        SystemPrinter().PrintReport(ReportOf(1));
        const std::string options = server.Printed(1).at(0).Options;
        EXPECT_THAT(options, HasSubstr("media=iso_a4_210x297mm,Tray2")) << media;
    }
    for (const char* media : {"Letter,Tray2", "Tray2,Letter"}) {
        const PrintServer server({QueueSetup()}); // tells no sizes
        const UserChoice choice{{"media", media}};
        EXPECT_NEAR(SystemPrinter().Page().Width, 15840, 1) << media;
        SystemPrinter().PrintReport(ReportOf(1));
        const std::string options = server.Printed(1).at(0).Options;
        EXPECT_THAT(options, HasSubstr("media=na_letter_8.5x11in,Tray2")) << media;
    }
}

TEST(SystemPrinter, AChoiceOfATrayBesideAPageSizeLeavesTheSize) {
    const PrintServer server({Driven("Letter")});
    const UserChoice choice{{"media", "Tray2"}, {"PageSize", "A4"}};
    EXPECT_NEAR(SystemPrinter().Page().Width, 842 * 20, 1);
    SystemPrinter().PrintReport(ReportOf(1));
    EXPECT_THAT(server.Printed(1).at(0).Options, HasSubstr("media=iso_a4_210x297mm,Tray2"));
}

TEST(SystemPrinter, AChoiceOfATrayAloneIsSentOnForThePrintersOwnPaper) {
    const PrintServer server({Driven("Letter")});
    const UserChoice choice{{"media", "Tray2"}};
    EXPECT_NEAR(SystemPrinter().Page().Width, 15840, 1);
    SystemPrinter().PrintReport(ReportOf(1));
    EXPECT_THAT(server.Printed(1).at(0).Options, HasSubstr("Tray2"));
}

TEST(SystemPrinter, TheReportKeepsItsSizeThroughAPrintersDriver) {
    const PrintServer server({Driven("A4", 36)});
    SystemPrinter().PrintReport(ReportOf(1));
    const Pdf pdf(server.Printed(1).at(0).Document);
    // The driver hands the printer an upright sheet with the page turned on it.
    const QSizeF size = pdf.PageSize();
    EXPECT_EQ(qMin(size.width(), size.height()), A4Height);
    EXPECT_EQ(qMax(size.width(), size.height()), A4Width);
    EXPECT_EQ(pdf.Pages(), 1);
    const QImage page = pdf.Image(1, 72);
    const bool upright = page.height() > page.width();
    const QRect ink = testing::InkOf(upright ? page.transformed(QTransform().rotate(90)) : page);
    const QRect plain = testing::InkOf(Pdf(ReportPdf(ReportOf(1))).Image(1, 72));
    EXPECT_NEAR(ink.width(), plain.width(), 2);
    EXPECT_NEAR(ink.height(), plain.height(), 2);
}

TEST(SystemPrinter, NothingIsPrintedInsideTheMarginsOfTheDriver) {
    const int margin = 50;
    const PrintServer server({Driven("Letter", margin)});
    SystemPrinter printer;
    const Drawing drawing = CornersDrawing();
    EstimatePage estimate = PageOf(drawing);
    estimate.Sheet = AskPrinterPage(printer);
    printer.PrintEstimate(estimate);
    printer.PrintReport(ReportOf(100));
    for (const PrintedJob& job : server.Printed(2)) {
        const Pdf pdf(job.Document);
        const QImage page = pdf.Image(1, 72);
        const QRect ink = testing::InkOf(page);
        const bool upright = page.height() > page.width();
        const int shortEdge = upright ? ink.top() : ink.left();
        const int otherShortEdge =
            upright ? page.height() - 1 - ink.bottom() : page.width() - 1 - ink.right();
        EXPECT_GE(shortEdge, margin - 1) << job.Title;
        EXPECT_GE(otherShortEdge, margin - 1) << job.Title;
        EXPECT_GT(ink.width() * ink.height(), 612 * 792 / 3) << job.Title;
    }
}

// --- jobs that cannot be printed ---

TEST(SystemPrinter, ThereIsNoPrinterWithoutAQueue) {
    const PrintServer server({});
    ExpectRefused("There is no default printer.", "Choose a default printer");
}

TEST(SystemPrinter, ThereIsNoPrinterWithoutADefaultQueue) {
    QueueSetup queue;
    queue.Default = false;
    const PrintServer server({queue});
    ExpectRefused("There is no default printer.", "Choose a default printer");
}

TEST(SystemPrinter, AChosenQueueThatIsNotThereIsNamed) {
    const PrintServer server({QueueSetup()});
    qputenv("LPDEST", "Attic");
    ExpectRefused("There is no printer Attic.", "Choose a default printer");
    qunsetenv("LPDEST");
}

TEST(SystemPrinter, AStoppedQueueIsNoPrinter) {
    QueueSetup queue;
    queue.Stopped = true;
    const PrintServer server({queue});
    ExpectRefused("The printer Paper is stopped.", "Start it again");
    EXPECT_TRUE(server.JobStates().empty());
}

TEST(SystemPrinter, AQueueThatTakesNoJobsIsNoPrinter) {
    QueueSetup queue;
    queue.Accepting = false;
    const PrintServer server({queue});
    ExpectRefused("The printer Paper takes no jobs.", "Let it accept jobs");
    EXPECT_TRUE(server.JobStates().empty());
}

TEST(SystemPrinter, AServerThatIsAwayIsNoPrinter) {
    UseServer(DeadAddress());
    ExpectRefused("cannot be reached", "Check that the printing system runs");
}

TEST(SystemPrinter, AServerThatStopsMeanwhileIsNoPrinter) {
    PrintServer server({QueueSetup()});
    EXPECT_NO_THROW(SystemPrinter().Page());
    EXPECT_EQ(server.Stop(), 0);
    ExpectRefused("cannot be reached", "Check that the printing system runs");
}

TEST(SystemPrinter, AJobThatTheServerForbidsIsRefused) {
    QueueSetup queue;
    queue.OnlyUser = "somebody-else";
    const PrintServer server({queue});
    SystemPrinter printer;
    EXPECT_NO_THROW(printer.Page());
    try {
        printer.PrintReport(ReportOf(1));
        FAIL() << "the job went through";
    } catch (const PrinterError& error) {
        EXPECT_THAT(error.what(), HasSubstr("The printer Paper refused the job: "));
        EXPECT_THAT(error.Advice(), HasSubstr("printer settings"));
    }
    EXPECT_TRUE(server.JobStates().empty());
}

TEST(SystemPrinter, AJobWhoseDocumentIsRefusedLeavesNoPage) {
    const PrintServer server({QueueSetup()}, 4000); // less than any page
    SystemPrinter printer;
    EXPECT_THROW(printer.PrintReport(ReportOf(100)), PrinterError);
    const auto states = server.JobStates();
    ASSERT_EQ(states.size(), 1U); // it was begun
    EXPECT_EQ(states.begin()->second, IPP_JSTATE_CANCELED);
    EXPECT_TRUE(server.Printed(0).empty());
}

TEST(ReadPrinterPage, ReadsTheSheetOfTheSystemsPrinter) {
    const PrintServer server({Driven("A4")});
    SystemPrinter printer;
    EXPECT_EQ(ReadPrinterPage(printer), (PageTwips{842 * 20, 595 * 20})); // as its driver has it
}

TEST(ReadPrinterPage, ASystemWithoutAPrinterLeavesBothSidesUnset) {
    UseServer(DeadAddress());
    SystemPrinter printer;
    EXPECT_EQ(ReadPrinterPage(printer), PageTwips());
}

} // namespace
} // namespace tarn
