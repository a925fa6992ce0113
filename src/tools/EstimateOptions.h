// The command line of tarn-estimate: its options, their texts, and the request that they make.

#pragma once

#include "estimate/EstimateRequest.h"
#include "files/OutputFile.h"
#include "tools/SharedOptions.h"

#include <cstdint>
#include <optional>
#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace tarn {

/// What tarn-estimate is asked to do.
struct EstimateOptions {
    RoomsSource From;
    bool Metric = false;
    int Carpet = 0; ///< 1..8
    std::string RollWidth;
    bool CrossLay = false;
    std::string Match; ///< WxL; empty without a pattern
    int MinCut = 0;    ///< position in AllMinCuts
    int MaxPieces = 1;
    std::string Text; ///< output files; empty = not wanted
    std::string Json;
    std::string Svg;
    std::string Dxf;
    std::string Pdf;
    Overwrite Over = Overwrite::Files;

    bool Improve = false;       ///< improve the layout
    double ImproveSeconds = 0;  ///< 0 = no limit
    long long ImproveSteps = 0; ///< 0 = no limit
    std::uint64_t Seed = 1;
    std::size_t Threads = 0; ///< 0 = see ThreadsFor
};

/// Tell `app` all that tarn-estimate takes; parsing fills in `options`, which must outlive it.
void DescribeEstimate(CLI::App& app, EstimateOptions& options);

/// Read the arguments of tarn-estimate. When they ask for help or the version, or cannot be
/// understood, prints that and gives nothing; `status` is then the exit status.
std::optional<EstimateOptions> ReadEstimateOptions(int argc, const char* const* argv, int& status);

/// All that can be written.
Outputs OutputsOf(const EstimateOptions& options);

/// The request that the options make, without its pattern repeat. Raises Refusal for a roll width
/// that cannot be read.
EstimateRequest RequestOf(const EstimateOptions& options);

/// A pattern repeat as it was typed: its numbers may still be too large.
struct RepeatTexts {
    std::string Across;
    std::string Along;
};

/// The pattern repeat of the options, if they have one. Raises Refusal when it cannot be read.
std::optional<RepeatTexts> RepeatOf(const EstimateOptions& options);

} // namespace tarn
