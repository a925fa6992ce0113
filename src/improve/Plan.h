#pragma once

#include "improve/ImproveLayout.h"
#include "improve/RandomSteps.h"

#include <limits>
#include <memory>
#include <vector>

namespace tarn {

/// No limit on a score.
inline constexpr Area64 NoLimit = std::numeric_limits<Area64>::max() / 4;

/// No layout is longer: what is longer is given up.
inline constexpr Area64 LongestRoll = 1 << 29;

/// A variant of the rule by which a part narrower than its gap is taken.
struct PlacingRule {
    bool NotAboveWall = false; ///< not longer than the taller wall
    bool LeaveRoom = false;    ///< what it leaves of the gap takes the narrowest remaining part

    static constexpr std::size_t Count = 4;
    static PlacingRule Number(std::size_t number) { return {(number & 1) != 0, (number & 2) != 0}; }
};

/// What a search varies: an order of the parts, the places where a gap is left free although a part
/// fits, and, where fills may be divided, how. Scoring a plan lays it out on the skyline.
class Plan {
  public:
    virtual ~Plan() = default;

    /// The number of orders, with or without divisions, that a search can start from; see Begin.
    virtual std::size_t Orders() const = 0;
    /// Begin afresh with order number `order`, sorted in some way, and that rule.
    virtual void Begin(std::size_t order, PlacingRule rule) = 0;

    /// The area that stays unpacked when the roll ends at `roof`. May give up, with any area above
    /// `limit`, when it sees that the area will be above it.
    virtual Area64 Unpacked(Long roof, Area64 limit) = 0;
    /// The length of roll that all fills take. May give up, with any length above `limit`, which is
    /// at most LongestRoll.
    virtual Area64 Length(Area64 limit) = 0;

    /// Change the plan a little; with `departures` also where it departs from the
    /// rule.
    virtual void Change(RandomSteps& random, bool departures) = 0;
    /// Take the last change back.
    virtual void Undo() = 0;

    /// The layout that the last score found, when it was whole.
    virtual std::vector<ImprovePart> Layout() const = 0;

    virtual std::unique_ptr<Plan> Copy() const = 0;
    /// Become the same as another plan of this kind and job.
    virtual void TakeFrom(const Plan& other) = 0;
};

} // namespace tarn
