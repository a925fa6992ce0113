#include "files/TemporaryFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/file.h>
#include <unistd.h>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view NameEnd = ".part";
constexpr std::size_t NameDigits = 16;
constexpr std::string_view HexadecimalDigits = "0123456789abcdef";

std::string NewName() {
    static std::random_device random;
    std::string name(InMakingStart);
    for (std::size_t i = 0; i < NameDigits; ++i) {
        name += HexadecimalDigits[random() % HexadecimalDigits.size()];
    }
    return name.append(NameEnd);
}

bool IsNameOfOne(std::string_view name) {
    return name.size() == InMakingStart.size() + NameDigits + NameEnd.size() &&
           name.starts_with(InMakingStart) && name.ends_with(NameEnd) &&
           name.substr(InMakingStart.size(), NameDigits).find_first_not_of(HexadecimalDigits) ==
               std::string_view::npos;
}

std::string PathIn(const std::string& folder, const std::string& name) {
    return folder.ends_with('/') ? folder + name : folder + '/' + name;
}

/// Whether this run has the file's lock now. True also where the file system knows no locks: nobody
/// else gets it there either.
bool Lock(const Descriptor& file) {
    return ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

/// Whether `file` is what stands at `path`, and not one that stood there before.
bool StandsAt(const Descriptor& file, const std::string& path) {
    struct stat opened {};
    struct stat there {};
    return ::fstat(file.Number(), &opened) == 0 && ::lstat(path.c_str(), &there) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

void RemoveLeftOver(const std::string& path) {
    const Descriptor file(
        ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status {};
    // Without its lock it is the file of a run that is still alive.
    if (file.IsOpen() && ::fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode) &&
        ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0 && StandsAt(file, path)) {
        ::unlink(path.c_str());
    }
}

bool IsNameOfFolder(std::string_view name) {
    return name.size() == InMakingStart.size() + FolderInMakingDigits &&
           name.starts_with(InMakingStart) &&
           std::all_of(name.begin() + InMakingStart.size(), name.end(), [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
           });
}

void RemoveFolderLeftOver(const std::string& path) {
    const Descriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (folder.IsOpen() && ::flock(folder.Number(), LOCK_EX | LOCK_NB) == 0 &&
        StandsAt(folder, path)) {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
}

/// The file that stands at the target, kept under a second name until its successor is safe.
class FormerFile {
  public:
    explicit FormerFile(const std::string& target)
        : path_(PathIn(FolderOfPath(target), NewName()))
        , file_(::open(target.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
        if (file_.IsOpen()) {
            Lock(file_);
        }
        isKept_ = ::link(target.c_str(), path_.c_str()) == 0;
    }
    ~FormerFile() {
        if (isKept_) {
            ::unlink(path_.c_str());
        }
    }
    FormerFile(const FormerFile&) = delete;
    FormerFile& operator=(const FormerFile&) = delete;

    /// Whether it stands there again.
    bool PutBack(const std::string& target) {
        if (!isKept_ || ::rename(path_.c_str(), target.c_str()) != 0) {
            return false;
        }
        isKept_ = false;
        return true;
    }

  private:
    std::string path_;
    Descriptor file_;
    bool isKept_ = false;
};

} // namespace

TemporaryFile::TemporaryFile(std::string target, std::optional<fs::perms> mode)
    : target_(std::move(target))
    , mode_(mode) {
    constexpr mode_t Everybody = 0666; // less what the user's mask takes away
    constexpr mode_t OwnerAlone = 0600;
    struct stat former {};
    if (::stat(target_.c_str(), &former) == 0) {
        former_ = former;
    }
    Make(former_ || mode_ ? OwnerAlone : Everybody);
}

void TemporaryFile::Make(mode_t mode) {
    const std::string folder = FolderOfPath(target_);
    for (;;) {
        path_ = PathIn(folder, NewName());
        file_ = Descriptor(::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (file_.IsOpen()) {
            // Between its making and its locking another run may take it for a left-over.
            if (Lock(file_) && StandsAt(file_, path_)) {
                return;
            }
        } else if (errno != EEXIST && errno != EINTR) {
            throw LastError();
        }
    }
}

TemporaryFile::~TemporaryFile() {
    if (!placed_) {
        ::unlink(path_.c_str());
    }
}

void TemporaryFile::TakePermissions(const struct stat& former) const {
    constexpr mode_t All = 07777;
    constexpr mode_t WithoutSetId = 0777;
    const bool owned = ::fchown(file_.Number(), former.st_uid, former.st_gid) == 0;
    if (!owned) {
        // The group at least, by which others may read it.
        static_cast<void>(::fchown(file_.Number(), static_cast<uid_t>(-1), former.st_gid) == 0);
    }
    if (::fchmod(file_.Number(), former.st_mode & (owned ? All : WithoutSetId)) != 0) {
        throw LastError();
    }
}

void TemporaryFile::Fill(std::string_view content) {
    if (former_) {
        TakePermissions(*former_);
    } else if (mode_) {
        std::error_code notKept; // a file system that knows no permissions keeps its own
        fs::permissions(path_, *mode_, notKept);
    }
    WriteAll(file_, content);
    Synchronise(file_);
    // Closing, too, may tell that it could not be stored; but the lock must stay.
    Descriptor copy(::fcntl(file_.Number(), F_DUPFD_CLOEXEC, 0));
    if (!copy.IsOpen()) {
        throw LastError();
    }
    copy.Close();
}

void TemporaryFile::Place() {
    FormerFile former(target_);
    if (::rename(path_.c_str(), target_.c_str()) != 0) {
        throw LastError();
    }
    placed_ = true;
    try {
        SynchroniseEntries(FolderOfPath(target_));
    } catch (const std::system_error& error) {
        const bool isAsBefore = former_ ? former.PutBack(target_) : ::unlink(target_.c_str()) == 0;
        if (!isAsBefore) {
            throw NotTakenBack(error.code());
        }
        throw;
    }
}

std::string FolderOfPath(const std::string& path) {
    const std::size_t end = path.find_last_of('/');
    if (end == std::string::npos) {
        return ".";
    }
    return path.substr(0, std::max<std::size_t>(end, 1));
}

void SynchroniseEntries(const std::string& folder) {
    const Descriptor entries(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!entries.IsOpen()) {
        if (errno == EACCES) {
            return;
        }
        throw LastError();
    }
    try {
        Synchronise(entries);
    } catch (const std::system_error& error) {
        if (error.code().value() != EINVAL && error.code().value() != ENOTSUP) {
            throw;
        }
    }
}

void RemoveLeftOvers(const std::string& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        if (IsNameOfOne(name)) {
            RemoveLeftOver(entry->path().native());
        } else if (IsNameOfFolder(name)) {
            RemoveFolderLeftOver(entry->path().native());
        }
    }
}

} // namespace tarn
