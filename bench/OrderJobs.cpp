#include "bench/OrderJobs.h"

namespace tarn {

namespace {

Long Between(std::mt19937& random, Long least, Long most) {
    return least + static_cast<Long>(random() % static_cast<unsigned>(most - least + 1));
}

} // namespace

Project RandomRooms(std::mt19937& random, int count) {
    Project project;
    for (int i = 0; i < count; ++i) {
        Room room;
        room.Width = static_cast<Integer>(Between(random, 36, 240));
        room.Length = static_cast<Integer>(Between(random, 36, 240));
        project.Rooms.push_back(room);
    }
    return project;
}

OrderRequest FourWidths() {
    OrderRequest request = DefaultOrderRequest(Units::Imperial);
    for (const Double width : {72, 144, 162, 180}) {
        request.Rolls.push_back({width, "", "", std::nullopt});
    }
    request.Lays = {Lay::Down, Lay::Cross};
    return request;
}

} // namespace tarn
