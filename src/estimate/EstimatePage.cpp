#include "estimate/EstimatePage.h"

#include "app/Text.h"
#include "estimate/CutList.h"

namespace tarn {

EstimatePage MakeEstimatePage(const SharedState& state, const EngineArrays& engine,
                              const CarpetEstimate& estimate, const Picture& picture,
                              std::string_view date) {
    EstimatePage page;
    page.Title = Space(5) + "TARN RESULT" + Space(2) + "(PROJECT: " + state.CurProjName + ")" +
                 Space(2) + std::string(date);
    page.Drawing = &picture;
    page.PrnWidth = state.PrnWidth;
    page.PrnHeight = state.PrnHeight;
    if (estimate.CarpetNo != NoCarpet && (state.ECutCount > 0 || engine.PieceCount > 0)) {
        const auto lines = CarpetHeadingLines(state, engine, estimate);
        page.CarpetLines.assign(lines.begin(), lines.end());
    }
    return page;
}

} // namespace tarn
