#pragma once

#include "project/Project.h"

#include <optional>
#include <string>

namespace tarn {

class ProjectStore;

// How the current project, by its name and its directory, is chosen, and how it follows what
// becomes of the projects and directories in the store. Everything here raises as the store, with
// the current project as it was.

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

/// Make the choice the current project; a new one is added to the store first. An existing project
/// without a selection is in its own directory.
ChoiceResult AcceptProject(ProjectStore& store, Project& current, const ProjectChoice& choice);

/// Rename or delete a directory or a project, with everything that belongs to it, and let the
/// current project follow: what is renamed has its new name; a deleted directory makes way for
/// `month`, a deleted project for none. `newName` is stored as StoredName makes it.
void RenameDirectory(ProjectStore& store, Project& current, const std::string& oldName,
                     const std::string& newName);
void RenameProject(ProjectStore& store, Project& current, const std::string& oldName,
                   const std::string& newName);
void DeleteDirectory(ProjectStore& store, Project& current, const std::string& name,
                     const std::string& month);
void DeleteProject(ProjectStore& store, Project& current, const std::string& name);

} // namespace tarn
