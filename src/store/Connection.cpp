#include "store/Connection.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "store/DatabaseError.h"
#include "store/Remedies.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUrl>

#include <atomic>

namespace tarn {

namespace {

/// SQLite's result codes, as far as they have a text of their own here.
enum ResultCode {
    Busy = 5,
    Locked = 6,
    ReadOnlyFile = 8,
    DiskError = 10,
    Corrupt = 11,
    DiskFull = 13,
    NotADatabase = 26,
    FileMoved = 1032,       // an extended code of ReadOnlyFile
    FolderNotOnDisk = 1290, // an extended code of DiskError
};

QString UniqueName() {
    static std::atomic<unsigned> count = 0;
    return QStringLiteral("tarn-%1").arg(count++);
}

/// The file as SQLite's own address form: the one form in which opening never makes a file, and in
/// which a path can hold any character.
QString Address(const std::string& path, Connection::Access access) {
    const QString absolute = QFileInfo(QString::fromStdString(path)).absoluteFilePath();
    QByteArray encoded = QUrl::toPercentEncoding(absolute, "/");
    if (!encoded.startsWith('/')) {
        encoded.prepend('/'); // a drive letter
    }
    const char* mode = access == Connection::Access::ReadOnly    ? "ro"
                       : access == Connection::Access::ReadWrite ? "rw"
                                                                 : "rwc";
    return QString::fromLatin1("file://" + encoded + "?mode=" + mode);
}

/// Why it failed and what to do about it, in words for the user.
std::string Cause(const QSqlError& error) {
    constexpr int PrimaryCode = 0xFF;
    const std::string text = error.databaseText().toStdString();
    if (error.nativeErrorCode().toInt() == FileMoved) {
        return Words("the database file was moved, deleted or replaced while it was open. Put it "
                     "back, or start the program again.");
    }
    if (error.nativeErrorCode().toInt() == FolderNotOnDisk) {
        return Words("the disk does not confirm that it keeps the change, which may be there all "
                     "the same. Look whether it is.");
    }
    switch (error.nativeErrorCode().toInt() & PrimaryCode) {
    case Busy:
    case Locked:
        return Words("another program is using the database. Close that program and try again.");
    case ReadOnlyFile:
        return Words("the database is read-only. Allow writing to the file and to its folder.");
    case DiskFull:
        return Words("the disk is full. Free some space and try again.");
    case DiskError:
        return Words("the disk reports an error (%1).", text);
    case Corrupt:
    case NotADatabase:
        return Words("the database file is damaged (%1). %2", text, DamageAdvice);
    default:
        return text + ".";
    }
}

[[noreturn]] void Raise(std::string_view failing, const QSqlError& error) {
    throw DatabaseError(std::string(failing) + ": " + Cause(error));
}

} // namespace

QVariant TextValue(std::string_view utf8) {
    QString text = ToQt(utf8);
    if (text.startsWith(QChar(QChar::ByteOrderMark))) { // of which SQLite drops the first
        text.prepend(QChar(QChar::ByteOrderMark));
    }
    return text;
}

Connection::Connection(const std::string& path, Access access, int busyWait)
    : name_(UniqueName()) {
    QSqlError error;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name_);
        database.setConnectOptions(
            QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(busyWait));
        database.setDatabaseName(Address(path, access));
        if (database.open()) {
            return;
        }
        error = database.lastError();
    }
    QSqlDatabase::removeDatabase(name_);
    Raise(Words("The database file %1 cannot be opened", path), error);
}

Connection::~Connection() {
    QSqlDatabase::removeDatabase(name_);
}

Result Connection::Run(std::string_view statement, std::string_view failing,
                       const QVariantList& values) {
    QSqlQuery query(QSqlDatabase::database(name_, false));
    query.setForwardOnly(true);
    if (!query.prepare(ToQt(statement))) {
        Raise(failing, query.lastError());
    }
    for (const QVariant& value : values) {
        query.addBindValue(value);
    }
    if (!query.exec()) {
        Raise(failing, query.lastError());
    }

    Result result;
    const QSqlRecord columns = query.record();
    for (int column = 0; column < columns.count(); ++column) {
        result.Fields.push_back(columns.fieldName(column).toStdString());
    }
    while (query.next()) {
        QVariantList row;
        for (int column = 0; column < columns.count(); ++column) {
            row.push_back(query.value(column));
        }
        result.Rows.push_back(std::move(row));
    }
    if (query.lastError().isValid()) {
        Raise(failing, query.lastError());
    }
    result.Affected = query.numRowsAffected();
    return result;
}

} // namespace tarn
