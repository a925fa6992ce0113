// The files of the command-line programs, standard output among them.

#pragma once

#include "files/OutputFile.h"

#include <cstddef>
#include <string>

namespace tarn {

/// The name that stands for standard output.
inline constexpr const char* StandardOutput = "-";

/// The whole content of a file of at most `mostBytes`. Raises Refusal when it cannot be read, is
/// larger, or is a folder, a device or a pipe, which may have no end.
std::string ReadWholeFile(const std::string& path, std::size_t mostBytes);

/// Write `content` to a file as WriteOutputFile does, or to standard output for "-". Raises
/// OutputFileError or Refusal when it cannot be written.
void WriteWholeFile(const std::string& path, const std::string& content,
                    Overwrite over = Overwrite::Files);

/// Whether two names lead to the same file, be it there or not.
bool IsSameFile(const std::string& path, const std::string& other);

/// Raise Refusal when `output` is the file `input`, under whatever name: writing it would destroy
/// what is read.
void RequireOtherFile(const std::string& output, const std::string& input);

} // namespace tarn
