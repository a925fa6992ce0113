#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "estimate/CarpetEstimate.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The carpets of the open project.
struct CarpetsFound {
    std::array<bool, FirstTileCode> HasRooms{}; ///< by covering code
    std::optional<Byte> Lowest; ///< none when every room has tiles, or there is none
};

/// Which carpets have rooms among rooms 0 .. ObjNum - 1, also rooms without an area.
CarpetsFound FindCarpets(const SharedState& state);

/// What is chosen for one estimate, as it stands on the choice panel: texts as typed.
struct EstimateChoices {
    bool DownLay = true;
    std::optional<Byte> Carpet; ///< covering code; none keeps the carpet in hand
    std::string WidthCaption;   ///< of the standard width; empty for a free width
    std::string OtherFeet;      ///< the free width: feet and inches, also in metric mode
    std::string OtherInches;
    bool Match = false;
    std::string MatchWidth; ///< the pattern repeat
    std::string MatchLength;
};

inline constexpr std::string_view WrongWidthMessage = "The carpet width is not correct.";
inline constexpr std::string_view WrongMatchMessage = "The match pattern is not correct.";

/// Why choices are not taken.
struct ChoicesRefusal {
    enum class Kind { Width, MatchPattern };

    Kind What = Kind::Width;
    std::size_t Box = 0; ///< the first of its two boxes whose own text is wrong; 0 when neither is

    bool operator==(const ChoicesRefusal&) const = default;
};

/// The message for the user.
std::string_view RefusalMessage(const ChoicesRefusal& refusal);

/// Take the choices over into LayDir, CarpetNo, RollWidth and the match pattern. Without a match
/// pattern its sizes stay as they were.
///
/// Refused are a roll width that is the same length as 0 or less, a repeat of less than 0, and a
/// text of a free width or of a match pattern that would be read otherwise than it looks (see
/// IsRefusedSizeText); texts that are not in use are not looked at. Raises "Overflow" for a number
/// that does not fit and for a width that no cut list could show. Nothing is changed in either
/// case.
std::optional<ChoicesRefusal> TakeChoices(EngineArrays& engine, CarpetEstimate& estimate,
                                          const EstimateChoices& choices, bool metric);

/// What stands below the boxes of a free width in metric mode: the width in force, "= 259 CM".
/// Empty for a width that TakeChoices would refuse or raise for.
std::string OtherWidthHint(std::string_view feet, std::string_view inches);

} // namespace tarn
