#include "order/Order.h"

namespace tarn {

namespace {

constexpr Double InchesInSquareFoot = 144;

} // namespace

std::string PieceLabel(std::size_t number) {
    constexpr std::size_t Letters = 26;
    std::string label;
    for (std::size_t rest = number + 1; rest > 0; rest = (rest - 1) / Letters) {
        label.insert(label.begin(), static_cast<char>('A' + (rest - 1) % Letters));
    }
    return label;
}

Double OrderArea(std::int64_t squareUnits, Units units) {
    return static_cast<Double>(squareUnits) /
           (units == Units::Metric ? CentimetresInSquareMetre : InchesInSquareFoot);
}

} // namespace tarn
