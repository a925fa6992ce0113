// Who may read what the program keeps: its owner alone, or the group that shares the folder.

#pragma once

#include <filesystem>
#include <vector>

namespace tarn {

/// The permissions of a new file in `folder`, whatever the process's umask: reading and writing for
/// its owner (0600). A folder that its group may write to, and not everybody, is shared: then what
/// the folder allows, without running (0660 in a folder of 0770). A folder that is missing counts
/// as the nearest one above it that is there.
std::filesystem::perms PrivateFileMode(const std::filesystem::path& folder);

/// The permissions of a new folder in `folder`: all for its owner (0700), or those of a shared
/// folder as they are, with its bit that hands the group on.
std::filesystem::perms PrivateFolderMode(const std::filesystem::path& folder);

/// Make `folder`, and those missing on the way to it, each with PrivateFolderMode of the one above
/// and stored on the disk. Gives those made, outermost first; none when it is there. Raises
/// filesystem_error, with nothing left behind, when one cannot be made.
std::vector<std::filesystem::path> MakePrivateFolder(const std::filesystem::path& folder);

/// Make an empty file with PrivateFileMode of its folder, to be filled by whoever opens it next.
/// Raises filesystem_error when it cannot be made, and when anything stands there.
void MakePrivateFile(const std::filesystem::path& file);

/// Give a file that something else made PrivateFileMode of `folder`. A file system that knows no
/// permissions keeps its own.
void SetPrivateMode(const std::filesystem::path& file, const std::filesystem::path& folder);

} // namespace tarn
