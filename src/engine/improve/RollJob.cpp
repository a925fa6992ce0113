#include "engine/improve/RollJob.h"

#include "app/Lengths.h"
#include "app/Numbers.h"
#include "engine/Division.h"
#include "engine/EstOptions.h"
#include "engine/FinishLayout.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace tarn {

namespace {

constexpr Long UnitsPerStep = 1000; ///< in an inch or a centimetre
constexpr Integer CutsPerTens = 10; ///< EstOption is 10 × the minimum cut + ..

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

RollJob RollJobOf(const SharedState& state, const EngineArrays& engine) {
    RollJob roll;
    const Double step = state.IsMetric() ? 1 / CentimetresPerInch : 1;
    const Double unit = step / UnitsPerStep;
    roll.AcrossUnit = unit;
    roll.AlongUnit = unit;
    const Single usable = UsableWidth(engine);
    const PieceRows& rows = engine.Undivided;
    roll.Job.Width = RoundedUnits(static_cast<Double>(usable), unit);
    roll.Job.CutStep = UnitsPerStep;
    roll.Job.MinPart = RoundedUnits(MinCutOfCaption(state, state.EstOption / CutsPerTens), unit);
    roll.Job.MostPieces = MaxPiece;
    roll.Possible = engine.OrgCount > 0;
    for (Integer i = 0; i < engine.OrgCount; ++i) {
        const Single width = SizeBetween(rows.PCX1[i], rows.PCX2[i], state.DimScale);
        const Single length = SizeBetween(rows.PCY1[i], rows.PCY2[i], state.DimScale);
        roll.Possible = roll.Possible && IsWithinTolerance(width - usable);
        roll.Job.Fills.push_back(
            {std::min(RoundedUnits(static_cast<Double>(width), unit), roll.Job.Width),
             RoundedUnits(static_cast<Double>(length), unit),
             rows.PCDivide[i] == 1 ? engine.MaxParts : 1});
    }
    if (roll.Possible) {
        UseLargestUnits(roll);
    }
    return roll;
}

LayoutMerit LayoutMeritOf(const RollJob& roll, const EngineArrays& engine) {
    const Double length = static_cast<Double>(GetPCLen(engine));
    LayoutMerit merit;
    merit.Length = static_cast<Long>(std::llround(length / roll.AlongUnit));
    if (std::abs(length - merit.Length * roll.AlongUnit) >= LengthTolerance) {
        merit.Length = static_cast<Long>(std::ceil(length / roll.AlongUnit));
        merit.FreeEnd = std::numeric_limits<Area64>::max();
        return merit;
    }
    merit.Parts = engine.PieceCount;
    std::vector<PartEnd> ends;
    for (Integer i = 0; i < engine.PosCount; ++i) {
        const Box box = PlacedBox(engine, i);
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

void TakeLayout(const RollJob& roll, const std::vector<ImprovePart>& parts, EngineArrays& engine,
                Double dimScale) {
    RestoreFillPC(engine);
    engine.BestCase.Fill(-1);
    std::vector<Long> used(roll.Job.Fills.size(), 0);
    Integer order = 0;
    for (const ImprovePart& part : parts) {
        const auto fill = static_cast<Integer>(part.Fill);
        const bool first = used[part.Fill] == 0;
        const Integer row = first ? fill : AppendCopy(engine, fill);
        const auto edge = [&](Long along) {
            const auto top = static_cast<Double>(engine.Undivided.PCY1[fill]);
            return along == roll.Job.Fills[part.Fill].Length
                       ? engine.Undivided.PCY2[fill]
                       : CSng(top + along * roll.AlongUnit / dimScale);
        };
        engine.PCY1[row] = first ? engine.Undivided.PCY1[fill] : edge(used[part.Fill]);
        used[part.Fill] += part.Length;
        engine.PCY2[row] = edge(used[part.Fill]);
        GetPieceSZ(engine, row, dimScale);
        engine.PosX[row] = roll.Across(part.X);
        engine.PosY[row] = roll.Along(part.Y);
        engine.PosW[row] = engine.PieceWid[row];
        engine.PosL[row] = engine.PieceLen[row];
        engine.PCOrder[row] = order++;
        ++engine.BestCase[fill];
    }
    engine.PosCount = engine.PieceCount;
    engine.CutCount = engine.PieceCount;
    engine.BestLen = CLng(static_cast<Double>(GetPCLen(engine)));
    FinishLayout(engine, dimScale);
}

} // namespace tarn
