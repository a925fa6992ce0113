#include "screens/roll/RollRuler.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Text.h"

#include <array>
#include <cmath>

namespace tarn {

namespace {

/// A step between labels, and how many small ones it is parted into; in feet or metres.
struct Step {
    double Size;
    int Parts;
};
constexpr std::array<Step, 13> FeetSteps{{{1, 4},
                                          {2, 4},
                                          {5, 5},
                                          {10, 10},
                                          {20, 4},
                                          {50, 5},
                                          {100, 10},
                                          {200, 4},
                                          {500, 5},
                                          {1000, 10},
                                          {5000, 5},
                                          {20000, 4},
                                          {100000, 10}}};
constexpr std::array<Step, 13> MetreSteps{{{0.5, 5},
                                           {1, 10},
                                           {2, 4},
                                           {5, 5},
                                           {10, 10},
                                           {20, 4},
                                           {50, 5},
                                           {100, 10},
                                           {200, 4},
                                           {500, 5},
                                           {1000, 10},
                                           {5000, 5},
                                           {20000, 4}}};
constexpr double CentimetresPerMetre = 100;

std::string LabelAt(Units units, double size) {
    return units == Units::Metric ? Format(size, size == std::floor(size) ? "0" : "0.0") + " m"
                                  : TrimStr(std::llround(size)) + "'";
}

} // namespace

std::vector<RulerTick> RulerTicks(Units units, double from, double to, double scale,
                                  double leastApart) {
    constexpr double SmallPart = 0.1;
    constexpr double RoundingError = 1e-9;
    const auto& steps = units == Units::Metric ? MetreSteps : FeetSteps;
    const double unit = units == Units::Metric ? CentimetresPerMetre : InchesPerFoot;
    const Step* step = &steps.back();
    for (const Step& each : steps) {
        if (each.Size * unit * scale >= leastApart) {
            step = &each;
            break;
        }
    }
    const bool hasSmall =
        step->Size * unit * scale / step->Parts >= leastApart * SmallPart + RoundingError;
    const int parts = hasSmall ? step->Parts : 1;
    const double apart = step->Size * unit / parts;
    std::vector<RulerTick> ticks;
    const auto first = static_cast<long long>(std::ceil(from / apart - RoundingError));
    for (long long i = first; static_cast<double>(i) * apart <= to + RoundingError; ++i) {
        RulerTick tick{static_cast<double>(i) * apart, {}};
        if (i % parts == 0) {
            tick.Label = LabelAt(units, tick.At / unit);
        }
        ticks.push_back(std::move(tick));
    }
    return ticks;
}

} // namespace tarn
