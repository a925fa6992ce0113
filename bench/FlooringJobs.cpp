#include "bench/FlooringJobs.h"

#include "engine/EstOptions.h"
#include "estimate/RollWidth.h"

#include <random>

namespace tarn {

namespace {

constexpr std::uint32_t Seed = 60117;

/// A whole number `least` .. `most`, the same everywhere.
int Between(std::mt19937& random, int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
}

void AddRoom(SharedState& state, std::mt19937& random) {
    const double unit = state.IsMetric() ? 30 : 12; // about a foot
    const auto side = [&] {
        return static_cast<Integer>(
            Between(random, static_cast<int>(3 * unit), static_cast<int>(20 * unit)));
    };
    const Integer row = state.ObjNum++;
    state.RoomWidth[row] = side();
    state.RoomLength[row] = side();
}

} // namespace

std::unique_ptr<FlooringJob> RandomFlooringJob(int rooms, std::uint32_t number) {
    std::mt19937 random(Seed + number);
    auto job = std::make_unique<FlooringJob>();
    job->Rooms = rooms;
    job->State.MetricFlag = number / 2 % 2 == 1 ? 1 : 0;
    for (int room = 0; room < rooms; ++room) {
        AddRoom(job->State, random);
    }
    const bool metric = job->State.IsMetric();
    const auto width = static_cast<std::size_t>(Between(random, 1, 3));
    job->Request.RollWidth = CaptionRollWidth(WidthCaptions(metric).at(width), metric);
    job->Request.DownLay = number % 2 == 0;
    job->Request.EstOption = PackEstOption(
        static_cast<Integer>(Between(random, 0, 2)),
        static_cast<Integer>(number % static_cast<std::uint32_t>(MostPiecesPerFill) + 1));
    return job;
}

} // namespace tarn
