#include "files/Descriptor.h"

#include <cerrno>
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

void Synchronise(const Descriptor& file) {
    while (::fsync(file.Number()) != 0) {
        if (errno != EINTR) {
            throw LastError();
        }
    }
}

std::string CauseOf(const std::error_code& error) {
    if (error == std::errc::no_space_on_device || error.value() == EDQUOT) {
        return "the disk is full. Free some space and try again";
    }
    return error.message();
}

} // namespace tarn
