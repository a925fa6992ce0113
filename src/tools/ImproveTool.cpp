#include "tools/ImproveTool.h"

#include "base/Lengths.h"
#include "base/Words.h"
#include "estimate/ImproveEstimate.h"
#include "tools/InterruptStops.h"
#include "tools/TerminalLine.h"

#include <chrono>
#include <iostream>
#include <string>
#include <utility>

namespace tarn {

namespace {

/// Shows in one line of a terminal how far the search is.
class ProgressLine : public ImproveObserver {
  public:
    explicit ProgressLine(Units units)
        : units_(units) {}

    bool Progress(const ImproveProgress& progress) override {
        constexpr std::chrono::milliseconds Pause(200);
        const auto now = Clock::now();
        if (line_.IsThere() && progress.Bound > 0 && (!line_.IsWritten() || now - last_ >= Pause)) {
            line_.Write(
                Words("Fills: %1, %2", LengthText(progress.Best, units_), GapText(progress)));
            last_ = now;
        }
        return !WasInterrupted();
    }

  private:
    using Clock = std::chrono::steady_clock;

    Units units_;
    TerminalLine line_{TerminalLine::End::Kept};
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
