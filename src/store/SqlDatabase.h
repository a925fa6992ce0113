#pragma once

#include "app/Database.h"

#include <memory>
#include <string>

namespace tarn {

enum class DatabaseAccess {
    ReadWrite,
    ReadOnly, ///< for programs that only read; a read-only file or folder will do
};

/// How long a statement waits for another program's lock, in milliseconds.
inline constexpr int DefaultBusyWait = 5000;

/// Open an existing database file, with full synchronisation and a connection of its own. `path`
/// may hold any character. Never makes or overwrites a file. Raises DatabaseError, naming the file,
/// the cause and what to do, for a file that is missing, a folder, empty, of the older Jet format,
/// no database, damaged, locked by another program for longer than `busyWait`, or, for ReadWrite,
/// read-only.
///
/// Recordsets stop working when their Database goes; each of their members then raises
/// DatabaseError. A query is of the shape that ReadQuery describes. Rows come in the order asked
/// for; equal ones, and those of a query without an order, by row number.
std::unique_ptr<Database> OpenSqlDatabase(const std::string& path,
                                          DatabaseAccess access = DatabaseAccess::ReadWrite,
                                          int busyWait = DefaultBusyWait);

} // namespace tarn
