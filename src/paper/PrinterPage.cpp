#include "paper/PrinterPage.h"

#include "base/Numbers.h"
#include "paper/Printer.h"

namespace tarn {

PageTwips AskPrinterPage(Printer& printer) {
    const Printer::PageSize page = printer.Page();
    return {CInt(page.Width), CInt(page.Height)};
}

PageTwips ReadPrinterPage(Printer& printer) noexcept {
    try {
        return AskPrinterPage(printer);
    } catch (...) {
        return {}; // PRINT asks again, and tells.
    }
}

} // namespace tarn
