#include "paper/OrderPaper.h"

#include "base/Words.h"
#include "files/OrderDocument.h"
#include "order/OrderSheet.h"
#include "paper/PaintDrawing.h"
#include "paper/Paper.h"
#include "paper/Printer.h"

#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace tarn {

namespace {

/// The device's sheet. What a printer leaves white is seldom the same on all sides; the sheet has
/// the widest on all of them.
SheetPaper SheetPaperOf(const QPagedPaintDevice& device) {
    const QRectF sheet = SheetOf(device);
    const QRectF printable = PrintableOf(device);
    SheetPaper paper;
    paper.Width = sheet.width();
    paper.Height = sheet.height();
    paper.Margin =
        std::max({paper.Margin, printable.left(), printable.top(),
                  sheet.right() - printable.right(), sheet.bottom() - printable.bottom()});
    return paper;
}

} // namespace

std::string OrderTitle(const OrderDocument& document) {
    return document.Of.Name.empty() ? std::string(Words("ORDER"))
                                    : Words("ORDER (PROJECT: %1)", document.Of.Name);
}

void PaintOrder(QPagedPaintDevice& device, const OrderDocument& document, std::string_view date) {
    QPainter painter;
    if (!painter.begin(&device)) {
        throw PrinterError(Words("The order could not be put on paper."));
    }
    CountInTwips(painter, device);
    const SheetPaper paper = SheetPaperOf(device);
    const SheetArea body = BodyOf(paper);
    if (body.Width() < LeastSheetWidth || body.Height() < LeastSheetHeight) {
        throw PrinterError(Words("The paper is too small for the order."), LargerPaperAdvice);
    }
    bool first = true;
    for (const Drawing& page : OrderSheet(document.Of, document.Orders, paper, date)) {
        if (!first && !device.newPage()) {
            throw PrinterError(Words("The order could not be put on a further page."));
        }
        first = false;
        PaintDrawing(painter, page);
    }
}

} // namespace tarn
