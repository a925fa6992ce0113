#pragma once

#include "app/SharedState.h"
#include "rooms/RoomRecord.h"
#include "rooms/RoomStore.h"

#include <string_view>
#include <vector>

namespace tarn {

/// What is remembered of the open project beside the shared state, from the menu's load on: what is
/// stored of its rooms, and how the menu stood.
struct OpenProject {
    std::vector<RoomRecord> StoredRooms; ///< the rooms as last loaded or saved
    bool StoredInMetric = false;         ///< the stored rooms were entered in metric
    bool TypedInMetric = false;          ///< unsaved rooms were typed with Metric ticked

    bool EstimateVisible = true; ///< the menu offers ESTIMATE
    bool Usable = true;          ///< the project was loaded whole, or is new
};

/// Whether the rooms in memory differ from what was last loaded or saved.
bool HasUnsavedRooms(const SharedState& state, const OpenProject& project);

/// Whether the stored rooms were entered in metric, or unsaved ones were typed so.
bool IsInMetric(const SharedState& state, const OpenProject& project);

/// LoadProject, and remember what it loaded as stored.
ProjectLoad LoadOpenProject(SharedState& state, OpenProject& project);

/// Shown when a project was saved.
inline constexpr std::string_view SavedMessage = "Data is saved";

/// What could not be done when saving failed; the cause follows it.
inline constexpr std::string_view NotSavedMessage = "The project could not be saved.";

/// SaveProject, and remember the rooms as stored when it succeeded. Fails and raises as
/// SaveProject.
bool SaveOpenProject(SharedState& state, OpenProject& project);

/// Drop the project's rooms from memory, saved or not. What is stored stays.
void DropOpenProject(SharedState& state, OpenProject& project);

} // namespace tarn
