#include "screens/estimate/EstimateOutput.h"

#include "files/OutputFile.h"
#include "files/RollDxf.h"
#include "files/ShortDate.h"
#include "files/Svg.h"
#include "paper/EstimatePage.h"
#include "paper/PdfFile.h"
#include "screens/PrintQueue.h"
#include "screens/SaveAs.h"

namespace tarn {

namespace {

EstimatePage PageOf(const Session& session, const std::optional<Estimate>& estimate,
                    const Drawing& drawing, PageTwips sheet) {
    const QDate today = session.Today();
    return MakeEstimatePage(session.Project.Now.Name, estimate, drawing, sheet,
                            ShortDate(today.year(), today.month(), today.day()));
}

} // namespace

void PrintEstimate(Session& session, QObject& screen, const std::optional<Estimate>& estimate,
                   const Drawing& drawing) {
    session.Printing.Print(PageOf(session, estimate, drawing, {}), screen);
}

void SaveEstimateAsPdf(Session& session, const std::optional<Estimate>& estimate,
                       const Drawing& drawing) {
    SaveAs(session, session.Project.Now.Name, "pdf", [&](const std::string& path) {
        const EstimatePage page = PageOf(session, estimate, drawing, session.Page);
        WriteEstimatePdf(page, path);
        TellOfALostList(session.Boxes, page);
    });
}

void SaveEstimateAsSvg(Session& session, const Drawing& drawing, const std::string& title) {
    SaveAs(session, session.Project.Now.Name, "svg",
           [&](const std::string& path) { WriteOutputFile(path, SvgDocument(drawing, title)); });
}

void SaveEstimateAsDxf(Session& session, const Estimate& estimate) {
    SaveAs(session, session.Project.Now.Name, "dxf", [&](const std::string& path) {
        WriteOutputFile(path, EstimateDxf(estimate, session.Project.Now));
    });
}

} // namespace tarn
