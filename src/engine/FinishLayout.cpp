#include "engine/FinishLayout.h"

#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "engine/CleanUp.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"

#include <limits>

namespace tarn {

void ShowResultPic(EngineArrays& engine) {
    const Double length = static_cast<Double>(GetPCLen(engine));
    try {
        engine.ResultLen = CInt(3 * Int((length + 2) / 3));
    } catch (const RunTimeError& error) {
        throw error.WithAdvice("The fills need more than " +
                               TrimStr(std::numeric_limits<Integer>::max()) +
                               " inches of roll: estimate the rooms in two projects.");
    }
}

void FinishLayout(EngineArrays& engine, Double dimScale) {
    QuickSortPCOrder(engine, 0, engine.PieceCount);
    CheckFill(engine);
    CombinePiece(engine, dimScale);
    ShiftLeft(engine);
    ShowResultPic(engine);
    if (engine.LayDir == 1) {
        SwitchXY(engine);
    }
    QuickSortOrgpc(engine, 0, engine.PieceCount);
    SwitchXY2(engine);
}

} // namespace tarn
