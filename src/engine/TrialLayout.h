#pragma once

#include "engine/PlacedIndex.h"

#include <vector>

namespace tarn {

/// Across and along extent of a piece to be placed, inches.
struct PieceSize {
    Single Width;
    Single Length;
};

/// Finds out how much roll a case needs, by the rule of FillOnePieceNew and to the bit, without
/// touching the shared arrays.
///
/// The rule is the same; what is saved is looking twice:
///  - placed pieces are found by their position along the roll (PlacedIndex);
///  - a corner remembers the piece that was in the way last, which mostly still is;
///  - a corner where not even the smallest width and length still to come would fit is dropped:
///  what
///    overlaps at a corner overlaps there for every larger piece, and pieces are never taken away;
///  - corners stay in order, and only the two new ones of a placement are inserted;
///  - a trial ends as soon as it is too long to be of use.
class TrialLayout {
  public:
    /// Place `pieces` in their order on an empty roll of the given usable width. Returns the length
    /// in use, rounded to whole inches, halves to even; or, when that would not be below `bound`,
    /// any length that is not. Raises "Overflow" as the rule does.
    Long Length(const std::vector<PieceSize>& pieces, Single usableWidth, Long bound);

  private:
    struct Corner {
        Single X, Y;
        Single Key;
        bool Blocked; ///< a placed piece was in the way
        Box Blocker;  ///< that piece
    };

    static Corner MakeCorner(Single x, Single y);
    void Reset(const std::vector<PieceSize>& pieces);
    /// The first corner where the piece fits and is free; drops useless corners on the way. The
    /// number of corners when there is none.
    std::size_t FreeCorner(PieceSize piece, PieceSize least);
    bool IsUseless(const Corner& corner, PieceSize least) const;
    Single AcrossPosition(const Corner& corner, PieceSize piece) const;
    /// Place a piece at corner number `k`, or behind everything for the number of corners. Returns
    /// its end.
    Single Place(std::size_t k, PieceSize piece);
    void ReplaceCorner(std::size_t k, Single x, Single y);
    void AppendCorner(Single x, Single y);
    /// Of corners equal to that at `at`, keep the first.
    void DropEqual(std::size_t at);

    Single usable_ = 0;
    Single length_ = 0;
    PlacedIndex placed_;
    std::vector<Corner> corners_;
    std::vector<PieceSize> least_; ///< by piece: least width and length from it on
};

} // namespace tarn
