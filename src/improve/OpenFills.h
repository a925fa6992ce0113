#pragma once

#include "improve/FitClass.h"
#include "improve/PartTurns.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// The fills that are not used up while a plan lays them in parts: finds the next part of the best
/// class of fit. The fills stand in the order of their widths, and what a question needs of a
/// fill's next part is kept ready beside it, so that few of them are looked at and none for long.
class OpenFills {
  public:
    explicit OpenFills(const ImproveJob& job);

    /// All fills are open, and begin with the first of their turns.
    void OpenAll(const PartTurns& turns);
    /// A part of a fill was laid: its next turn comes, or it is used up.
    void Laid(std::size_t fill, const PartTurns& turns);
    bool Any() const { return open_ > 0; }
    /// The least width of an open fill; not to be asked when there is none.
    Long Narrowest();

    /// A part that is laid.
    struct Choice {
        std::size_t Fill = 0;
        FitClass Fit = FitClass::None;
        Long Place = 0;
        Long Length = 0;

        bool BetterThan(const Choice& other) const {
            return Fit != other.Fit ? Fit < other.Fit : Place < other.Place;
        }
        /// Whether it is the same part, or neither is one.
        bool IsSameAs(const Choice& other) const {
            return Fit == other.Fit &&
                   (Fit == FitClass::None || (Fill == other.Fill && Length == other.Length));
        }
    };
    /// The part that is laid in a gap with `room` up to the roof: of the best class with a part in
    /// it the earliest. Parts of no special length are at most `widest` wide and `longest` long.
    Choice Choose(Long gapWidth, const Walls& walls, Long room, Long widest, Long longest) const;
    /// How a turn's part would fit the gap, if it is next of its fill and so much of that is left:
    /// at best, without the limits of parts of no special length.
    Choice FitOf(const PartTurn& turn, Long rest, bool hasMore, Long gapWidth, const Walls& walls,
                 Long room) const;
    /// The earliest part that fits the gap at all, with the class it is of.
    Choice First(Long gapWidth, const Walls& walls, Long room) const;

  private:
    using Word = std::uint64_t;
    static constexpr std::size_t WordBits = 64;

    /// A fill's next part.
    struct Next {
        Long Width;
        Long Place;
        Long Length;  ///< by the rule of its turn, or all that is left where a wall says it
        Long Rest;    ///< all that is left
        Long MostCut; ///< the longest part that leaves a rest which may be laid
        PartCut Rule;
    };
    /// What a gap says about the lengths of parts, in whole steps; 0 where a cut would be too
    /// short.
    struct Cuts {
        Long Room;
        Long AtRoof;
        Long AtTall;
        Long AtShort;
    };

    Cuts CutsOf(const Walls& walls, Long room) const;
    Long CutAt(Long length) const;
    /// How long a fill's next part is. Above the room when it does not fit.
    static Long LengthOf(const Next& next, const Cuts& cuts);
    Next NextOf(std::size_t fill, const PartTurns& turns) const {
        return NextOf(turns.NextOf(fill), turns.StateOf(fill).Rest, turns.HasMore(fill));
    }
    Next NextOf(const PartTurn& turn, Long rest, bool hasMore) const;
    /// The number of fills up to `width` wide.
    std::size_t CountUpTo(Long width) const;
    /// Call `look` for the open fills among those number `begin` .. `end` - 1 by width.
    template <typename Look>
    void ForOpen(std::size_t begin, std::size_t end, Look look) const;

    const ImproveJob* job_;
    std::vector<std::size_t> fills_;       ///< by width
    std::vector<std::size_t> numberOf_;    ///< of each fill by width
    std::vector<Long> widths_;             ///< in that order
    std::vector<std::uint32_t> countUpTo_; ///< by width, where widths are small
    std::vector<Next> nexts_;
    std::vector<Word> isOpen_;
    std::size_t open_ = 0;
    std::size_t narrowest_ = 0; ///< none before it is open
};

} // namespace tarn
