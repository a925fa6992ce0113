#pragma once

#include "drawing/Drawing.h"
#include "estimate/Estimate.h"
#include "paper/PrinterPage.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What the printed page of an estimate shows.
struct EstimatePage {
    std::string Title;                    ///< the line at the top
    const Drawing* Picture = nullptr;     ///< as it stands, with the cut list where it was pasted
    std::vector<std::string> CarpetLines; ///< below the drawing; none without a cut or a fill
    PageTwips Sheet;                      ///< landscape
};

/// The page of a project's estimate, if there is one. `date` is printed as it is; `drawing` must
/// outlive the page.
EstimatePage MakeEstimatePage(const std::string& project, const std::optional<Estimate>& estimate,
                              const Drawing& drawing, PageTwips sheet, std::string_view date);

} // namespace tarn
