#pragma once

#include <cstdint>

namespace tarn {

/// Random choices that are the same for equal seeds with every standard library (SplitMix64).
class RandomSteps {
  public:
    explicit RandomSteps(std::uint64_t seed)
        : state_(seed) {}

    /// A whole number 0 .. `bound` - 1; 0 for a bound of 0.
    std::uint32_t Below(std::size_t bound) {
        constexpr int High = 32;
        return static_cast<std::uint32_t>(((Next() >> High) * static_cast<std::uint64_t>(bound)) >>
                                          High);
    }

  private:
    std::uint64_t Next() {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t state_;
};

} // namespace tarn
