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
    EXPECT_EQ(Printed(boxes, print), printed);
    return ::testing::internal::GetCapturedStderr();
}

TEST(Printed, ShowsThatTheProgramWaitsWhileItPrints) {
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

TEST(Printed, TellsEveryFailureInOneMessageAndItsCauseOnStandardError) {
    FakeBoxes boxes;
    boxes.OnMessage = [] { EXPECT_FALSE(ShowsWaiting()); };
    EXPECT_EQ(SaidBy(boxes, false, [] { throw PrinterError("The printer Hall is off line."); }),
              "tarn: The printer Hall is off line.\n");
    EXPECT_EQ(SaidBy(boxes, false, [] { throw std::length_error("too long"); }),
              "tarn: too long\n");
    EXPECT_EQ(boxes.Messages, std::vector<std::string>(2, PrinterNotReadyMessage));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace tarn
