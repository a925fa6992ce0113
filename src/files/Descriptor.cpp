#include "files/Descriptor.h"

#include "base/Words.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tarn {

Descriptor::~Descriptor() {
    if (IsOpen()) {
        ::close(number_);
    }
}

void Descriptor::Close() {
    if (::close(std::exchange(number_, -1)) != 0) {
        throw LastError();
    }
}

std::system_error LastError() {
    return {errno, std::generic_category()};
}

void WriteAll(const Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(file.Number(), content.data(), content.size());
        if (written >= 0) {
            content.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            throw LastError();
        }
    }
}

void CopyContent(const std::string& from, const std::string& to) {
    constexpr mode_t OwnerAlone = 0600;
    const Descriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    if (!source.IsOpen()) {
        throw LastError();
    }
    Descriptor copy(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, OwnerAlone));
    if (!copy.IsOpen()) {
        throw LastError();
    }
    std::array<char, std::size_t{64} * 1024> part{};
    for (;;) {
        const ssize_t count = ::read(source.Number(), part.data(), part.size());
        if (count == 0) {
            break;
        }
        if (count > 0) {
            WriteAll(copy, {part.data(), static_cast<std::size_t>(count)});
        } else if (errno != EINTR) {
            throw LastError();
        }
    }
    copy.Close();
}

void Synchronise(const Descriptor& file) {
    while (::fsync(file.Number()) != 0) {
        if (errno != EINTR) {
            throw LastError();
        }
    }
}

std::string CauseOf(const std::error_code& error) {
    if (error == std::errc::no_space_on_device || error.value() == EDQUOT) {
        return Words("the disk is full. Free some space and try again");
    }
    return error.message();
}

} // namespace tarn
