#pragma once

#include "improve/RandomSteps.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarn {

/// The steps of a placing at which a gap is left free although a part fits: up to four.
class LeftFree {
  public:
    bool Holds(std::size_t step) const {
        return std::find(steps_.begin(), steps_.begin() + count_, step) != steps_.begin() + count_;
    }
    /// Add, move or remove one of the steps 0 .. `last`.
    void Change(RandomSteps& random, std::size_t last) {
        const std::uint32_t kind = random.Below(3);
        if (kind == 0 && count_ < Most) {
            steps_[count_++] = random.Below(last + 1);
        } else if (kind == 1 && count_ > 0) {
            steps_[random.Below(count_)] = random.Below(last + 1);
        } else if (count_ > 0) {
            --count_;
            steps_[random.Below(count_ + 1)] = steps_[count_];
        }
    }

  private:
    static constexpr std::size_t Most = 4;
    std::array<std::size_t, Most> steps_{};
    std::size_t count_ = 0;
};

} // namespace tarn
