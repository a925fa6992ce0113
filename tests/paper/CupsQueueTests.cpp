// What the defaults of a queue do to a job, as CUPS and its filters apply them.

#include "paper/CupsQueue.h"
#include "paper/PdfTesting.h"
#include "paper/PrintServer.h"
#include "paper/PrintTesting.h"
#include "paper/SystemPrinter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cups/cups.h>

namespace tarn {
namespace {

using testing::Driven;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::Pdf;
using testing::PrintedJob;
using testing::PrintServer;
using testing::QueueSetup;
using testing::ReportOf;
using testing::UserChoice;
using testing::UseServer;

constexpr int TwoPages = 60; ///< rooms that a report of two pages lists

/// The pages of a document as they are seen.
std::vector<QImage> PagesOf(const PrintedJob& job) {
    const Pdf pdf(job.Document);
    std::vector<QImage> pages;
    for (int page = 1; page <= pdf.Pages(); ++page) {
        constexpr int DotsPerInch = 50;
        pages.push_back(pdf.Image(page, DotsPerInch));
    }
    return pages;
}

/// Queues with a driver, each with another default of its administrator's. Their jobs.
std::vector<PrintedJob> JobsWith(const std::vector<std::string>& defaults) {
    std::vector<QueueSetup> queues;
    for (const std::string& option : defaults) {
        QueueSetup queue = Driven("A4");
        queue.Name = "Paper" + std::to_string(queues.size());
        queue.Default = queues.empty();
        queue.Options = {option};
        queues.push_back(queue);
    }
    const PrintServer server(queues);
    for (const QueueSetup& queue : queues) {
        qputenv("LPDEST", QByteArray::fromStdString(queue.Name));
        SystemPrinter().PrintReport(ReportOf(TwoPages));
    }
    qunsetenv("LPDEST");
    return server.Printed(queues.size());
}

PrintedJob PlainJob(const std::string& paper = "A4") {
    const PrintServer server({Driven(paper)});
    SystemPrinter().PrintReport(ReportOf(TwoPages));
    return server.Printed(1).at(0);
}

TEST(CupsQueue, NoDefaultOfTheAdministratorsTurnsResizesMirrorsOrLeavesOutPages) {
    const std::vector<std::string> defaults{
        "number-up 4",
        "orientation-requested 3",
        "orientation-requested 4",
        "orientation-requested 5",
        "orientation-requested 6",
        "landscape true",
        "fit-to-page true",
        "fitplot true",
        "scaling 50",
        "natural-scaling 50",
        "print-scaling fill",
        "mirror true",
        "page-ranges 2",
        "page-set even",
        "page-set odd",
        "booklet on",
    };
    const std::vector<QImage> plain = PagesOf(PlainJob());
    ASSERT_EQ(plain.size(), 2U);
    const auto jobs = JobsWith(defaults);
    ASSERT_EQ(jobs.size(), defaults.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        EXPECT_TRUE(PagesOf(jobs[i]) == plain) << defaults[i] << ": " << jobs[i].Options;
    }
}

TEST(CupsQueue, NoChoiceOfTheUsersTurnsResizesMirrorsOrLeavesOutPages) {
    const std::vector<QImage> plain = PagesOf(PlainJob());
    const PrintServer server({Driven("A4")});
    const std::vector<std::pair<const char*, const char*>> choices{
        {"number-up", "4"},    {"orientation-requested", "4"},
        {"landscape", "true"}, {"fit-to-page", "true"},
        {"fitplot", "true"},   {"scaling", "50"},
        {"mirror", "true"},    {"page-ranges", "2"},
        {"page-set", "odd"},   {"PageRegion", "Letter"},
        {"booklet", "on"},     {"print-scaling", "fill"}};
    for (const auto& [option, value] : choices) {
        const UserChoice choice{{option, value}};
        SystemPrinter().PrintReport(ReportOf(TwoPages));
    }
    const auto jobs = server.Printed(choices.size());
    ASSERT_EQ(jobs.size(), choices.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        EXPECT_TRUE(PagesOf(jobs[i]) == plain) << choices[i].first << ": " << jobs[i].Options;
    }
}

TEST(CupsQueue, NothingIsSentAgainstDefaultsThatAQueueDoesNotHave) {
    for (const QueueSetup& queue : {QueueSetup(), Driven("A4")}) {
        const PrintServer server({queue});
        SystemPrinter().PrintReport(ReportOf(1));
        const std::string options = server.Printed(1).at(0).Options;
        EXPECT_THAT(options, HasSubstr("print-scaling=none"));
        for (const char* option : {"number-up", "orientation-requested", "page-ranges", "page-set",
                                   "fit-to-page", "mirror", "landscape", "scaling=1"}) {
            EXPECT_THAT(options, Not(HasSubstr(option)));
        }
    }
}

TEST(CupsQueue, WhatElseTheAdministratorChoseHolds) {
    const auto jobs = JobsWith({"sides two-sided-long-edge", "copies 2", "outputorder reverse",
                                "print-color-mode monochrome", "print-quality 3"});
    ASSERT_EQ(jobs.size(), 5U);
    EXPECT_THAT(jobs[0].Options, HasSubstr("sides=two-sided-long-edge"));
    EXPECT_EQ(jobs[0].Copies, "1");
    EXPECT_EQ(jobs[1].Copies, "2");
    auto reversed = PagesOf(jobs[2]);
    std::reverse(reversed.begin(), reversed.end());
    EXPECT_TRUE(reversed == PagesOf(jobs[0]));
    EXPECT_THAT(jobs[3].Options, HasSubstr("print-color-mode=monochrome"));
    EXPECT_THAT(jobs[4].Options, HasSubstr("print-quality=3"));
}

TEST(CupsQueue, WhatElseTheUserChoseHoldsOverTheAdministrators) {
    QueueSetup queue = Driven("A4");
    queue.Options = {"sides one-sided", "copies 3", "number-up 2"};
    const PrintServer server({queue});
    const UserChoice choice{{"sides", "two-sided-short-edge"},
                            {"copies", "2"},
                            {"print-color-mode", "monochrome"},
                            {"InputSlot", "Tray2"}};
    SystemPrinter().PrintReport(ReportOf(TwoPages));
    const PrintedJob job = server.Printed(1).at(0);
    EXPECT_EQ(job.Copies, "2");
    for (const char* option : {"sides=two-sided-short-edge", "print-color-mode=monochrome",
                               "InputSlot=Tray2", "number-up=1"}) {
        EXPECT_THAT(job.Options, HasSubstr(option));
    }
}

TEST(CupsQueue, TheAdministratorsPaperHoldsHoweverItIsChosen) {
    const std::vector<std::string> defaults{"PageSize Letter", "PageRegion Letter",
                                            "media na_letter_8.5x11in"};
    const std::vector<QImage> plain = PagesOf(PlainJob("Letter"));
    const auto jobs = JobsWith(defaults);
    ASSERT_EQ(jobs.size(), defaults.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        EXPECT_TRUE(PagesOf(jobs[i]) == plain) << defaults[i] << ": " << jobs[i].Options;
    }
}

TEST(CupsQueue, TheUsersPaperHoldsOverTheAdministrators) {
    const std::vector<QImage> plain = PagesOf(PlainJob());
    for (const char* option :
         {"PageSize Letter", "PageRegion Letter", "media na_letter_8.5x11in"}) {
        QueueSetup queue = Driven("Letter");
        queue.Options = {option};
        const PrintServer server({queue});
        const UserChoice choice{{"media", "A4"}};
        SystemPrinter().PrintReport(ReportOf(TwoPages));
        const PrintedJob job = server.Printed(1).at(0);
        EXPECT_TRUE(PagesOf(job) == plain) << option << ": " << job.Options;
    }
}

// --- ways to the server ---

TEST(CupsQueue, PrintsOverTheServersSocket) {
    const PrintServer server({Driven("Letter")});
    UseServer(server.Socket());
    SystemPrinter().PrintReport(ReportOf(1));
    EXPECT_EQ(server.Printed(1).size(), 1U);
}

TEST(CupsQueue, ProvesWhoAsksWhereTheServerWantsToKnow) {
    QueueSetup queue;
    queue.OnlyKnownUsers = true;
    const PrintServer server({queue});
    try {
        SystemPrinter().PrintReport(ReportOf(1));
        ADD_FAILURE() << "there was no proof";
    } catch (const PrinterError& error) {
        EXPECT_STREQ(error.what(), "The printing system refused the request: Unauthorized.");
    }
    UseServer(server.Socket()); // which gives the proof
    SystemPrinter().PrintReport(ReportOf(1));
    EXPECT_EQ(server.Printed(1).size(), 1U);
}

TEST(CupsQueue, PrintsEncryptedWhereThatIsChosen) {
    const PrintServer server({QueueSetup()});
    cupsSetEncryption(HTTP_ENCRYPTION_REQUIRED);
    std::string failure;
    try {
        SystemPrinter().PrintReport(ReportOf(1));
    } catch (const PrinterError& error) {
        failure = error.what();
    }
    cupsSetEncryption(HTTP_ENCRYPTION_IF_REQUESTED);
    EXPECT_EQ(failure, "");
    EXPECT_EQ(server.Printed(1).size(), 1U);
}

} // namespace
} // namespace tarn
