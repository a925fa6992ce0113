// File descriptors of the system, and what becomes of its errors.

#pragma once

#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace tarn {

/// A file descriptor that is closed when it goes.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number)
        : number_(number) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept
        : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// Close it now. Raises std::system_error when the system could not keep what was written.
    void Close();

  private:
    int number_ = -1;
};

/// The last error of a system call.
std::system_error LastError();

/// Write all of `content`, in as many calls as the system takes. Raises std::system_error.
void WriteAll(const Descriptor& file, std::string_view content);

/// Write the content of the file `from` to a new file, which its owner alone may read. Raises
/// std::system_error, also when anything stands at `to`.
void CopyContent(const std::string& from, const std::string& to);

/// Have what was written stored on the disk. Raises std::system_error.
void Synchronise(const Descriptor& file);

/// Why the system refuses, in words for the user, without a point at the end.
std::string CauseOf(const std::error_code& error);

} // namespace tarn
