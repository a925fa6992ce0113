#include "project/RoomEntry.h"

#include "Fuzzing.h"
#include "base/RunTimeError.h"
#include "project/Coverings.h"
#include "project/RoomExtents.h"

namespace tarn {
namespace {

RoomDraft DraftFrom(FuzzInput& input) {
    RoomDraft draft;
    const std::uint8_t covering = input.Byte();
    if (covering <= LastTileCode) {
        draft.Covering = covering;
    }
    draft.Width = {input.Line(), input.Line()};
    draft.Length = {input.Line(), input.Line()};
    draft.Base = input.Line();
    draft.Number = input.Line();
    draft.Remark = input.Line();
    return draft;
}

void RequireSound(const Project& project, Units units) {
    Require(project.Rooms.size() <= RoomCapacity, "a project has a greatest number of rooms");
    for (const Room& room : project.Rooms) {
        Require(room.Width >= 0 && room.Length >= 0, "no typed room has a size below 0");
        Require(room.Covering <= LastTileCode && room.Base <= 8, "codes are those of choices");
        ExtentOf(room, units, project.Scale);
    }
}

/// Rooms are typed one after the other, into the new room or over an older one.
void CheckRoomEntry(FuzzInput input) {
    Project project;
    const Units units = input.Bit() ? Units::Metric : Units::Imperial;
    while (!input.IsAtEnd()) {
        const std::size_t room = input.Choice(project.Rooms.size() + 1);
        const RoomDraft draft = DraftFrom(input);
        const Project before = project;
        StoreResult result;
        try {
            result = StoreRoom(project, units, room, draft);
        } catch (const RunTimeError& error) {
            Require(error.Number() == OverflowNumber, "typing raises nothing but an overflow");
            Require(project == before, "an error changes nothing");
            continue;
        }
        Require(result.IsStored() || project == before, "what is not stored changes nothing");
        RequireSound(project, units);
        if (result.IsStored()) {
            const Project stored = project;
            const auto again = StoreRoom(project, units, room, DraftOf(project.Rooms[room], units));
            Require(again.IsStored() && project.Rooms == stored.Rooms,
                    "showing a room and storing it changes nothing");
        }
    }
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckRoomEntry(tarn::FuzzInput(data, size));
    return 0;
}
