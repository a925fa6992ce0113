#include "store/Backups.h"

#include "base/Words.h"
#include "files/Descriptor.h"
#include "files/OutputFile.h"
#include "store/DatabaseError.h"
#include "store/DatabaseFile.h"
#include "store/FileInMaking.h"
#include "store/FileLock.h"
#include "store/Journal.h"
#include "store/Schema.h"
#include "store/UntouchedFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <set>

namespace tarn {

namespace {

constexpr const char* FolderName = "BACKUP";
constexpr const char* UsualDataFolder = "DATA";

QString TimeFormat() {
    return QStringLiteral("yyyy-MM-dd HH-mm-ss");
}

/// The file itself, which a link leads to.
QFileInfo FileOf(const std::string& database) {
    QFileInfo info(QString::fromStdString(database));
    if (info.exists()) {
        return QFileInfo(info.canonicalFilePath());
    }
    return QFileInfo(info.isSymLink() ? info.symLinkTarget() : info.absoluteFilePath());
}

/// What the names of a database's backups begin with. Databases in several folders beside each
/// other share a folder of backups.
QString NameOf(const QFileInfo& file) {
    const QString folder = file.absoluteDir().dirName();
    return (folder == QLatin1String(UsualDataFolder) ? QString() : folder + u' ') +
           file.completeBaseName();
}

QString SuffixOf(const QFileInfo& file) {
    return file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
}

/// The moment in the name of a backup; nothing for another file.
std::optional<QDateTime> MomentIn(const QString& name, const QFileInfo& file) {
    const QString start = NameOf(file) + u' ';
    const QString end = SuffixOf(file);
    if (!name.startsWith(start) || !name.endsWith(end)) {
        return std::nullopt;
    }
    const QString moment = name.mid(start.size(), name.size() - start.size() - end.size());
    const QDateTime made = QDateTime::fromString(moment, TimeFormat());
    return made.isValid() && made.toString(TimeFormat()) == moment ? std::optional(made)
                                                                   : std::nullopt;
}

/// A path in `folder` that is free: "NAME WORDS 2026-11-22 14-05-33.mdb", a second later for each
/// one that is taken.
std::string FreePath(const QString& folder, const QFileInfo& file, const QString& words,
                     QDateTime moment) {
    for (;; moment = moment.addSecs(1)) {
        const QString path = QDir(folder).filePath(NameOf(file) + words + u' ' +
                                                   moment.toString(TimeFormat()) + SuffixOf(file));
        if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink()) {
            return path.toStdString();
        }
    }
}

void RequireEveryTable(Connection& connection, const std::string& backup) {
    for (const TableShape& shape : TableShapes()) {
        const std::string name(shape.Name);
        if (!shape.Optional &&
            connection
                .Run("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE",
                     Words("The backup %1 cannot be read", backup), {TextValue(name)})
                .Rows.empty()) {
            throw DatabaseError(
                Words("The file %1 is no backup of this program's data: it has no table %2.",
                      backup, name));
        }
    }
}

/// Put what is to become of the database file into `target`.
void CopyBackup(const std::string& backup, const std::string& target, int busyWait) {
    UntouchedFile source(backup, busyWait);
    if (const auto damage = DamageOf(source.Database(), source.Path())) {
        throw DatabaseError(Words("The backup %1 is damaged (%2) and is not put in place. Take "
                                  "another one.",
                                  backup, *damage));
    }
    RequireEveryTable(source.Database(), backup);
    const std::string failing = Words("The backup %1 cannot be copied", backup);
    source.Database().Run("VACUUM INTO ?", failing, {TextValue(target)});
    Connection copy(target, Connection::Access::ReadWrite, busyWait);
    MarkAsCopyOfItsOwn(copy, failing);
}

/// Have the database engine take back what a crash cut off, so that the file is whole without its
/// journal. One that cannot be read stays as it is.
void TakeBackCutOffChange(const std::string& path, int busyWait) {
    try {
        if (JournalBeside(path) == JournalKind::Own ||
            QFileInfo::exists(QString::fromStdString(path + "-wal"))) {
            Connection(path, Connection::Access::ReadWrite, busyWait)
                .Run("SELECT count(*) FROM sqlite_master", Words("The file cannot be read"));
        }
    } catch (const DatabaseError&) {
        // A damaged file is kept as it is, and its journal with it.
    }
}

/// Keep a copy of the file as it stands. Gives its path.
std::string KeepFormer(const QFileInfo& file, const QDateTime& now) {
    const QString words = QStringLiteral(" before restoring");
    const std::string path = file.filePath().toStdString();
    const auto keepIn = [&](const QString& folder) {
        std::string kept = FreePath(folder, file, words, now);
        FileInMaking copy(kept);
        try {
            CopyContent(path, copy.Path());
        } catch (const std::system_error& error) {
            throw DatabaseError(
                Words("The file %1 cannot be kept as %2: %3.", path, kept, CauseOf(error.code())));
        }
        copy.Place();
        return kept;
    };
    try {
        return keepIn(QString::fromStdString(BackupFolder(path)));
    } catch (const DatabaseError&) {
        return keepIn(file.absolutePath()); // where nothing can be made beside its folder
    }
}

/// Move the journal away from beside the file. Gives where it is now; empty when there is none.
std::string SetJournalAside(const QFileInfo& file, const std::string& former,
                            const QDateTime& now) {
    const std::string path = file.filePath().toStdString();
    const QString journal = QString::fromStdString(path + "-journal");
    if (!QFileInfo::exists(journal)) {
        return {};
    }
    // Not as the journal of the former file is named: the database engine would find it there.
    std::string aside = (former.empty() ? FreePath(file.absolutePath(), file,
                                                   QStringLiteral(" before restoring"), now)
                                        : former) +
                        ".journal";
    if (!QFile::rename(journal, QString::fromStdString(aside)) &&
        !(QFile::copy(journal, QString::fromStdString(aside)) && QFile::remove(journal))) {
        throw DatabaseError(
            Words("The journal %1 cannot be set aside as %2.", journal.toStdString(), aside));
    }
    try {
        SynchroniseFolder(file.absolutePath().toStdString());
    } catch (const OutputFileError& error) {
        throw DatabaseError(error.what());
    }
    return aside;
}

} // namespace

