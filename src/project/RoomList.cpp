#include "project/RoomList.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "project/Coverings.h"
#include "project/RoomEntry.h"
#include "project/WallBase.h"

#include <map>

namespace tarn {

namespace {

constexpr std::string_view AreaFormat = "#,##0.00";
constexpr Double SquareFoot = InchesPerFoot * InchesPerFoot;
constexpr Double SquareYard = 9 * SquareFoot;
constexpr Double SquareMetre = 100 * 100;

std::string AreaText(long long area, Double unit) {
    return Format(static_cast<Double>(area) / unit, AreaFormat);
}

long long AreaOf(const Room& room) {
    return static_cast<long long>(room.Width) * room.Length;
}

std::string Number(std::size_t number) {
    return TrimStr(static_cast<long long>(number));
}

std::vector<std::string> TotalLine(const std::string& name, std::size_t rooms, long long area,
                                   Units shown) {
    if (shown == Units::Metric) {
        return {name, Number(rooms), AreaText(area, SquareMetre)};
    }
    return {name, Number(rooms), AreaText(area, SquareYard), AreaText(area, SquareFoot)};
}

} // namespace

std::string_view CaptionOf(RoomColumn column, Units shown) {
    switch (column) {
    case RoomColumn::Item:
        return Words("ITEM");
    case RoomColumn::Width:
        return Words("WIDTH");
    case RoomColumn::Length:
        return Words("LENGTH");
    case RoomColumn::Covering:
        return Words("TYPE");
    case RoomColumn::Base:
        return Words("BASE");
    case RoomColumn::Number:
        return Words("ROOM");
    case RoomColumn::Remark:
        return Words("REMARK");
    case RoomColumn::Area:
        return shown == Units::Metric ? Words("SQ. M") : Words("SQ. YD.");
    }
    return {};
}

std::string ListText(RoomColumn column, const Room& room, std::size_t place, Units shown) {
    switch (column) {
    case RoomColumn::Item:
        return Number(place + 1);
    case RoomColumn::Width:
        return WholeLengthText(room.Width, shown);
    case RoomColumn::Length:
        return WholeLengthText(room.Length, shown);
    case RoomColumn::Covering:
        return CoveringReportText(room.Covering);
    case RoomColumn::Base:
        return BaseText(room.Base);
    case RoomColumn::Number:
        return OneLine(room.Number);
    case RoomColumn::Remark:
        return OneLine(room.Remark);
    case RoomColumn::Area:
        return AreaText(AreaOf(room), shown == Units::Metric ? SquareMetre : SquareYard);
    }
    return {};
}

std::string_view NewRoomText(bool isHalfTyped) {
    return isHalfTyped ? Words("New room, half typed") : Words("New room");
}

std::optional<Room> RoomAsTyped(const Project& project, Units shown, std::size_t room,
                                const RoomDraft& draft) {
    const std::size_t count = project.Rooms.size();
    if (room > count || room == RoomCapacity) {
        return std::nullopt;
    }
    Project alone; // nothing but this room decides
    alone.Scale = project.Scale;
    if (room < count) {
        alone.Rooms.push_back(project.Rooms[room]);
    }
    try {
        return StoreRoom(alone, shown, 0, draft).IsStored() ? std::optional(alone.Rooms[0])
                                                            : std::nullopt;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::vector<CoveringTotal> TotalsByCovering(const std::vector<Room>& rooms, std::size_t place,
                                            const std::optional<Room>& typed) {
    std::map<Byte, CoveringTotal> totals;
    const auto add = [&totals](const Room& room) {
        CoveringTotal& total = totals[room.Covering];
        total.Covering = room.Covering;
        ++total.Rooms;
        total.Area += AreaOf(room);
    };
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        add(i == place ? typed.value_or(rooms[i]) : rooms[i]);
    }
    if (place == rooms.size() && typed) {
        add(*typed);
    }
    std::vector<CoveringTotal> list;
    list.reserve(totals.size());
    for (const auto& [covering, total] : totals) {
        list.push_back(total);
    }
    return list;
}

std::vector<std::string> TotalCaptions(Units shown) {
    if (shown == Units::Metric) {
        return {Words("COVERING"), Words("ROOMS"), Words("SQ. M")};
    }
    return {Words("COVERING"), Words("ROOMS"), Words("SQ. YD."), Words("SQ. FT.")};
}

std::vector<std::vector<std::string>> TotalLines(const std::vector<CoveringTotal>& totals,
                                                 Units shown) {
    std::vector<std::vector<std::string>> lines;
    std::size_t rooms = 0;
    long long area = 0;
    for (const CoveringTotal& total : totals) {
        lines.push_back(TotalLine(CoveringCaption(total.Covering), total.Rooms, total.Area, shown));
        rooms += total.Rooms;
        area += total.Area;
    }
    if (totals.size() > 1) {
        lines.push_back(TotalLine(Words("ALL"), rooms, area, shown));
    }
    return lines;
}

} // namespace tarn
