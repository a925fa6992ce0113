#pragma once

#include "store/SqlDatabase.h"

#include <memory>
#include <string>

namespace tarn {

class Connection;

/// Whether a readable file stands at `path` that begins as a database does, of the older Jet format
/// too. Such a file is never to be written over.
bool IsDatabaseFile(const std::string& path);

/// Connect to an existing database file; the checks of OpenSqlDatabase on the file itself, but not
/// yet on the soundness of its content.
///
/// Refused before anything opens it: a file that is missing, a folder, empty, of the older Jet
/// format or no SQLite database; for ReadWrite also one that is read-only or lies in a folder that
/// takes no files. A file or folder without any write permission counts as read-only for every
/// user. The file's length is left to SQLite: only it knows what a change cut off by a crash is
/// about to take back.
std::shared_ptr<Connection> ConnectToFile(const std::string& path, DatabaseAccess access,
                                          int busyWait);

/// Raise DatabaseError when the content is damaged.
void RequireSound(Connection& connection, const std::string& path);

} // namespace tarn
