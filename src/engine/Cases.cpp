#include "engine/Cases.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

constexpr Double CaseBudget = 80;

/// How many pieces may vary, so that `mostParts` to that power is about the budget.
std::size_t VaryingPieces(Integer mostParts) {
    if (mostParts <= 1) {
        return 0;
    }
    const Double varying = std::log(CaseBudget) / std::log(static_cast<Double>(mostParts));
    return static_cast<std::size_t>(CLng(Int(varying + 0.5)));
}

Integer AlternativesOf(const Piece& piece, Integer mostParts, Integer minCut) {
    if (!piece.IsDivisible) {
        return 1;
    }
    const Single length = piece.Y2 - piece.Y1;
    const Double fitting = Int((static_cast<Double>(length) + 1) / minCut);
    return CInt(std::min(fitting, static_cast<Double>(mostParts)));
}

} // namespace

std::vector<Integer> AlternativesOf(const std::vector<Piece>& pieces, Integer mostParts,
                                    Integer minCut) {
    std::vector<Integer> alternatives(pieces.size(), 1);
    const std::size_t varying = std::min(VaryingPieces(mostParts), pieces.size());
    for (std::size_t k = 0; k < varying; ++k) {
        alternatives[k] = AlternativesOf(pieces[k], mostParts, minCut);
    }
    return alternatives;
}

Long CountCases(const std::vector<Integer>& alternatives) {
    long long cases = 1;
    for (const Integer radix : alternatives) {
        cases *= radix;
    }
    return ToLong(cases);
}

Long FirstPassCase(Long number, const std::vector<Integer>& alternatives, CaseCuts& cuts) {
    cuts.clear();
    Long rest = number;
    Long parts = 0;
    for (const Integer radix : alternatives) {
        const Long digit = Mod(rest, radix);
        cuts.push_back(ToInteger(digit));
        rest = (rest - digit) / radix;
        parts += digit + 1;
    }
    return parts;
}

Long SecondPassCase(Integer mostCuts, const std::vector<Piece>& pieces, Integer minCut,
                    CaseCuts& cuts) {
    cuts.clear();
    Long parts = 0;
    for (const Piece& piece : pieces) {
        Double fitting = 0;
        if (piece.IsDivisible) {
            const Single length = piece.Y2 - piece.Y1;
            fitting = Int(static_cast<Double>(length) / minCut) - 1;
        }
        cuts.push_back(CInt(std::clamp(fitting, 0.0, static_cast<Double>(mostCuts))));
        parts += cuts.back() + 1;
    }
    return parts;
}

} // namespace tarn
