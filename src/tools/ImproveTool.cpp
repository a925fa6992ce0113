#include "tools/ImproveTool.h"

#include "base/Lengths.h"
#include "base/Words.h"
#include "estimate/ImproveEstimate.h"
#include "tools/InterruptStops.h"

#include <chrono>
#include <cstdio>
#include <iostream>
#include <string>
#include <unistd.h>
#include <utility>

namespace tarn {

namespace {

/// Writes how far the search is into one line of a terminal.
class ProgressLine : public ImproveObserver {
  public:
    explicit ProgressLine(Units units)
        : units_(units) {}
    ~ProgressLine() override {
        if (written_) {
            std::cerr << '\n';
        }
    }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    bool Progress(const ImproveProgress& progress) override {
        constexpr std::chrono::milliseconds Pause(200);
        const auto now = Clock::now();
        if (isTerminal_ && progress.Bound > 0 && (!written_ || now - last_ >= Pause)) {
            constexpr const char* StartOfLine = "\r\033[K";
            std::cerr << StartOfLine
                      << Words("Fills: %1, %2", LengthText(progress.Best, units_),
                               GapText(progress))
                      << std::flush;
            last_ = now;
            written_ = true;
        }
        return !WasInterrupted();
    }

  private:
    using Clock = std::chrono::steady_clock;

    Units units_;
    bool isTerminal_ = isatty(STDERR_FILENO) == 1;
    bool written_ = false;
    Clock::time_point last_;
};

} // namespace

Estimate ImprovedFor(const EstimateOptions& options, const Estimate& estimate) {
    ImproveLimits limits;
    limits.Seconds = options.ImproveSeconds;
    limits.Steps = options.ImproveSteps;
    limits.Seed = options.Seed;
    limits.Threads = options.Threads;
    ImprovedEstimate improved;
    {
        const InterruptStops stops;
        ProgressLine line(estimate.Request.In);
        improved = ImproveEstimate(estimate, limits, line);
    }
    const std::string reason = NothingBetterReason(improved.Result);
    if (!improved.Result.Improved && !reason.empty()) {
        std::cerr << Words("Note: no better layout was found; %1.", reason) << '\n';
    }
    const std::string kept = KeptText(improved.Result, estimate.Request);
    if (!kept.empty()) {
        std::cerr << Words("Note: beside it there is one of %1.", kept) << '\n';
    }
    return std::move(improved.Value);
}

} // namespace tarn
