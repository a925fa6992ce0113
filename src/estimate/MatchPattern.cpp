#include "estimate/MatchPattern.h"

#include "app/Lengths.h"
#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"

#include <limits>

namespace tarn {

namespace {

Integer NearestInches(Double centimetres) {
    return CInt(Int(centimetres / CentimetresPerInch + 0.5));
}

long long RaisedToMultiple(long long length, long long repeat) {
    if (repeat <= 0) {
        return length;
    }
    return (length + repeat - 1) / repeat * repeat;
}

/// One size of a repeat, whole units. Raises "Overflow", and says which number it was.
Integer WholeRepeat(std::string_view text) {
    try {
        return CInt(Val(text));
    } catch (const RunTimeError& error) {
        throw error.WithAdvice("The match pattern's " + std::string(text) +
                               " is too large: a repeat is at most " +
                               TrimStr(std::numeric_limits<Integer>::max()) + ".");
    }
}

} // namespace

void SetMatchPattern(CarpetEstimate& estimate, std::string_view width, std::string_view length,
                     bool metric) {
    const Integer wholeAcross = WholeRepeat(width);
    const Integer wholeAlong = WholeRepeat(length);
    const Double across = Val(width);
    const Double along = Val(length);
    estimate.MatchWidth = metric ? NearestInches(across) : wholeAcross;
    estimate.MatchLength = metric ? NearestInches(along) : wholeAlong;
    if (metric) {
        estimate.MatchWidthCm = wholeAcross;
        estimate.MatchLengthCm = wholeAlong;
    }
    estimate.MatchFlag = true;
}

std::string RepeatText(const CarpetEstimate& estimate, bool metric) {
    const Integer width = metric ? estimate.MatchWidthCm : estimate.MatchWidth;
    const Integer length = metric ? estimate.MatchLengthCm : estimate.MatchLength;
    return WholeLengthText(width, metric) + " X " + WholeLengthText(length, metric);
}

MatchTotals TotalMatch(const SharedState& state, const EngineArrays& engine,
                       const CarpetEstimate& estimate) {
    const bool metric = state.IsMetric();
    const Integer repeat = metric ? estimate.MatchLengthCm : estimate.MatchLength;
    const auto raised = [&](Double inches) {
        const Long whole = metric ? WholeCentimetres(inches) : WholeInches(inches);
        return RaisedToMultiple(whole, repeat);
    };
    long long length = raised(engine.ResultLen);
    for (Integer i = 0; i < state.ECutCount; ++i) {
        const Single units = CutExtentAlong(state, engine.LayDir, i);
        length += raised(static_cast<Double>(units) * state.DimScale);
    }

    MatchTotals totals;
    totals.Length = ToLong(length);
    const Double inches = metric ? totals.Length / CentimetresPerInch : totals.Length;
    totals.Size = AreaOf(static_cast<Double>(engine.RollWidth) * inches);
    return totals;
}

} // namespace tarn