std::string BackupFolder(const std::string& database) {
    const QFileInfo folder(FileOf(database).absolutePath());
    return QDir(folder.absolutePath()).filePath(QString::fromLatin1(FolderName)).toStdString();
}

std::vector<Backup> BackupsOf(const std::string& database) {
    const QFileInfo file = FileOf(database);
    const QDir folder(QString::fromStdString(BackupFolder(database)));
    std::vector<Backup> backups;
    for (const QFileInfo& each : folder.entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        if (const auto moment = MomentIn(each.fileName(), file)) {
            backups.push_back({each.filePath().toStdString(), *moment, each.size()});
        }
    }
    std::sort(backups.begin(), backups.end(),
              [](const Backup& a, const Backup& b) { return b.Made < a.Made; });
    return backups;
}

std::vector<Backup> OutdatedBackups(const std::vector<Backup>& backups, const QDateTime& now) {
    constexpr std::size_t LastKept = 10;
    constexpr qint64 DaysKept = 30;
    std::vector<Backup> outdated;
    std::set<QDate> days; // whose last backup is kept
    for (std::size_t i = 0; i < backups.size(); ++i) {
        const QDate day = backups.at(i).Made.date();
        const bool isLastOfDay = day.daysTo(now.date()) < DaysKept && days.insert(day).second;
        if (i >= LastKept && !isLastOfDay) {
            outdated.push_back(backups.at(i));
        }
    }
    return outdated;
}

std::string MakeBackup(const std::string& database, const QDateTime& now, int busyWait) {
    const QFileInfo file = FileOf(database);
    std::string made = FreePath(QString::fromStdString(BackupFolder(database)), file, {}, now);
    BackUpDatabaseFile(database, made, busyWait);
    for (const Backup& backup : OutdatedBackups(BackupsOf(database), now)) {
        if (backup.Path != made) { // by a clock that was set back it may be the oldest
            QFile::remove(QString::fromStdString(backup.Path));
        }
    }
    return made;
}

std::string FindBackup(const std::string& backup, const std::string& database) {
    const QDir folder(QString::fromStdString(BackupFolder(database)));
    const QString name = QString::fromStdString(backup);
    return !name.contains(u'/') && !QFileInfo::exists(name) && folder.exists(name)
               ? folder.filePath(name).toStdString()
               : backup;
}

std::optional<std::size_t> CountProjects(const std::string& path) {
    try {
        const std::string table(ProjTab);
        const Result count =
            UntouchedFile(path, DefaultBusyWait)
                .Database()
                .Run("SELECT count(*) FROM " + table, Words("%1 cannot be read", table));
        return static_cast<std::size_t>(count.Rows.at(0).at(0).toLongLong());
    } catch (const DatabaseError&) {
        return std::nullopt;
    }
}

Restored RestoreBackup(const std::string& backup, const std::string& database, const QDateTime& now,
                       int busyWait) {
    const QFileInfo file = FileOf(database);
    const std::string path = file.filePath().toStdString();
    if (FileOf(backup).filePath() == file.filePath()) {
        throw DatabaseError(
            Words("The file %1 is the database itself. Name a backup of it.", backup));
    }
    FileInMaking copy(path, FileInMaking::Target::Replaced);
    CopyBackup(backup, copy.Path(), busyWait);
    RequireFilesBeside(path);
    std::optional<FileLock> lock;
    Restored restored;
    if (file.exists()) {
        TakeBackCutOffChange(path, busyWait);
        lock.emplace(path, FileLock::Kind::Replacing, busyWait);
    }
    if (QFileInfo::exists(QString::fromStdString(path + "-wal"))) {
        throw DatabaseError(
            Words("The database file %1 cannot be replaced: another program is using "
                  "the database. Close that program and try again.",
                  path));
    }
    if (file.exists()) {
        restored.Former = KeepFormer(file, now);
    }
    restored.Journal = SetJournalAside(file, restored.Former, now);
    copy.Place();
    return restored;
}

} // namespace tarn
