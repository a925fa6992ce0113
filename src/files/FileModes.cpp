#include "files/FileModes.h"

#include "base/Words.h"
#include "files/TemporaryFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tarn {

namespace fs = std::filesystem;

namespace {

constexpr fs::perms OwnerFile = fs::perms::owner_read | fs::perms::owner_write;
constexpr fs::perms Running =
    fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;

/// A file named without a folder is in the one where the process runs.
fs::path OrHere(const fs::path& folder) {
    return folder.empty() ? fs::path(".") : folder;
}

/// The permissions of a folder that its group shares; none for every other.
fs::perms SharedMode(const fs::path& folder) {
    fs::path there = OrHere(folder);
    std::error_code error;
    while (!fs::exists(there, error) && there != there.parent_path()) {
        there = OrHere(there.parent_path());
    }
    const fs::file_status status = fs::status(there, error);
    if (!fs::is_directory(status)) {
        return fs::perms::none;
    }
    const fs::perms mode = status.permissions();
    const auto has = [mode](fs::perms bit) { return (mode & bit) != fs::perms::none; };
    return has(fs::perms::group_write) && !has(fs::perms::others_write) ? mode : fs::perms::none;
}

mode_t Bits(fs::perms mode) {
    return static_cast<mode_t>(mode);
}

[[noreturn]] void Raise(const std::string& what, const fs::path& path) {
    throw fs::filesystem_error(what, path, std::error_code(errno, std::generic_category()));
}

/// What the umask took from a new file or folder is given back.
void SetMode(const fs::path& path, fs::perms mode) {
    std::error_code notKept;
    fs::permissions(path, mode, notKept);
}

void RemoveAll(std::vector<fs::path>& folders) {
    for (; !folders.empty(); folders.pop_back()) {
        std::error_code ignored;
        fs::remove(folders.back(), ignored); // one that holds something by now stays
    }
}

} // namespace

fs::perms PrivateFileMode(const fs::path& folder) {
    return (SharedMode(folder) & (fs::perms::all & ~Running)) | OwnerFile;
}

fs::perms PrivateFolderMode(const fs::path& folder) {
    return (SharedMode(folder) & (fs::perms::all | fs::perms::set_gid)) | fs::perms::owner_all;
}

std::vector<fs::path> MakePrivateFolder(const fs::path& folder) {
    std::vector<fs::path> missing;
    for (fs::path path = OrHere(folder); !fs::exists(path); path = OrHere(path.parent_path())) {
        missing.push_back(path);
    }
    std::vector<fs::path> made;
    for (; !missing.empty(); missing.pop_back()) {
        const fs::path& path = missing.back();
        const fs::perms mode = PrivateFolderMode(path.parent_path());
        if (::mkdir(path.c_str(), Bits(mode & fs::perms::all)) != 0) {
            const int cause = errno;
            if (cause == EEXIST && fs::is_directory(path)) {
                continue; // the same folder spelt in another way, or made by another program
            }
            RemoveAll(made);
            errno = cause;
            Raise(Words("The folder cannot be made"), path);
        }
        SetMode(path, mode);
        made.push_back(path);
        try {
            SynchroniseEntries(OrHere(path.parent_path()).native());
        } catch (const std::system_error& error) {
            RemoveAll(made);
            throw fs::filesystem_error(Words("The folder cannot be made"), path, error.code());
        }
    }
    return made;
}

void MakePrivateFile(const fs::path& file) {
    const fs::perms mode = PrivateFileMode(file.parent_path());
    const int made = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, Bits(mode));
    if (made < 0) {
        Raise(Words("The file cannot be made"), file);
    }
    ::close(made);
    SetMode(file, mode);
}

void SetPrivateMode(const fs::path& file, const fs::path& folder) {
    SetMode(file, PrivateFileMode(folder));
}

} // namespace tarn
