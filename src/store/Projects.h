#pragma once

#include "app/SharedState.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Directories and projects, through the shared recordsets, read afresh each time. Names are
/// compared in full upper case and without the blanks at both ends (StoredName). Everything here
/// raises DatabaseError when the database fails, but the two that add a row.

/// True when the directory exists: a row holds its name. The months have none.
bool CheckDir(SharedState& state, std::string_view name);

/// True when the project name is free, the opposite of CheckDir: no row holds it.
bool CheckProjName(SharedState& state, std::string_view name);

/// The directory of a project; nothing when there is no such project.
std::optional<std::string> DirectoryOf(SharedState& state, std::string_view project);

/// Every directory's name, by name.
std::vector<std::string> ListDirectories(SharedState& state);

/// The names of the projects in a directory (or month), as stored.
std::vector<std::string> ListProjects(SharedState& state, std::string_view directory);

/// Add a directory row with the stored form of `name`. False, with the cause in DatabaseFailure,
/// when the database fails, and for a name that is empty or longer than MaxNameLength. Whether the
/// name is taken is the caller's to check.
bool AddDirectory(SharedState& state, std::string_view name);

/// Add a project row with the stored forms of the names. Fails as AddDirectory, for either name,
/// and for a project name with a character of ForbiddenInProjectName or a control character.
bool AddProject(SharedState& state, std::string_view directory, std::string_view project);

} // namespace tarn
