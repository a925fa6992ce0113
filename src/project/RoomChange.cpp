#include "project/RoomChange.h"

#include "base/Text.h"
#include "base/Words.h"

#include <algorithm>

namespace tarn {

namespace {

using Rooms = std::vector<Room>;

Rooms::const_iterator At(const Rooms& rooms, std::size_t place) {
    return rooms.begin() + static_cast<std::ptrdiff_t>(place);
}

/// Put `with` where `count` rooms stand at `place`.
void Replace(Rooms& rooms, std::size_t place, std::size_t count, const Rooms& with) {
    rooms.erase(At(rooms, place), At(rooms, place + count));
    rooms.insert(At(rooms, place), with.begin(), with.end());
}

} // namespace

RoomChange ChangeBetween(const Rooms& before, const Rooms& after, std::size_t about) {
    const std::size_t shorter = std::min(before.size(), after.size());
    const std::size_t most = std::min(shorter, about);
    std::size_t first = 0;
    while (first < most && before[first] == after[first]) {
        ++first;
    }
    std::size_t same = 0; // at the end
    while (first + same < shorter &&
           before[before.size() - same - 1] == after[after.size() - same - 1]) {
        ++same;
    }
    return {first, Rooms(At(before, first), At(before, before.size() - same)),
            Rooms(At(after, first), At(after, after.size() - same))};
}

void MakeChange(Rooms& rooms, const RoomChange& change) {
    Replace(rooms, change.Place, change.Before.size(), change.After);
}

void TakeBackChange(Rooms& rooms, const RoomChange& change) {
    Replace(rooms, change.Place, change.After.size(), change.Before);
}

std::string NameOf(const RoomChange& change) {
    const std::string room = TrimStr(static_cast<long long>(change.Place) + 1);
    if (change.Before.empty() && change.After.size() == 1) {
        return Words("new room %1", room);
    }
    if (change.Before.size() == 1 && change.After.empty()) {
        return Words("delete room %1", room);
    }
    const bool isOne = change.Before.size() == 1 && change.After.size() == 1;
    return isOne ? Words("change room %1", room) : std::string(Words("change rooms"));
}

} // namespace tarn
