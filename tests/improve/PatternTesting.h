#pragma once

#include "improve/ImproveTesting.h"

#include <cstdint>

namespace tarn::testing {

/// The least length of a small job with a pattern, found by trying every division of every fill,
/// and every place of every part.
class LeastPatternLength {
  public:
    static Long Of(const ImproveJob& job) {
        for (auto length = static_cast<Long>((TotalArea(job) + job.Width - 1) / job.Width);;
             ++length) {
            LeastPatternLength attempt(job, length);
            if (attempt.LayFill(0, 0, 0)) {
                return length;
            }
        }
    }

  private:
    LeastPatternLength(const ImproveJob& job, Long length)
        : job_(job)
        , length_(length)
        , rows_(static_cast<std::size_t>(length), 0) {}

    /// Lay what is left of a fill behind `from`, of which `count` parts are laid, and all after it.
    bool LayFill(std::size_t fill, Long from, Long count) {
        if (fill == job_.Fills.size()) {
            return true;
        }
        const ImproveFill& piece = job_.Fills[fill];
        const Long rest = piece.Length - from;
        for (Long length = rest; length >= 1; --length) {
            const bool last = length == rest;
            const bool divided = count > 0 || !last;
            if ((divided && length < job_.MinPart) || count + (last ? 1 : 2) > piece.Parts) {
                continue;
            }
            for (Long y = 0; y + length <= length_; ++y) {
                for (Long x = 0; x + piece.Width <= job_.Width; ++x) {
                    if (LayPart({fill, x, y, length, from}, last, count)) {
                        return true;
                    }
                }
            }
        }
        return false;
    }

    bool LayPart(const ImprovePart& part, bool last, Long count) {
        const ImproveFill& fill = job_.Fills[part.Fill];
        if (fill.Room != NoRoom) {
            for (const ImprovePart& other : parts_) {
                if (job_.Fills[other.Fill].Room == fill.Room && !Match(job_, other, part)) {
                    return false;
                }
            }
        }
        const auto mask = static_cast<std::uint32_t>(((1U << fill.Width) - 1U) << part.X);
        for (Long y = part.Y; y < part.Y + part.Length; ++y) {
            if ((rows_[static_cast<std::size_t>(y)] & mask) != 0) {
                return false;
            }
        }
        Toggle(part, mask);
        parts_.push_back(part);
        const bool found = last ? LayFill(part.Fill + 1, 0, 0)
                                : LayFill(part.Fill, part.From + part.Length, count + 1);
        parts_.pop_back();
        Toggle(part, mask);
        return found;
    }

    void Toggle(const ImprovePart& part, std::uint32_t mask) {
        for (Long y = part.Y; y < part.Y + part.Length; ++y) {
            rows_[static_cast<std::size_t>(y)] ^= mask;
        }
    }

    const ImproveJob& job_;
    Long length_;
    std::vector<std::uint32_t> rows_;
    std::vector<ImprovePart> parts_;
};

/// A job with a pattern, of up to four pieces or parts, that LeastPatternLength solves at once.
inline ImproveJob SmallPattern(std::mt19937& random) {
    for (;;) {
        const Long parts = Between(random, 1, 3);
        ImproveJob job = RandomPattern(random, 3, Between(random, 2, 5), parts, 6, 4);
        Long pieces = 0;
        for (const ImproveFill& fill : job.Fills) {
            pieces += PartsAllowed(job, fill);
        }
        if (pieces <= 4 && HasPattern(job)) {
            return job;
        }
    }
}

} // namespace tarn::testing
