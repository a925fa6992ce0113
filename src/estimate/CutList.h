#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "estimate/CarpetEstimate.h"

#include <array>
#include <string>
#include <vector>

namespace tarn {

/// The letter label of piece number `number` (OrgPC): A, B, .. while fewer than 27 pieces were
/// saved, else two letters AA .. AZ, BA ..
std::string PieceLabel(Integer number, Integer savedFillCount);

/// A size as the cut list shows it: the extent across the roll, " X ", the extent along it (both
/// inches), in feet and inches or, when `metric`, whole centimetres.
std::string SizeText(Double across, Double along, bool metric);

/// The size of piece or cut number `i`, from its coordinates and the lay.
std::string PieceSizeText(const SharedState& state, const EngineArrays& engine, Integer i);
std::string CutSizeText(const SharedState& state, const EngineArrays& engine, Integer i);

/// The carpet's number with its roll width (feet and inches, or whole centimetres when metric), and
/// its lay.
std::array<std::string, 2> CarpetHeadingLines(const SharedState& state, const EngineArrays& engine,
                                              const CarpetEstimate& estimate);
/// Both in one line.
std::string CarpetHeading(const SharedState& state, const EngineArrays& engine,
                          const CarpetEstimate& estimate);

/// The cut list, line by line: heading, cuts, pieces, match pattern, totals, wall base, tiles.
/// When the layout was improved, one line below the fills' total says so.
/// Empty when there is neither a cut nor a piece. Reads RoomX and RoomY for the tiles. Raises
/// "Overflow" when a length does not fit.
std::vector<std::string> CutListLines(const SharedState& state, const EngineArrays& engine,
                                      const CarpetEstimate& estimate);

} // namespace tarn
