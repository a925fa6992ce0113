#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace tarn {

/// Ends what is read from and written to a socket at a time, from outside: whoever waits on the
/// socket then, for whatever, gets an end of file or an error at once.
class SocketDeadline {
  public:
    using Clock = std::chrono::steady_clock;

    /// Raises std::system_error when the system is out of threads or files.
    SocketDeadline(int socket, Clock::time_point end);
    ~SocketDeadline();
    SocketDeadline(const SocketDeadline&) = delete;
    SocketDeadline& operator=(const SocketDeadline&) = delete;

    /// Another time instead, unless the end was there.
    void Move(Clock::time_point end);
    bool Passed() const;

  private:
    void Watch();

    int socket_; // of its own: the number stays this socket's
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    Clock::time_point end_;
    bool passed_ = false;
    bool over_ = false;
    std::thread thread_; ///< uses all the others
};

} // namespace tarn
