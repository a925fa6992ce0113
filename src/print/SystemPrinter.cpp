#include "print/SystemPrinter.h"

#include "app/Text.h"
#include "estimate/EstimatePage.h"
#include "print/CupsQueue.h"
#include "print/PdfFile.h"
#include "rooms/Report.h"

#include <QTemporaryFile>

namespace tarn {

namespace {

void Submit(CupsQueue& queue, const std::string& title, const std::string& document) {
    QTemporaryFile file;
    const auto size = static_cast<qint64>(document.size());
    if (!file.open() || file.write(document.data(), size) != size || !file.flush()) {
        throw PrinterError("The pages could not be kept for the printer: " +
                           file.errorString().toStdString() + ".");
    }
    queue.Submit(title, file.fileName().toStdString());
}

} // namespace

Printer::PageSize SystemPrinter::Page() {
    return CupsQueue().DefaultPaper().Size;
}

void SystemPrinter::PrintReport(const std::string& text) {
    CupsQueue queue;
    const Paper paper = queue.DefaultPaper();
    Submit(queue, std::string(ReportTitle), ReportPdf(text, paper));
}

void SystemPrinter::PrintEstimate(const EstimatePage& page) {
    CupsQueue queue;
    const Paper paper = queue.DefaultPaper();
    Submit(queue, TrimStr(page.Title), EstimatePdf(page, paper));
}

} // namespace tarn
