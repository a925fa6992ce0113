// The command line of tarn-order: its options, their texts, and the request that they make.

#pragma once

#include "files/OutputFile.h"
#include "project/OrderRequest.h"
#include "tools/SharedOptions.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace tarn {

/// What tarn-order is asked to do. Options that were not given are empty, so that those of the
/// saved request count.
struct OrderOptions {
    RoomsSource From;
    bool Metric = false;
    bool Feet = false;
    std::optional<int> Carpet; ///< 1..8; all of the project without it

    std::vector<std::string> Rolls; ///< [NAME:]WIDTH[=PRICE]
    std::optional<std::string> Selvage;
    std::optional<std::string> Lay;
    std::optional<std::string> Trim;
    std::optional<std::string> TrimAcross;
    std::optional<int> MaxParts;
    std::optional<std::string> MinPart;
    bool JoinRooms = false;
    std::optional<std::string> Pattern; ///< across x along
    bool HalfDrop = false;
    std::optional<double> PatternDrift;
    std::optional<std::string> Step;

    std::optional<double> Seconds;
    std::int64_t Steps = 0; ///< 0 = by the seconds
    std::uint64_t Seed = 1;

    std::string Text; ///< output files; empty = not wanted
    std::string Json;
    std::string Csv;
    std::string Xlsx;
    std::string Pdf;
    std::string Svg;
    std::string Dxf;
    Overwrite Over = Overwrite::Files;
};

/// Tell `app` all that tarn-order takes; parsing fills in `options`, which must outlive it.
void DescribeOrder(CLI::App& app, OrderOptions& options);

/// Read the arguments of tarn-order. When they ask for help or the version, or cannot be
/// understood, prints that and gives nothing; `status` is then the exit status.
std::optional<OrderOptions> ReadOrderOptions(int argc, const char* const* argv, int& status);

/// All that can be written.
Outputs OutputsOf(const OrderOptions& options);

/// The request that the options make, in the given units: what was not given is as in `saved`, or
/// else as usual. Raises Refusal, which names the option and the reason, for one that cannot be
/// searched with.
OrderRequest RequestOf(const OrderOptions& options, Units units,
                       const std::optional<OrderRequest>& saved);

} // namespace tarn
