// What is told when printing fails.

#include "paper/Printer.h"
#include "screens/Printing.h"
#include "screens/ScreenTesting.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace {

using testing::FakeBoxes;
using testing::ShowsWaiting;

/// What printing said on standard error.
template <class Print>
std::string SaidBy(FakeBoxes& boxes, bool printed, const Print& print) {
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(tarn::Print(boxes, print), printed);
    return ::testing::internal::GetCapturedStderr();
}

TEST(Print, ShowsThatTheProgramWaitsWhileItPrints) {
    FakeBoxes boxes;
    bool printed = false;
    EXPECT_EQ(SaidBy(boxes, true,
                     [&] {
                         printed = true;
                         EXPECT_TRUE(ShowsWaiting());
                     }),
              "");
    EXPECT_TRUE(printed);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(Print, TellsEveryFailureInOneMessageAndItsCauseOnStandardError) {
    FakeBoxes boxes;
    boxes.OnMessage = [] { EXPECT_FALSE(ShowsWaiting()); };
    EXPECT_EQ(SaidBy(boxes, false, [] { throw PrinterError("The printer Hall is off line."); }),
              "tarn: The printer Hall is off line.\n");
    EXPECT_EQ(SaidBy(boxes, false, [] { throw std::length_error("too long"); }),
              "tarn: too long\n");
    EXPECT_EQ(boxes.Messages, std::vector<std::string>(2, PrinterNotReadyMessage));
    EXPECT_EQ(boxes.Informative.at(0), "The printer Hall is off line.\r\n"
                                       "Or right-click what is shown and choose \"Save as PDF\".");
    EXPECT_EQ(boxes.Informative.at(1),
              "too long\r\nOr right-click what is shown and choose \"Save as PDF\".");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(Print, TellsWhatHelpsBelowTheCause) {
    FakeBoxes boxes;
    SaidBy(boxes, false,
           [] { throw PrinterError("The printer Hall is stopped.", "Start it again."); });
    EXPECT_EQ(boxes.Informative.at(0), "The printer Hall is stopped.\r\nStart it again.\r\n"
                                       "Or right-click what is shown and choose \"Save as PDF\".");
}

} // namespace
} // namespace tarn
