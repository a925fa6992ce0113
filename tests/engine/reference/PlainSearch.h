#pragma once

#include <vector>

/// A second, deliberately simple layout search, for tests only. It shares no code and no types with
/// the real engine, scans linearly and starts everything afresh, so that a disagreement between the
/// two points at a mistake in one of them.
namespace tarn::reference {

/// One strip to be cut, in hundredths of an inch. Down lay: x across the roll, y along it.
struct PlainPiece {
    float x1, x2, y1, y2;
    int org;    ///< number at creation
    int divide; ///< 1: may be divided along the roll
    int order;  ///< place in the order of placing
};

struct PlainJob {
    std::vector<PlainPiece> pieces; ///< at most 3000
    float rollWidth;                ///< inches
    int layDir;                     ///< 0 down lay, 1 cross lay
    int mostParts;                  ///< most parts that a piece is laid in
    int minCut;                     ///< shortest part of a divided piece, hundredths of an inch
};

/// Where a piece lies on the roll: corner and extent, in inches.
struct PlainPlaced {
    float x, y, w, l;
};

struct PlainResult {
    long cases;                     ///< cases of the first pass; 0 when a radix is 0
    std::vector<int> radix;         ///< one per undivided piece, longest first
    std::vector<int> digits;        ///< the best case, one per undivided piece: parts - 1
    int bestPower;                  ///< power of the length in the order of placing: 1, 0 or 2
    long bestLength;                ///< inches
    int resultLength;               ///< inches, raised to a multiple of 3
    std::vector<PlainPiece> pieces; ///< in order of creation, in the job's orientation
    std::vector<PlainPlaced> placed;
    int undivided; ///< undivided pieces, with the strips taken off pieces wider than the roll
};

/// Runs the whole search. Raises RunTimeError 6 when a size or the result is too large, 9 for more
/// than 3000 pieces, 11 for a minimum cut of 0, 51 when the layout contradicts itself.
PlainResult RunPlainSearch(const PlainJob& job);

} // namespace tarn::reference
