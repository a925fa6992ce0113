#include "app/RunTimeError.h"
#include "print/PrinterPage.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

/// A printer of that sheet, or one that fails.
struct SheetPrinter : Printer {
    PageSize Size;
    bool Fails = false;

    SheetPrinter(Double width, Double height)
        : Size{width, height} {}
    PageSize Page() override {
        if (Fails) {
            throw PrinterError("There is no default printer.");
        }
        return Size;
    }
    void PrintReport(const EnteredDataReport&) override {}
    void PrintEstimate(const EstimatePage&) override {}
};

TEST(ReadPrinterPage, SetsBothSidesRoundedToWholeTwips) {
    SharedState state;
    SheetPrinter printer(16837.8, 11905.5);
    ReadPrinterPage(state, printer);
    EXPECT_EQ(state.PrnWidth, 16838);
    EXPECT_EQ(state.PrnHeight, 11906); // halves to even
}

TEST(ReadPrinterPage, LeavesWhatWasReadBeforeWhenThePrinterFails) {
    SharedState state;
    state.PrnWidth = 1;
    state.PrnHeight = 2;
    SheetPrinter printer(16838, 11906);
    printer.Fails = true;
    ReadPrinterPage(state, printer);
    EXPECT_EQ(state.PrnWidth, 1);
    EXPECT_EQ(state.PrnHeight, 2);
}

TEST(ReadPrinterPage, IgnoresASideThatIsTooLargeAndKeepsWhatWasReadBeforeIt) {
    SharedState wide;
    SheetPrinter widePrinter(32768, 11906);
    ReadPrinterPage(wide, widePrinter);
    EXPECT_EQ(wide.PrnWidth, 0);
    EXPECT_EQ(wide.PrnHeight, 0);
    SharedState high;
    SheetPrinter highPrinter(32767, 40000);
    ReadPrinterPage(high, highPrinter);
    EXPECT_EQ(high.PrnWidth, 32767);
    EXPECT_EQ(high.PrnHeight, 0);
}

TEST(TakePrinterPage, PassesOnWhatFails) {
    SharedState state;
    SheetPrinter printer(16838, 11906);
    TakePrinterPage(state, printer);
    EXPECT_EQ(state.PrnWidth, 16838);
    EXPECT_EQ(state.PrnHeight, 11906);
    printer.Size.Width = 1e6;
    EXPECT_THROW(TakePrinterPage(state, printer), RunTimeError);
    printer.Fails = true;
    EXPECT_THROW(TakePrinterPage(state, printer), PrinterError);
}

} // namespace
} // namespace tarn
