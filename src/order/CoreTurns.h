// Computations that share a few cores: each has one for a while and hands it on.

#pragma once

#include "base/Types.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>

namespace tarn {

/// So many turns at the same time; who waits longest comes next.
class CoreTurns {
  public:
    explicit CoreTurns(std::size_t cores)
        : free_(cores) {}

    /// Wait for a turn and take it.
    void Take();
    /// End the turn.
    void GiveBack();
    /// Hand the turn on to who waits longest, if anybody does, and wait for the next.
    void PassOn();

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t free_;
    std::deque<std::uint64_t> waiting_; ///< the numbers of those that wait, in their order
    std::uint64_t next_ = 0;
};

/// A turn that is held while this lives.
class CoreTurn {
  public:
    explicit CoreTurn(CoreTurns& turns)
        : turns_(turns) {
        turns_.Take();
    }
    ~CoreTurn() { turns_.GiveBack(); }
    CoreTurn(const CoreTurn&) = delete;
    CoreTurn& operator=(const CoreTurn&) = delete;

    /// Hand the turn on at once.
    void PassOn();
    /// Hand the turn on when it has lasted long enough.
    void PassOnWhenDue();

  private:
    using Clock = std::chrono::steady_clock;

    CoreTurns& turns_;
    Clock::time_point since_ = Clock::now();
};

} // namespace tarn
