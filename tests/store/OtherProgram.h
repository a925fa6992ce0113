// Another program at work on a database file, in a process of its own.

#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace tarn::testing {

/// A process that has run statements on a database file, and then holds still: with the transaction
/// that it began, and its locks. It is killed when this goes.
class OtherProgram {
  public:
    OtherProgram(const std::string& path, const std::vector<std::string>& statements);
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

  private:
    pid_t process_ = -1;
};

} // namespace tarn::testing
