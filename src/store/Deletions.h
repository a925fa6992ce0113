#pragma once

#include "app/SharedState.h"

#include <string>
#include <string_view>

namespace tarn {

/// Deletions are stored row by row: after a failure the rows deleted so far stay deleted. Names are
/// taken as they stand; see StoredName.

/// Delete every row from the current one to the end. Answers True; raises DatabaseError.
bool DeleteAllRows(Recordset& rows);

/// Delete the rows of `table` that belong to the sheet. Errors are ignored but for DatabaseFailure,
/// which names the last one. Answers False always.
bool DeleteTabRows(SharedState& state, std::string_view table, Integer tabIndex);

/// Delete the sheet's rows from every table of SheetTables. Answers False always.
bool DeleteProjData(SharedState& state, Integer tabIndex);

/// Delete a directory, its projects and all their data. False, with the cause in DatabaseFailure,
/// at the first of its own queries that fails; a name with a double quote makes the first one fail.
/// A database that takes no change fails at once, after one wait.
/// Raises "Overflow" for a sheet number past 32767.
bool DeleteDirData(SharedState& state, const std::string& name);

/// Delete a project and all its data, and reopen the shared project rows, where a failure counts
/// only when they are read next. Fails as DeleteDirData.
bool DeleteProjectData(SharedState& state, const std::string& name);

} // namespace tarn
