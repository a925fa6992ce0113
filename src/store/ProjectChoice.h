#pragma once

#include "app/SharedState.h"

#include <optional>
#include <string>

namespace tarn {

/// What the user settled on when DONE is pressed.
struct ProjectChoice {
    std::string Name;      ///< as it stands in the project box
    bool Existing = false; ///< chosen from the list, the box being locked; else typed
    std::optional<std::string> Directory; ///< the month or directory selected
};

/// What came of it.
struct ChoiceResult {
    enum class Outcome {
        NoProject, ///< the box was empty: no project is selected any more
        Existing,
        New,
        Refused, ///< nothing was changed
    };
    Outcome Result = Outcome::Refused;
    std::string Message; ///< why it was refused
};

/// Make the choice the current project: sets CurProjName and CurDirName, and stores the row of a
/// new project first. An existing project without a selection is in its own directory. Raises
/// DatabaseError, with nothing changed, when the database fails.
ChoiceResult AcceptProject(SharedState& state, const ProjectChoice& choice);

/// Rename or delete a directory or a project, with everything that belongs to it, and let
/// CurDirName and CurProjName follow: a renamed one has its new name; a deleted directory makes way
/// for `month`, a deleted project for none. `newName` is stored as StoredName makes it. A
/// project that shares its sheet number with a deleted one keeps its sheet and all rooms under it.
/// Raise DatabaseError, with CurDirName and CurProjName as they were, but CurProjName empty when a
/// deletion took its row before it failed; and "Overflow" as DeleteDirData and NewTabIndex.
void RenameDirectory(SharedState& state, const std::string& oldName, const std::string& newName);
void RenameProject(SharedState& state, const std::string& oldName, const std::string& newName);
void DeleteDirectory(SharedState& state, const std::string& name, const std::string& month);
void DeleteProject(SharedState& state, const std::string& name);

} // namespace tarn
