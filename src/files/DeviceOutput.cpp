#include "files/DeviceOutput.h"

#include "files/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tarn {

namespace {

/// Keeps the signal of a pipe without a reader from ending the program while it lives: the write
/// tells it too.
class NoPipeSignal {
  public:
    NoPipeSignal() {
        sigemptyset(&signal_);
        sigaddset(&signal_, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &signal_, &before_);
    }
    ~NoPipeSignal() {
        if (sigismember(&before_, SIGPIPE) == 0) {
            const timespec now{};
            while (sigtimedwait(&signal_, nullptr, &now) > 0) {
            }
        }
        pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    }
    NoPipeSignal(const NoPipeSignal&) = delete;
    NoPipeSignal& operator=(const NoPipeSignal&) = delete;

  private:
    sigset_t signal_{};
    sigset_t before_{};
};

bool IsPipe(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISFIFO(status.st_mode);
}

/// Open without waiting: a pipe that nobody reads would be waited for without end.
Descriptor Open(const std::string& path, std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds Pause(20);
    const auto end = std::chrono::steady_clock::now() + patience;
    for (;;) {
        Descriptor file(::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        if (file.IsOpen()) {
            return file;
        }
        const std::error_code error = LastError().code();
        if (error.value() != EINTR && (error.value() != ENXIO || !IsPipe(path))) {
            throw std::system_error(error);
        }
        if (std::chrono::steady_clock::now() >= end) {
            throw std::system_error(std::make_error_code(std::errc::timed_out));
        }
        std::this_thread::sleep_for(Pause);
    }
}

void AwaitTaking(const Descriptor& file, std::chrono::milliseconds patience) {
    pollfd waiting{file.Number(), POLLOUT, 0};
    const int ready = ::poll(&waiting, 1, static_cast<int>(patience.count()));
    if (ready == 0) {
        throw std::system_error(std::make_error_code(std::errc::timed_out));
    }
    if (ready < 0 && errno != EINTR) {
        throw LastError();
    }
}

} // namespace

void WriteToDevice(const std::string& path, std::string_view content,
                   const DevicePatience& patience) {
    const NoPipeSignal noSignal;
    Descriptor file = Open(path, patience.ForReader);
    while (!content.empty()) {
        const ssize_t written = ::write(file.Number(), content.data(), content.size());
        if (written >= 0) {
            content.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            AwaitTaking(file, patience.ForTaking);
        } else if (errno != EINTR) {
            throw LastError();
        }
    }
    file.Close();
}

} // namespace tarn
