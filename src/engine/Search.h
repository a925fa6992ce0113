// The search for the shortest layout: what goes in, what comes out, and the one function.

#pragma once

#include "base/Lay.h"
#include "base/Types.h"
#include "engine/Piece.h"
#include "engine/SearchObserver.h"

#include <exception>
#include <vector>

namespace tarn {

/// Most pieces, and parts of pieces, that a search lays out.
inline constexpr Integer MaxPieces = 3000;

/// What a search works on: the pieces of one carpet, the roll, and the options.
struct SearchJob {
    Single RollWidth = 0;      ///< usable width, inches
    Lay Direction = Lay::Down; ///< cross: the pieces' Y runs across the roll
    Double Scale = 0.01;       ///< size of one coordinate unit, inches
    Integer MostParts = 2;     ///< most alternatives of a piece: it is laid in 1 .. MostParts parts
    Integer MinCut = 0;        ///< minimum cut length, coordinate units
    std::vector<Piece> Pieces; ///< numbered from 0 in their order

    bool operator==(const SearchJob&) const = default;
};

/// The layout that a search chose, and its record.
struct SearchResult {
    std::vector<Placed> Layout; ///< in the order of the pieces' creation, in the job's orientation
    Long Cases = 0;             ///< cases of the first pass
    Long BestLength = 0;        ///< shortest length found, whole inches
    Integer BestPower = 0;      ///< the power of the piece order of the best case
    std::vector<Integer> BestParts; ///< by undivided piece, longest first: parts - 1 in that case
    Integer Length = 0; ///< length reported to the user: raised to a multiple of 3, inches

    bool operator==(const SearchResult&) const = default;
};

/// Raised when the observer stopped a search.
class SearchStopped : public std::exception {
  public:
    const char* what() const noexcept override { return "The search was stopped."; }
};

/// Search for the shortest layout of the job's pieces.
///
/// Raises SearchStopped when the observer stops it; "Subscript out of range" for more than
/// MaxPieces pieces, "Division by zero" for a minimum cut of 0, "Overflow" when a size or the
/// length does not fit, "Internal error" when the layout fails its own check.
SearchResult Search(const SearchJob& job, SearchObserver& observer);

} // namespace tarn
