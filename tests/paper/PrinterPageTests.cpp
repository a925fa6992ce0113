#include "base/RunTimeError.h"
#include "paper/Printer.h"
#include "paper/PrinterPage.h"

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
    void PrintOrder(const OrderDocument&, const std::string&) override {}
};

TEST(PageTwips, AreKnownWhenBothSidesAre) {
    EXPECT_FALSE(PageTwips().IsKnown());
    EXPECT_FALSE((PageTwips{16838, 0}.IsKnown()));
    EXPECT_FALSE((PageTwips{0, 11906}.IsKnown()));
    EXPECT_FALSE((PageTwips{-5, 11906}.IsKnown()));
    EXPECT_TRUE((PageTwips{16838, 11906}.IsKnown()));
}

TEST(ReadPrinterPage, GivesBothSidesRoundedToWholeTwips) {
    SheetPrinter printer(16837.8, 11905.5);
    EXPECT_EQ(ReadPrinterPage(printer), (PageTwips{16838, 11906})); // halves to even
}

TEST(ReadPrinterPage, GivesNothingWhenThePrinterFails) {
    SheetPrinter printer(16838, 11906);
    printer.Fails = true;
    EXPECT_EQ(ReadPrinterPage(printer), PageTwips());
}

TEST(ReadPrinterPage, KnowsNoSheetWithASideThatIsTooLarge) {
    SheetPrinter wide(32768, 11906);
    EXPECT_FALSE(ReadPrinterPage(wide).IsKnown());
    SheetPrinter high(32767, 40000);
    EXPECT_FALSE(ReadPrinterPage(high).IsKnown());
}

TEST(AskPrinterPage, PassesOnWhatFails) {
    SheetPrinter printer(16838, 11906);
    EXPECT_EQ(AskPrinterPage(printer), (PageTwips{16838, 11906}));
    printer.Size.Width = 1e6;
    EXPECT_THROW(AskPrinterPage(printer), RunTimeError);
    printer.Fails = true;
    EXPECT_THROW(AskPrinterPage(printer), PrinterError);
}

} // namespace
} // namespace tarn
