#include "files/ProjectTables.h"

#include "base/Text.h"
#include "files/RoomHeadings.h"
#include "project/Coverings.h"
#include "project/Report.h"
#include "project/RoomList.h"
#include "project/WallBase.h"

namespace tarn {

namespace {

constexpr double SquareFoot = 144;
constexpr double SquareYard = 9 * SquareFoot;
constexpr double SquareMetre = 10000;

/// A head that says the unit of its lengths: "width (in)".
std::string LengthHead(std::string_view name, Units units) {
    return std::string(name) + (units == Units::Metric ? " (cm)" : " (in)");
}

TableCell WholeCell(long long number) {
    return static_cast<std::int64_t>(number);
}

/// The head of a column of areas, and a square unit of it in small units.
struct AreaColumn {
    std::string Head;
    double Unit;
};
std::vector<AreaColumn> AreaColumns(Units units) {
    if (units == Units::Metric) {
        return {{"square metres", SquareMetre}};
    }
    return {{"square yards", SquareYard}, {"square feet", SquareFoot}};
}

ValueTable TotalTable(const Project& project, Units shown) {
    ValueTable table{"Totals", {"covering", "rooms"}, {}};
    for (const AreaColumn& column : AreaColumns(shown)) {
        table.Heads.push_back(column.Head);
    }
    for (const CoveringTotal& total : TotalsByCovering(project.Rooms, project.Rooms.size(), {})) {
        std::vector<TableCell> row{CoveringName(total.Covering),
                                   WholeCell(static_cast<long long>(total.Rooms))};
        for (const AreaColumn& column : AreaColumns(shown)) {
            row.emplace_back(static_cast<double>(total.Area) / column.Unit);
        }
        table.Rows.push_back(std::move(row));
    }
    return table;
}

} // namespace

ValueTable ReportTable(const Project& project, Units shown) {
    const AreaColumn area = AreaColumns(shown).front();
    ValueTable table{"Report",
                     {"item", LengthHead("width", shown), LengthHead("length", shown), area.Head,
                      "covering", "base", LengthHead("base length", shown), "room", "remark"},
                     {}};
    long long item = 0;
    for (const Room& room : project.Rooms) {
        ++item;
        const double size = static_cast<double>(room.Width) * room.Length;
        table.Rows.push_back(
            {WholeCell(item), WholeCell(room.Width), WholeCell(room.Length), size / area.Unit,
             CoveringName(room.Covering), BaseText(room.Base),
             room.Base == 0 ? TableCell() : WholeCell(ReportedBaseLength(room, item, shown)),
             room.Number, room.Remark});
    }
    return table;
}

std::vector<ValueTable> RoomTables(const Project& project, Units shown) {
    ValueTable table{"Rooms", {}, {}};
    for (std::size_t i = 0; i < RoomFieldNames.size(); ++i) {
        const auto field = static_cast<RoomField>(i);
        table.Heads.push_back(IsSize(field) ? LengthHead(NameOf(field), shown)
                                            : std::string(NameOf(field)));
    }
    for (const Room& room : project.Rooms) {
        table.Rows.push_back({WholeCell(room.Width), WholeCell(room.Length),
                              CoveringName(room.Covering), BaseText(room.Base), room.Number,
                              room.Remark});
    }
    return {std::move(table), TotalTable(project, shown)};
}

} // namespace tarn
