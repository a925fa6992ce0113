#pragma once

#include "app/SharedState.h"
#include "app/Types.h"

#include <array>
#include <string>
#include <string_view>

namespace tarn {

/// What the estimation options offer: one of these minimum cuts, by its position, and 1 to
/// MostPiecesPerFill pieces per fill.
inline constexpr Integer MinCuts = 3;
using MinCutCaptions = std::array<std::string_view, MinCuts>;
inline constexpr MinCutCaptions ImperialMinCutCaptions{"3 FT", "1FT 6\"", "1/2FT"};
inline constexpr MinCutCaptions MetricMinCutCaptions{"91 cm", "46 cm", "15 cm"};
inline constexpr Integer MostPiecesPerFill = 6;

/// The two choices as EstOption: `minCut` 0 to MinCuts - 1 and `pieces` 1 to MostPiecesPerFill.
Integer PackEstOption(Integer minCut, Integer pieces);

/// The minimum cut at position `minCut` of MinCutLen in coordinate units: MinCutLen divided by
/// DimScale and truncated; in metric mode times 2.54 first and rounded, halves to even.
/// Coordinates are hundredths of an inch, so the option's feet count as inches: "3 FT" limits parts
/// to 300 units. Raises "Subscript out of range" beyond MinCutLen.
Integer MinCutUnits(const SharedState& state, long long minCut);

/// The minimum cut that the caption at position `minCut` names, in inches: the feet of MinCutLen;
/// in metric mode the caption's whole centimetres. Raises "Subscript out of range" beyond
/// MinCutLen.
Double MinCutOfCaption(const SharedState& state, long long minCut);

/// The length in force behind an option's caption, which names another one: "3 inches", "0.5 inch",
/// or when metric "19.4 cm".
std::string MinCutInForce(const SharedState& state, Integer minCut);

} // namespace tarn
