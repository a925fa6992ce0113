#include "project/RoomEntry.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "project/Coverings.h"
#include "project/RoomExtents.h"
#include "project/RoomSize.h"
#include "project/SizeNotes.h"
#include "project/WallBase.h"
#include "project/WholeLength.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace tarn {

namespace {

using Outcome = StoreResult::Outcome;

/// One size of a room: what is said of it, and the fields of its parts.
struct Side {
    Phrase TooLarge;
    Phrase Wrong;
    Phrase Missing;
    SizeField Major;
    SizeField Minor;
};
constexpr Side WidthSide{Words("The width of a room can be %1 %2 at most."),
                         Words("Room width:\r\n%1"),
                         Words("The width is empty: a new room needs both its sizes."),
                         SizeField::WidthMajor, SizeField::WidthMinor};
constexpr Side LengthSide{Words("The length of a room can be %1 %2 at most."),
                          Words("Room length:\r\n%1"),
                          Words("The length is empty: a new room needs both its sizes."),
                          SizeField::LengthMajor, SizeField::LengthMinor};

/// The size that is typed; nothing when it may not be stored.
std::optional<Integer> SizeOf(const SizeParts& typed, Units units, const Side& side) {
    try {
        return ReadSize(typed, units);
    } catch (const RunTimeError& error) {
        throw error.WithAdvice(Words(side.TooLarge, TrimStr(std::numeric_limits<Integer>::max()),
                                     SmallUnitName(units)));
    }
}

/// A size that may not be stored is to be corrected.
StoreResult WrongSize(const SizeParts& typed, Units units, const Side& side) {
    const bool isMajor = Spread(typed, units).Wrong == SizePart::Major;
    return {Outcome::WrongSize, isMajor ? side.Major : side.Minor,
            Words(side.Wrong, RefusedNote(typed, units))};
}

StoreResult MissingSize(const Side& side) {
    return {Outcome::OneSizeMissing, side.Major, side.Missing};
}

/// Whether a new room of that size is stored behind `count` others, and why not.
StoreResult ResultOfNewRoom(std::size_t count, Integer width, Integer length) {
    if (width == 0 && length == 0) {
        return {Outcome::Empty, {}, {}};
    }
    if (count >= RoomCapacity) {
        return {Outcome::ProjectFull, {}, {}};
    }
    if (width == 0 || length == 0) {
        return MissingSize(width == 0 ? WidthSide : LengthSide);
    }
    return {};
}

/// The code of a typed base; `kept` where the text is the one that it is shown by, so that a code
/// without a text stays.
Byte BaseOf(const std::string& typed, Byte kept) {
    return typed == BaseText(kept) ? kept : BaseCode(typed);
}

} // namespace

RoomDraft DraftOf(const Room& room, Units shown) {
    RoomDraft draft;
    draft.Width = SplitSize(room.Width, shown);
    draft.Length = SplitSize(room.Length, shown);
    if (room.Covering <= LastTileCode) {
        draft.Covering = room.Covering;
    }
    draft.Base = BaseText(room.Base);
    draft.Number = room.Number;
    draft.Remark = room.Remark;
    return draft;
}

std::string_view StoreResult::Message() const {
    switch (What) {
    case Outcome::OneSizeMissing:
    case Outcome::WrongSize:
        return WrongSizeMessage;
    case Outcome::ProjectFull:
        return ProjectFullText;
    case Outcome::Stored:
    case Outcome::Empty:
        break;
    }
    return {};
}

StoreResult StoreRoom(Project& project, Units shown, std::size_t room, const RoomDraft& draft) {
    const auto width = SizeOf(draft.Width, shown, WidthSide);
    if (!width) {
        return WrongSize(draft.Width, shown, WidthSide);
    }
    const auto length = SizeOf(draft.Length, shown, LengthSide);
    if (!length) {
        return WrongSize(draft.Length, shown, LengthSide);
    }
    const std::size_t count = project.Rooms.size();
    if (room > count) {
        RaiseSubscript();
    }
    const bool isNew = room == count;
    if (isNew) {
        StoreResult result = ResultOfNewRoom(count, *width, *length);
        if (!result.IsStored()) {
            return result;
        }
    }
    const Room before = isNew ? Room() : project.Rooms[room];
    const Room after{*width,
                     *length,
                     draft.Covering.value_or(before.Covering),
                     BaseOf(draft.Base, before.Base),
                     draft.Number,
                     draft.Remark};
    ExtentOf(after, shown, project.Scale);
    if (isNew) {
        project.Rooms.push_back(after);
    } else {
        project.Rooms[room] = after;
    }
    if (isNew || after.Width != before.Width || after.Length != before.Length) {
        project.EnteredIn = shown;
    }
    return {};
}

void AddRooms(Project& project, Units shown, const std::vector<Room>& rooms) {
    if (rooms.empty()) {
        return;
    }
    Project after = project;
    after.Rooms.insert(after.Rooms.end(), rooms.begin(), rooms.end());
    after.EnteredIn = shown;
    RequireExtents(after, shown);
    project = std::move(after);
}

void DeleteRoom(Project& project, std::size_t room) {
    if (room < project.Rooms.size()) {
        project.Rooms.erase(project.Rooms.begin() + static_cast<std::ptrdiff_t>(room));
    }
}

bool IsEmptiedSizeText(std::string_view text, bool beingTyped) {
    const bool isPointWithZeros = std::count(text.begin(), text.end(), '.') == 1 &&
                                  text.find_first_not_of(".0") == std::string_view::npos;
    if (text.empty() || (beingTyped && isPointWithZeros)) {
        return false;
    }
    try {
        return Val(text) == 0;
    } catch (const RunTimeError&) {
        return false; // a number too large for a Double is refused when the room is stored
    }
}

std::string BaseMessage(std::string_view secondExample) {
    std::string message;
    for (const std::string_view line :
         {Words("Sorry, you entered wrong string for base").Text(),
          Words("You should enter L or W with 1 or 2 to be calculated").Text(),
          Words("Example1: L2W1 - means 2 x Length + 1 x Width").Text(), secondExample}) {
        message.append(line).append(CrLf);
    }
    return message;
}

} // namespace tarn
