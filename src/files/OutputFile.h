// Files that the program writes for the user: whole or not at all, and never over a database by
// mistake.

#pragma once

#include <stdexcept>
#include <string>

namespace tarn {

/// A file cannot be written; what() names it and says why.
class OutputFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What may stand at the path of an output file.
enum class Overwrite {
    Files,  ///< a file, but neither a database nor a symbolic link to another file: for a path
            ///< that was written in a command, where nothing has asked
    Chosen, ///< also a link, which stays and leads to the new file then: for a file box, which has
            ///< asked whether the file is to be replaced. It cannot tell that it is a database
    Anything, ///< also a database: for a command with --force
};

/// Who may read a file that replaces none.
enum class NewFile {
    AsUsual, ///< whom the user's mask leaves
    Private, ///< as PrivateFileMode says
};

/// Write `content` to a file, whole or not at all: beside it first, stored on the disk, then put in
/// its place. The file has the owner, group and mode of the one that it replaces, as far as the
/// system allows, or else what `made` says. What killed runs left beside it of their output is
/// removed.
///
/// To a device or pipe of that name it is written as it is; a pipe that nobody reads is given up
/// after a while.
///
/// Raises OutputFileError when it cannot be written, or when something stands there that `over`
/// does not allow to be written over; the file that was there before is then still there, whole,
/// unless the message says that the new one may be there. A file that may not be written stays as
/// it is whatever `over` says.
void WriteOutputFile(const std::string& path, const std::string& content,
                     Overwrite over = Overwrite::Chosen, NewFile made = NewFile::AsUsual);

/// Have the entries of a folder stored on the disk: the files that were made, renamed and removed
/// in it. Nothing where the system has no way to do so: in a folder that may not be read, and on a
/// file system that knows no such thing. Raises OutputFileError, which names the folder.
void SynchroniseFolder(const std::string& folder);

} // namespace tarn
