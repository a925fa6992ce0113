// Backups of a database: consistent copies in the folder BACKUP beside the folder of the database,
// named by the moment when they were made: "Tarn 2026-11-22 14-05-33.mdb".

#pragma once

#include "store/DatabaseAccess.h"

#include <QDateTime>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A backup of a database.
struct Backup {
    std::string Path;
    QDateTime Made; ///< local time, to the second
    std::int64_t Size = 0;
};

/// The folder of the backups of a database file, which need not be there.
std::string BackupFolder(const std::string& database);

/// The backups of a database file, the newest first. Other files in the folder are none.
std::vector<Backup> BackupsOf(const std::string& database);

/// Those of `backups`, the newest first, that are no longer kept at the moment `now`: all but the
/// last ten, and the last of each of the last thirty days.
std::vector<Backup> OutdatedBackups(const std::vector<Backup>& backups, const QDateTime& now);

/// Make a backup of a database file, also while programs use it, and remove the outdated ones.
/// Gives its path. Raises DatabaseError, with nothing left behind, when it cannot be made.
std::string MakeBackup(const std::string& database,
                       const QDateTime& now = QDateTime::currentDateTime(),
                       int busyWait = DefaultBusyWait);

/// The path of a backup that is named as a path, or by its name in the folder of backups.
std::string FindBackup(const std::string& backup, const std::string& database);

/// How many projects a database file holds, with nothing changed; nothing when it cannot be read.
std::optional<std::size_t> CountProjects(const std::string& path);

/// What a restoring did with what was there before.
struct Restored {
    std::string Former;  ///< where the former file is kept; empty when there was none
    std::string Journal; ///< where the journal is kept that lay beside it; empty when none did
};

/// Put a copy of `backup` in the place of the database file, as one step: a program that is killed
/// leaves the old file or the new one there, whole. What was there is kept beside the backups. A
/// change that a crash cut off is first taken back in the former file; a journal that is not the
/// file's own is set aside. Raises DatabaseError, with the file as it was, when the backup is
/// damaged or lacks a table, when another program is in the middle of a change for longer than
/// `busyWait`, and when a file cannot be made.
Restored RestoreBackup(const std::string& backup, const std::string& database,
                       const QDateTime& now = QDateTime::currentDateTime(),
                       int busyWait = DefaultBusyWait);

} // namespace tarn
