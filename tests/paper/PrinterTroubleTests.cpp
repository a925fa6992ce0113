#include "paper/CupsQueue.h"
#include "paper/PrintServer.h"
#include "paper/PrintTesting.h"
#include "paper/PrinterTrouble.h"
#include "paper/SystemPrinter.h"

#include <gtest/gtest.h>

#include <cups/ipp.h>

namespace tarn {
namespace {

using testing::PrintServer;
using testing::QueueSetup;
using testing::ReportOf;

std::string Busy(const std::vector<std::string>& reasons) {
    return PrinterTrouble(IPP_PSTATE_PROCESSING, reasons);
}

TEST(PrinterTrouble, IsToldInPlainWordsWithEverySeverity) {
    const std::pair<const char*, const char*> troubles[] = {
        {"offline", "is off line"},          {"media-empty", "is out of paper"},
        {"media-needed", "is out of paper"}, {"media-jam", "has a paper jam"},
        {"cover-open", "has an open cover"}, {"door-open", "has an open door"},
        {"toner-empty", "is out of toner"},  {"marker-supply-empty", "is out of ink or toner"}};
    for (const auto& [reason, words] : troubles) {
        for (const char* severity : {"", "-report", "-warning", "-error"}) {
            EXPECT_EQ(Busy({std::string(reason) + severity}), words) << reason << severity;
        }
    }
}

TEST(PrinterTrouble, WhatLetsPaperComeOutIsNone) {
    for (const char* reason :
         {"none", "", "media-low", "media-low-warning", "toner-low-report",
          "marker-supply-low-warning", "connecting-to-device", "cups-waiting-for-job-completed",
          "paused", "offline-", "-report", "offline-report-error", "media-empty-soon",
          "com.example-media-empty", "spool-area-full-report"}) {
        EXPECT_EQ(Busy({reason}), "") << reason;
    }
    EXPECT_EQ(Busy({}), "");
}

TEST(PrinterTrouble, IsFoundAmongOtherReasons) {
    EXPECT_EQ(Busy({"toner-low-report", "media-empty-warning", "connecting-to-device"}),
              "is out of paper");
    EXPECT_EQ(Busy({"media-empty-warning", "offline-report"}), "is off line");
}

TEST(PrinterTrouble, OfAPrinterThatIsNotBusyIsOld) {
    for (const int state : {0, 3, 5}) {
        EXPECT_EQ(PrinterTrouble(state, {"offline-report", "media-empty-error"}), "") << state;
    }
}

std::string RefusalOf(SystemPrinter& printer) {
    try {
        printer.PrintReport(ReportOf(1));
    } catch (const PrinterError& error) {
        return error.what();
    }
    return {};
}

TEST(PrinterTrouble, ABusyQueueInTroubleTakesNoJobUntilItGoesOn) {
    const std::pair<const char*, const char*> troubles[] = {
        {"offline-report", "The printer Paper is off line."},
        {"media-empty-warning", "The printer Paper is out of paper."}};
    for (const auto& [reason, text] : troubles) {
        QueueSetup queue;
        queue.Trouble = reason;
        const PrintServer server({queue});
        SystemPrinter printer;
        EXPECT_EQ(RefusalOf(printer), "") << "it was idle";
        server.AwaitTrouble("Paper");
        EXPECT_EQ(RefusalOf(printer), text);
        EXPECT_EQ(server.JobStates().size(), 1U);
        server.EndTrouble();
        EXPECT_EQ(server.Printed(1).size(), 1U);
        server.AwaitIdle("Paper");
        EXPECT_EQ(RefusalOf(printer), "");
        EXPECT_EQ(server.Printed(2).size(), 2U);
    }
}

TEST(PrinterTrouble, ABusyQueueWithoutTroubleTakesAnotherJob) {
    QueueSetup queue;
    queue.Trouble = "toner-low-warning";
    const PrintServer server({queue});
    SystemPrinter printer;
    EXPECT_EQ(RefusalOf(printer), "");
    server.AwaitTrouble("Paper");
    EXPECT_EQ(RefusalOf(printer), "");
    server.EndTrouble();
    EXPECT_EQ(server.Printed(2).size(), 2U);
}

TEST(PrinterTrouble, AnIdleQueueTakesAJobWhateverItsLastOneReported) {
    QueueSetup queue;
    queue.Trouble = "media-empty-warning";
    queue.TroubleStays = true;
    const PrintServer server({queue});
    SystemPrinter printer;
    server.EndTrouble();
    EXPECT_EQ(RefusalOf(printer), "");
    EXPECT_EQ(server.Printed(1).size(), 1U);
    server.AwaitIdle("Paper");
    server.AwaitTrouble("Paper"); // still told
    EXPECT_EQ(RefusalOf(printer), "");
    EXPECT_EQ(server.Printed(2).size(), 2U);
}

} // namespace
} // namespace tarn
