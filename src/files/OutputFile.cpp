#include "files/OutputFile.h"

#include "base/Words.h"
#include "files/DatabaseFormat.h"
#include "files/DeviceOutput.h"
#include "files/FileModes.h"
#include "files/TemporaryFile.h"

#include <cerrno>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tarn {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Refuse(const std::string& path, const std::string& cause) {
    throw OutputFileError(Words("The file %1 cannot be written: %2.", path, cause));
}

bool IsDevice(const struct stat& status) {
    return !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

/// Where the links lead that begin at `path`; nothing need stand there.
std::string BehindLinks(const std::string& path) {
    constexpr int MostLinks = 40; // as many as the system follows
    fs::path end = path;
    for (int links = 0; fs::is_symlink(fs::symlink_status(end)); ++links) {
        if (links == MostLinks) {
            throw std::system_error(std::make_error_code(std::errc::too_many_symbolic_link_levels));
        }
        end = end.parent_path() / fs::read_symlink(end);
    }
    return end.native();
}

void RequireReplaceable(const std::string& path, const std::string& target, Overwrite over) {
    constexpr mode_t AnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    struct stat status {};
    if (::stat(target.c_str(), &status) != 0) {
        if (errno != ENOENT) {
            throw LastError();
        }
        return;
    }
    if (S_ISDIR(status.st_mode)) {
        throw std::system_error(std::make_error_code(std::errc::is_a_directory));
    }
    if ((status.st_mode & AnyWrite) == 0) {
        Refuse(path, Words("it is read-only"));
    }
    if (::access(target.c_str(), W_OK) != 0) {
        throw LastError();
    }
    if (over != Overwrite::Anything && IsDatabaseFile(target)) {
        throw OutputFileError(
            Words("The file %1 is a database and stays as it is. Name another file for the output.",
                  path));
    }
}

std::optional<fs::perms> ModeOf(NewFile made, const std::string& target) {
    return made == NewFile::Private ? std::optional(PrivateFileMode(FolderOfPath(target)))
                                    : std::nullopt;
}

void WriteFile(const std::string& path, const std::string& content, Overwrite over, NewFile made) {
    const std::string target = BehindLinks(path);
    if (target != path && over == Overwrite::Files) {
        throw OutputFileError(Words("The file %1 is a link, which leads to %2, and stays as it is. "
                                    "Name another file for the output.",
                                    path, target));
    }
    RequireReplaceable(path, target, over);
    RemoveLeftOvers(FolderOfPath(target));
    TemporaryFile file(target, ModeOf(made, target));
    file.Fill(content);
    file.Place();
}

} // namespace

void WriteOutputFile(const std::string& path, const std::string& content, Overwrite over,
                     NewFile made) {
    try {
        struct stat there {};
        if (::stat(path.c_str(), &there) == 0 && IsDevice(there)) {
            WriteToDevice(path, content);
        } else {
            WriteFile(path, content, over, made);
        }
    } catch (const NotTakenBack& error) {
        Refuse(path, Words("%1. The new file may be there all the same", CauseOf(error.code())));
    } catch (const std::system_error& error) {
        if (error.code() == std::errc::timed_out) {
            Refuse(path, Words("nothing reads from it"));
        }
        Refuse(path, CauseOf(error.code()));
    }
}

void SynchroniseFolder(const std::string& folder) {
    try {
        SynchroniseEntries(folder);
    } catch (const std::system_error& error) {
        throw OutputFileError(
            Words("The folder %1 cannot be stored: %2.", folder, CauseOf(error.code())));
    }
}

} // namespace tarn
