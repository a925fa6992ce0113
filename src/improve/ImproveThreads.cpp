#include "improve/ImproveThreads.h"

#include "improve/Improver.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>

namespace tarn {

namespace {

/// What the threads of one search know together.
class Board {
  public:
    /// What one of the threads knew of it last.
    struct Known {
        std::uint64_t Change = 0;
        LayoutMerit Best{};
        Long Bound = 0;
    };

    explicit Board(const LayoutMerit& start)
        : best_(start) {}

    /// Bring the board and a run to the better of what they know.
    void Exchange(ImproveRun& run, Known& known) {
        const bool hasNews = run.Best().BetterThan(known.Best) || run.RulesBound() > known.Bound;
        if (!hasNews && change_.load(std::memory_order_acquire) == known.Change) {
            return;
        }
        const std::scoped_lock lock(mutex_);
        if (run.Best().BetterThan(best_)) {
            best_ = run.Best();
            parts_ = run.BestParts();
            ++change_;
        }
        if (run.RulesBound() > bound_) {
            bound_ = run.RulesBound();
            ++change_;
        }
        run.Learn(best_, parts_, bound_);
        known = {change_.load(std::memory_order_relaxed), best_, bound_};
    }
    void Stop() { stop_ = true; }
    bool Stopped() const { return stop_; }

  private:
    std::mutex mutex_;
    LayoutMerit best_;
    std::vector<ImprovePart> parts_;
    Long bound_ = 0;
    std::atomic<std::uint64_t> change_{0};
    std::atomic<bool> stop_{false};
};

/// One thread's part of a search.
class Share {
  public:
    /// A share that counts steps tells the others nothing.
    Share(const ImproveJob& job, const LayoutMerit& start, const ImproveLimits& limits,
          std::size_t number, Board& board, ImproveReport report)
        : board_(board)
        , alone_(limits.Steps > 0)
        , number_(number)
        , report_(std::move(report))
        , known_{0, start, 0}
        , run_(job, start, limits, [this](Long /*best*/, Long /*bound*/) { return Tell(); }) {}

    void Search() {
        Improve(run_, run_.Limits().Seed + number_, alone_ ? 0 : number_);
        if (!alone_) {
            board_.Exchange(run_, known_);
        }
    }
    /// The same on a thread of its own; what is raised is kept.
    void SearchApart() {
        try {
            Search();
        } catch (...) {
            Fault = std::current_exception();
            board_.Stop();
        }
    }
    ImproveRun& Run() { return run_; }

    std::exception_ptr Fault;

  private:
    bool Tell() {
        if (!alone_) {
            board_.Exchange(run_, known_);
        }
        return (!report_ || report_(run_.Best().Length, run_.RulesBound())) && !board_.Stopped();
    }

    Board& board_;
    bool alone_;
    std::size_t number_;
    ImproveReport report_;
    Board::Known known_;
    ImproveRun run_;
};

/// The limits of the share with that number.
ImproveLimits ShareOf(const ImproveLimits& limits, std::size_t number, std::size_t threads) {
    ImproveLimits share = limits;
    if (limits.Steps > 0) {
        const auto count = static_cast<std::int64_t>(threads);
        const bool takesRest = static_cast<std::int64_t>(number) < limits.Steps % count;
        share.Steps = std::max<std::int64_t>(1, limits.Steps / count + (takesRest ? 1 : 0));
    }
    return share;
}

/// What all shares came to, the earlier ones first of equals.
ImproveOutcome OutcomeOf(std::vector<std::unique_ptr<Share>>& shares) {
    ImproveRun& first = shares.front()->Run();
    ImproveOutcome outcome{first.Best(), first.BestParts(), first.RulesBound(), 0};
    for (const auto& share : shares) {
        const ImproveRun& run = share->Run();
        if (run.Best().BetterThan(outcome.Best)) {
            outcome.Best = run.Best();
            outcome.Parts = run.BestParts();
        }
        outcome.RulesBound = std::max(outcome.RulesBound, run.RulesBound());
        outcome.Steps += run.Steps();
    }
    return outcome;
}

} // namespace

std::size_t ThreadsFor(const ImproveLimits& limits) {
    const std::size_t there = limits.Steps > 0 ? 1 : std::thread::hardware_concurrency();
    const std::size_t threads = limits.Threads > 0 ? limits.Threads : there;
    return std::clamp<std::size_t>(threads, 1, MostThreads);
}

ImproveOutcome ImproveOnThreads(const ImproveJob& job, const LayoutMerit& start,
                                const ImproveLimits& limits, const ImproveReport& report) {
    Board board(start);
    std::vector<std::unique_ptr<Share>> shares;
    const std::size_t count = ThreadsFor(limits);
    for (std::size_t number = 0; number < count; ++number) {
        shares.push_back(std::make_unique<Share>(job, start, ShareOf(limits, number, count), number,
                                                 board, number == 0 ? report : ImproveReport()));
    }
    std::vector<std::thread> threads;
    std::exception_ptr fault;
    try {
        for (std::size_t number = 1; number < count; ++number) {
            threads.emplace_back([&share = *shares[number]] { share.SearchApart(); });
        }
        shares.front()->Search();
    } catch (...) {
        fault = std::current_exception();
    }
    // What the others still look for within their steps belongs to the result, unless it was the
    // caller who had enough.
    if (fault || limits.Steps == 0 || shares.front()->Run().Refused()) {
        board.Stop();
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const auto& share : shares) {
        fault = fault ? fault : share->Fault;
    }
    if (fault) {
        std::rethrow_exception(fault);
    }
    return OutcomeOf(shares);
}

} // namespace tarn
