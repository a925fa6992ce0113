#include "store/DatabaseFile.h"

#include "base/Words.h"
#include "files/DatabaseFormat.h"
#include "files/QtText.h"
#include "store/Configuration.h"
#include "store/DatabaseError.h"
#include "store/Journal.h"
#include "store/Remedies.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <limits>

namespace tarn {

namespace {

/// `what` has the path as %1 and where the path may have come from as %2.
[[noreturn]] void Refuse(Phrase what, const std::string& path) {
    throw DatabaseError(Words(what, path, ConfigurationFileName));
}

bool TakesWriting(const QFileInfo& info) {
    constexpr QFile::Permissions AnyWrite =
        QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return info.isWritable() && (info.permissions() & AnyWrite);
}

/// The folder in which SQLite keeps its journal: that of the file that a link leads to.
QFileInfo FolderOf(const QFileInfo& file) {
    return QFileInfo(QFileInfo(file.canonicalFilePath()).absolutePath());
}

void RequireWritable(const std::string& path, const QFileInfo& info) {
    if (!TakesWriting(info)) {
        Refuse(Words("The database file %1 is read-only. Allow writing to it."), path);
    }
    if (!TakesWriting(FolderOf(info))) {
        Refuse(Words("The database file %1 lies in a read-only folder. Allow writing to the "
                     "folder."),
               path);
    }
}

} // namespace

void RequireDatabaseFile(const std::string& path) {
    const QFileInfo info(QString::fromStdString(path));
    if (!info.exists()) {
        Refuse(Words("The database file %1 is missing. Correct its path or the data folder in %2, "
                     "or make a new data folder with \"tarn-data create\"."),
               path);
    }
    if (info.isDir()) {
        Refuse(Words("The database file %1 is a folder. Correct its path or the data folder in "
                     "%2."),
               path);
    }
    if (!info.isFile()) { // to open a pipe would wait for ever
        Refuse(Words("The database file %1 is a pipe, a device or a socket. Correct its path or "
                     "the data folder in %2."),
               path);
    }
    RequireFilesBeside(path);
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) {
        throw DatabaseError(Words("The database file %1 cannot be read: %2.", path,
                                  file.errorString().toStdString()));
    }
    const QByteArray head = file.read(DatabaseHeadSize);
    if (head.isEmpty()) {
        throw DatabaseError(Words("The database file %1 is empty. %2", path, RestoreAdvice));
    }
    const DatabaseFormat format = DatabaseFormatOf(head);
    if (format == DatabaseFormat::Jet) {
        Refuse(Words("The database file %1 is in the older Jet format, which cannot be read. Keep "
                     "it, make a new data folder with \"tarn-data create\" and enter its projects "
                     "there."),
               path);
    }
    if (format == DatabaseFormat::None) {
        Refuse(Words("The database file %1 is not a database of this program. Correct its path or "
                     "the data folder in %2, or put a backup in its place with \"tarn-data "
                     "restore\"."),
               path);
    }
}

std::unique_ptr<Connection> ConnectToFile(const std::string& path, DatabaseAccess access,
                                          int busyWait) {
    const QFileInfo info(QString::fromStdString(path));
    RequireDatabaseFile(path);
    RequireOwnJournal(path);
    if (access == DatabaseAccess::ReadWrite) {
        RequireWritable(path, info);
        return std::make_unique<Connection>(path, Connection::Access::ReadWrite, busyWait);
    }
    if (!TakesWriting(info) || !TakesWriting(FolderOf(info))) {
        return std::make_unique<Connection>(path, Connection::Access::ReadOnly, busyWait);
    }
    // Able to write, so that SQLite can take back a change that a crash cut off; but refusing to.
    auto connection = std::make_unique<Connection>(path, Connection::Access::ReadWrite, busyWait);
    connection->Run("PRAGMA query_only = ON", Words("The database file %1 cannot be opened", path));
    return connection;
}

std::optional<std::string> DamageOf(Connection& connection, const std::string& path) {
    const std::string failing = Words("The database file %1 cannot be opened", path);
    const auto ask = [&](const char* statement) {
        return connection.Run(statement, failing).Rows.at(0).at(0);
    };
    connection.Run("BEGIN", failing); // from the first answer on the file stays as it is
    QString finding = ask("PRAGMA quick_check(1)").toString();
    const qint64 size =
        ask("PRAGMA page_size").toLongLong() * ask("PRAGMA page_count").toLongLong();
    // SQLite takes the missing end of the last page for zeros. (Another journal mode may keep whole
    // pages elsewhere.)
    const bool whole = QFileInfo(QString::fromStdString(path)).size() >= size ||
                       ask("PRAGMA journal_mode").toString() == QStringLiteral("wal");
    if (!whole) {
        finding = ToQt(Words("a part of it is missing"));
    }
    connection.Run("COMMIT", failing);
    return finding == QStringLiteral("ok") ? std::nullopt : std::optional(finding.toStdString());
}

void RequireSound(Connection& connection, const std::string& path) {
    if (const auto damage = DamageOf(connection, path)) {
        throw DatabaseError(
            Words("The database file %1 is damaged (%2). %3", path, *damage, DamageAdvice));
    }
}

std::unique_ptr<Connection> OpenDatabaseFile(const std::string& path, DatabaseAccess access,
                                             int busyWait) {
    auto connection = ConnectToFile(path, access, busyWait);
    RequireSound(*connection, path);
    const std::string failing = Words("The database file %1 cannot be opened", path);
    connection->Run("PRAGMA synchronous = EXTRA", failing);
    // Nothing of a change reaches the file before the journal is whole, the first page in it: by
    // that page a journal is told to be the file's own.
    connection->Run("PRAGMA cache_spill = OFF", failing);
    return connection;
}

void MarkAsCopyOfItsOwn(Connection& connection, const std::string& failing) {
    constexpr int Greatest = std::numeric_limits<int>::max();
    const int mark = QRandomGenerator::system()->bounded(1, Greatest);
    connection.Run("PRAGMA user_version = " + std::to_string(mark), failing);
}

} // namespace tarn
