// Printing away from the window, and what is told of it.

#include "screens/PrintQueue.h"
#include "screens/ScreenTesting.h"

#include <QDialog>
#include <QThread>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;

EnteredDataReport ReportOf(const char* line) {
    return {{{line, 0}}};
}

/// A queue of its own, to a printer that can be held.
struct PrintQueues : ::testing::Test {
    ~PrintQueues() override { printer.Release(); }
    void Await() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !queue->IsPrinting(); }));
    }
    /// What is said on standard error until everything is printed.
    std::string SaidUntilPrinted() {
        ::testing::internal::CaptureStderr();
        Await();
        return ::testing::internal::GetCapturedStderr();
    }

    PageTwips page;
    FakeBoxes boxes;
    HeldPrinter printer;
    QObject screen; ///< that shows what is printed
    std::unique_ptr<PrintQueue> queue = std::make_unique<PrintQueue>(printer, page, boxes);
};

TEST_F(PrintQueues, PrintWhileTheWindowGoesOn) {
    printer.Hold();
    bool printed = false;
    queue->Print(ReportOf("A"), screen, [&] { printed = true; });
    EXPECT_TRUE(queue->IsPrinting());
    bool wentOn = false;
    QTimer::singleShot(0, &screen, [&] { wentOn = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return wentOn; }));
    EXPECT_TRUE(queue->IsPrinting());
    EXPECT_FALSE(printed);
    printer.Release();
    EXPECT_EQ(SaidUntilPrinted(), "");
    EXPECT_TRUE(printed);
    EXPECT_THAT(printer.Reports, ElementsAre("A\r\n"));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(PrintQueues, TellWhenTheyBeginAndEnd) {
    std::vector<bool> told;
    queue->OnPrinting([&] { told.push_back(queue->IsPrinting()); });
    queue->Print(ReportOf("A"), screen);
    EXPECT_THAT(told, ElementsAre(true));
    Await();
    EXPECT_THAT(told, ElementsAre(true, false));
}

TEST_F(PrintQueues, PrintOneAfterTheOtherButNothingTwice) {
    printer.Hold();
    for (const char* line : {"A", "A", "B", "A", "B"}) {
        queue->Print(ReportOf(line), screen);
    }
    printer.Release();
    Await();
    EXPECT_THAT(printer.Reports, ElementsAre("A\r\n", "B\r\n"));
    queue->Print(ReportOf("A"), screen);
    Await();
    EXPECT_EQ(printer.Reports.size(), 3U) << "it was printed: this is another copy";
}

TEST_F(PrintQueues, AnswerWhoAskedLastForWhatIsBeingPrinted) {
    printer.Hold();
    auto closed = std::make_unique<QObject>();
    int answers = 0;
    queue->Print(ReportOf("A"), *closed, [] { ADD_FAILURE() << "it is closed"; });
    closed.reset();
    queue->Print(ReportOf("A"), screen, [&] { ++answers; });
    printer.Release();
    Await();
    EXPECT_EQ(printer.Reports.size(), 1U);
    EXPECT_EQ(answers, 1);
}

TEST_F(PrintQueues, TellEveryFailureInOneMessageAndItsCauseOnStandardError) {
    struct BrokenPrinter : FakePrinter {
        void PrintReport(const EnteredDataReport& /*report*/) override {
            throw std::length_error("too long");
        }
    } broken;
    queue->Print(ReportOf("A"), screen, [] { ADD_FAILURE() << "it was not printed"; });
    printer.Failure = "The printer Hall is off line.";
    EXPECT_EQ(SaidUntilPrinted(), "tarn: The printer Hall is off line.\n");
    queue = std::make_unique<PrintQueue>(broken, page, boxes);
    queue->Print(ReportOf("A"), screen, [] { ADD_FAILURE() << "it was not printed"; });
    EXPECT_EQ(SaidUntilPrinted(), "tarn: too long\n");
    EXPECT_EQ(boxes.Messages, std::vector<std::string>(2, PrinterNotReadyMessage));
    EXPECT_THAT(boxes.Informative,
                ElementsAre("The printer Hall is off line.\r\n"
                            "Or right-click what is shown and choose \"Save as PDF\".",
                            "too long\r\n"
                            "Or right-click what is shown and choose \"Save as PDF\"."));
}

