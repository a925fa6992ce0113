#include "paper/EstimatePage.h"

#include "base/Text.h"
#include "estimate/CutList.h"

namespace tarn {

EstimatePage MakeEstimatePage(const std::string& project, const std::optional<Estimate>& estimate,
                              const Drawing& drawing, PageTwips sheet, std::string_view date) {
    EstimatePage page;
    page.Title = Space(5) + "TARN RESULT" + Space(2) + "(PROJECT: " + project + ")" + Space(2) +
                 std::string(date);
    page.Picture = &drawing;
    page.Sheet = sheet;
    if (estimate && !HasNothingToCut(*estimate)) {
        const auto lines = CarpetHeadingLines(estimate->Request);
        page.CarpetLines.assign(lines.begin(), lines.end());
    }
    return page;
}

} // namespace tarn
