// A room as it is kept, and how much of one may be typed.

#pragma once

#include "base/Types.h"

#include <cstddef>
#include <string>

namespace tarn {

/// One rectangular room as it is entered, stored and exchanged.
struct Room {
    Integer Width = 0;  ///< whole inches, or whole centimetres in a metric project
    Integer Length = 0; ///< as Width
    Byte Covering = 0;  ///< see Coverings.h
    Byte Base = 0;      ///< wall base, see WallBase.h
    std::string Number; ///< the room's number or name, as typed
    std::string Remark;

    bool operator==(const Room&) const = default;
};

/// Most rooms of a project.
inline constexpr std::size_t RoomCapacity = 501;

/// What a user may enter, in characters. Longer texts that are already stored are kept.
inline constexpr long long MaxRoomNumberLength = 8;
inline constexpr long long MaxRemarkLength = 255;
inline constexpr long long MaxBaseTextLength = 8;

} // namespace tarn
