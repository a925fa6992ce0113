#include "project/Typing.h"

#include "base/RunTimeError.h"

#include <utility>

namespace tarn {

namespace {

void Convert(SizeParts& size, Units from, Units to) {
    if (size.Major.empty() && size.Minor.empty()) {
        return;
    }
    try {
        if (const auto read = ReadSize(size, from)) {
            size = SplitSize(*read, to);
        }
    } catch (const RunTimeError&) {
        // It stays for the user to correct.
    }
}

void Convert(RoomDraft& fields, Units from, Units to) {
    Convert(fields.Width, from, to);
    Convert(fields.Length, from, to);
}

} // namespace

bool IsBlank(const RoomDraft& fields) {
    RoomDraft blank;
    blank.Covering = fields.Covering;
    return fields == blank;
}

Typing InUnits(Typing typing, Units shown) {
    if (typing.In == shown) {
        return typing;
    }
    if (typing.New) {
        Convert(*typing.New, typing.In, shown);
    }
    if (typing.Changed) {
        Convert(typing.Changed->Texts, typing.In, shown);
    }
    typing.In = shown;
    return typing;
}

Typing FittedTo(Typing typing, const std::vector<Room>& rooms) {
    if (!typing.Changed) {
        return typing;
    }
    const ChangedRoom& changed = *typing.Changed;
    if (changed.Place >= rooms.size() || rooms[changed.Place] != changed.Before) {
        if (!typing.New) {
            typing.New = changed.Texts;
        }
        typing.Changed.reset();
    }
    return typing;
}

} // namespace tarn
