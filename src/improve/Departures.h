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
        if ((steps.Marks >> (step % MarkBits) & 1) == 0) {
            return false;
        }
        const auto* const end = steps.At.data() + steps.Count;
        return std::find(steps.At.data(), end, step) != end;
    }
    /// Whether a step departs in some way in which it does not in the other ones.
    bool DifferAt(const Departures& other, std::size_t step) const {
        for (std::size_t kind = 0; kind < of_.size(); ++kind) {
            const auto departure = static_cast<Departure>(kind);
            if (Hold(departure, step) != other.Hold(departure, step)) {
                return true;
            }
        }
        return false;
    }
    bool operator==(const Departures&) const = default;
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
        steps.Mark();
    }

  private:
    static constexpr std::size_t Most = 4;
    static constexpr std::size_t MarkBits = 64;
    struct Steps {
        std::array<std::size_t, Most> At{};
        std::size_t Count = 0;
        std::uint64_t Marks = 0; ///< of the steps, that most others are seen at once not to be

        void Mark() {
            Marks = 0;
            for (std::size_t i = 0; i < Count; ++i) {
                Marks |= std::uint64_t{1} << (At[i] % MarkBits);
            }
        }
        bool operator==(const Steps&) const = default;
    };
    std::array<Steps, static_cast<std::size_t>(Departure::Count)> of_{};
};

} // namespace tarn
