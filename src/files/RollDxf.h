// A roll as a drawing (DXF) for plotting and cutting tables: true to size, its length along X, its
// width along Y. That is the roll as the screens show it lying, and no mirror image of it.

#pragma once

#include "estimate/Estimate.h"
#include "files/OrderDocument.h"

#include <string>
#include <string_view>

namespace tarn {

/// The layers: the outline of the roll with the lines of its selvages, the pieces, and what is
/// written on both.
inline constexpr std::string_view RollLayer = "ROLL";
inline constexpr std::string_view PieceLayer = "PIECES";
inline constexpr std::string_view TextLayer = "TEXTS";

/// The roll of the document's first order, as it is ordered: from (0, 0), the corner where the roll
/// begins, to its length and its width. Each piece of the best row is one closed polyline, which
/// lies at its `y` along X and at its `x` and the selvage along Y, with its letters, size and room
/// in it. Lengths are whole inches or centimetres. Raises OutputFileError when the order has no
/// row to take.
std::string OrderDxf(const OrderDocument& document);

/// The roll of an estimate, its cuts one behind the other and then the fills, in the same way; in
/// inches, or in centimetres when the request is metric. `project` is the one that was estimated.
/// Raises "Overflow" when a length does not fit.
std::string EstimateDxf(const Estimate& estimate, const Project& project);

} // namespace tarn
