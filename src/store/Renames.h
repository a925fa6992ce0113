#pragma once

#include "app/SharedState.h"

#include <string>

namespace tarn {

/// Renames are each one transaction: all rows have the new name or none has. Names are taken and
/// stored as they stand; see StoredName. False, with the cause in DatabaseFailure, at the first
/// query that fails; an old name with a double quote makes the first one fail.

/// Rename a directory, and move its projects with it.
bool ChangeDirName(SharedState& state, const std::string& oldName, const std::string& newName);

/// Rename a project and its sheet.
bool ChangeProjName(SharedState& state, const std::string& oldName, const std::string& newName);

} // namespace tarn
