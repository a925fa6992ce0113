#include "bench/ImproveMeasure.h"

#include "estimate/ImproveEstimate.h"
#include "estimate/MakeEstimate.h"
#include "improve/Improver.h"

#include <algorithm>
#include <atomic>
#include <ctime>
#include <thread>

namespace tarn {

namespace {

/// Stops an improvement after so many seconds of computing.
class ComputingLimit : public ImproveObserver {
  public:
    explicit ComputingLimit(double seconds)
        : end_(ComputingSeconds() + seconds) {}
    bool Progress(const ImproveProgress& /*progress*/) override {
        return ComputingSeconds() < end_;
    }

  private:
    double end_;
};

} // namespace

double ComputingSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    constexpr double Nanosecond = 1e-9;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * Nanosecond;
}

void ForEach(std::size_t count, const std::function<void(std::size_t)>& action) {
    std::atomic<std::size_t> next{0};
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i) {
        threads.emplace_back([&] {
            for (std::size_t job = next++; job < count; job = next++) {
                action(job);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

std::vector<Long> BestAfter(const PackingInstance& instance, const std::vector<double>& seconds,
                            std::uint64_t seed) {
    const ImproveJob& job = instance.Job;
    const auto stacked = static_cast<Long>(StackedLength(job));
    const LayoutMerit start{stacked, static_cast<Long>(job.Fills.size()), 0};
    std::vector<Long> best;
    const double begin = ComputingSeconds();
    // The report brings a new best at once, so the one before is what there was at the moment.
    Long before = stacked;
    ImproveRun run(job, start, {0, 0, seed}, [&](Long length, Long /*bound*/) {
        const double passed = ComputingSeconds() - begin;
        while (best.size() < seconds.size() && passed >= seconds[best.size()]) {
            best.push_back(before);
        }
        before = length;
        return best.size() < seconds.size();
    });
    Improve(run, seed);
    best.resize(seconds.size(), run.Best().Length);
    return best;
}

FlooringResult MeasureFlooring(const FlooringJob& job, double seconds) {
    SearchObserver nobody;
    const Estimate searched = MakeEstimate(job.Rooms, job.Request, nobody);
    FlooringResult result;
    result.Rooms = static_cast<int>(job.Rooms.Rooms.size());
    result.MaxPieces = job.Request.PiecesPerFill;
    result.Metric = job.Request.In == Units::Metric;
    ComputingLimit limit(seconds);
    const ImproveResult improved = ImproveEstimate(searched, ImproveLimits(), limit).Result;
    result.Searched = static_cast<double>(improved.StartLength);
    result.Improved = static_cast<double>(improved.Length);
    result.Bound = improved.Bound;
    result.StartBelowRules = improved.StartBelowRules;
    result.PiecesBefore = improved.StartPieces;
    result.Pieces = improved.Pieces;
    return result;
}

} // namespace tarn
