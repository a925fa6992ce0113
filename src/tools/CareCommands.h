// The commands of tarn-data that look after a database as a whole, each a function.

#pragma once

#include <string>

namespace tarn {

/// Each prints what it did on standard output and raises Refusal or DatabaseError when it cannot.

/// Look a database over. Raises Refusal with the findings when there are any.
void CheckData(const std::string& database);

/// Write a clean copy of all that can be read of a database to the file `target`, which must not
/// exist, and tell what was left out or changed.
void RepairData(const std::string& database, const std::string& target);

/// Copy a database consistently, also while it is in use.
void BackUpData(const std::string& database, const std::string& target);

/// List the backups that the program made of a database, the newest first, with their size, how
/// many projects they hold, and whether they are sound.
void ListBackups(const std::string& database);

/// Put a backup, named as a path or as ListBackups names it, in the place of a database, and tell
/// where what was there is kept.
void RestoreData(const std::string& backup, const std::string& database);

} // namespace tarn
