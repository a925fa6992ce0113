#include "paper/EstimatePage.h"

#include "base/Text.h"
#include "base/Words.h"
#include "estimate/CutList.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// The type size in which the cut list is written in a drawing, known by its heading.
Double ListTypeSizeIn(const Drawing& drawing, const EstimateRequest& request) {
    const auto& steps = drawing.Steps();
    const auto heading = std::find_if(
        steps.begin(), steps.end(), [text = CarpetHeading(request)](const DrawingStep& step) {
            return step.What == DrawingStep::Kind::Text && step.Text == text;
        });
    return heading == steps.end() ? 0 : heading->FontSize;
}

} // namespace

EstimatePage MakeEstimatePage(const std::string& project, const std::optional<Estimate>& estimate,
                              Drawing drawing, PageTwips sheet, std::string_view date) {
    EstimatePage page;
    page.Title = Space(5) + Words("TARN RESULT  (PROJECT: %1)  %2", project, date);
    page.Picture = std::move(drawing);
    page.Sheet = sheet;
    if (estimate && !HasNothingToCut(*estimate)) {
        const auto lines = CarpetHeadingLines(estimate->Request);
        page.CarpetLines.assign(lines.begin(), lines.end());
        page.ListTypeSize = ListTypeSizeIn(page.Picture, estimate->Request);
    }
    return page;
}

} // namespace tarn
