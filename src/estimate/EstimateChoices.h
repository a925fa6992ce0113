// From the choices for an estimate, as they stand on the choice panel in texts, to a request; and
// what there is to choose from.

#pragma once

#include "base/Words.h"
#include "estimate/EstimateRequest.h"
#include "project/Coverings.h"
#include "project/Project.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tarn {

/// The carpets of a project.
struct CarpetsFound {
    std::array<bool, FirstTileCode> HasRooms{}; ///< by covering code
    std::optional<Byte> Lowest; ///< none when every room has tiles, or there is none
};

/// Which carpets have rooms, also rooms without an area.
CarpetsFound FindCarpets(const Project& project);

/// What is chosen for one estimate, as it stands on the choice panel: texts as typed.
struct EstimateChoices {
    Lay Direction = Lay::Down;
    Byte Carpet = 0;                          ///< covering code 0 .. 7
    std::optional<std::size_t> StandardWidth; ///< its number in WidthCaptions; none: a free width
    std::string OtherFeet; ///< the free width: feet and inches, also in metric units
    std::string OtherInches;
    bool Match = false; ///< the carpet has a pattern repeat
    std::string MatchWidth;
    std::string MatchLength;

    bool operator==(const EstimateChoices&) const = default;
};

/// What is chosen for fills, as the options have it.
struct FillChoices {
    MinCut ShortestPart = MinCut::ThreeFeet;
    Integer PiecesPerFill = 1;

    bool operator==(const FillChoices&) const = default;
};

/// All that was chosen for an estimate, so that it can be chosen again.
struct LastChoices {
    Units In = Units::Imperial; ///< the texts mean something else in other units
    EstimateChoices Choices;
    std::optional<FillChoices> Fills; ///< none when there were no fills

    bool operator==(const LastChoices&) const = default;
};

inline constexpr auto WrongWidthMessage = Words("The carpet width is not correct.");
inline constexpr auto WrongMatchMessage = Words("The match pattern is not correct.");

/// Why choices are not taken.
struct ChoicesRefusal {
    enum class Kind { Width, MatchPattern };

    Kind What = Kind::Width;
    std::size_t Box = 0; ///< the first of its two boxes whose own text is wrong; 0 when neither is

    bool operator==(const ChoicesRefusal&) const = default;
};

/// The message for the user.
std::string_view RefusalMessage(const ChoicesRefusal& refusal);

/// The request that the choices make, with the first of the options that the panel does not offer.
///
/// Refused are a roll width that is the same length as 0 or less, and a text of a free width or of
/// a match pattern that would be read otherwise than it looks (see IsRefusedSizeText), whose number
/// is negative, or whose number does not fit an Integer. Texts that are not in use are not looked
/// at.
std::variant<EstimateRequest, ChoicesRefusal> RequestOf(const EstimateChoices& choices,
                                                        Units units);

/// What stands below the boxes of a free width in metric units: the width in force, "= 259 CM".
/// Empty for a width that RequestOf would refuse.
std::string OtherWidthHint(std::string_view feet, std::string_view inches);

} // namespace tarn
