#include "order/MakeOrder.h"

#include "base/RunTimeError.h"
#include "base/Words.h"
#include "order/CheckOrder.h"
#include "order/Comparison.h"
#include "order/CoreTurns.h"
#include "order/RowSearch.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <memory>
#include <thread>
#include <utility>

namespace tarn {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds AskAfter{20};  ///< the observer whether to go on
constexpr std::chrono::milliseconds TellAfter{50}; ///< it what is new

/// A row while it is searched. What its thread finds is handed over under the lock of all rows.
struct Row {
    std::size_t Candidate;
    RowLayout Layout;
    RowFinding Found{};
    bool HasNews = false;
    bool HasLayout = false;
    bool Done = false;
};

std::size_t CoresFor(const OrderLimits& limits) {
    const std::size_t there = std::max(1U, std::thread::hardware_concurrency());
    return limits.Threads > 0 ? limits.Threads : there;
}

class OrderMaker {
  public:
    OrderMaker(const Project& project, Byte carpet, const OrderRequest& request,
               const OrderLimits& limits)
        : project_(project)
        , limits_(limits)
        , turns_(CoresFor(limits)) {
        order_.Carpet = carpet;
        order_.Request = request;
        for (std::size_t roll = 0; roll < request.Rolls.size(); ++roll) {
            for (const Lay lay : request.Lays) {
                AddRow(roll, lay);
            }
        }
    }

    Order Make(OrderObserver& observer) {
        std::vector<std::thread> threads;
        threads.reserve(rows_.size());
        std::exception_ptr fault;
        try {
            for (const auto& row : rows_) {
                threads.emplace_back([this, &row = *row] { Run(row); });
            }
            Watch(observer);
        } catch (...) {
            fault = std::current_exception();
            abandoned_ = true;
        }
        stop_ = true;
        for (std::thread& thread : threads) {
            thread.join();
        }
        if (fault || fault_) {
            std::rethrow_exception(fault ? fault : fault_);
        }
        TakeNews();
        RequireSound(CheckOrder(project_, order_));
        return std::move(order_);
    }

  private:
    void AddRow(std::size_t roll, Lay lay) {
        OrderCandidate candidate;
        const RollChoice& choice = order_.Request.Rolls[roll];
        candidate.Roll = roll;
        candidate.RollWidth = WholeRollWidth(choice.Width);
        candidate.UsableWidth = UsableWidth(choice, order_.Request);
        candidate.Direction = lay;
        OrderStrips strips =
            StripsOf(project_, order_.Carpet, order_.Request, candidate.UsableWidth, lay);
        candidate.Refused = strips.Refused;
        if (strips.Refused.IsEmpty() && !strips.Strips.empty()) {
            rows_.push_back(std::make_unique<Row>(
                Row{order_.Candidates.size(),
                    RowLayout(std::move(strips.Strips), order_.Request, candidate.UsableWidth)}));
        }
        order_.Candidates.push_back(std::move(candidate));
    }

    /// The thread of a row.
    void Run(Row& row) {
        try {
            Search(row);
        } catch (...) {
            const std::scoped_lock lock(mutex_);
            fault_ = std::current_exception();
            abandoned_ = stop_ = true;
        }
        const std::scoped_lock lock(mutex_);
        row.Done = true;
        changed_.notify_one();
    }

    void Search(Row& row) {
        CoreTurn turn(turns_);
        if (abandoned_) {
            return;
        }
        ImproveLimits limits{0, limits_.Steps, limits_.Seed};
        if (limits_.Steps == 0) {
            // What is left, for the shares of it that the search gives to its stages.
            limits.Seconds = std::max(1e-6, limits_.Seconds - Passed());
        }
        bool first = true;
        SearchRow(row.Layout, limits, [&](const RowFinding* found) {
            if (found != nullptr) {
                const std::scoped_lock lock(mutex_);
                row.Found = *found;
                row.HasNews = row.HasLayout = true;
                changed_.notify_one();
            }
            if (std::exchange(first, false)) {
                turn.PassOn(); // so that each row has a layout before any is improved
                return limits_.Steps > 0 || limits_.Seconds > 0;
            }
            turn.PassOnWhenDue();
            return !stop_;
        });
    }

    Double Passed() const { return std::chrono::duration<Double>(Clock::now() - begin_).count(); }

    /// Tell the observer what is found until all rows are done, the time is over or it says stop.
    void Watch(OrderObserver& observer) {
        Clock::time_point told = begin_;
        for (bool done = false; !done;) {
            const bool hadTable = hadTable_;
            done = WaitForNews();
            const bool due = done || hadTable_ != hadTable || Clock::now() - told >= TellAfter;
            const bool changed = due && TakeNews();
            if (changed) {
                told = Clock::now();
            }
            if (!observer.Progress(order_, changed)) {
                break;
            }
        }
    }

    /// Give the rows some time. True when all of them are done, or have to be.
    bool WaitForNews() {
        std::unique_lock lock(mutex_);
        const auto allDone = [this] {
            return std::all_of(rows_.begin(), rows_.end(),
                               [](const auto& row) { return row->Done; });
        };
        const auto isFirstTable = [this] {
            return !hadTable_ && std::all_of(rows_.begin(), rows_.end(),
                                             [](const auto& row) { return row->HasLayout; });
        };
        changed_.wait_for(lock, AskAfter, [&] { return allDone() || isFirstTable(); });
        hadTable_ = hadTable_ || isFirstTable();
        if (limits_.Steps == 0 && Passed() >= limits_.Seconds) {
            stop_ = true;
        }
        return allDone() || stop_;
    }

    /// Take what the rows found into the order. False when it was nothing.
    bool TakeNews() {
        bool changed = false;
        for (const auto& row : rows_) {
            RowFinding found;
            {
                const std::scoped_lock lock(mutex_);
                if (!std::exchange(row->HasNews, false)) {
                    continue;
                }
                found = row->Found;
            }
            Take(*row, found);
            changed = true;
        }
        if (changed) {
            order_.Best = BestOf(order_.Candidates);
        }
        return changed;
    }

    void Take(const Row& row, const RowFinding& found) {
        OrderCandidate& candidate = order_.Candidates[row.Candidate];
        candidate.Pieces = row.Layout.PiecesOf(found.Parts);
        candidate.Figures =
            FiguresOf(project_, order_.Request, candidate, row.Layout.Strips(), found.Least);
        RequireSound(CheckCandidate(project_, order_, row.Candidate));
    }

    static void RequireSound(const std::string& fault) {
        if (!fault.empty()) {
            RaiseInternal(Words("The order was discarded: %1.", fault));
        }
    }

    const Project& project_;
    OrderLimits limits_;
    Order order_;
    std::vector<std::unique_ptr<Row>> rows_;
    Clock::time_point begin_ = Clock::now();
    CoreTurns turns_;

    std::mutex mutex_; ///< of what the rows' threads hand over
    std::condition_variable changed_;
    std::exception_ptr fault_;
    bool hadTable_ = false; ///< each row had a layout
    std::atomic<bool> stop_ = false;
    std::atomic<bool> abandoned_ = false; ///< nobody waits for an order any more
};

} // namespace

Order MakeOrder(const Project& project, Byte carpet, const OrderRequest& request,
                const OrderLimits& limits, OrderObserver& observer) {
    if (const auto fault = FaultOf(request)) {
        RaiseInvalidCall(fault->Reason);
    }
    if (project.Rooms.size() > RoomCapacity) {
        RaiseSubscript();
    }
    return OrderMaker(project, carpet, request, limits).Make(observer);
}

} // namespace tarn
