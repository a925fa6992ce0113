#include "order/CoreTurns.h"

namespace tarn {

namespace {

constexpr std::chrono::milliseconds TurnLength{10};

} // namespace

void CoreTurns::Take() {
    std::unique_lock lock(mutex_);
    const std::uint64_t own = next_++;
    waiting_.push_back(own);
    changed_.wait(lock, [&] { return free_ > 0 && waiting_.front() == own; });
    waiting_.pop_front();
    --free_;
    if (free_ > 0 && !waiting_.empty()) {
        changed_.notify_all();
    }
}

void CoreTurns::GiveBack() {
    const std::scoped_lock lock(mutex_);
    ++free_;
    changed_.notify_all();
}

void CoreTurns::PassOn() {
    {
        const std::scoped_lock lock(mutex_);
        if (waiting_.empty()) {
            return;
        }
    }
    GiveBack();
    Take();
}

void CoreTurn::PassOn() {
    turns_.PassOn();
    since_ = Clock::now();
}

void CoreTurn::PassOnWhenDue() {
    if (Clock::now() - since_ >= TurnLength) {
        PassOn();
    }
}

} // namespace tarn
