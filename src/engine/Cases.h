#pragma once

#include "engine/Piece.h"

#include <vector>

namespace tarn {

/// A case of the search: for each undivided piece the number of cuts, so that it is laid in one
/// part more. The first pass tries every combination of the first few pieces; the second divides
/// all pieces alike, as far as their lengths allow. Pieces lie along Y here.
using CaseCuts = std::vector<Integer>;

/// The alternatives of each piece in the first pass: whole, in two parts, .. as many as minimum
/// cuts fit its length, at most `mostParts`. Only the first few pieces have any, so that there are
/// about 80 cases whatever the options. 0 for one of those that is shorter than the minimum cut.
std::vector<Integer> AlternativesOf(const std::vector<Piece>& pieces, Integer mostParts,
                                    Integer minCut);

/// The number of cases of the first pass: the product of the alternatives.
Long CountCases(const std::vector<Integer>& alternatives);

/// Case `number` (0 .. cases - 1) of the first pass: the digits of the number, the radix of each
/// being the alternatives of its piece, the lowest digit first. Returns the number of parts that it
/// makes in all.
Long FirstPassCase(Long number, const std::vector<Integer>& alternatives, CaseCuts& cuts);

/// Case `mostCuts` (0 and up) of the second pass: as many cuts as the length of each piece holds
/// minimum cuts, less one, but at most `mostCuts`. Returns the number of parts that it makes in
/// all.
Long SecondPassCase(Integer mostCuts, const std::vector<Piece>& pieces, Integer minCut,
                    CaseCuts& cuts);

} // namespace tarn
