#include "paper/PdfFile.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/OutputFile.h"
#include "files/QtText.h"
#include "paper/EstimatePaper.h"
#include "paper/OrderPaper.h"
#include "paper/ReportPaper.h"
#include "project/Report.h"

#include <QBuffer>
#include <QPdfWriter>

#include <functional>

namespace tarn {

namespace {

std::string Document(const QString& title, const QPageLayout& layout,
                     const std::function<void(QPagedPaintDevice&)>& paint) {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(PageResolution);
        if (!writer.setPageLayout(layout)) {
            throw PrinterError(Words("No page can be made on paper of that size."),
                               LargerPaperAdvice);
        }
        writer.setTitle(title);
        writer.setCreator(ToQt(ApplicationTitle));
        paint(writer);
    }
    return content.toStdString();
}

} // namespace

std::string ReportPdf(const EnteredDataReport& report, const Paper& paper) {
    return Document(ToQt(ReportTitle), LayoutOf(paper),
                    [&](QPagedPaintDevice& device) { PaintReport(device, report); });
}

std::string EstimatePdf(const EstimatePage& page, const Paper& paper) {
    return Document(ToQt(TrimStr(page.Title)), LayoutOf(paper),
                    [&](QPagedPaintDevice& device) { PaintEstimate(device, page); });
}

std::string EstimatePdf(const EstimatePage& page) {
    return EstimatePdf(page, PaperOf(page.Sheet));
}

std::string OrderPdf(const OrderDocument& document, std::string_view date, const Paper& paper) {
    return Document(ToQt(OrderTitle(document)), UprightLayoutOf(paper),
                    [&](QPagedPaintDevice& device) { PaintOrder(device, document, date); });
}

void WriteReportPdf(const EnteredDataReport& report, const std::string& path, const Paper& paper) {
    WriteOutputFile(path, ReportPdf(report, paper));
}

void WriteEstimatePdf(const EstimatePage& page, const std::string& path) {
    WriteOutputFile(path, EstimatePdf(page));
}

} // namespace tarn
