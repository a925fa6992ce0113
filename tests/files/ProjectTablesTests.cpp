#include "base/RunTimeError.h"
#include "files/ProjectTables.h"
#include "files/RoomCsv.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using Cells = std::vector<TableCell>;

TableCell Whole(std::int64_t number) {
    return number;
}

Project House() {
    Project project;
    project.Rooms = {{120, 144, 0, 5, "101", "=Hall"}, {36, 36, 8, 0, "", ""}};
    return project;
}

TEST(ReportTable, HasARowForEachRoomWithItsAreaAndListedBase) {
    const ValueTable table = ReportTable(House(), Units::Imperial);
    EXPECT_EQ(table.Name, "Report");
    EXPECT_EQ(table.Heads,
              (std::vector<std::string>{"item", "width (in)", "length (in)", "square yards",
                                        "covering", "base", "base length (in)", "room", "remark"}));
    ASSERT_EQ(table.Rows.size(), 2U);
    // Two widths and one length are 384 inches, raised to the next multiple of three.
    EXPECT_EQ(table.Rows[0], (Cells{Whole(1), Whole(120), Whole(144), 120.0 * 144 / 1296,
                                    "CARPET-1", "W2L1", Whole(387), "101", "=Hall"}));
    EXPECT_EQ(table.Rows[1],
              (Cells{Whole(2), Whole(36), Whole(36), 1.0, "TILE-1", "", TableCell(), "", ""}));
}

TEST(ReportTable, IsInCentimetresAndSquareMetresWhereMetricIsShown) {
    const ValueTable table = ReportTable(House(), Units::Metric);
    EXPECT_EQ(table.Heads[1], "width (cm)");
    EXPECT_EQ(table.Heads[3], "square metres");
    EXPECT_EQ(table.Heads[6], "base length (cm)");
    EXPECT_EQ(table.Rows[0][3], TableCell(1.728));
}

TEST(ReportTable, NamesTheRoomWhoseBaseIsTooLong) {
    Project project = House();
    project.Rooms[1] = {32767, 32767, 0, 5, "", ""};
    try {
        ReportTable(project, Units::Imperial);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_NE(error.Sentences().find("room 2"), std::string::npos) << error.Sentences();
    }
}

TEST(RoomTables, HaveTheRoomsAndTheirTotals) {
    Project project = House();
    project.Rooms.push_back({60, 72, 0, 0, "", ""});
    const std::vector<ValueTable> tables = RoomTables(project, Units::Imperial);
    ASSERT_EQ(tables.size(), 2U);
    EXPECT_EQ(tables[0].Name, "Rooms");
    EXPECT_EQ(tables[0].Heads, (std::vector<std::string>{"width (in)", "length (in)", "covering",
                                                         "base", "room", "remark"}));
    ASSERT_EQ(tables[0].Rows.size(), 3U);
    EXPECT_EQ(tables[0].Rows[0],
              (Cells{Whole(120), Whole(144), "CARPET-1", "W2L1", "101", "=Hall"}));
    EXPECT_EQ(tables[1].Name, "Totals");
    EXPECT_EQ(tables[1].Heads,
              (std::vector<std::string>{"covering", "rooms", "square yards", "square feet"}));
    EXPECT_EQ(tables[1].Rows, (std::vector<Cells>{{"CARPET-1", Whole(2), 21600.0 / 1296, 150.0},
                                                  {"TILE-1", Whole(1), 1.0, 9.0}}));
    EXPECT_EQ(RoomTables(project, Units::Metric)[1].Heads,
              (std::vector<std::string>{"covering", "rooms", "square metres"}));
}

TEST(RoomTables, AreReadAgainWhenASpreadsheetSavesThemAsCsv) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        const Project project = House();
        const RoomCsvReading reading = ReadRoomCsv(CsvOf({RoomTables(project, units)[0]}), units);
        EXPECT_EQ(reading.Rooms, project.Rooms);
        const Units other = units == Units::Metric ? Units::Imperial : Units::Metric;
        EXPECT_FALSE(ReadRoomCsv(CsvOf({RoomTables(project, units)[0]}), other).Succeeded())
            << "the heads say the unit";
    }
}

} // namespace
} // namespace tarn
