#pragma once

#include "base/Types.h"
#include "base/Units.h"
#include "project/OrderRequest.h"
#include "project/Room.h"

#include <map>
#include <string>
#include <vector>

namespace tarn {

/// A project with all that is kept of it: a plain value, copied and compared freely.
struct Project {
    std::string Name;        ///< as it is stored; empty for none
    std::string Directory;   ///< the directory or month that it is in
    Integer Sheet = 0;       ///< number under which its rooms are stored
    bool IsNew = false;      ///< it was never saved: Sheet is only set aside for it
    Double Scale = 0.01;     ///< size of one coordinate unit, inches
    std::vector<Room> Rooms; ///< at most RoomCapacity

    /// In which units the sizes were typed: those of the last one that was typed or changed.
    Units EnteredIn = Units::Imperial;

    /// What was last asked for of the orders, by the carpets' covering codes.
    std::map<Byte, OrderRequest> Orders;

    bool operator==(const Project&) const = default;
};

} // namespace tarn
