#pragma once

#include "order/OrderTesting.h"

#include <random>

namespace tarn::testing {

/// A whole number `least` .. `most`, the same for equal seeds with every standard library.
inline Long Between(std::mt19937& random, Long least, Long most) {
    return least + static_cast<Long>(random() % static_cast<unsigned>(most - least + 1));
}

inline bool OneIn(std::mt19937& random, Long count) {
    return Between(random, 1, count) == 1;
}

/// Rooms of an installer: up to `most`, some of other coverings or without an area.
inline Project RandomRooms(std::mt19937& random, Long most, Long longest) {
    Project project;
    for (Long count = Between(random, 1, most); count > 0; --count) {
        Room room;
        room.Width = static_cast<Integer>(Between(random, 1, longest));
        room.Length = static_cast<Integer>(Between(random, 1, longest));
        room.Covering = OneIn(random, 8) ? Byte{1} : Byte{0};
        if (OneIn(random, 12)) {
            room.Width = 0;
        }
        project.Rooms.push_back(room);
    }
    return project;
}

/// A request with every option, for rolls of about `width` units.
inline OrderRequest RandomRequest(std::mt19937& random, Long width) {
    OrderRequest request = DefaultOrderRequest(OneIn(random, 2) ? Units::Metric : Units::Imperial);
    for (Long rolls = Between(random, 1, 3); rolls > 0; --rolls) {
        RollChoice roll;
        roll.Width = Between(random, width / 2, 2 * width) + 0.25 * Between(random, 0, 3);
        if (OneIn(random, 2)) {
            roll.Price = 0.05 * Between(random, 0, 2000);
        }
        request.Rolls.push_back(roll);
    }
    if (OneIn(random, 2)) {
        request.Lays = OneIn(random, 2) ? std::vector<Lay>{Lay::Cross}
                                        : std::vector<Lay>{Lay::Down, Lay::Cross};
    }
    const auto perhaps = [&](Long most) { return OneIn(random, 2) ? 0 : Between(random, 1, most); };
    request.Selvage = perhaps(2);
    request.TrimAlong = perhaps(6);
    request.TrimAcross = perhaps(6);
    request.MostParts = Between(random, 1, 6);
    request.ShortestPart = Between(random, 1, 1 + width / 3);
    request.JoinRooms = OneIn(random, 2);
    request.Pattern = {perhaps(width / 4), perhaps(width / 4), false};
    if (OneIn(random, 2)) {
        request.Pattern.Along = request.Pattern.Along / 2 * 2;
        request.Pattern.HalfDrop = request.Pattern.Along > 0;
    }
    if (OneIn(random, 2)) {
        request.PatternDrift = 0.5 * Between(random, 0, 20);
    }
    request.Step = Between(random, 1, 12);
    return request;
}

} // namespace tarn::testing
