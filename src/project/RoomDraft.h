#pragma once

#include "base/Types.h"
#include "project/RoomSize.h"

#include <optional>
#include <string>

namespace tarn {

/// A room as it stands in the fields of its entry: texts as typed, which may be wrong.
struct RoomDraft {
    SizeParts Width;
    SizeParts Length;
    std::optional<Byte> Covering; ///< nothing: none is chosen
    std::string Base;
    std::string Number;
    std::string Remark;

    bool operator==(const RoomDraft&) const = default;
};

} // namespace tarn
