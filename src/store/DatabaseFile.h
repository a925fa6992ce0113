// Opening a database file, and refusing one that is not in order before anything is done to it.

#pragma once

#include "store/Connection.h"
#include "store/DatabaseAccess.h"

#include <memory>
#include <optional>
#include <string>

namespace tarn {

/// Raise DatabaseError for a file that is missing, a folder, a pipe, a device, empty, of the older
/// Jet format or no SQLite database, before anything opens it.
void RequireDatabaseFile(const std::string& path);

/// Connect to an existing database file, without a look at the soundness of its content. `path` may
/// hold any character. Raises DatabaseError, naming the file, the cause and what to do.
///
/// Refused before anything opens it: a file that is missing, a folder, a pipe, a device, empty, of
/// the older Jet format or no SQLite database; one beside which the journal of another state lies;
/// for ReadWrite also one that is read-only or lies in a folder that takes no files. A file or
/// folder without any write permission counts as read-only for every user. The file's length is
/// left to SQLite: only it knows what a change cut off by a crash is about to take back.
std::unique_ptr<Connection> ConnectToFile(const std::string& path, DatabaseAccess access,
                                          int busyWait);

/// ConnectToFile, with full synchronisation, for a file whose content is sound. Raises also for one
/// that is damaged, and that another program has locked for longer than `busyWait`.
std::unique_ptr<Connection> OpenDatabaseFile(const std::string& path, DatabaseAccess access,
                                             int busyWait);

/// How the content is damaged, in the database engine's words; nothing when it is sound. Raises
/// DatabaseError when it cannot be told.
std::optional<std::string> DamageOf(Connection& connection, const std::string& path);

/// Raise DatabaseError when the content is damaged.
void RequireSound(Connection& connection, const std::string& path);

/// Give a new file, or a copy, a mark that no other has: a random number in its head, where SQLite
/// leaves room for one (user_version). By it the journal of one copy is told from that of another.
/// `failing` begins the text of the error.
void MarkAsCopyOfItsOwn(Connection& connection, const std::string& failing);

} // namespace tarn
