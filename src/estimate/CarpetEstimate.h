#pragma once

#include "app/SharedState.h"
#include "app/Types.h"
#include "engine/EngineArrays.h"
#include "estimate/Improvement.h"

#include <optional>

namespace tarn {

/// CarpetNo before any carpet was chosen.
inline constexpr Byte NoCarpet = 99;

/// The choices and the record of one carpet's estimate, beside the shared state (cuts) and the
/// engine's arrays (pieces, layout).
struct CarpetEstimate {
    Byte CarpetNo = NoCarpet; ///< covering code 0..7

    bool MatchFlag = false;    ///< the carpet has a pattern repeat
    Integer MatchWidth = 0;    ///< repeat across the roll, whole inches
    Integer MatchLength = 0;   ///< repeat along the roll, whole inches
    Integer MatchWidthCm = 0;  ///< as typed in metric mode, whole centimetres
    Integer MatchLengthCm = 0; ///< as typed in metric mode, whole centimetres

    Integer SavedFillCount = 0; ///< pieces when SaveFill ran: decides one- or two-letter labels
    PieceRows SavedFills;       ///< the pieces as SaveFill kept them

    std::optional<Improvement> Improved; ///< set when the layout is an improved one
};

/// Empty the estimate: no cuts, no pieces, no layout, no lengths. The choices stay.
void EmptyEstimate(SharedState& state, EngineArrays& engine, CarpetEstimate& estimate);

/// Keep a copy of the pieces and their count before a search divides them.
void SaveFill(const EngineArrays& engine, CarpetEstimate& estimate);

/// What ConvertData made of the rooms.
enum class ConvertResult {
    Nothing,  ///< no room of that carpet has an area
    CutsOnly, ///< every room divides into whole-width cuts
    Fills     ///< there are pieces to be laid out by a search
};

/// Cut every room of carpet CarpetNo into whole-width cuts (ECutX1 .. ECutY2, ECutCount) and the
/// leftover strips into pieces (PCX1 .., PieceCount, OrgCount), from RoomX and RoomY, across the
/// roll's width RollWidth: along X when `downLay`, along Y for cross lay; RunEstimate passes what
/// the engine's LayDir says, which ConvertData itself does not read. Empties the estimate first;
/// sets FillFlag and keeps the pieces with SaveFill when there are any. Rooms without an area are
/// not cut.
///
/// A width within half a coordinate unit of a multiple of the roll is that multiple: it leaves no
/// sliver and loses no cut. Raises "Subscript out of range" past MaxPiece + 1 cuts, and so for a
/// RollWidth of 0 or less when there is a room to cut; the estimate is empty then.
ConvertResult ConvertData(SharedState& state, EngineArrays& engine, CarpetEstimate& estimate,
                          bool downLay);

} // namespace tarn
