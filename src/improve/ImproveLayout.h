// A layout of the improving search, and what makes one better than another.

#pragma once

#include "improve/ImproveJob.h"

#include <vector>

namespace tarn {

/// One part on the roll, as wide as its fill, in the job's units.
struct ImprovePart {
    std::size_t Fill; ///< number in the job
    Long X;           ///< left edge; 0 = the roll's left edge
    Long Y;           ///< begin along the roll; 0 = the roll's start
    Long Length;
    Long From = 0; ///< with a pattern: where the part begins in its fill
};

/// What decides between layouts: the shorter one, then fewer parts (each part more is a join more),
/// then the larger undivided free rectangle at the end of the roll.
struct LayoutMerit {
    Long Length = 0;
    Long Parts = 0; ///< 0 of a layout that none of its length is better than
    Area64 FreeEnd = 0;

    bool BetterThan(const LayoutMerit& other) const;
};

/// Join parts of one fill that lie end to end, and bring the parts into the order along the roll,
/// from left to right where they begin together. With a pattern parts are joined that follow each
/// other in their fill too.
void JoinAndOrder(std::vector<ImprovePart>& parts, bool pattern = false);

/// The merit of a whole layout.
LayoutMerit MeritOf(const ImproveJob& job, const std::vector<ImprovePart>& parts);

/// Where a part ends.
struct PartEnd {
    Long X;
    Long Width;
    Long End;
};

/// The area of the largest free rectangle that reaches from behind the parts to the end of a roll
/// `width` wide and `length` long.
Area64 LargestFreeEnd(const std::vector<PartEnd>& ends, Long width, Long length);

} // namespace tarn
