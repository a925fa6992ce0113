#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "estimate/CarpetEstimate.h"
#include "estimate/Picture.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What the printed page of an estimate shows.
struct EstimatePage {
    std::string Title;                    ///< the line at the top
    const Picture* Drawing = nullptr;     ///< as it stands, with the cut list where it was pasted
    std::vector<std::string> CarpetLines; ///< below the drawing; none without a cut or a piece
    Integer PrnWidth = 0;                 ///< page, twips, landscape
    Integer PrnHeight = 0;
};

/// The page of the estimate in hand. `date` is printed as it is; `picture` must outlive the page.
EstimatePage MakeEstimatePage(const SharedState& state, const EngineArrays& engine,
                              const CarpetEstimate& estimate, const Picture& picture,
                              std::string_view date);

} // namespace tarn
