#pragma once

#include "engine/EngineTesting.h"
#include "improve/ImproveJob.h"
#include "improve/ImproveLayout.h"
#include "improve/ImproveRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace tarn::testing {

/// How many times as many jobs a test looks at as usual: TARN_JOBS, which ./dev prove sets.
inline unsigned JobsFactor() {
    const char* times = std::getenv("TARN_JOBS");
    const unsigned long factor = times == nullptr ? 1 : std::strtoul(times, nullptr, 10);
    return static_cast<unsigned>(std::clamp<unsigned long>(factor, 1, 1000));
}

/// Whatever it is told: an observer that stops nothing.
inline constexpr auto GoOn = [](auto... /*told*/) { return true; };

/// Limits in steps alone.
inline ImproveLimits InSteps(std::int64_t steps, std::uint64_t seed = 1, std::size_t threads = 0) {
    return {0, steps, seed, threads};
}

/// The merit of a layout that lies behind itself: worse than any.
inline LayoutMerit Stacked(const ImproveJob& job) {
    return {static_cast<Long>(StackedLength(job)) + 1, 1000, 0};
}

/// A whole number `least` .. `most`.
inline Long Between(std::mt19937& random, Long least, Long most) {
    return least + Below(random, most - least + 1);
}

/// Up to `most` fills on a roll of `width`, each laid in up to `parts` parts.
inline ImproveJob RandomFills(std::mt19937& random, Long most, Long width, Long parts,
                              Long longest = 30) {
    ImproveJob job;
    job.Width = width;
    job.MinPart = Between(random, 1, 4);
    for (Long count = Between(random, 1, most); count > 0; --count) {
        job.Fills.push_back(
            {Between(random, 1, width), Between(random, 1, longest), Between(random, 1, parts)});
    }
    return job;
}

/// A job that LeastLength solves at once.
inline ImproveJob SmallFills(std::mt19937& random, Long parts) {
    return parts == 1 ? RandomFills(random, 4, 5, 1, 6)
                      : RandomFills(random, 3, 4, std::min(parts, 3), 5);
}

/// Up to `most` rooms of one or more strips that have to match by a small repeat; whole-width
/// strips first. Fills, and now and then whole rooms, may be laid in up to `parts` parts.
inline ImproveJob RandomPattern(std::mt19937& random, Long most, Long width, Long parts,
                                Long longest = 30, Long largestRepeat = 6) {
    ImproveJob job;
    job.Width = width;
    job.MinPart = Between(random, 1, 4);
    job.Repeat = {Between(random, 0, 3), Between(random, 0, largestRepeat), false};
    job.Repeat.HalfDrop =
        job.Repeat.Along > 0 && job.Repeat.Along % 2 == 0 && Below(random, 2) == 0;
    const Long across = job.Repeat.Across;
    Long rooms = 0;
    for (Long count = Between(random, 1, most); count > 0; --count) {
        const Long length = Between(random, 1, longest);
        const Long kind = Below(random, 3);
        if (kind == 0) {
            const bool joined = Below(random, 2) == 0;
            job.Fills.push_back({Between(random, 1, width - 1), length, joined ? parts : 1,
                                 joined && parts > 1 ? rooms++ : NoRoom});
            continue;
        }
        const bool drops = kind == 2 && (across == 0 || width % across == 0);
        job.Fills.push_back({width, length, 1, rooms});
        if (drops) {
            job.Fills.push_back({width, length, 1, rooms, width, 1});
        }
        const Long strip = drops ? 2 : 1;
        const Long begin = strip * width;
        const Long left = across == 0 ? 0 : begin % across;
        if (left < width) {
            job.Fills.push_back(
                {Between(random, 1, width - left), length, parts, rooms, begin, strip});
        }
        if (job.Fills.back().Room == rooms && job.Fills.back().Strip == 0) {
            job.Fills.back().Room = NoRoom;
        } else {
            ++rooms;
        }
    }
    return job;
}

