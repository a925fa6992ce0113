#include "screens/order/OrderOutput.h"

#include "base/Words.h"
#include "files/OrderJson.h"
#include "files/OrderTables.h"
#include "files/OrderText.h"
#include "files/OutputFile.h"
#include "files/RollDxf.h"
#include "files/ShortDate.h"
#include "files/Svg.h"
#include "order/OrderSheet.h"
#include "paper/PdfFile.h"
#include "project/Coverings.h"
#include "screens/PrintQueue.h"
#include "screens/SaveAs.h"
#include "screens/WaitCursor.h"

#include <utility>

namespace tarn {

namespace {

std::string DateOf(const Session& session) {
    const QDate today = session.Today();
    return ShortDate(today.year(), today.month(), today.day());
}

std::string CarpetOf(const OrderDocument& document) {
    return CoveringName(document.Orders.front().Carpet); // in the name of a file
}

std::string PdfOf(const Session& session, const OrderDocument& document) {
    return OrderPdf(document, DateOf(session), PaperOf(session.Page));
}

std::string SvgOf(const Session& session, const OrderDocument& document) {
    return SvgDocument(OrderPicture(document.Of, document.Orders.front(), {}, DateOf(session)),
                       document.Of.Name + ", " + CarpetOf(document));
}

} // namespace

const std::array<OrderFile, 7>& OrderFiles() {
    using Document = const OrderDocument&;
    static const std::array<OrderFile, 7> files{
        {{SaveAsPdfCaption, "pdf", PdfOf},
         {SaveAsSvgCaption, "svg", SvgOf},
         {SaveAsXlsxCaption, "xlsx",
          [](const Session&, Document document) { return OrderXlsx(document); }},
         {SaveAsCsvCaption, "csv",
          [](const Session&, Document document) { return OrderCsv(document); }},
         {Words("Save as &text"), "txt",
          [](const Session&, Document document) { return OrderText(document); }},
         {Words("Save as &JSON"), "json",
          [](const Session&, Document document) { return OrderJson(document); }},
         {SaveAsDxfCaption, "dxf",
          [](const Session&, Document document) { return OrderDxf(document); }}}};
    return files;
}

OrderDocument DocumentOf(const Session& session, Order order) {
    OrderDocument document{session.Project.Now, order.Request.In, {}};
    document.Orders.push_back(std::move(order));
    return document;
}

void PrintOrder(Session& session, QObject& screen, const OrderDocument& document) {
    session.Printing.Print(OrderPages{document, DateOf(session)}, screen);
}

void SaveOrderAs(const Session& session, const OrderDocument& document, const OrderFile& file) {
    // Not the name under which the estimate is saved.
    SaveAs(session, document.Of.Name + " ORDER " + CarpetOf(document), file.Suffix,
           [&](const std::string& path) {
               const WaitCursor waiting;
               WriteOutputFile(path, file.ContentOf(session, document));
           });
}

} // namespace tarn
