#include "engine/reference/StoredJobs.h"

#include "base/RunTimeError.h"
#include "engine/reference/RandomJobs.h"

#include <cstddef>
#include <stdexcept>
#include <utility>

namespace tarn::reference {

namespace {

constexpr std::size_t MostPieces = 3000;

PlainJob WithoutDivision(PlainJob job) {
    for (PlainPiece& piece : job.pieces) {
        piece.divide = 0;
    }
    return job;
}

/// Pieces given by their edges in hundredths of an inch.
PlainJob EdgesJob(float rollWidth, int layDir, std::vector<PlainPiece> pieces) {
    int number = 0;
    for (PlainPiece& piece : pieces) {
        piece.org = number;
        piece.order = number;
        ++number;
    }
    return {std::move(pieces), rollWidth, layDir, 1, 300};
}

/// Two halves of 183 cm are 0.00002 inch wider together than the roll of 366 cm.
PlainJob MetricHalves() {
    const float half = CentimetreUnits(183);
    const float metre = CentimetreUnits(100);
    return EdgesJob(MetricRollWidth(366), 0,
                    {{0, half, 0, metre, 0, 1, 0}, {0, half, 0, metre, 0, 1, 0}});
}

PlainJob TouchingWithinTheTolerance() {
    const float cm61 = CentimetreUnits(61);
    const float cm122 = CentimetreUnits(122);
    const float cm183 = CentimetreUnits(183);
    return EdgesJob(MetricRollWidth(366), 0,
                    {{0, cm183, 0, cm122, 0, 1, 0},
                     {0, cm122, 0, cm61, 0, 1, 0},
                     {0, cm61, 0, CentimetreUnits(244), 0, 1, 0},
                     {0, cm122, 0, cm183, 0, 1, 0}});
}

/// The fourth width of a room of 4 x 411 cm on the 411 cm roll, wider than the roll by rounding.
PlainJob RoundingSliver() {
    const auto roll = static_cast<double>(MetricRollWidth(411));
    const auto edge = static_cast<float>(3 * roll / 0.01);
    return EdgesJob(MetricRollWidth(411), 0,
                    {{edge, CentimetreUnits(4 * 411), 0, CentimetreUnits(500), 0, 1, 0}});
}

PlainJob Repeated(std::size_t count, const Extent& extent, int mostParts) {
    return DownLayJob(144, mostParts, std::vector<Extent>(count, extent));
}

} // namespace

PlainJob DownLayJob(float rollWidth, int mostParts, const std::vector<Extent>& extents,
                    int minCut) {
    PlainJob job{{}, rollWidth, 0, mostParts, minCut};
    for (const Extent& e : extents) {
        const int number = static_cast<int>(job.pieces.size());
        job.pieces.push_back({0, InchUnits(e.across), 0, InchUnits(e.along), number, 1, number});
    }
    return job;
}

std::vector<StoredJob> StoredJobs() {
    return {
        {"strip blocked from the far edge",
         DownLayJob(144, 1,
                    {{36, 84}, {24, 120}, {36, 96}, {36, 132}, {72, 60}, {12, 168}, {48, 120}})},
        {"crossing without a corner inside", DownLayJob(144, 1, {{100, 50}, {12, 200}, {144, 10}})},
        {"push gives up its corner", DownLayJob(144, 1, {{48, 100}, {48, 100}, {48, 100}})},
        {"free-standing strip moves left",
         DownLayJob(144, 1, {{50, 60}, {48, 120}, {36, 132}, {36, 96}, {12, 60}})},
        {"crossed row keeps a strip in place",
         DownLayJob(144, 1, {{84, 96}, {48, 72}, {12, 48}, {12, 84}, {72, 120}})},
        {"piece on the same row", DownLayJob(144, 1,
                                             {{12, 120},
                                              {72, 96},
                                              {96, 24},
                                              {84, 60},
                                              {24, 36},
                                              {60, 60},
                                              {96, 60},
                                              {24, 36},
                                              {24, 108}})},
        {"row ends where another starts",
         DownLayJob(144, 1, {{48, 36}, {84, 36}, {84, 12}, {36, 12}})},
        {"equal areas", DownLayJob(144, 1, {{96, 24}, {24, 96}})},
        {"touching at the end",
         DownLayJob(144, 1, {{48, 60}, {60, 60}, {24, 108}, {48, 48}, {48, 108}})},
        {"touching beside", DownLayJob(144, 1, {{84, 48}, {12, 12}, {48, 72}, {72, 84}})},
        {"touching within the tolerance", TouchingWithinTheTolerance()},
        {"one long strip in two", DownLayJob(144, 2, {{72, 200}})},
        {"two of three parts end to end", DownLayJob(144, 3, {{72, 300}, {72, 100}})},
        {"only the second pass divides the third",
         DownLayJob(144, 6, {{144, 6}, {144, 6}, {36, 8}})},
        {"shorter than the minimum cut", DownLayJob(144, 2, {{144, 100}, {30, 2}})},
        {"wider than the roll", DownLayJob(144, 1, {{200, 50}})},
        {"more than twice the roll", DownLayJob(144, 1, {{400, 50}})},
        {"narrow rest", DownLayJob(142, 1, {{144, 50}})},
        {"indivisible", WithoutDivision(DownLayJob(144, 6, {{72, 200}}))},
        {"metric halves", MetricHalves()},
        {"wider by rounding alone", RoundingSliver()},
        {"nearer row behind a corner on the left", EdgesJob(144, 0,
                                                            {{0, 10000, 0, 5005, 0, 0, 0},
                                                             {0, 4400, 0, 5000, 0, 0, 0},
                                                             {0, 4400, 0, 1000, 0, 0, 0}})},
        {"cross lay", EdgesJob(144, 1, {{0, 12000.5F, 14400, 21600.25F, 0, 1, 0}})},
        {"cases with too many parts", Repeated(MostPieces - 1, {144, 6}, 6)},
    };
}

PlainJob Stored(const std::string& name) {
    for (const StoredJob& stored : StoredJobs()) {
        if (stored.name == name) {
            return stored.job;
        }
    }
    throw std::out_of_range("no stored job: " + name);
}

std::vector<FailingJob> FailingJobs() {
    const PlainPiece endless = {0, 100, -3e38F, 3e38F, 0, 1, 0};
    std::vector<Extent> fullWithOneTooWide(MostPieces, {144, 1});
    fullWithOneTooWide.back().across = 145;
    return {
        {"minimum cut of nothing", DownLayJob(144, 1, {{72, 200}}, 0), DivisionByZeroNumber},
        {"one piece too many", Repeated(MostPieces + 1, {144, 1}, 1), SubscriptNumber},
        {"no room for the strip of a wide piece", DownLayJob(144, 1, fullWithOneTooWide),
         SubscriptNumber},
        {"length past a Single", EdgesJob(144, 0, {endless}), OverflowNumber},
        {"result past 16 bits", DownLayJob(144, 1, {{144, 32767}}), OverflowNumber},
    };
}

} // namespace tarn::reference
