#include "rooms/RoomEntry.h"

#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "rooms/RoomExtents.h"
#include "rooms/WallBase.h"

#include <algorithm>
#include <limits>

namespace tarn {

namespace {

using Outcome = StoreResult::Outcome;

/// The size that is typed; nothing when it may not be stored. `side` names it for the user.
std::optional<Integer> SizeOf(const SizeParts& typed, bool metric, const std::string& side) {
    try {
        return ReadSize(typed.Major, typed.Minor, metric);
    } catch (const RunTimeError& error) {
        throw error.WithAdvice("The " + side + " of a room can be " +
                               TrimStr(std::numeric_limits<Integer>::max()) +
                               (metric ? " centimetres" : " inches") + " at most.");
    }
}

/// Which part of a size that may not be stored is to be corrected.
SizeField WrongPart(const SizeParts& typed, SizeField major, SizeField minor) {
    const auto refused = RefusedPart(typed.Major, typed.Minor);
    const bool isMajor = refused ? *refused == SizePart::Major : Val(typed.Major) < 0;
    return isMajor ? major : minor;
}

/// Why a new room of that size is not stored.
Outcome OutcomeOfNewRoom(Integer room, Integer width, Integer length) {
    if (width == 0 && length == 0) {
        return Outcome::Empty;
    }
    if (room >= RoomCapacity) {
        return Outcome::ProjectFull;
    }
    return width == 0 || length == 0 ? Outcome::OneSizeMissing : Outcome::Stored;
}

void Put(SharedState& state, OpenProject& project, Integer room, const RoomRecord& record) {
    const bool isNew = room == state.ObjNum;
    const bool changes = isNew || record != TakeRoom(state, room);
    const RoomBackup before(state, project, room);
    try {
        PutRoom(state, room, record);
        BuildRoomExtents(state, room);
    } catch (const RunTimeError&) {
        before.Restore(state, project);
        throw;
    }
    if (isNew) {
        state.ObjNum = ToInteger(state.ObjNum + 1);
    }
    project.TypedInMetric = project.TypedInMetric || (changes && state.IsMetric());
}

} // namespace

RoomFields FieldsOf(const SharedState& state, Integer room) {
    const RoomRecord record = TakeRoom(state, room);
    RoomFields fields;
    fields.Width = SplitSize(record.Width, state.IsMetric());
    fields.Length = SplitSize(record.Length, state.IsMetric());
    if (record.Covering <= LastTileCode) {
        fields.Covering = record.Covering;
    }
    fields.Base = GetBaseStr(record.Base);
    fields.RoomNo = record.RoomNo;
    fields.Remark = record.Remark;
    return fields;
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

StoreResult StoreRoom(SharedState& state, OpenProject& project, Integer room,
                      const RoomFields& fields) {
    const auto width = SizeOf(fields.Width, state.IsMetric(), "width");
    if (!width) {
        return {Outcome::WrongSize,
                WrongPart(fields.Width, SizeField::WidthMajor, SizeField::WidthMinor)};
    }
    const auto length = SizeOf(fields.Length, state.IsMetric(), "length");
    if (!length) {
        return {Outcome::WrongSize,
                WrongPart(fields.Length, SizeField::LengthMajor, SizeField::LengthMinor)};
    }
    Byte covering = fields.Covering.value_or(0);
    std::optional<Byte> untypedBase;
    if (room == state.ObjNum) {
        const Outcome outcome = OutcomeOfNewRoom(room, *width, *length);
        if (outcome != Outcome::Stored) {
            return {outcome};
        }
    } else {
        covering = fields.Covering.value_or(state.RoomCarpet[room]);
        if (fields.Base == GetBaseStr(state.RoomBase[room])) {
            untypedBase = state.RoomBase[room]; // also a code that has no text
        }
    }
    const Byte base = untypedBase ? *untypedBase : CalBaseID(fields.Base);
    Put(state, project, room, {*width, *length, covering, base, fields.RoomNo, fields.Remark});
    return {};
}

void DeleteRoom(SharedState& state, Integer room) {
    const Integer count = state.ObjNum;
    if (room < count - 1) {
        for (long long k = room; k <= count - 2; ++k) {
            PutRoom(state, k, TakeRoom(state, k + 1));
        }
    } else if (room < RoomCapacity) {
        PutRoom(state, room, {});
    }
    if (room < count) {
        state.ObjNum = ToInteger(count - 1);
    }
}

RoomBackup::RoomBackup(const SharedState& state, const OpenProject& project, Integer room)
    : room_(room)
    , objNum_(state.ObjNum)
    , typedInMetric_(project.TypedInMetric) {
    if (room_ < RoomCapacity) {
        record_ = TakeRoom(state, room_);
        farX_ = state.RoomX(room_, 1);
        farY_ = state.RoomY(room_, 1);
    }
}

void RoomBackup::Restore(SharedState& state, OpenProject& project) const {
    state.ObjNum = objNum_;
    project.TypedInMetric = typedInMetric_;
    if (room_ < RoomCapacity) {
        PutRoom(state, room_, record_);
        state.RoomX(room_, 1) = farX_;
        state.RoomY(room_, 1) = farY_;
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
         {std::string_view("Sorry, you entered wrong string for base"),
          std::string_view("You should enter L or W with 1 or 2 to be calculated"),
          std::string_view("Example1: L2W1 - means 2 x Length + 1 x Width"), secondExample}) {
        message.append(line).append(CrLf);
    }
    return message;
}

} // namespace tarn
