// The columns of a table of rooms, and how they may be headed.

#pragma once

#include "project/WholeLength.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace tarn {

/// What a column of a table of rooms holds. The first three are needed.
enum class RoomField { Width, Length, Covering, Base, Room, Remark };
inline constexpr std::array<std::string_view, 6> RoomFieldNames{"width", "length", "covering",
                                                                "base",  "room",   "remark"};
inline constexpr std::size_t NeededRoomFields = 3;

/// Its name, as a file that this program writes has it as heading.
constexpr std::string_view NameOf(RoomField field) {
    return RoomFieldNames[static_cast<std::size_t>(field)];
}

constexpr bool IsSize(RoomField field) {
    return field == RoomField::Width || field == RoomField::Length;
}

/// What a heading says of its column.
struct RoomHeading {
    RoomField Field = RoomField::Width;
    std::optional<LengthUnit> Unit; ///< of a width or length; nothing when it names none

    bool operator==(const RoomHeading&) const = default;
};

/// Read a heading: one of the names, or another usual one for the same, in either letter case, as
/// singular or plural, with blanks and marks of any kind between and around its words. A width or a
/// length may name its unit behind it: "Width (ft)", "LENGTH [m]", "width in feet". Nothing for
/// another text.
std::optional<RoomHeading> ReadRoomHeading(std::string_view text);

} // namespace tarn
