#include "bench/FlooringJobs.h"

#include "estimate/MinCuts.h"
#include "estimate/RollWidth.h"

#include <random>

namespace tarn {

namespace {

constexpr std::uint32_t Seed = 60117;

/// A whole number `least` .. `most`, the same everywhere.
int Between(std::mt19937& random, int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
}

Room RandomRoom(std::mt19937& random, Units units) {
    const double unit = units == Units::Metric ? 30 : 12; // about a foot
    const auto side = [&] {
        return static_cast<Integer>(
            Between(random, static_cast<int>(3 * unit), static_cast<int>(20 * unit)));
    };
    Room room;
    room.Width = side();
    room.Length = side();
    return room;
}

} // namespace

FlooringJob RandomFlooringJob(int rooms, std::uint32_t number) {
    std::mt19937 random(Seed + number);
    FlooringJob job;
    EstimateRequest& request = job.Request;
    request.In = number / 2 % 2 == 1 ? Units::Metric : Units::Imperial;
    for (int room = 0; room < rooms; ++room) {
        job.Rooms.Rooms.push_back(RandomRoom(random, request.In));
    }
    const auto width = static_cast<std::size_t>(Between(random, 1, 3));
    request.RollWidth = CaptionRollWidth(WidthCaptions(request.In).at(width), request.In);
    request.Direction = number % 2 == 0 ? Lay::Down : Lay::Cross;
    request.ShortestPart = AllMinCuts.at(static_cast<std::size_t>(Between(random, 0, 2)));
    request.PiecesPerFill =
        static_cast<Integer>(number % static_cast<std::uint32_t>(MostPiecesPerFill) + 1);
    return job;
}

} // namespace tarn
