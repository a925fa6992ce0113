// The project that the screens work on, beside what is stored of it.

#pragma once

#include "base/Units.h"
#include "base/Words.h"
#include "estimate/EstimateChoices.h"
#include "project/OrderEntry.h"
#include "project/Project.h"
#include "project/Typing.h"
#include "store/DraftRecord.h"
#include "store/ProjectStore.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The project that the screens work on: as it stands in memory, and as it is stored.
struct OpenProject {
    Project Now;
    Project Saved;                  ///< as last loaded or saved
    std::optional<StoredMark> Read; ///< what the store had of it then; nothing before
    Typing Typed;                   ///< what stands in the fields of the rooms and is in none
    /// The choices of orders that cannot be taken as they were typed, by carpet: they stand in the
    /// fields again when the order is opened.
    std::map<Byte, TypedOrder> TypedOrders;
    Units Shown = Units::Imperial; ///< the units in force: the menu's Metric

    /// What was chosen for the last estimate of each project in this run, by its name.
    std::map<std::string, LastChoices> Chosen;
    /// Of this project, in the units in force; none when there is nothing of it.
    std::optional<LastChoices> LastChosen() const;

    bool OffersEstimate = true; ///< the menu offers ESTIMATE
    bool IsUsable = true;       ///< it was loaded whole, or is new

    /// Whether the rooms differ from what was last loaded or saved.
    bool HasUnsavedRooms() const { return Now.Rooms != Saved.Rooms; }
    /// Whether what is asked for of the orders does.
    bool HasUnsavedOrders() const { return Now.Orders != Saved.Orders; }
    /// Whether SAVE has something to store.
    bool HasUnsavedChanges() const { return HasUnsavedRooms() || HasUnsavedOrders(); }
    /// Whether the stored rooms were entered in metric, or unsaved ones were typed so.
    bool IsInMetric() const;
};

/// What tells the user in which units the project was entered, while others are in force; empty
/// while they are not.
Phrase UnitsWarning(const OpenProject& project);

/// Shown when a project was saved.
inline constexpr auto SavedMessage = Words("Data is saved");

/// What could not be done when saving failed; the cause follows it.
inline constexpr auto NotSavedMessage = Words("The project could not be saved.");

/// How a save treats what another program stored since the project was read.
enum class MeanwhileStored { Stays, IsReplaced };

/// Store the project, which then counts as saved. Answers what became of it; unless it was saved
/// nothing is changed. Raises as ProjectStore::Save, with nothing changed.
SaveResult::Outcome SaveOpenProject(OpenProject& project, ProjectStore& store,
                                    MeanwhileStored meanwhile = MeanwhileStored::Stays);

/// Store the project, of which the store has no row any more, under another name or its own again,
/// in its directory, which is made where it is gone as well. Why the name is refused, in words for
/// the user, if it is. Raises as ProjectStore; in both cases nothing is changed.
std::optional<std::string> SaveAsNewProject(OpenProject& project, ProjectStore& store,
                                            const std::string& name);

/// What a draft has to keep of the project; empty when nothing of it is unsaved.
Draft DraftOf(const OpenProject& project);

/// Whether a draft has something that neither the store nor the memory has.
bool IsWorthTakingBack(const Draft& draft, const OpenProject& project);

/// Put a draft's rooms, its orders' requests, what was typed for both and its units in place of
/// those in memory; unsaved. Raises as RequireExtents, with nothing changed.
void TakeBack(OpenProject& project, const Draft& draft);

/// What was chosen for the estimates of a project of that name goes with it.
void ForgetChosen(OpenProject& project, const std::string& name);
/// The project of the one name has the other from now on.
void MoveChosen(OpenProject& project, const std::string& from, const std::string& to);

/// Drop the project's rooms from memory, saved or not, and all else that belongs to them; its name
/// and its directory remain. What is stored stays.
void DropRooms(OpenProject& project);

} // namespace tarn
