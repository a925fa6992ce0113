#pragma once

#include "app/BoundedArray.h"
#include "app/SharedState.h"
#include "app/Types.h"

namespace tarn {

/// The eight fields that make up a piece to be cut, by row.
/// Coordinates are hundredths of an inch, in metric mode too.
struct PieceRows {
    BoundedArray<Single> PCX1{MaxPiece};      ///< left edge (across the roll)
    BoundedArray<Single> PCX2{MaxPiece};      ///< right edge
    BoundedArray<Single> PCY1{MaxPiece};      ///< top edge (along the roll)
    BoundedArray<Single> PCY2{MaxPiece};      ///< bottom edge
    BoundedArray<Integer> OrgPC{MaxPiece};    ///< number at creation; parts keep their piece's
    BoundedArray<Integer> PCDivide{MaxPiece}; ///< 1 = the search may divide it along the roll
    BoundedArray<Integer> PCTurn{MaxPiece};   ///< bit 0: the piece's own lay
    BoundedArray<Integer> PCOrder{MaxPiece};  ///< place in the placing order
};

/// Copy row `i` of `from` to row `row` of `to`, which may be the same.
void CopyRow(const PieceRows& from, Integer i, PieceRows& to, Integer row);

/// Copy rows 0 .. `count` - 1.
void CopyRows(const PieceRows& from, PieceRows& to, Integer count);

/// What the layout engine works on: the pieces of one carpet, the layout, and the record of the
/// search. One exists in the program. Sizes and positions on the roll are inches,
/// piece coordinates hundredths of an inch. Counts are the numbers of rows in use; rows at and
/// beyond a count hold leftovers.
struct EngineArrays : PieceRows {
    /// Give every array its bounds, with all elements empty and all counts 0.
    void DimAllArrays() { *this = EngineArrays(); }

    // --- the roll ---
    Single RollWidth = 0; ///< inches
    Integer LayDir = 0;   ///< 0 = down lay, 1 = cross lay
    Integer FillFlag = 0; ///< 1 = the whole roll width may be used, else 2 inches stay free

    // --- the pieces ---
    Integer PieceCount = 0;
    Integer OrgCount = 0;                    ///< pieces before any division
    Integer CutCount = 0;                    ///< pieces that take part in the placement in hand
    BoundedArray<Single> PieceWid{MaxPiece}; ///< across the roll, inches
    BoundedArray<Single> PieceLen{MaxPiece}; ///< along the roll, inches
    PieceRows Undivided;                     ///< the pieces as CopyFillPC saved them

    // --- the layout: placed pieces, inches ---
    Integer PosCount = 0;
    BoundedArray<Single> PosX{MaxPiece}; ///< left edge; 0 = the roll's left edge
    BoundedArray<Single> PosY{MaxPiece}; ///< begin along the roll; 0 = the roll's start
    BoundedArray<Single> PosW{MaxPiece}; ///< extent across
    BoundedArray<Single> PosL{MaxPiece}; ///< extent along

    // --- the search ---
    Integer MaxParts = 0; ///< most alternatives a piece has: it is cut into 1 .. MaxParts parts
    Integer MinCut = 0;   ///< minimum cut length, coordinate units
    Long CaseCount = 0;   ///< cases of the first pass
    BoundedArray<Integer> CaseRadix{MaxPiece}; ///< by undivided piece: alternatives tried for it
    BoundedArray<Integer> CaseDigit{MaxPiece}; ///< by undivided piece: cut into digit + 1 parts
    BoundedArray<Integer> BestCase{MaxPiece};  ///< the digits of the best case so far
    Integer BestMode = 0;                      ///< the power of the piece order of the best case
    Long BestLen = 0;                          ///< shortest length found, whole inches
    Integer ResultLen = 0;                     ///< length reported to the user, inches
};

} // namespace tarn