inline std::string Describe(const ImproveJob& job) {
    std::string text =
        "roll " + std::to_string(job.Width) + ", parts from " + std::to_string(job.MinPart) + ":";
    for (const ImproveFill& fill : job.Fills) {
        text += " " + std::to_string(fill.Width) + "x" + std::to_string(fill.Length) + "/" +
                std::to_string(fill.Parts);
        if (fill.Room != NoRoom) {
            text += "@" + std::to_string(fill.Room) + "+" + std::to_string(fill.Begin);
        }
    }
    if (HasPattern(job)) {
        text += ", repeat " + std::to_string(job.Repeat.Across) + "x" +
                std::to_string(job.Repeat.Along) + (job.Repeat.HalfDrop ? " half drop" : "");
    }
    return text;
}

/// Whether two parts show the pattern as the job's repeat asks of parts of one room.
inline bool Match(const ImproveJob& job, const ImprovePart& a, const ImprovePart& b) {
    const ImproveFill& fillA = job.Fills.at(a.Fill);
    const ImproveFill& fillB = job.Fills.at(b.Fill);
    const ImproveRepeat& repeat = job.Repeat;
    const Long across = fillA.Begin - a.X - (fillB.Begin - b.X);
    const Long columns = repeat.Across > 0 ? across / repeat.Across : fillA.Strip - fillB.Strip;
    const Long half = repeat.HalfDrop && columns % 2 != 0 ? repeat.Along / 2 : 0;
    const Long along = a.From - a.Y - (b.From - b.Y) + half;
    return (repeat.Across == 0 || across % repeat.Across == 0) &&
           (repeat.Along == 0 || along % repeat.Along == 0);
}

/// What is wrong with a layout of a job with a pattern besides what FaultOf finds.
inline std::string PatternFaultOf(const ImproveJob& job, std::vector<ImprovePart> parts) {
    for (const ImprovePart& a : parts) {
        for (const ImprovePart& b : parts) {
            const Long room = job.Fills.at(a.Fill).Room;
            if (room != NoRoom && room == job.Fills.at(b.Fill).Room && !Match(job, a, b)) {
                return "parts of room " + std::to_string(room) + " do not match";
            }
        }
    }
    std::sort(parts.begin(), parts.end(), [](const ImprovePart& a, const ImprovePart& b) {
        return a.Fill != b.Fill ? a.Fill < b.Fill : a.From < b.From;
    });
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const bool first = i == 0 || parts[i - 1].Fill != parts[i].Fill;
        if (parts[i].From != (first ? 0 : parts[i - 1].From + parts[i - 1].Length)) {
            return "parts of fill " + std::to_string(parts[i].Fill) + " do not follow each other";
        }
    }
    return "";
}

/// What is wrong with a layout; empty when it is whole, within the roll, free of overlaps, and as
/// the job allows. Written from the job's rules alone.
inline std::string FaultOf(const ImproveJob& job, const std::vector<ImprovePart>& parts) {
    std::vector<Long> laid(job.Fills.size(), 0);
    std::vector<Long> count(job.Fills.size(), 0);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const ImprovePart& a = parts[i];
        const Long widthA = job.Fills.at(a.Fill).Width;
        if (a.X < 0 || a.Y < 0 || a.X + widthA > job.Width || a.Length < 1) {
            return "part " + std::to_string(i) + " is not on the roll";
        }
        laid[a.Fill] += a.Length;
        ++count[a.Fill];
        for (std::size_t j = 0; j < i; ++j) {
            const ImprovePart& b = parts[j];
            const Long widthB = job.Fills.at(b.Fill).Width;
            if (a.X < b.X + widthB && b.X < a.X + widthA && a.Y < b.Y + b.Length &&
                b.Y < a.Y + a.Length) {
                return "parts " + std::to_string(j) + " and " + std::to_string(i) + " overlap";
            }
        }
    }
    for (std::size_t fill = 0; fill < job.Fills.size(); ++fill) {
        if (laid[fill] != job.Fills[fill].Length) {
            return "fill " + std::to_string(fill) + " is not laid whole";
        }
        if (count[fill] > job.Fills[fill].Parts) {
            return "fill " + std::to_string(fill) + " has too many parts";
        }
    }
    for (const ImprovePart& part : parts) {
        if (count[part.Fill] > 1 && part.Length < job.MinPart) {
            return "a part of fill " + std::to_string(part.Fill) + " is too short";
        }
    }
    return "";
}

