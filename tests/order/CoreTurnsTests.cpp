#include "order/CoreTurns.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace tarn {
namespace {

TEST(CoreTurns, NeverGivesMoreTurnsThanThereAreCores) {
    for (const std::size_t cores : {1U, 2U, 3U}) {
        CoreTurns turns(cores);
        std::atomic<std::size_t> running = 0;
        std::atomic<std::size_t> most = 0;
        std::vector<std::thread> threads;
        threads.reserve(6);
        for (int i = 0; i < 6; ++i) {
            threads.emplace_back([&] {
                for (int turn = 0; turn < 200; ++turn) {
                    turns.Take();
                    const std::size_t now = ++running;
                    std::size_t before = most;
                    while (before < now && !most.compare_exchange_weak(before, now)) {
                    }
                    --running;
                    turns.GiveBack();
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_LE(most, cores);
        EXPECT_GE(most, 1U);
    }
}

TEST(CoreTurns, GoOnInTurnsWithOneCore) {
    CoreTurns turns(1);
    std::vector<int> order;
    turns.Take();
    std::atomic<bool> begun = false;
    std::thread other([&] {
        begun = true;
        const CoreTurn turn(turns);
        order.push_back(2);
    });
    while (!begun) {
        std::this_thread::yield();
    }
    order.push_back(1);
    // Until the other waits there is nobody to pass on to.
    while (order.size() < 2) {
        turns.PassOn();
    }
    order.push_back(3);
    turns.GiveBack();
    other.join();
    EXPECT_EQ(order, (std::vector<int>{1, 2, 3}));
}

TEST(CoreTurns, PassingOnWithoutAnybodyWaitingKeepsTheTurn) {
    CoreTurns turns(1);
    CoreTurn turn(turns);
    turn.PassOn();
    turn.PassOnWhenDue();
    SUCCEED();
}

} // namespace
} // namespace tarn