TEST_F(PrintQueues, TellWhatHelpsBelowTheCause) {
    struct StoppedPrinter : FakePrinter {
        void PrintReport(const EnteredDataReport& /*report*/) override {
            throw PrinterError("The printer Hall is stopped.", "Start it again.");
        }
        void PrintOrder(const OrderDocument& /*document*/, const std::string& /*date*/) override {
            throw PrinterError("The printer Hall is stopped.");
        }
    } stopped;
    queue = std::make_unique<PrintQueue>(stopped, page, boxes);
    queue->Print(ReportOf("A"), screen);
    queue->Print(OrderPages{{}, "3/14/2026"}, screen);
    SaidUntilPrinted();
    EXPECT_THAT(boxes.Informative,
                ElementsAre("The printer Hall is stopped.\r\nStart it again.\r\n"
                            "Or right-click what is shown and choose \"Save as PDF\".",
                            "The printer Hall is stopped.\r\n"
                            "Or press SAVE AS and choose \"Save as PDF\"."));
}

TEST_F(PrintQueues, TellOfAFailureAlsoWhenWhatWasShownIsGone) {
    auto shown = std::make_unique<QObject>();
    printer.Hold();
    queue->Print(ReportOf("A"), *shown, [] { ADD_FAILURE() << "it is gone"; });
    shown.reset();
    printer.Failure = "It is off.";
    printer.Release();
    SaidUntilPrinted();
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{PrinterNotReadyMessage});
    EXPECT_THAT(boxes.Informative,
                ElementsAre("It is off.\r\n"
                            "Or show it again, right-click it and choose \"Save as PDF\"."));
}

TEST_F(PrintQueues, TellNothingBehindAnotherBox) {
    printer.Failure = "It is off.";
    QDialog box;
    box.open();
    queue->Print(ReportOf("A"), screen);
    SaidUntilPrinted();
    EXPECT_THAT(boxes.Messages, IsEmpty());
    box.reject();
    EXPECT_TRUE(QTest::qWaitFor([&] { return boxes.Messages.size() == 1; }));
}

TEST_F(PrintQueues, ReadTheSheetAndGiveItToWhatComesAfter) {
    printer.Hold();
    queue->ReadPage();
    EXPECT_FALSE(queue->IsPrinting());
    queue->Print(EstimatePage{}, screen);
    EXPECT_EQ(page, PageTwips());
    printer.Release();
    Await();
    EXPECT_EQ(page, (PageTwips{16838, 11906}));
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_EQ(printer.Estimates[0].Sheet, page);
}

TEST_F(PrintQueues, SayNothingOfASheetThatCannotBeRead) {
    printer.Failure = "There is no printer.";
    ::testing::internal::CaptureStderr();
    queue->ReadPage();
    queue->Finish();
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(boxes.Messages, IsEmpty());
    EXPECT_EQ(page, PageTwips());
}

TEST_F(PrintQueues, AreWaitedForAtTheEnd) {
    queue->Print(ReportOf("A"), screen);
    queue->Print(ReportOf("B"), screen);
    queue->Finish();
    EXPECT_FALSE(queue->IsPrinting());
    EXPECT_EQ(printer.Reports.size(), 2U);
}

TEST_F(PrintQueues, GiveUpAtTheEndWhatIsBehindAFailure) {
    printer.Failure = "It is off.";
    for (const char* line : {"A", "B", "C"}) {
        queue->Print(ReportOf(line), screen);
    }
    queue->ReadPage();
    ::testing::internal::CaptureStderr();
    queue->Finish();
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "tarn: It is off.\n");
    EXPECT_THAT(boxes.Informative,
                ElementsAre("It is off.\r\n"
                            "Or right-click what is shown and choose \"Save as PDF\".\r\n"
                            "2 more jobs that waited behind it were not printed either."))
        << "told all the same";
}

TEST_F(PrintQueues, TellOfOneJobBehindAFailureAtTheEnd) {
    printer.Failure = "It is off.";
    queue->Print(ReportOf("A"), screen);
    queue->Print(ReportOf("B"), screen);
    ::testing::internal::CaptureStderr();
    queue->Finish();
    ::testing::internal::GetCapturedStderr();
    ASSERT_EQ(boxes.Informative.size(), 1U);
    EXPECT_THAT(boxes.Informative[0],
                EndsWith("One more job that waited behind it was not printed either."));
}

TEST_F(PrintQueues, LoseNothingWhenTheyGoButTellNobody) {
    queue->Print(ReportOf("A"), screen, [] { ADD_FAILURE() << "there is nobody"; });
    queue->Print(ReportOf("B"), screen);
    queue.reset();
    EXPECT_EQ(printer.Reports.size(), 2U);
    QCoreApplication::processEvents();
    EXPECT_THAT(boxes.Messages, IsEmpty());
}

} // namespace
} // namespace tarn
