#pragma once

#include "improve/RandomSteps.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tarn {

/// What a plan may do at a step of its placing instead of what the rule says.
enum class Departure : std::uint8_t {
    LeaveFree, ///< leave the gap free although a part fits
    ByOrder,   ///< take the first part of the order that fits, however well
    OtherWall, ///< let the part stand at the gap's other side
    Count
};

/// The steps of a placing at which it departs from the rule: up to four of each kind. Some layouts
/// cannot be made by any order without.
class Departures {
  public:
    bool Hold(Departure kind, std::size_t step) const {
        const Steps& steps = of_[static_cast<std::size_t>(kind)];
        const auto* const end = steps.At.data() + steps.Count;
        return std::find(steps.At.data(), end, step) != end;
    }
    /// Add, move or remove one of the steps 1 .. `last` of a kind.
    void Change(Departure kind, RandomSteps& random, std::size_t last) {
        Steps& steps = of_[static_cast<std::size_t>(kind)];
        const std::uint32_t change = random.Below(3);
        if (change == 0 && steps.Count < Most) {
            steps.At[steps.Count++] = 1 + random.Below(last);
        } else if (change == 1 && steps.Count > 0) {
            steps.At[random.Below(steps.Count)] = 1 + random.Below(last);
        } else if (steps.Count > 0) {
            --steps.Count;
            steps.At[random.Below(steps.Count + 1)] = steps.At[steps.Count];
        }
    }

  private:
    static constexpr std::size_t Most = 4;
    struct Steps {
        std::array<std::size_t, Most> At{};
        std::size_t Count = 0;
    };
    std::array<Steps, static_cast<std::size_t>(Departure::Count)> of_{};
};

} // namespace tarn
