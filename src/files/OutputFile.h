// Files that the program writes for the user: whole or not at all, and never over a database.

#pragma once

#include <stdexcept>
#include <string>

namespace tarn {

/// A file cannot be written; what() names it and says why.
class OutputFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Write `content` to a file, whole or not at all, or to a device or pipe of that name. Raises
/// OutputFileError when it cannot be written, and when a database stands there, so that a slip of
/// the hand never costs the projects; a file that was there before is then still there.
void WriteOutputFile(const std::string& path, const std::string& content);

} // namespace tarn
