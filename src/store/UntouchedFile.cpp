#include "store/UntouchedFile.h"

#include "base/Words.h"
#include "files/Descriptor.h"
#include "store/DatabaseError.h"
#include "store/DatabaseFile.h"
#include "store/FileLock.h"

#include <QFileInfo>

namespace tarn {

namespace {

void CopyFile(const std::string& from, const std::string& to) {
    try {
        CopyContent(from, to);
    } catch (const std::system_error& error) {
        throw DatabaseError(Words("The database file %1 cannot be looked over: a copy of it cannot "
                                  "be made in %2: %3.",
                                  from, QFileInfo(QString::fromStdString(to)).path().toStdString(),
                                  CauseOf(error.code())));
    }
}

} // namespace

UntouchedFile::UntouchedFile(const std::string& path, int busyWait)
    : path_(path) {
    RequireDatabaseFile(path);
    if (JournalBeside(path) != JournalKind::None) {
        // Nobody takes the change back while it is copied. A change that is being made is none
        // that was cut off.
        const FileLock lock(path, FileLock::Kind::Reading, busyWait);
        if (!lock.HasWriter()) {
            Copy(path);
        }
    }
    connection_ = std::make_unique<Connection>(
        path_, copy_ ? Connection::Access::ReadWrite : Connection::Access::ReadOnly, busyWait);
}

void UntouchedFile::Copy(const std::string& path) {
    journal_ = JournalBeside(path);
    if (journal_ == JournalKind::None) {
        return; // taken back meanwhile
    }
    copy_.emplace();
    if (!copy_->isValid()) {
        throw DatabaseError(Words("The database file %1 cannot be looked over: the folder for "
                                  "temporary files takes none.",
                                  path));
    }
    path_ = copy_->filePath(QStringLiteral("copy.mdb")).toStdString();
    CopyFile(path, path_);
    if (journal_ == JournalKind::Own) {
        CopyFile(JournalPath(path), JournalPath(path_));
    }
}

} // namespace tarn
