#include "project/RoomEntry.h"

#include "Fuzzing.h"
#include "base/RunTimeError.h"
#include "project/Coverings.h"
#include "project/RoomExtents.h"
#include "project/SizeNotes.h"
#include "project/WholeLength.h"

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

bool IsPlain(const std::string& number) {
    return number.find_first_not_of("0123456789.") == std::string::npos;
}

/// A size is spread over its two fields, or something is wrong with it; never both.
void CheckSpreading(const SizeParts& typed, Units units) {
    const SpreadSize size = Spread(typed, units);
    const bool isRefused = size.Why != SpreadSize::Fault::None;
    Require(!isRefused || size.Parts == typed, "what is refused stays as it was typed");
    Require(isRefused == !RefusedNote(typed, units).empty(), "a refusal says what is wrong");
    for (const std::string& text : {typed.Major, typed.Minor}) {
        const auto length = ReadWholeLength(text);
        Require(!length || (IsPlain(length->Parts.Major) && IsPlain(length->Parts.Minor)),
                "a length is spread in plain numbers");
        const auto rest = WithoutZeroPart(text);
        Require(!rest || ReadWholeLength(*rest), "what stays of a length is one");
    }
    if (isRefused) {
        return;
    }
    Require(Spread(size.Parts, units) == size, "spreading again changes nothing");
    const auto stored = [units](const SizeParts& parts) -> std::optional<Integer> {
        try {
            return ReadSize(parts, units);
        } catch (const RunTimeError&) {
            return std::nullopt;
        }
    };
    Require(stored(typed) == stored(size.Parts), "spreading changes no size");
    Require(KeptNote(typed, units) == KeptNote(size.Parts, units), "nor what is said of it");
}

/// Rooms are typed one after the other, into the new room or over an older one.
void CheckRoomEntry(FuzzInput input) {
    Project project;
    const Units units = input.Bit() ? Units::Metric : Units::Imperial;
    while (!input.IsAtEnd()) {
        const std::size_t room = input.Choice(project.Rooms.size() + 1);
        const RoomDraft draft = DraftFrom(input);
        CheckSpreading(draft.Width, units);
        CheckSpreading(draft.Length, units);
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
