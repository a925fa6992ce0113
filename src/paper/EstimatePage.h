#pragma once

#include "base/Words.h"
#include "drawing/Drawing.h"
#include "estimate/Estimate.h"
#include "paper/PrinterPage.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What the printed page of an estimate shows: a value of its own, since it may be printed while
/// the drawing on the screen goes on to change.
struct EstimatePage {
    std::string Title;                    ///< the line at the top
    Drawing Picture;                      ///< as it stands, with the cut list where it was pasted
    std::vector<std::string> CarpetLines; ///< below the drawing; none without a cut or a fill
    PageTwips Sheet;                      ///< landscape
    /// The type size of the cut list in the picture, points; 0 when it does not stand there.
    Double ListTypeSize = 0;

    bool operator==(const EstimatePage&) const = default;
};

/// What a page says, and whoever prints it is told, when its cut list cannot be shown: that, and
/// where the list is.
inline constexpr auto ListNotShownText =
    Words("The page cannot show the cut list: the layout is too long for it.");
inline constexpr auto ListElsewhereText = Words(
    "The list stands on the screen, in the drawing saved as SVG, and in what tarn-estimate --text "
    "writes.");

/// The page of a project's estimate, if there is one. `date` is printed as it is.
EstimatePage MakeEstimatePage(const std::string& project, const std::optional<Estimate>& estimate,
                              Drawing drawing, PageTwips sheet, std::string_view date);

} // namespace tarn
