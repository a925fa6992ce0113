#include "estimate/EstimateChoices.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "estimate/RollWidth.h"
#include "estimate/Totals.h"
#include "project/RoomSize.h"

namespace tarn {

namespace {

/// Whether a box's text cannot be taken: it would be read otherwise than it looks, or its number is
/// negative or does not fit.
bool IsRefused(std::string_view text) {
    try {
        const Double number = Val(text);
        CInt(number); // raises for one that does not fit
        return IsRefusedSizeText(text) || number < 0;
    } catch (const RunTimeError&) {
        return true;
    }
}

/// Which of two texts is refused first, if either is.
std::optional<std::size_t> FirstRefused(std::string_view first, std::string_view second) {
    if (IsRefused(first)) {
        return 0;
    }
    return IsRefused(second) ? std::optional<std::size_t>(1) : std::nullopt;
}

/// The roll width, inches, or why it cannot be estimated with.
std::variant<Single, ChoicesRefusal> WidthOf(const EstimateChoices& choices, Units units) {
    if (choices.StandardWidth) {
        return StandardRollWidth(*choices.StandardWidth, units);
    }
    const auto refused = FirstRefused(choices.OtherFeet, choices.OtherInches);
    if (!refused) {
        const Single width = OtherRollWidth(choices.OtherFeet, choices.OtherInches);
        if (IsUsableRollWidth(width)) {
            return width;
        }
    }
    return ChoicesRefusal{ChoicesRefusal::Kind::Width, refused.value_or(0)};
}

} // namespace

CarpetsFound FindCarpets(const Project& project) {
    CarpetsFound found;
    for (Byte code = 0; code < FirstTileCode; ++code) {
        const bool hasRooms = HasRooms(project, code);
        found.HasRooms[code] = hasRooms;
        if (hasRooms && !found.Lowest) {
            found.Lowest = code;
        }
    }
    return found;
}

std::string_view RefusalMessage(const ChoicesRefusal& refusal) {
    return refusal.What == ChoicesRefusal::Kind::Width ? WrongWidthMessage : WrongMatchMessage;
}

std::variant<EstimateRequest, ChoicesRefusal> RequestOf(const EstimateChoices& choices,
                                                        Units units) {
    const auto width = WidthOf(choices, units);
    if (const auto* refusal = std::get_if<ChoicesRefusal>(&width)) {
        return *refusal;
    }
    EstimateRequest request;
    request.Carpet = choices.Carpet;
    request.RollWidth = std::get<Single>(width);
    request.Direction = choices.Direction;
    request.In = units;
    if (choices.Match) {
        const auto refused = FirstRefused(choices.MatchWidth, choices.MatchLength);
        if (refused) {
            return ChoicesRefusal{ChoicesRefusal::Kind::MatchPattern, *refused};
        }
        request.Repeat = ReadPatternRepeat(choices.MatchWidth, choices.MatchLength);
    }
    return request;
}

std::string OtherWidthHint(std::string_view feet, std::string_view inches) {
    EstimateChoices choices;
    choices.OtherFeet = feet;
    choices.OtherInches = inches;
    const auto reading = WidthOf(choices, Units::Metric);
    const auto* width = std::get_if<Single>(&reading);
    return width != nullptr
               ? Words("= %1 CM", TrimStr(RoundedCentimetres(static_cast<Double>(*width))))
               : "";
}

} // namespace tarn
