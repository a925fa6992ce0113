// The files of the command-line programs, standard output among them.

#pragma once

#include <string>

namespace tarn {

/// The name that stands for standard output.
inline constexpr const char* StandardOutput = "-";

/// The whole content of a file. Raises Refusal when it cannot be read.
std::string ReadWholeFile(const std::string& path);

/// Write `content` to a file as WriteOutputFile does, or to standard output for "-". Raises
/// OutputFileError or Refusal when it cannot be written.
void WriteWholeFile(const std::string& path, const std::string& content);

/// Whether two names lead to the same file, be it there or not.
bool IsSameFile(const std::string& path, const std::string& other);

/// Raise Refusal when `output` is the file `input`, under whatever name: writing it would destroy
/// what is read.
void RequireOtherFile(const std::string& output, const std::string& input);

} // namespace tarn
