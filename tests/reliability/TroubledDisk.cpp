// A disk in trouble, preloaded into a program. It counts the steps in which the program changes the
// files below one folder, writes them into a log from which a disk can be made again as it was
// after any of them, and lets trouble begin with a chosen one: the program dies, or the step fails.
//
// TROUBLED_FOLDER  the folder, as its canonical path; without it nothing is done
// TROUBLED_LOG     the log; DiskLog in disk.py reads it. With TROUBLED_DATA the bytes written too
// TROUBLE          a name of Troubles below
// TROUBLE_AT       the step with which it begins, from 1

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <stdarg.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>
#include <utility>

namespace {

enum class Trouble {
    None,
    DieBefore, ///< the program is killed before the step
    DieAmid,   ///< and with half of what the step writes written
    DieAfter,  ///< and after the step
    Error,     ///< the step alone fails: an input/output error
    NoSpace,   ///< the step alone fails: the disk is full
    Short,     ///< the step alone writes half
    Full,      ///< from the step on the disk is full; the first to notice writes half
    Gone,      ///< from the step on everything fails with an input/output error
};

constexpr std::array<std::pair<std::string_view, Trouble>, 8> Troubles = {{
    {"die-before", Trouble::DieBefore},
    {"die-amid", Trouble::DieAmid},
    {"die-after", Trouble::DieAfter},
    {"error", Trouble::Error},
    {"no-space", Trouble::NoSpace},
    {"short", Trouble::Short},
    {"full", Trouble::Full},
    {"gone", Trouble::Gone},
}};

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

/// What the environment asks for. Made at the first step, so that it is there however early that
/// is.
struct Disk {
    Disk()
        : Folder(Variable("TROUBLED_FOLDER"))
        , WithData(!Variable("TROUBLED_DATA").empty())
        , At(std::strtol(Variable("TROUBLE_AT").c_str(), nullptr, 10)) {
        const std::string wanted = Variable("TROUBLE");
        for (const auto& [name, trouble] : Troubles) {
            if (name == wanted) {
                Wanted = trouble;
            }
        }
        const std::string log = Variable("TROUBLED_LOG");
        if (!Folder.empty() && !log.empty()) {
            Log = static_cast<int>(syscall(SYS_openat, AT_FDCWD, log.c_str(),
                                           O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
        }
    }

    const std::string Folder;
    const bool WithData;
    const long At;
    Trouble Wanted = Trouble::None;
    int Log = -1;
    std::atomic<long> Steps = 0;
};

Disk& TheDisk() {
    static Disk disk;
    return disk;
}

/// One line of the log, and the bytes that belong to it. A number that says nothing is 0.
struct Entry {
    std::string_view What{};
    unsigned long long File = 0; ///< its inode
    long long Place = 0;         ///< in the file
    std::string Path{};
    std::string Other{}; ///< the path that a file is moved or linked to
    std::string Data{};
};

void Note(const Entry& entry) {
    const Disk& disk = TheDisk();
    if (disk.Log < 0) {
        return;
    }
    const bool withData = disk.WithData || entry.What == "said";
    std::string text(entry.What);
    text += '\t' + std::to_string(disk.Steps) + '\t' + std::to_string(entry.File) + '\t' +
            std::to_string(entry.Place) + '\t' + std::to_string(entry.Data.size()) + '\t' +
            (withData ? "1" : "0") + '\t' + entry.Path + '\t' + entry.Other + '\n';
    if (withData) {
        text += entry.Data;
    }
    syscall(SYS_write, disk.Log, text.data(), text.size());
}

[[noreturn]] void Die() {
    for (;;) {
        syscall(SYS_kill, getpid(), SIGKILL);
    }
}

/// What a step does to the disk.
enum class Need {
    Nothing, ///< a full disk allows it
    Space,   ///< a full disk refuses it
    Bytes,   ///< the same; and half of it can be done
};

/// How a step goes on.
struct Course {
    int Error = 0;     ///< it fails with this
    bool Half = false; ///< half of it is done
    bool Dies = false; ///< the program dies after it
};

Course BeginStep(Need need, std::string_view what) {
    Disk& disk = TheDisk();
    const long step = ++disk.Steps;
    if (disk.At == 0 || step < disk.At) {
        return {};
    }
    const bool first = step == disk.At;
    if (first) {
        Note({.What = "trouble", .Path = std::string(what)});
    }
    const bool bytes = need == Need::Bytes;
    switch (disk.Wanted) {
    case Trouble::DieBefore:
        Die();
    case Trouble::DieAmid:
        return {.Half = bytes, .Dies = true};
    case Trouble::DieAfter:
        return {.Dies = true};
    case Trouble::Error:
        return {.Error = first ? EIO : 0};
    case Trouble::NoSpace:
        return {.Error = first && need != Need::Nothing ? ENOSPC : 0};
    case Trouble::Short:
        return {.Half = first && bytes};
    case Trouble::Full:
        return {.Error = need != Need::Nothing && !(first && bytes) ? ENOSPC : 0,
                .Half = first && bytes};
    case Trouble::Gone:
        return {.Error = EIO};
    case Trouble::None:
        break;
    }
    return {};
}

/// Take the step `what`: `call(half)` answers -1 when it fails, `entry(result)` tells what it did.
template <typename Call, typename Tell>
long Step(std::string_view what, Need need, Call call, Tell entry) {
    const Course course = BeginStep(need, what);
    if (course.Error != 0) {
        errno = course.Error;
        return -1;
    }
    const long result = call(course.Half);
    if (result >= 0) {
        const int before = errno;
        Entry done = entry(result);
        done.What = what;
        Note(done);
        errno = before;
    }
    if (course.Dies) {
        Die();
    }
    return result;
}

bool IsBelow(const std::string& path) {
    const std::string& folder = TheDisk().Folder;
    return !folder.empty() && path.starts_with(folder) &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

std::string PathOf(int file) {
    std::array<char, PATH_MAX> buffer{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t size = readlink(link.c_str(), buffer.data(), buffer.size());
    return size > 0 ? std::string(buffer.data(), static_cast<std::size_t>(size)) : std::string();
}

/// A path with its folder as the canonical one; its last part stays as it is.
std::string Canonical(int folder, const char* path) {
    std::string whole = path;
    if (!whole.starts_with('/') && folder != AT_FDCWD) {
        whole = PathOf(folder) + '/' + whole;
    }
    while (whole.size() > 1 && whole.ends_with('/')) {
        whole.pop_back();
    }
    const std::size_t slash = whole.rfind('/');
    const std::string name = slash == std::string::npos ? whole : whole.substr(slash + 1);
    const std::string parent = slash == std::string::npos ? "." : whole.substr(0, slash + 1);
    std::array<char, PATH_MAX> buffer{};
    return realpath(parent.c_str(), buffer.data()) != nullptr
               ? std::string(buffer.data()) + '/' + name
               : whole;
}

bool IsTroubled(int file) {
    return !TheDisk().Folder.empty() && IsBelow(PathOf(file));
}

bool IsThere(int folder, const char* path) {
    const int before = errno;
    const bool there = faccessat(folder, path, F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    errno = before;
    return there;
}

struct stat StatusOf(int file) {
    struct stat status {};
    syscall(SYS_fstat, file, &status);
    return status;
}

long Open(int folder, const char* path, int flags, mode_t mode) {
    const auto open = [&](bool = false) { return syscall(SYS_openat, folder, path, flags, mode); };
    const bool unnamed = (flags & O_TMPFILE) == O_TMPFILE;
    const bool changes = unnamed || (flags & (O_CREAT | O_TRUNC)) != 0;
    if (!changes || TheDisk().Folder.empty()) {
        return open();
    }
    const std::string whole = Canonical(folder, path);
    const bool isNew = unnamed || ((flags & O_CREAT) != 0 && !IsThere(folder, path));
    if (!IsBelow(whole) || (!isNew && (flags & O_TRUNC) == 0)) {
        return open();
    }
    const char* what = isNew ? "create" : "truncate";
    return Step(what, isNew ? Need::Space : Need::Nothing, open, [&](long file) {
        return Entry{.File = StatusOf(static_cast<int>(file)).st_ino,
                     .Path = unnamed ? std::string() : whole};
    });
}

long Write(int file, const char* data, std::size_t size, off_t place, bool atPlace) {
    const auto write = [&](bool half) {
        const std::size_t part = half ? std::max<std::size_t>(size / 2, 1) : size;
        return atPlace ? syscall(SYS_pwrite64, file, data, part, place)
                       : syscall(SYS_write, file, data, part);
    };
    if (file == STDOUT_FILENO && !TheDisk().Folder.empty()) {
        Note({.What = "said", .Data = std::string(data, size)});
        return write(false);
    }
    if (!IsTroubled(file)) {
        return write(false);
    }
    const struct stat status = StatusOf(file);
    if (!atPlace) {
        place = (fcntl(file, F_GETFL) & O_APPEND) != 0 ? status.st_size : lseek(file, 0, SEEK_CUR);
    }
    return Step("write", Need::Bytes, write, [&](long written) {
        return Entry{.File = status.st_ino,
                     .Place = place,
                     .Data = std::string(data, static_cast<std::size_t>(written))};
    });
}

long WriteParts(int file, const iovec* parts, int count, off_t place, bool atPlace) {
    std::string data;
    for (int part = 0; part < count; ++part) {
        data.append(static_cast<const char*>(parts[part].iov_base), parts[part].iov_len);
    }
    return Write(file, data.data(), data.size(), place, atPlace);
}

long Synchronise(int file, long call) {
    const auto synchronise = [&](bool = false) { return syscall(call, file); };
    if (!IsTroubled(file)) {
        return synchronise();
    }
    const struct stat status = StatusOf(file);
    const bool isFolder = S_ISDIR(status.st_mode);
    return Step(isFolder ? "sync-folder" : "sync", Need::Nothing, synchronise,
                [&](long) { return Entry{.File = status.st_ino, .Path = PathOf(file)}; });
}

long Truncate(int file, off_t size) {
    const auto truncate = [&](bool = false) { return syscall(SYS_ftruncate, file, size); };
    if (!IsTroubled(file)) {
        return truncate();
    }
    const struct stat status = StatusOf(file);
    return Step("truncate", size > status.st_size ? Need::Space : Need::Nothing, truncate,
                [&](long) { return Entry{.File = status.st_ino, .Place = size}; });
}

/// Rename or link: what makes one name of another.
template <typename Call>
long Name(std::string_view what, int folder, const char* path, int otherFolder, const char* other,
          Need need, Call call) {
    if (TheDisk().Folder.empty()) {
        return call(false);
    }
    const std::string target = Canonical(otherFolder, other);
    // A file without a name is linked through the name that the system keeps of its descriptor.
    struct stat status {};
    syscall(SYS_newfstatat, folder, path, &status,
            std::string_view(path).starts_with("/proc/") ? 0 : AT_SYMLINK_NOFOLLOW);
    if (!IsBelow(target)) {
        return call(false);
    }
    return Step(what, need, call, [&](long) {
        return Entry{.File = status.st_ino, .Path = Canonical(folder, path), .Other = target};
    });
}

long Rename(int folder, const char* path, int otherFolder, const char* other, unsigned flags) {
    return Name("rename", folder, path, otherFolder, other, Need::Nothing, [&](bool) {
        return syscall(SYS_renameat2, folder, path, otherFolder, other, flags);
    });
}

long Link(int folder, const char* path, int otherFolder, const char* other, int flags) {
    return Name("link", folder, path, otherFolder, other, Need::Space,
                [&](bool) { return syscall(SYS_linkat, folder, path, otherFolder, other, flags); });
}

/// Unlink, mkdir and rmdir: what changes one name.
template <typename Call>
long Change(std::string_view what, int folder, const char* path, Need need, Call call) {
    const std::string whole = TheDisk().Folder.empty() ? std::string() : Canonical(folder, path);
    // What is not there is no step: every program may look for it.
    if (!IsBelow(whole) || IsThere(folder, path) == (what == "mkdir")) {
        return call(false);
    }
    return Step(what, need, call, [&](long) { return Entry{.Path = whole}; });
}

long Unlink(int folder, const char* path, int flags) {
    const char* what = (flags & AT_REMOVEDIR) != 0 ? "rmdir" : "unlink";
    return Change(what, folder, path, Need::Nothing,
                  [&](bool) { return syscall(SYS_unlinkat, folder, path, flags); });
}

long MakeFolder(int folder, const char* path, mode_t mode) {
    return Change("mkdir", folder, path, Need::Space,
                  [&](bool) { return syscall(SYS_mkdirat, folder, path, mode); });
}

int ToInt(long result) {
    return static_cast<int>(result);
}

/// The mode that follows the flags where they make a file.
mode_t ModeIn(int flags, va_list arguments) {
    const bool makes = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return makes ? va_arg(arguments, mode_t) : 0;
}

/// The function of that name that this library stands before.
template <typename Function>
Function Behind(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

/// A stream is opened here, so that its file is made in a step; what it writes is written by the C
/// library itself and cannot be seen. A test finds that out: the log does not tell the whole file.
FILE* OpenStream(const char* path, const char* mode) {
    const std::string_view wanted = mode;
    const bool both = wanted.find('+') != std::string_view::npos;
    int flags = O_RDONLY;
    if (!wanted.starts_with('r')) {
        flags = O_WRONLY | O_CREAT | (wanted.starts_with('a') ? O_APPEND : O_TRUNC);
    }
    if (both) {
        flags = (flags & ~O_ACCMODE) | O_RDWR;
    }
    if (wanted.find('e') != std::string_view::npos) {
        flags |= O_CLOEXEC;
    }
    if (wanted.find('x') != std::string_view::npos) {
        flags |= O_EXCL;
    }
    const int file = ToInt(Open(AT_FDCWD, path, flags, 0666));
    return file < 0 ? nullptr : fdopen(file, mode);
}

} // namespace

// NOLINTBEGIN: the names are those of the C library.
extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return ToInt(Open(AT_FDCWD, path, flags, mode));
}
int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return ToInt(Open(AT_FDCWD, path, flags, mode));
}
int openat(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return ToInt(Open(folder, path, flags, mode));
}
int openat64(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return ToInt(Open(folder, path, flags, mode));
}
int __open_2(const char* path, int flags) {
    return ToInt(Open(AT_FDCWD, path, flags, 0));
}
int __open64_2(const char* path, int flags) {
    return ToInt(Open(AT_FDCWD, path, flags, 0));
}
int creat(const char* path, mode_t mode) {
    return ToInt(Open(AT_FDCWD, path, O_WRONLY | O_CREAT | O_TRUNC, mode));
}
int creat64(const char* path, mode_t mode) {
    return creat(path, mode);
}
FILE* fopen(const char* path, const char* mode) {
    return OpenStream(path, mode);
}
FILE* fopen64(const char* path, const char* mode) {
    return OpenStream(path, mode);
}
int mkostemp(char* path, int flags) {
    // The C library would make the file where this cannot see it.
    const std::size_t size = std::string_view(path).size();
    for (unsigned attempt = 0; attempt < 1000; ++attempt) {
        const std::string name = std::to_string(100000 + (getpid() * 31U + attempt) % 900000);
        std::copy(name.begin(), name.end(), path + size - name.size());
        const int file = ToInt(Open(AT_FDCWD, path, O_RDWR | O_CREAT | O_EXCL | flags, 0600));
        if (file >= 0 || errno != EEXIST) {
            return file;
        }
    }
    return -1;
}
int mkstemp(char* path) {
    return mkostemp(path, 0);
}
int mkostemp64(char* path, int flags) {
    return mkostemp(path, flags);
}
int mkstemp64(char* path) {
    return mkostemp(path, 0);
}

ssize_t write(int file, const void* data, size_t size) {
    return Write(file, static_cast<const char*>(data), size, 0, false);
}
ssize_t pwrite(int file, const void* data, size_t size, off_t place) {
    return Write(file, static_cast<const char*>(data), size, place, true);
}
ssize_t pwrite64(int file, const void* data, size_t size, off64_t place) {
    return Write(file, static_cast<const char*>(data), size, place, true);
}
ssize_t writev(int file, const iovec* parts, int count) {
    return WriteParts(file, parts, count, 0, false);
}
ssize_t pwritev(int file, const iovec* parts, int count, off_t place) {
    return WriteParts(file, parts, count, place, true);
}
ssize_t pwritev64(int file, const iovec* parts, int count, off64_t place) {
    return WriteParts(file, parts, count, place, true);
}
// Who copies within the system falls back to reading and writing.
ssize_t sendfile(int to, int from, off_t* place, size_t size) {
    using Function = ssize_t (*)(int, int, off_t*, size_t);
    if (IsTroubled(to)) {
        errno = EINVAL;
        return -1;
    }
    return Behind<Function>("sendfile")(to, from, place, size);
}
ssize_t sendfile64(int to, int from, off64_t* place, size_t size) {
    return sendfile(to, from, place, size);
}
ssize_t copy_file_range(int from, off64_t* fromPlace, int to, off64_t* toPlace, size_t size,
                        unsigned flags) {
    using Function = ssize_t (*)(int, off64_t*, int, off64_t*, size_t, unsigned);
    if (IsTroubled(to)) {
        errno = EINVAL;
        return -1;
    }
    return Behind<Function>("copy_file_range")(from, fromPlace, to, toPlace, size, flags);
}
int ioctl(int file, unsigned long request, ...) {
    using Function = int (*)(int, unsigned long, void*);
    va_list arguments;
    va_start(arguments, request);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    constexpr unsigned long CloneFile = 0x40049409;
    if (request == CloneFile && IsTroubled(file)) {
        errno = EOPNOTSUPP;
        return -1;
    }
    return Behind<Function>("ioctl")(file, request, argument);
}

int fsync(int file) {
    return ToInt(Synchronise(file, SYS_fsync));
}
int fdatasync(int file) {
    return ToInt(Synchronise(file, SYS_fdatasync));
}
int ftruncate(int file, off_t size) noexcept {
    return ToInt(Truncate(file, size));
}
int ftruncate64(int file, off64_t size) noexcept {
    return ToInt(Truncate(file, size));
}

int rename(const char* path, const char* other) noexcept {
    return ToInt(Rename(AT_FDCWD, path, AT_FDCWD, other, 0));
}
int renameat(int folder, const char* path, int otherFolder, const char* other) noexcept {
    return ToInt(Rename(folder, path, otherFolder, other, 0));
}
int renameat2(int folder, const char* path, int otherFolder, const char* other,
              unsigned flags) noexcept {
    return ToInt(Rename(folder, path, otherFolder, other, flags));
}
int link(const char* path, const char* other) noexcept {
    return ToInt(Link(AT_FDCWD, path, AT_FDCWD, other, 0));
}
int linkat(int folder, const char* path, int otherFolder, const char* other, int flags) noexcept {
    return ToInt(Link(folder, path, otherFolder, other, flags));
}
int unlink(const char* path) noexcept {
    return ToInt(Unlink(AT_FDCWD, path, 0));
}
int unlinkat(int folder, const char* path, int flags) noexcept {
    return ToInt(Unlink(folder, path, flags));
}
int rmdir(const char* path) noexcept {
    return ToInt(Unlink(AT_FDCWD, path, AT_REMOVEDIR));
}
int remove(const char* path) noexcept {
    struct stat status {};
    const bool isFolder =
        syscall(SYS_newfstatat, AT_FDCWD, path, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
        S_ISDIR(status.st_mode);
    return isFolder ? rmdir(path) : unlink(path);
}
int mkdir(const char* path, mode_t mode) noexcept {
    return ToInt(MakeFolder(AT_FDCWD, path, mode));
}
int mkdirat(int folder, const char* path, mode_t mode) noexcept {
    return ToInt(MakeFolder(folder, path, mode));
}
}
// NOLINTEND
