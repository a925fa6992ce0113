// Files in the making: beside their target, under a name of their own, until they are whole.

#pragma once

#include "files/Descriptor.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>

namespace tarn {

/// What is in the making has a name that begins so: a file, or a folder in which a file is made by
/// others than TemporaryFile, with so many letters and digits behind it.
inline constexpr std::string_view InMakingStart = ".tarn-";
inline constexpr std::size_t FolderInMakingDigits = 6;

/// A file was put in its place, the disk does not confirm that it keeps it, and it could not be
/// taken away again: nobody knows what is there.
class NotTakenBack : public std::system_error {
  public:
    using std::system_error::system_error;
};

/// A new, empty file in the folder of its target, locked for as long as this run makes it, so that
/// no other takes it for a left-over. It is removed again unless it was placed. All raise
/// std::system_error.
class TemporaryFile {
  public:
    /// A file for the path `target`, which need not be there. Of a file that stands there it will
    /// have owner, group and mode, as far as the system allows it; else `mode`, or, without one,
    /// what the user's mask leaves.
    explicit TemporaryFile(std::string target,
                           std::optional<std::filesystem::perms> mode = std::nullopt);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Write the content and have it stored on the disk.
    void Fill(std::string_view content);
    /// Put the file in the place of the target, and see to it that it stays there. When that fails
    /// the target is again as it was, or NotTakenBack is raised.
    void Place();

  private:
    void Make(mode_t mode);
    void TakePermissions(const struct stat& former) const;

    std::string target_;
    std::optional<std::filesystem::perms> mode_; ///< where there is no target
    std::optional<struct stat> former_;          ///< what the target was
    std::string path_;
    Descriptor file_;
    bool placed_ = false;
};

/// The folder of a path, "." for a name alone.
std::string FolderOfPath(const std::string& path);

/// Have the entries of a folder stored on the disk. Nothing where the system has no way to do so:
/// in a folder that may not be read, and on a file system that knows no such thing. Raises
/// std::system_error.
void SynchroniseEntries(const std::string& folder);

/// Remove what runs that were killed left in a folder: files in the making, and folders of such
/// files. A run that is alive has a lock on its own (flock).
void RemoveLeftOvers(const std::string& folder);

} // namespace tarn
