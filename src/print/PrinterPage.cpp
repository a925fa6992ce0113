#include "print/PrinterPage.h"

#include "app/Numbers.h"

namespace tarn {

void TakePrinterPage(SharedState& state, Printer& printer) {
    const Printer::PageSize page = printer.Page();
    state.PrnWidth = CInt(page.Width);
    state.PrnHeight = CInt(page.Height);
}

void ReadPrinterPage(SharedState& state, Printer& printer) noexcept {
    try {
        TakePrinterPage(state, printer);
    } catch (...) {
        // PRINT asks again, and tells.
    }
}

} // namespace tarn
