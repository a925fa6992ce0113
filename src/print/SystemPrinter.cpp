#include "print/SystemPrinter.h"

#include "app/Text.h"
#include "estimate/EstimatePage.h"
#include "print/CupsQueue.h"
#include "print/PdfFile.h"
#include "rooms/Report.h"

namespace tarn {

Printer::PageSize SystemPrinter::Page() {
    return CupsQueue(patience_).DefaultPaper().Size;
}

void SystemPrinter::PrintReport(const EnteredDataReport& report) {
    CupsQueue queue(patience_);
    queue.Submit(std::string(ReportTitle), ReportPdf(report, queue.DefaultPaper()));
}

void SystemPrinter::PrintEstimate(const EstimatePage& page) {
    CupsQueue queue(patience_);
    queue.Submit(TrimStr(page.Title), EstimatePdf(page, queue.DefaultPaper()));
}

} // namespace tarn
