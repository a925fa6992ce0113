#include "engine/Cases.h"

#include "app/Numbers.h"
#include "engine/EstOptions.h"

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

constexpr Double CaseBudget = 80;

/// How many pieces may vary, so that MaxParts to that power is about the budget.
Long VaryingPieces(Integer maxParts) {
    if (maxParts <= 1) {
        return 0;
    }
    return CLng(Int(std::log(CaseBudget) / std::log(static_cast<Double>(maxParts)) + 0.5));
}

Integer RadixOf(const EngineArrays& engine, Integer k) {
    if (engine.PCDivide[k] != 1) {
        return 1;
    }
    const Single length = engine.PCY2[k] - engine.PCY1[k];
    const Double fitting = Int((static_cast<Double>(length) + 1) / engine.MinCut);
    return CInt(std::min(fitting, static_cast<Double>(engine.MaxParts)));
}

} // namespace

void DecodeOptions(const SharedState& state, EngineArrays& engine) {
    const Long option = state.EstOption;
    engine.MaxParts = ToInteger(Mod(option, 10) + 1);
    const auto choice = static_cast<long long>(Int(static_cast<Double>(option) / 10));
    engine.MinCut = MinCutUnits(state, choice);
    if (engine.MinCut == 0) {
        RaiseDivisionByZero();
    }
}

Long GetTotalCase(EngineArrays& engine) {
    const Long varying = VaryingPieces(engine.MaxParts);
    long long cases = 1;
    for (Integer k = 0; k < engine.PieceCount; ++k) {
        engine.CaseRadix[k] = k < varying ? RadixOf(engine, k) : Integer{1};
        cases *= engine.CaseRadix[k];
    }
    engine.CaseCount = ToLong(cases);
    return engine.CaseCount;
}

Long DecodeCase(EngineArrays& engine, Long number) {
    Long rest = number;
    Long parts = 0;
    for (Integer k = 0; k < engine.OrgCount; ++k) {
        const Long digit = Mod(rest, engine.CaseRadix[k]);
        engine.CaseDigit[k] = ToInteger(digit);
        rest = (rest - digit) / engine.CaseRadix[k];
        parts += digit + 1;
    }
    return parts;
}

Long DeriveCase(EngineArrays& engine, Integer most) {
    const PieceRows& pieces = engine.Undivided;
    Long parts = 0;
    for (Integer k = 0; k < engine.OrgCount; ++k) {
        Double digit = 0;
        if (pieces.PCDivide[k] == 1) {
            const Single length = pieces.PCY2[k] - pieces.PCY1[k];
            digit = Int(static_cast<Double>(length) / engine.MinCut) - 1;
        }
        engine.CaseDigit[k] = CInt(std::clamp(digit, 0.0, static_cast<Double>(most)));
        parts += engine.CaseDigit[k] + 1;
    }
    return parts;
}

} // namespace tarn
