#include "screens/roll/Tints.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <utility>

namespace tarn {

namespace {

using RoomIndex = std::size_t;
using Neighbours = std::map<RoomIndex, std::set<RoomIndex>>;

/// Rooms whose pieces touch, or nearly do.
Neighbours NeighboursOf(const std::vector<ChartPiece>& pieces,
                        const std::vector<RoomIndex>& rooms) {
    constexpr double Near = 12; // units: what is left between two pieces is seldom more
    std::vector<std::size_t> order(pieces.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return pieces[a].Y < pieces[b].Y; });
    Neighbours neighbours;
    std::vector<std::size_t> before;
    for (const std::size_t each : order) {
        const ChartPiece& piece = pieces[each];
        std::erase_if(before, [&](std::size_t other) {
            return pieces[other].Y + pieces[other].Length + Near < piece.Y;
        });
        for (const std::size_t other : before) {
            const bool beside = pieces[other].X < piece.X + piece.Width + Near &&
                                piece.X < pieces[other].X + pieces[other].Width + Near;
            if (beside && rooms[other] != rooms[each]) {
                neighbours[rooms[each]].insert(rooms[other]);
                neighbours[rooms[other]].insert(rooms[each]);
            }
        }
        before.push_back(each);
    }
    return neighbours;
}

/// Gives rooms their tints, one after the other.
class TintGiver {
  public:
    explicit TintGiver(Neighbours neighbours)
        : neighbours_(std::move(neighbours)) {}

    std::size_t TintOf(RoomIndex room) {
        const auto [given, isNew] = given_.emplace(room, 0);
        if (isNew) {
            given->second = BestFor(room);
            ++used_[given->second];
        }
        return given->second;
    }

  private:
    /// The tint that the fewest rooms beside it have, and of those the one that was given least.
    std::size_t BestFor(RoomIndex room) const {
        std::array<std::size_t, TintCount> beside{};
        const auto neighbours = neighbours_.find(room);
        if (neighbours != neighbours_.end()) {
            for (const RoomIndex other : neighbours->second) {
                const auto given = given_.find(other);
                if (given != given_.end()) {
                    ++beside[given->second];
                }
            }
        }
        std::size_t best = 0;
        for (std::size_t tint = 1; tint < TintCount; ++tint) {
            if (std::pair(beside[tint], used_[tint]) < std::pair(beside[best], used_[best])) {
                best = tint;
            }
        }
        return best;
    }

    Neighbours neighbours_;
    std::map<RoomIndex, std::size_t> given_;
    std::array<std::size_t, TintCount> used_{};
};

} // namespace

const std::array<Tint, TintCount>& Tints() {
    static const std::array<Tint, TintCount> tints{{{0xF1E997, 0x135A56},
                                                    {0x8CACF4, 0x33215A},
                                                    {0xD8FFC8, 0x425510},
                                                    {0xF69493, 0x644734},
                                                    {0xAFEDFF, 0x5E4676},
                                                    {0xC2AB60, 0x1A3547},
                                                    {0x6AE4C7, 0x461E01},
                                                    {0xA7AACF, 0x3B2925}}};
    return tints;
}

void GiveTints(std::vector<ChartPiece>& pieces, const std::vector<std::size_t>& rooms) {
    TintGiver giver(NeighboursOf(pieces, rooms));
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        pieces[i].Tint = giver.TintOf(rooms[i]);
    }
}

} // namespace tarn
