#include "engine/EstOptions.h"

#include "app/Format.h"
#include "app/Lengths.h"
#include "app/Numbers.h"

namespace tarn {

Integer PackEstOption(Integer minCut, Integer pieces) {
    return ToInteger(10 * minCut + pieces - 1);
}

Integer MinCutUnits(const SharedState& state, long long minCut) {
    const auto shortest = static_cast<Double>(state.MinCutLen[minCut]);
    return state.IsMetric() ? CInt(shortest * CentimetresPerInch / state.DimScale)
                            : CInt(Int(shortest / state.DimScale));
}

Double MinCutOfCaption(const SharedState& state, long long minCut) {
    const Double inches = static_cast<Double>(state.MinCutLen[minCut]) * InchesPerFoot;
    return state.IsMetric() ? CInt(inches * CentimetresPerInch) / CentimetresPerInch : inches;
}

std::string MinCutInForce(const SharedState& state, Integer minCut) {
    const Double inches = MinCutUnits(state, minCut) * state.DimScale;
    if (state.IsMetric()) {
        return Format(inches * CentimetresPerInch, "##0.0") + " cm";
    }
    const bool whole = inches == Int(inches);
    return Format(inches, whole ? "##0" : "##0.0") + " inch" + (whole && inches > 1 ? "es" : "");
}

} // namespace tarn
