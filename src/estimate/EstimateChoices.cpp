#include "estimate/EstimateChoices.h"

#include "app/Lengths.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "estimate/MatchPattern.h"
#include "estimate/RollWidth.h"
#include "estimate/Totals.h"
#include "rooms/RoomSize.h"

namespace tarn {

namespace {

bool IsRefused(std::string_view first, std::string_view second) {
    return IsRefusedSizeText(first) || IsRefusedSizeText(second);
}

/// The roll width, inches, when it can be estimated with.
std::optional<Single> UsableWidth(const EstimateChoices& choices, bool metric) {
    if (!choices.WidthCaption.empty()) {
        return CaptionRollWidth(choices.WidthCaption, metric);
    }
    if (IsRefused(choices.OtherFeet, choices.OtherInches)) {
        return std::nullopt;
    }
    const Single width = OtherRollWidth(choices.OtherFeet, choices.OtherInches);
    RoundedCentimetres(static_cast<Double>(width)); // as every cut list shows it
    return IsWithinTolerance(width) ? std::nullopt : std::optional<Single>(width);
}

} // namespace

CarpetsFound FindCarpets(const SharedState& state) {
    CarpetsFound found;
    for (Byte code = 0; code < FirstTileCode; ++code) {
        const bool hasRooms = HasRooms(state, code);
        found.HasRooms[code] = hasRooms;
        if (hasRooms && !found.Lowest) {
            found.Lowest = code;
        }
    }
    return found;
}

std::string_view RefusalMessage(ChoicesRefusal refusal) {
    return refusal == ChoicesRefusal::Width ? WrongWidthMessage : WrongMatchMessage;
}

std::optional<ChoicesRefusal> TakeChoices(EngineArrays& engine, CarpetEstimate& estimate,
                                          const EstimateChoices& choices, bool metric) {
    const std::optional<Single> width = UsableWidth(choices, metric);
    if (!width) {
        return ChoicesRefusal::Width;
    }
    if (!choices.Match) {
        estimate.MatchFlag = false;
    } else if (IsRefused(choices.MatchWidth, choices.MatchLength)) {
        return ChoicesRefusal::MatchPattern;
    } else {
        SetMatchPattern(estimate, choices.MatchWidth, choices.MatchLength, metric);
    }
    engine.LayDir = choices.DownLay ? 0 : 1;
    estimate.CarpetNo = choices.Carpet.value_or(estimate.CarpetNo);
    engine.RollWidth = *width;
    return std::nullopt;
}

std::string OtherWidthHint(std::string_view feet, std::string_view inches) {
    EstimateChoices choices;
    choices.OtherFeet = feet;
    choices.OtherInches = inches;
    try {
        const std::optional<Single> width = UsableWidth(choices, true);
        return width ? "= " + TrimStr(RoundedCentimetres(static_cast<Double>(*width))) + " CM" : "";
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace tarn
