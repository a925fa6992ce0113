#include "paper/SocketDeadline.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace tarn {

namespace {

int CopyOf(int socket) {
    const int copy = fcntl(socket, F_DUPFD_CLOEXEC, 0);
    if (copy < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return copy;
}

} // namespace

SocketDeadline::SocketDeadline(int socket, Clock::time_point end)
    : socket_(CopyOf(socket))
    , end_(end) {
    try {
        thread_ = std::thread([this] { Watch(); });
    } catch (...) {
        close(socket_);
        throw;
    }
}

SocketDeadline::~SocketDeadline() {
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
    }
    changed_.notify_one();
    thread_.join();
    close(socket_);
}

void SocketDeadline::Move(Clock::time_point end) {
    {
        const std::lock_guard lock(mutex_);
        end_ = end;
    }
    changed_.notify_one();
}

bool SocketDeadline::Passed() const {
    const std::lock_guard lock(mutex_);
    return passed_;
}

void SocketDeadline::Watch() {
    std::unique_lock lock(mutex_);
    while (!over_) {
        if (Clock::now() >= end_) {
            passed_ = true;
            shutdown(socket_, SHUT_RDWR);
            return;
        }
        changed_.wait_until(lock, Clock::time_point(end_));
    }
}

} // namespace tarn
