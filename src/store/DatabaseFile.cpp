#include "store/DatabaseFile.h"

#include "files/DatabaseFormat.h"
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

[[noreturn]] void Refuse(const std::string& path, const std::string& cause) {
    throw DatabaseError("The database file " + path + " " + cause);
}

/// What to do about a path that leads to the wrong place.
std::string CorrectThePath() {
    return "Correct its path or the data folder in " + std::string(ConfigurationFileName);
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
        Refuse(path, "is read-only. Allow writing to it.");
    }
    if (!TakesWriting(FolderOf(info))) {
        Refuse(path, "lies in a read-only folder. Allow writing to the folder.");
    }
}

} // namespace

void RequireDatabaseFile(const std::string& path) {
    const QFileInfo info(QString::fromStdString(path));
    if (!info.exists()) {
        Refuse(path, "is missing. " + CorrectThePath() +
                         ", or make a new data folder with \"tarn-data create\".");
    }
    if (info.isDir()) {
        Refuse(path, "is a folder. " + CorrectThePath() + ".");
    }
    if (!info.isFile()) { // to open a pipe would wait for ever
        Refuse(path, "is a pipe, a device or a socket. " + CorrectThePath() + ".");
    }
    RequireFilesBeside(path);
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) {
        Refuse(path, "cannot be read: " + file.errorString().toStdString() + ".");
    }
    const QByteArray head = file.read(DatabaseHeadSize);
    if (head.isEmpty()) {
        Refuse(path, std::string("is empty. ") + RestoreAdvice);
    }
    const DatabaseFormat format = DatabaseFormatOf(head);
    if (format == DatabaseFormat::Jet) {
        Refuse(path, "is in the older Jet format, which cannot be read. Keep it, make a new data "
                     "folder with \"tarn-data create\" and enter its projects there.");
    }
    if (format == DatabaseFormat::None) {
        Refuse(path, "is not a database of this program. " + CorrectThePath() +
                         ", or put a backup in its place with \"tarn-data restore\".");
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
    connection->Run("PRAGMA query_only = ON", "The database file " + path + " cannot be opened");
    return connection;
}

std::optional<std::string> DamageOf(Connection& connection, const std::string& path) {
    const std::string failing = "The database file " + path + " cannot be opened";
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
        finding = QStringLiteral("a part of it is missing");
    }
    connection.Run("COMMIT", failing);
    return finding == QStringLiteral("ok") ? std::nullopt : std::optional(finding.toStdString());
}

void RequireSound(Connection& connection, const std::string& path) {
    if (const auto damage = DamageOf(connection, path)) {
        throw DatabaseError("The database file " + path + " is damaged (" + *damage + "). " +
                            DamageAdvice);
    }
}

std::unique_ptr<Connection> OpenDatabaseFile(const std::string& path, DatabaseAccess access,
                                             int busyWait) {
    auto connection = ConnectToFile(path, access, busyWait);
    RequireSound(*connection, path);
    const std::string failing = "The database file " + path + " cannot be opened";
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
