#include "improve/RollJob.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "engine/FinishLayout.h"
#include "engine/PieceGeometry.h"
#include "engine/PreparePieces.h"
#include "engine/ResultLength.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace tarn {

namespace {

constexpr Long UnitsPerStep = 1000; ///< in an inch or a centimetre

Long RoundedUnits(Double inches, Double unit) {
    return std::max(1, static_cast<Long>(std::llround(inches / unit)));
}

/// Divide the sizes by their greatest common divisor.
void UseLargestUnits(RollJob& roll) {
    ImproveJob& job = roll.Job;
    Long across = 0;
    Long along = AnyDivisible(job) ? job.CutStep : 0;
    for (const ImproveFill& fill : job.Fills) {
        across = std::gcd(across, fill.Width);
        along = std::gcd(along, fill.Length);
    }
    for (ImproveFill& fill : job.Fills) {
        fill.Width /= across;
        fill.Length /= along;
    }
    job.Width /= across;
    job.MinPart = (job.MinPart + along - 1) / along;
    job.CutStep = std::max(1, job.CutStep / along);
    roll.AcrossUnit *= across;
    roll.AlongUnit *= along;
}

} // namespace

Single RollJob::Across(Long units) const {
    return CSng(units * AcrossUnit);
}

Single RollJob::Along(Long units) const {
    return CSng(units * AlongUnit);
}

RollJob RollJobOf(const SearchJob& job, const ImproveRules& rules) {
    RollJob roll;
    roll.Wholes = PreparePieces(job);
    const Double step = rules.In == Units::Metric ? 1 / CentimetresPerInch : 1;
    const Double unit = step / UnitsPerStep;
    roll.AcrossUnit = unit;
    roll.AlongUnit = unit;
    roll.Job.Width = RoundedUnits(static_cast<Double>(job.RollWidth), unit);
    roll.Job.CutStep = UnitsPerStep;
    roll.Job.MinPart = RoundedUnits(rules.ShortestPart, unit);
    roll.Job.MostPieces = MaxPieces;
    roll.Possible = !roll.Wholes.empty();
    for (const Piece& whole : roll.Wholes) {
        const PieceSize size = SizeOf(whole, job.Scale);
        roll.Possible = roll.Possible && IsWithinTolerance(size.Width - job.RollWidth);
        roll.Job.Fills.push_back(
            {std::min(RoundedUnits(static_cast<Double>(size.Width), unit), roll.Job.Width),
             RoundedUnits(static_cast<Double>(size.Length), unit),
             whole.IsDivisible ? job.MostParts : 1});
    }
    if (roll.Possible) {
        UseLargestUnits(roll);
    }
    return roll;
}

LayoutMerit LayoutMeritOf(const RollJob& roll, const std::vector<Placed>& layout) {
    const auto length = static_cast<Double>(LengthInUse(layout));
    LayoutMerit merit;
    merit.Length = static_cast<Long>(std::llround(length / roll.AlongUnit));
    if (std::abs(length - merit.Length * roll.AlongUnit) >= LengthTolerance) {
        merit.Length = static_cast<Long>(std::ceil(length / roll.AlongUnit));
        merit.FreeEnd = std::numeric_limits<Area64>::max();
        return merit;
    }
    merit.Parts = static_cast<Long>(layout.size());
    std::vector<PartEnd> ends;
    for (const Placed& placed : layout) {
        const Box box = BoxOf(placed);
        const auto across = [&](Single x) {
            return static_cast<Long>(std::llround(static_cast<Double>(x) / roll.AcrossUnit));
        };
        const Double end = static_cast<Double>(box.Y2) / roll.AlongUnit;
        ends.push_back({across(box.X1), across(box.X2) - across(box.X1),
                        static_cast<Long>(std::llround(end))});
    }
    merit.FreeEnd = LargestFreeEnd(ends, roll.Job.Width, merit.Length);
    return merit;
}

bool KeepsRules(const RollJob& roll, const std::vector<Placed>& layout, const SearchJob& job,
                const ImproveRules& rules) {
    const auto isWhole = [&](const Placed& placed) {
        return std::any_of(roll.Wholes.begin(), roll.Wholes.end(), [&](const Piece& whole) {
            const PieceSize size = SizeOf(whole, job.Scale);
            return whole.Number == placed.Part.Number &&
                   std::abs(static_cast<Double>(size.Width - placed.Width)) < LengthTolerance &&
                   std::abs(static_cast<Double>(size.Length - placed.Length)) < LengthTolerance;
        });
    };
    return LayoutMeritOf(roll, layout).Parts > 0 &&
           std::all_of(layout.begin(), layout.end(), [&](const Placed& placed) {
               return static_cast<Double>(placed.Length) > rules.ShortestPart - LengthTolerance ||
                      isWhole(placed);
           });
}

SearchResult ResultOf(const RollJob& roll, const std::vector<ImprovePart>& parts,
                      const SearchJob& job, const SearchResult& start) {
    SearchResult result;
    result.Cases = start.Cases;
    result.BestPower = start.BestPower;
    result.BestParts.assign(roll.Wholes.size(), -1);
    std::vector<Placed> layout;
    std::vector<Long> used(roll.Wholes.size(), 0);
    for (const ImprovePart& part : parts) {
        const Piece& whole = roll.Wholes[part.Fill];
        const auto edge = [&](Long along) {
            return along == roll.Job.Fills[part.Fill].Length
                       ? whole.Y2
                       : CSng(static_cast<Double>(whole.Y1) + along * roll.AlongUnit / job.Scale);
        };
        Piece piece = whole;
        piece.Y1 = used[part.Fill] == 0 ? whole.Y1 : edge(used[part.Fill]);
        used[part.Fill] += part.Length;
        piece.Y2 = edge(used[part.Fill]);
        const PieceSize size = SizeOf(piece, job.Scale);
        layout.push_back({piece, roll.Across(part.X), roll.Along(part.Y), size.Width, size.Length});
        ++result.BestParts[part.Fill];
    }
    result.BestLength = CLng(static_cast<Double>(LengthInUse(layout)));
    FinishLayout(std::move(layout), job, result);
    return result;
}

} // namespace tarn
