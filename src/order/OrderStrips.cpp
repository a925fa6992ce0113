#include "order/OrderStrips.h"

#include "base/Text.h"
#include "base/Words.h"
#include "improve/PatternPhase.h"

#include <algorithm>

namespace tarn {

namespace {

/// A room as it is laid.
struct LaidRoom {
    Long Number;
    Long Width; ///< across the roll
    Long Length;
};

std::string RoomText(const Project& project, Long room, Phrase alone, Phrase named) {
    const Room& of = project.Rooms.at(static_cast<std::size_t>(room));
    const std::string& name = of.Number.empty() ? of.Remark : of.Number;
    return Words(name.empty() ? alone : named, TrimStr(room + 1), name);
}

class RoomCutter {
  public:
    RoomCutter(const Project& project, const OrderRequest& request, Long usable)
        : project_(project)
        , request_(request)
        , usable_(usable) {}

    /// False when the room cannot be cut.
    bool Cut(const LaidRoom& room) {
        const Long drops = room.Width / usable_;
        const Long rest = room.Width % usable_;
        const Long count = drops + (rest > 0 ? 1 : 0);
        if (room.Length + request_.TrimAlong > LongestStrip) {
            return Refuse([&] {
                return Words("%1 is too long: with its trim a strip may be %2 long.", Name(room),
                             Text(LongestStrip));
            });
        }
        if (result_.Strips.size() + static_cast<std::size_t>(count) > MostStrips) {
            return Refuse([] {
                return Words(
                    "There are more than %1 strips: choose a wider roll or order the rooms "
                    "in two projects.",
                    TrimStr(static_cast<Long>(MostStrips)));
            });
        }
        for (Long number = 0; number < count; ++number) {
            AddStrip(room, number, count, number < drops ? usable_ : rest);
        }
        return CanMatch(room, drops);
    }

    OrderStrips Take() { return std::move(result_); }

    template <typename Say>
    bool Refuse(Say say) {
        result_.Refused = Said(say);
        return false;
    }

  private:
    std::string Text(Long length) const { return OrderLengthText(length, request_.In); }

    /// A room at the beginning of a sentence.
    std::string Name(const LaidRoom& room) const {
        return RoomText(project_, room.Number, Words("Room %1"), Words("Room %1 (%2)"));
    }

    void AddStrip(const LaidRoom& room, Long number, Long count, Long width) {
        const Long cut = std::min(width + request_.TrimAcross, usable_);
        const bool isFill = count > 1 && number == count - 1;
        result_.Strips.push_back({room.Number, number, count, number * usable_, cut,
                                  room.Length + request_.TrimAlong, width, room.Length,
                                  cut < usable_ && (isFill || request_.JoinRooms)});
    }

    /// Drops fill the roll, so all of them show the pattern from its first column; the fill must
    /// have a place at which it goes on where the drops end.
    bool CanMatch(const LaidRoom& room, Long drops) {
        const Long repeat = request_.Pattern.Across;
        const OrderStrip& last = result_.Strips.back();
        if (repeat == 0 || last.Count == 1) {
            return true;
        }
        if (drops > 1 && usable_ % repeat != 0) {
            return Refuse([&] {
                return Words("%1 cannot match: strips as wide as the roll lie beside each other in "
                             "it, and the roll's usable width of %2 is not a whole number of "
                             "repeats of %3 across.",
                             Name(room), Text(usable_), Text(repeat));
            });
        }
        if (NextInPhase(0, last.Begin, repeat) + last.Width > usable_) {
            return Refuse([&] {
                return Words("%1 cannot match: its fill of %2 has no place across the roll's "
                             "usable width of %3 by the repeat of %4.",
                             Name(room), Text(last.Width), Text(usable_), Text(repeat));
            });
        }
        return true;
    }

    const Project& project_;
    const OrderRequest& request_;
    Long usable_;
    OrderStrips result_;
};

} // namespace

OrderStrips StripsOf(const Project& project, Byte carpet, const OrderRequest& request, Long usable,
                     Lay lay) {
    RoomCutter cutter(project, request, usable);
    if (usable < 1) {
        cutter.Refuse([] { return Words("The roll is no wider than its selvage."); });
        return cutter.Take();
    }
    for (std::size_t i = 0; i < project.Rooms.size(); ++i) {
        const Room& room = project.Rooms[i];
        if (room.Covering != carpet || room.Width <= 0 || room.Length <= 0) {
            continue;
        }
        const auto number = static_cast<Long>(i);
        const bool down = lay == Lay::Down;
        if (!cutter.Cut(
                {number, down ? room.Width : room.Length, down ? room.Length : room.Width})) {
            break;
        }
    }
    return cutter.Take();
}

Long UsableWidth(const RollChoice& roll, const OrderRequest& request) {
    return WholeRollWidth(roll.Width) - 2 * request.Selvage;
}

std::string RoomText(const Project& project, Long room) {
    return RoomText(project, room, Words("room %1"), Words("room %1 (%2)"));
}

} // namespace tarn
