#include "screens/estimate/EstimateOutput.h"

#include "base/RunTimeError.h"
#include "files/OutputFile.h"
#include "files/ShortDate.h"
#include "files/Svg.h"
#include "paper/EstimatePage.h"
#include "paper/EstimatePaper.h"
#include "paper/PdfFile.h"
#include "screens/Printing.h"
#include "screens/SaveAs.h"

namespace tarn {

namespace {

EstimatePage PageOf(const Session& session, const std::optional<Estimate>& estimate,
                    const Drawing& drawing) {
    const QDate today = session.Today();
    return MakeEstimatePage(session.Project.Now.Name, estimate, drawing, session.Page,
                            ShortDate(today.year(), today.month(), today.day()));
}

void AskForSheet(Session& session) {
    try {
        session.Page = AskPrinterPage(session.Paper);
    } catch (const RunTimeError&) {
        // A sheet of more than 22 inches does not fit what the session keeps of it: the page then
        // takes the size that the printer gives it.
    }
}

void TellOfALostList(const Session& session, const EstimatePage& page) {
    if (LosesCutList(page, PaperOf(page.Sheet))) {
        session.Boxes.Message(std::string(ListNotShownText), std::string(ListElsewhereText));
    }
}

} // namespace

void PrintEstimate(Session& session, const std::optional<Estimate>& estimate,
                   const Drawing& drawing) {
    const bool printed = Print(session.Boxes, [&] {
        if (!session.Page.IsKnown()) {
            AskForSheet(session);
        }
        session.Paper.PrintEstimate(PageOf(session, estimate, drawing));
    });
    if (printed) {
        TellOfALostList(session, PageOf(session, estimate, drawing));
    }
}

void SaveEstimateAsPdf(Session& session, const std::optional<Estimate>& estimate,
                       const Drawing& drawing) {
    SaveAs(session.Boxes, session.Project.Now.Name, "pdf", [&](const std::string& path) {
        const EstimatePage page = PageOf(session, estimate, drawing);
        WriteEstimatePdf(page, path);
        TellOfALostList(session, page);
    });
}

void SaveEstimateAsSvg(Session& session, const Drawing& drawing, const std::string& title) {
    SaveAs(session.Boxes, session.Project.Now.Name, "svg",
           [&](const std::string& path) { WriteOutputFile(path, SvgDocument(drawing, title)); });
}

} // namespace tarn
