#include "estimate/MinCuts.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Words.h"

namespace tarn {

namespace {

struct MinCutFigures {
    Double Feet;
    Phrase Imperial;
    Phrase Metric;
};

constexpr std::array<MinCutFigures, AllMinCuts.size()> Figures{
    {{3, Words("3 FT"), Words("91 cm")},
     {1.5, Words("1FT 6\""), Words("46 cm")},
     {0.5, Words("1/2FT"), Words("15 cm")}}};

const MinCutFigures& FiguresOf(MinCut minCut) {
    return Figures.at(static_cast<std::size_t>(minCut));
}

} // namespace

std::string_view MinCutCaption(MinCut minCut, Units units) {
    const MinCutFigures& figures = FiguresOf(minCut);
    return units == Units::Metric ? figures.Metric : figures.Imperial;
}

Integer MinCutUnits(MinCut minCut, Units units, Double scale) {
    const Double shortest = FiguresOf(minCut).Feet;
    return units == Units::Metric ? CInt(shortest * CentimetresPerInch / scale)
                                  : CInt(Int(shortest / scale));
}

Double MinCutOfCaption(MinCut minCut, Units units) {
    const Double inches = FiguresOf(minCut).Feet * InchesPerFoot;
    return units == Units::Metric ? CInt(inches * CentimetresPerInch) / CentimetresPerInch : inches;
}

std::string MinCutInForce(MinCut minCut, Units units, Double scale) {
    const Double inches = MinCutUnits(minCut, units, scale) * scale;
    if (units == Units::Metric) {
        return Words("%1 cm", Format(inches * CentimetresPerInch, "##0.0"));
    }
    const bool whole = inches == Int(inches);
    const std::string figure = Format(inches, whole ? "##0" : "##0.0");
    return whole && inches > 1 ? Words("%1 inches", figure) : Words("%1 inch", figure);
}

} // namespace tarn
