// Permissions of files in tests, and the umask under which they are made.

#pragma once

#include <filesystem>
#include <iomanip>
#include <sstream>
#include <string>
#include <sys/stat.h>

namespace tarn::testing {

/// Permissions as they are usually written.
inline std::string Octal(std::filesystem::perms mode) {
    std::ostringstream text;
    text << std::oct << std::setw(4) << std::setfill('0') << static_cast<unsigned>(mode);
    return text.str();
}

inline std::string ModeOf(const std::filesystem::path& path) {
    return Octal(std::filesystem::status(path).permissions());
}

/// The process's umask, until the end of the scope.
class Umask {
  public:
    explicit Umask(mode_t mask)
        : before_(::umask(mask)) {}
    ~Umask() { ::umask(before_); }
    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;

  private:
    mode_t before_;
};

/// One that takes nothing, the usual one, and one that takes more than a shared folder allows.
inline constexpr mode_t Umasks[] = {0000, 0022, 0077};

} // namespace tarn::testing