/// The least length of a small job, found by trying everything: cell by cell, from the start of the
/// roll and from left to right, each free cell stays free or takes the corner of a part.
class LeastLength {
  public:
    static Long Of(const ImproveJob& job) {
        for (Long length = 1;; ++length) {
            LeastLength attempt(job, length);
            if (attempt.Free() >= 0 && attempt.Fill(0)) {
                return length;
            }
        }
    }

  private:
    LeastLength(const ImproveJob& job, Long length)
        : job_(job)
        , length_(static_cast<std::size_t>(length))
        , taken_(static_cast<std::size_t>(job.Width * length), false)
        , rest_(job.Fills.size())
        , parts_(job.Fills.size(), 0) {
        free_ = static_cast<Area64>(job.Width) * length - TotalArea(job);
        for (std::size_t i = 0; i < job.Fills.size(); ++i) {
            rest_[i] = job.Fills[i].Length;
        }
    }
    Area64 Free() const { return free_; }

    bool Fill(std::size_t cell) {
        while (cell < taken_.size() && taken_[cell]) {
            ++cell;
        }
        if (std::all_of(rest_.begin(), rest_.end(), [](Long rest) { return rest == 0; })) {
            return true;
        }
        if (cell == taken_.size()) {
            return false;
        }
        for (std::size_t fill = 0; fill < rest_.size(); ++fill) {
            if (rest_[fill] > 0 && FillWith(cell, fill)) {
                return true;
            }
        }
        if (free_ == 0) {
            return false;
        }
        --free_;
        taken_[cell] = true;
        const bool found = Fill(cell + 1);
        taken_[cell] = false;
        ++free_;
        return found;
    }

    /// Try every part of a fill with its corner at a cell.
    bool FillWith(std::size_t cell, std::size_t fill) {
        for (Long length = rest_[fill]; length >= 1; --length) {
            const bool last = length == rest_[fill];
            const bool divided = !last || parts_[fill] > 0;
            if ((divided && length < job_.MinPart) ||
                parts_[fill] + (last ? 1 : 2) > job_.Fills[fill].Parts) {
                continue;
            }
            if (Mark(cell, fill, length, false, true)) {
                rest_[fill] -= length;
                ++parts_[fill];
                const bool found = Fill(cell);
                --parts_[fill];
                rest_[fill] += length;
                Mark(cell, fill, length, true, false);
                if (found) {
                    return true;
                }
            }
        }
        return false;
    }

    /// Set the cells of a part, unless one of them is not `from`.
    bool Mark(std::size_t cell, std::size_t fill, Long length, bool from, bool to) {
        const auto width = static_cast<std::size_t>(job_.Width);
        const auto across = static_cast<std::size_t>(job_.Fills[fill].Width);
        const auto along = static_cast<std::size_t>(length);
        if (cell % width + across > width || cell / width + along > length_) {
            return false;
        }
        for (int pass = 0; pass < 2; ++pass) {
            for (std::size_t y = 0; y < along; ++y) {
                for (std::size_t x = 0; x < across; ++x) {
                    const std::size_t at = cell + y * width + x;
                    if (pass == 0 && taken_[at] != from) {
                        return false;
                    }
                    taken_[at] = pass == 0 ? taken_[at] : to;
                }
            }
        }
        return true;
    }

    const ImproveJob& job_;
    std::size_t length_;
    std::vector<bool> taken_;
    std::vector<Long> rest_;
    std::vector<Long> parts_;
    Area64 free_ = 0;
};

} // namespace tarn::testing
