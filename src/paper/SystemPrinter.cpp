#include "paper/SystemPrinter.h"

#include "base/Text.h"
#include "paper/CupsQueue.h"
#include "paper/EstimatePage.h"
#include "paper/OrderPaper.h"
#include "paper/PdfFile.h"
#include "project/Report.h"

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

void SystemPrinter::PrintOrder(const OrderDocument& document, const std::string& date) {
    CupsQueue queue(patience_);
    queue.Submit(OrderTitle(document), OrderPdf(document, date, queue.DefaultPaper()));
}

} // namespace tarn
