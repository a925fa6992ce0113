#pragma once

#include "app/SharedState.h"

namespace tarn {

/// The shared recordsets, by their index in DBRS.
enum class SharedRows {
    Directories = 1, ///< DirTab, by name
    Projects = 2,    ///< ProjTab
    Sheets = 3,      ///< MainTab
};

/// The open database. Raises DatabaseError with DatabaseFailure, the reason why it could not be
/// opened, when there is none.
Database& OpenedDatabase(SharedState& state);

/// Close one shared recordset and open it again. When that fails it stays unset and DatabaseError
/// is raised.
void ReopenRows(SharedState& state, SharedRows rows);

/// A shared recordset, standing where it was left. One that is unset is opened first, so that a
/// failure gives its present cause. Raises DatabaseError when it cannot be opened.
Recordset& RowsOf(SharedState& state, SharedRows rows);

} // namespace tarn
