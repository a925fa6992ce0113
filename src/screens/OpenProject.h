// The project that the screens work on, beside what is stored of it.

#pragma once

#include "base/Units.h"
#include "project/Project.h"

#include <string>
#include <string_view>

namespace tarn {

class ProjectStore;

/// The project that the screens work on: as it stands in memory, and as it is stored.
struct OpenProject {
    Project Now;
    Project Saved;                 ///< as last loaded or saved
    Units Shown = Units::Imperial; ///< the units in force: the menu's Metric

    bool OffersEstimate = true; ///< the menu offers ESTIMATE
    bool IsUsable = true;       ///< it was loaded whole, or is new

    /// Whether the rooms differ from what was last loaded or saved.
    bool HasUnsavedRooms() const { return Now.Rooms != Saved.Rooms; }
    /// Whether the stored rooms were entered in metric, or unsaved ones were typed so.
    bool IsInMetric() const {
        return Saved.EnteredIn == Units::Metric ||
               (Now.EnteredIn == Units::Metric && HasUnsavedRooms());
    }
};

/// Shown when a project was saved.
inline constexpr std::string_view SavedMessage = "Data is saved";

/// What could not be done when saving failed; the cause follows it.
inline constexpr std::string_view NotSavedMessage = "The project could not be saved.";

/// Store the project, which then counts as saved. Raises as ProjectStore::Save, with nothing
/// changed.
void SaveOpenProject(OpenProject& project, ProjectStore& store);

/// SaveOpenProject; answers what to say of rooms that it stored without a size for the first time
/// (see EmptyRoomsText).
std::string SaveAndNameEmptyRooms(OpenProject& project, ProjectStore& store);

/// Drop the project's rooms from memory, saved or not, and all else that belongs to them; its name
/// and its directory remain. What is stored stays.
void DropRooms(OpenProject& project);

} // namespace tarn
