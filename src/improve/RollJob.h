#pragma once

#include "improve/ImproveFills.h"

namespace tarn {

/// The undivided pieces of a searched job as a job of the improving search, in whole units: a
/// thousandth of an inch, or of a centimetre in metric projects, or the largest multiple of that in
/// which all sizes are whole. So whole inches and whole centimetres stay exact.
///
/// The parts are cut at whole inches (centimetres), as the cut list shows them, and are at least as
/// long as the rules say.
struct RollJob {
    ImproveJob Job;
    std::vector<Piece> Wholes; ///< by fill of the job: the pieces as the search divides them
    Double AcrossUnit = 0;     ///< inches
    Double AlongUnit = 0;
    bool Possible = false; ///< false without a piece, or when one is too wide for the roll

    Single Across(Long units) const;
    Single Along(Long units) const;
};

RollJob RollJobOf(const SearchJob& job, const ImproveRules& rules);

/// The merit of a layout of the job. A length that is a whole number of units but for the tolerance
/// of equal lengths counts as the nearest one. Any other is raised to the next, with a merit that
/// no layout of that length surpasses, since all of them are longer.
LayoutMerit LayoutMeritOf(const RollJob& roll, const std::vector<Placed>& layout);

/// Whether a layout of the job keeps the rules: it is a whole number of units long, and no part of
/// a divided piece is shorter than they say.
bool KeepsRules(const RollJob& roll, const std::vector<Placed>& layout, const SearchJob& job,
                const ImproveRules& rules);

/// A whole layout of the job as Search would return it; cases and power are those of `start`.
/// Raises as FinishLayout.
SearchResult ResultOf(const RollJob& roll, const std::vector<ImprovePart>& parts,
                      const SearchJob& job, const SearchResult& start);

} // namespace tarn
