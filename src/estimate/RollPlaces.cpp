#include "estimate/RollPlaces.h"

#include "engine/ResultLength.h"
#include "estimate/Totals.h"

#include <algorithm>

namespace tarn {

namespace {

/// What a length takes of the roll, inches.
Double TakenOf(const Estimate& estimate, Double inches) {
    const auto& request = estimate.Request;
    return request.Repeat ? RaisedInches(inches, *request.Repeat, request.In) : inches;
}

} // namespace

RollPlaces PlacesOnRoll(const Estimate& estimate) {
    RollPlaces places;
    Double end = 0;
    for (const Cut& cut : estimate.Cuts) {
        places.Cuts.push_back(end);
        const Single along = ExtentAlong(cut, estimate.Request.Direction);
        end += TakenOf(estimate, static_cast<Double>(along) * estimate.Job.Scale);
    }
    places.Fills = end;
    const Double totalled = TakenOf(estimate, estimate.Fills.Length);
    const auto used = static_cast<Double>(LengthInUse(estimate.Fills.Layout));
    places.Length = end + std::max(totalled, used);
    return places;
}

} // namespace tarn
