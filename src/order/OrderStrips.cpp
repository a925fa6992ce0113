#include "order/OrderStrips.h"

#include "base/Text.h"
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
            return Refuse(room, "is too long: with its trim a strip may be " + Text(LongestStrip) +
                                    " long.");
        }
        if (result_.Strips.size() + static_cast<std::size_t>(count) > MostStrips) {
            result_.Refused = "There are more than " + TrimStr(static_cast<Long>(MostStrips)) +
                              " strips: choose a wider roll or order the rooms in two projects.";
            return false;
        }
        for (Long number = 0; number < count; ++number) {
            AddStrip(room, number, count, number < drops ? usable_ : rest);
        }
        return CanMatch(room, drops);
    }

    OrderStrips Take() { return std::move(result_); }
    void RefuseAll(const std::string& reason) { result_.Refused = reason; }

  private:
    std::string Text(Long length) const { return OrderLengthText(length, request_.In); }

    bool Refuse(const LaidRoom& room, const std::string& reason) {
        std::string text = RoomText(project_, room.Number);
        text.front() = 'R';
        result_.Refused = text + " " + reason;
        return false;
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
        const std::string usable = "the roll's usable width of " + Text(usable_);
        if (drops > 1 && usable_ % repeat != 0) {
            return Refuse(room, "cannot match: " + usable +
                                    " is not a whole number of repeats of " + Text(repeat) +
                                    " across.");
        }
        if (NextInPhase(0, last.Begin, repeat) + last.Width > usable_) {
            return Refuse(room, "cannot match: its fill of " + Text(last.Width) +
                                    " has no place across " + usable + " by the repeat of " +
                                    Text(repeat) + ".");
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
        cutter.RefuseAll("The roll is no wider than its selvage.");
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
    const Room& named = project.Rooms.at(static_cast<std::size_t>(room));
    const std::string& name = named.Number.empty() ? named.Remark : named.Number;
    return "room " + TrimStr(room + 1) + (name.empty() ? "" : " (" + name + ")");
}

} // namespace tarn
