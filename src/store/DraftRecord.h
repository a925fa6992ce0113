// What is unsaved of a project as a draft keeps it, and the text of a draft's file.

#pragma once

#include "base/Units.h"
#include "project/OrderEntry.h"
#include "project/Room.h"
#include "project/Typing.h"

#include <QDateTime>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What was typed of a project and not saved.
struct Draft {
    /// The project's rooms as typed; nothing when they are those stored, and only fields were
    /// typed.
    std::optional<std::vector<Room>> Rooms;
    /// What is asked for of the orders; nothing when that is what is stored.
    std::optional<std::map<Byte, OrderRequest>> Orders;
    Units EnteredIn = Units::Imperial; ///< the rooms' units, see Project::EnteredIn
    Typing Typed;
    /// The choices of orders that cannot be taken as they were typed, by carpet.
    std::map<Byte, TypedOrder> TypedOrders;

    bool IsEmpty() const { return !Rooms && !Orders && Typed.IsEmpty() && TypedOrders.empty(); }
    bool operator==(const Draft&) const = default;
};

/// A draft with all that its file says of it.
struct DraftRecord {
    std::string Database; ///< path of the database file
    std::string Project;  ///< name, as stored
    QDateTime Written;
    QDateTime Superseded; ///< when something newer took its place; invalid while nothing has
    Draft Content;

    bool operator==(const DraftRecord&) const = default;
};

/// The text of a draft's file: JSON.
std::string DraftText(const DraftRecord& record);

/// Read such a text; nothing when it is damaged, or not whole, or of a later format.
std::optional<DraftRecord> ReadDraftText(std::string_view text);

} // namespace tarn
