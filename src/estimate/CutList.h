// The cut list: what the block beside the drawing, the text file and the totals' lines say, word
// for word, and how sizes are written everywhere. The figures of the totals are in
// Totals.h.

#pragma once

#include "estimate/Estimate.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// The cut list of an estimate, line by line: heading, cuts, fills, match pattern, totals, wall
/// base, tiles. When the layout was improved, one line below the fills' total says so. Empty when
/// there is neither a cut nor a fill. Raises "Overflow" when a length does not fit.
std::vector<std::string> CutListLines(const Estimate& estimate);

/// A line of the cut list, and what it is about: one of the estimate's cuts, one of its placed
/// pieces, or neither.
struct CutListLine {
    std::string Text;
    std::optional<std::size_t> Cut;
    std::optional<std::size_t> Piece;
};
/// The same lines with what they are about.
std::vector<CutListLine> CutListItems(const Estimate& estimate);

/// The carpet's number with its roll width (feet and inches, or whole centimetres), and its lay.
std::array<std::string, 2> CarpetHeadingLines(const EstimateRequest& request);
/// Both in one line, as the list's heading.
std::string CarpetHeading(const EstimateRequest& request);

/// How large a cut or a piece is as it lies on the roll, inches.
struct SizeOnRoll {
    Double Across = 0;
    Double Along = 0;
};
SizeOnRoll SizeOnRollOf(const Estimate& estimate, const Piece& piece);
SizeOnRoll SizeOnRollOf(const Estimate& estimate, const Cut& cut);

/// A size as the cut list shows it: the extent across the roll, " X ", the extent along it (both
/// inches), in feet and inches or whole centimetres.
std::string SizeText(Double across, Double along, Units units);
/// The size of one of the estimate's pieces or cuts.
std::string SizeOf(const Estimate& estimate, const Piece& piece);
std::string SizeOf(const Estimate& estimate, const Cut& cut);

} // namespace tarn
