#include "store/FileInMaking.h"

#include "base/Words.h"
#include "files/FileModes.h"
#include "files/OutputFile.h"
#include "files/TemporaryFile.h"
#include "store/DatabaseError.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarn {

namespace {

QString WorkshopName() {
    return QString::fromLatin1(InMakingStart.data(), InMakingStart.size()) +
           QString(FolderInMakingDigits, u'X');
}

/// Whether this run has the folder's lock now; true also where the file system knows no locks.
bool Lock(const Descriptor& folder) {
    return ::flock(folder.Number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

Descriptor OpenFolder(const QString& path) {
    return Descriptor(
        ::open(path.toLocal8Bit().constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

/// Rename a file unless something stands at its new name. (The toolkit would copy a file that it
/// cannot rename, and not have the copy stored on the disk.)
bool MoveToNewName(const std::string& path, const std::string& target) {
    if (::renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    // A file system that knows no such renaming.
    return (errno == EINVAL || errno == ENOSYS) && ::access(target.c_str(), F_OK) != 0 &&
           ::rename(path.c_str(), target.c_str()) == 0;
}

} // namespace

FileInMaking::FileInMaking(const std::string& target, Target kind)
    : target_(QFileInfo(QString::fromStdString(target)).absoluteFilePath())
    , kind_(kind) {
    const QFileInfo info(target_);
    if (QFileInfo(QString::fromStdString(target)).fileName().isEmpty()) {
        throw DatabaseError(Words("The file %1 cannot be made: it has no name.", target));
    }
    if (kind == Target::New && (info.exists() || info.isSymLink())) {
        Refuse(Words("it is there already and stays as it is"));
    }
    if (info.exists() && !info.isFile()) {
        Refuse(Words("something that is no file stands in its place"));
    }
    MakeFolder(info.absolutePath());
    RemoveLeftOvers(info.absolutePath().toStdString());
    MakeWorkshop(info.absolutePath());
}

FileInMaking::~FileInMaking() {
    workshop_.reset();
    if (!placed_) {
        RemoveMadeFolders();
    }
}

std::string FileInMaking::Path() const {
    return workshop_->filePath(QFileInfo(target_).fileName()).toStdString();
}

void FileInMaking::Place() {
    const std::string target = target_.toStdString();
    const std::string folder = QFileInfo(target_).absolutePath().toStdString();
    SetPermissions();
    try {
        const Descriptor file(::open(Path().c_str(), O_RDONLY | O_CLOEXEC));
        if (!file.IsOpen()) {
            throw LastError();
        }
        Synchronise(file);
    } catch (const std::system_error& error) {
        Refuse(CauseOf(error.code()));
    }
    const bool moved = kind_ == Target::New ? MoveToNewName(Path(), target)
                                            : std::rename(Path().c_str(), target.c_str()) == 0;
    if (!moved) {
        Refuse(Words("it cannot be moved into its folder, or another program made it meanwhile"));
    }
    try {
        for (const auto& made : madeFolders_) {
            SynchroniseFolder(made.parent_path().string());
        }
        SynchroniseFolder(folder);
    } catch (const OutputFileError& error) {
        if (kind_ == Target::New && ::unlink(target.c_str()) == 0) {
            throw DatabaseError(error.what());
        }
        throw DatabaseError(Words("%1 The new file may be there all the same.", error.what()));
    }
    placed_ = true;
}

void FileInMaking::SetPermissions() const {
    struct stat former {};
    if (kind_ == Target::New || ::stat(target_.toLocal8Bit().constData(), &former) != 0) {
        SetPrivateMode(Path(), QFileInfo(target_).absolutePath().toStdString());
        return;
    }
    constexpr mode_t Permissions = 0777;
    // Only a system user gives files away; who may read it matters more than whose it is.
    if (::chown(Path().c_str(), former.st_uid, former.st_gid) != 0) {
        static_cast<void>(::chown(Path().c_str(), static_cast<uid_t>(-1), former.st_gid) == 0);
    }
    static_cast<void>(::chmod(Path().c_str(), former.st_mode & Permissions) == 0);
}

void FileInMaking::MakeFolder(const QString& folder) {
    try {
        madeFolders_ = MakePrivateFolder(folder.toStdString());
    } catch (const std::filesystem::filesystem_error&) {
        Refuse(Words("its folder cannot be made"));
    }
}

void FileInMaking::MakeWorkshop(const QString& folder) {
    constexpr int Tries = 10; // another run may take it for a left-over before it is locked
    for (int tries = 0; tries < Tries; ++tries) {
        workshop_.emplace(QDir(folder).filePath(WorkshopName()));
        if (!workshop_->isValid()) {
            break;
        }
        lock_ = OpenFolder(workshop_->path());
        if (lock_.IsOpen() && Lock(lock_) && QFileInfo::exists(workshop_->path())) {
            return;
        }
    }
    workshop_.reset();
    RemoveMadeFolders();
    Refuse(Words("its folder takes no files"));
}

void FileInMaking::RemoveMadeFolders() {
    for (; !madeFolders_.empty(); madeFolders_.pop_back()) {
        std::error_code ignored;
        std::filesystem::remove(madeFolders_.back(), ignored); // one that holds something stays
    }
}

void FileInMaking::Refuse(const std::string& cause) const {
    throw DatabaseError(Words("The file %1 cannot be made: %2.", target_.toStdString(), cause));
}

} // namespace tarn
