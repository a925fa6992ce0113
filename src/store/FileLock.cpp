#include "store/FileLock.h"

#include "base/Words.h"
#include "store/DatabaseError.h"

#include <QDeadlineTimer>
#include <QThread>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace tarn {

namespace {

// The bytes that stand for the engine's locks: part of its file format.
constexpr off_t PendingByte = 0x40000000;
constexpr off_t ReservedByte = PendingByte + 1;
constexpr off_t SharedFirst = PendingByte + 2;
constexpr off_t SharedSize = 510;

// Locks of an open file where the system has them: unlike those of a process they also tell apart
// two that the same program holds.
#ifdef F_OFD_SETLK
constexpr int SetLock = F_OFD_SETLK;
constexpr int GetLock = F_OFD_GETLK;
#else
constexpr int SetLock = F_SETLK;
constexpr int GetLock = F_GETLK;
#endif

struct flock Range(short type, off_t first, off_t size) {
    struct flock range = {};
    range.l_type = type;
    range.l_whence = SEEK_SET;
    range.l_start = first;
    range.l_len = size;
    return range;
}

bool Set(int file, short type, off_t first, off_t size) {
    struct flock range = Range(type, first, size);
    return fcntl(file, SetLock, &range) == 0;
}

} // namespace

FileLock::FileLock(const std::string& path, Kind kind, int busyWait)
    : file_(open(path.c_str(),
                 (kind == Kind::Reading ? O_RDONLY : O_RDWR) | O_CLOEXEC | O_NONBLOCK)) {
    const auto refuse = [&path](std::string_view cause) {
        throw DatabaseError(Words("The database file %1 cannot be locked: %2", path, cause));
    };
    if (file_ < 0) {
        refuse(std::string(std::strerror(errno)) + ".");
    }
    const QDeadlineTimer deadline(busyWait);
    constexpr unsigned long Pause = 10; // milliseconds
    while (!TryTake(kind)) {
        const int cause = errno;
        if ((cause != EAGAIN && cause != EACCES) || deadline.hasExpired()) {
            close(file_);
            refuse(cause == EAGAIN || cause == EACCES
                       ? std::string(Words("another program is using the database. Close that "
                                           "program and try again."))
                       : std::string(std::strerror(cause)) + ".");
        }
        QThread::msleep(Pause);
    }
}

FileLock::~FileLock() {
    close(file_);
}

bool FileLock::TryTake(Kind kind) const {
    if (kind == Kind::Reading) {
        // The pending lock only for a moment, as the engine does: a writer that waits holds it.
        if (!Set(file_, F_RDLCK, PendingByte, 1)) {
            return false;
        }
        const bool taken = Set(file_, F_RDLCK, SharedFirst, SharedSize);
        const int cause = errno;
        Set(file_, F_UNLCK, PendingByte, 1);
        errno = cause;
        return taken;
    }
    if (Set(file_, F_WRLCK, PendingByte, SharedFirst + SharedSize - PendingByte)) {
        return true;
    }
    return false;
}

bool FileLock::HasWriter() const {
    struct flock range = Range(F_WRLCK, ReservedByte, 1);
    return fcntl(file_, GetLock, &range) == 0 && range.l_type != F_UNLCK;
}

} // namespace tarn
