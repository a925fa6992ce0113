#include "project/ShortRoomName.h"

#include "base/Text.h"

namespace tarn {

std::string ShortRoomName(const Project& project, std::size_t place) {
    if (place < project.Rooms.size()) {
        const Room& room = project.Rooms[place];
        for (const std::string& name : {room.Number, room.Remark}) {
            if (!name.empty()) {
                return OneLine(ShownText(name));
            }
        }
    }
    return "room " + TrimStr(static_cast<long long>(place) + 1);
}

} // namespace tarn
