#include "files/SystemCallFaults.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <limits>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

namespace tarn::testing {

namespace {

constexpr std::size_t None = std::numeric_limits<std::size_t>::max();

/// What is made of the calls of this process; the tests run in one thread.
struct Recorder {
    bool IsOn = false;
    std::size_t Failing = None;
    int Error = 0;
    std::size_t MostWritten = None;
    std::function<void()> Meanwhile; ///< in place of failing
    std::vector<std::string> Calls;
};

Recorder recorder;

/// Whether the call is to fail; errno is set then.
bool Fails(const char* call) {
    if (!recorder.IsOn) {
        return false;
    }
    recorder.Calls.emplace_back(call);
    if (recorder.Calls.size() - 1 != recorder.Failing) {
        return false;
    }
    if (recorder.Meanwhile) {
        recorder.IsOn = false;
        recorder.Meanwhile();
        recorder.IsOn = true;
        return false;
    }
    errno = recorder.Error;
    return true;
}

Recorder Run(Recorder wanted, const std::function<void()>& action) {
    recorder = std::move(wanted);
    recorder.IsOn = true;
    try {
        action();
    } catch (...) {
        recorder.IsOn = false;
        throw;
    }
    recorder.IsOn = false;
    return recorder;
}

} // namespace

std::vector<std::string> CallsOf(const std::function<void()>& action) {
    return Run({}, action).Calls;
}

void WithFailingCall(std::size_t place, int error, const std::function<void()>& action) {
    Recorder wanted;
    wanted.Failing = place;
    wanted.Error = error;
    Run(std::move(wanted), action);
}

void BeforeCall(std::size_t place, const std::function<void()>& meanwhile,
                const std::function<void()>& action) {
    Recorder wanted;
    wanted.Failing = place;
    wanted.Meanwhile = meanwhile;
    Run(std::move(wanted), action);
}

void WithShortWrites(std::size_t most, const std::function<void()>& action) {
    Recorder wanted;
    wanted.MostWritten = most;
    Run(std::move(wanted), action);
}

} // namespace tarn::testing

// The system's own, for everything in this program that writes files.

using tarn::testing::Fails;
using tarn::testing::recorder;

extern "C" {

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    const bool makes = (flags & (O_CREAT | O_DIRECTORY)) != 0;
    return makes && Fails("open")
               ? -1
               : static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

ssize_t write(int file, const void* bytes, size_t count) {
    return Fails("write") ? -1
                          : syscall(SYS_write, file, bytes,
                                    recorder.IsOn ? std::min(count, recorder.MostWritten) : count);
}

int fsync(int file) {
    return Fails("fsync") ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}

int fchmod(int file, mode_t mode) noexcept {
    return Fails("fchmod") ? -1 : static_cast<int>(syscall(SYS_fchmod, file, mode));
}

int close(int file) {
    const bool fails = Fails("close");
    const int result = static_cast<int>(syscall(SYS_close, file));
    return fails ? -1 : result;
}

int link(const char* from, const char* to) noexcept {
    return Fails("link") ? -1
                         : static_cast<int>(syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}

int rename(const char* from, const char* to) noexcept {
    return Fails("rename")
               ? -1
               : static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
}
