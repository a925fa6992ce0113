// Reports, drawings and pages that the tests of paper print.

#pragma once

#include "base/Text.h"
#include "drawing/Drawing.h"
#include "paper/EstimatePage.h"
#include "project/Report.h"
#include "project/Room.h"

#include <string>
#include <utility>
#include <vector>

namespace tarn::testing {

inline constexpr double A4Width = 842; ///< landscape, points
inline constexpr double A4Height = 595;

/// The report of `count` rooms of different sizes, coverings and bases.
inline EnteredDataReport ReportOf(int count, Units shown = Units::Imperial) {
    Project project;
    project.Name = "MAPLE HOUSE";
    for (int i = 0; i < count; ++i) {
        Room room;
        room.Width = static_cast<Integer>(60 + 37 * i % 400);
        room.Length = static_cast<Integer>(90 + 53 * i % 700);
        room.Covering = static_cast<Byte>(i % 12);
        room.Base = static_cast<Byte>(i % 9);
        room.Number = "R" + std::to_string(i + 1);
        room.Remark = "remark" + std::to_string(i + 1);
        project.Rooms.push_back(room);
    }
    return MakeReport(project, shown, "11/21/2031");
}

/// The report of these rooms, in feet and inches, without a date.
inline EnteredDataReport ReportOfRooms(std::vector<Room> rooms) {
    Project project;
    project.Rooms = std::move(rooms);
    return MakeReport(project, Units::Imperial, "");
}

/// A drawing with a box in every corner of 12000 by 7000 twips, and a text.
inline Drawing CornersDrawing() {
    Drawing drawing;
    drawing.AddBox(0, 0, 12000, 7000, DrawingColor::Black);
    drawing.AddBox(0, 0, 600, 600, DrawingColor::Red);
    drawing.AddBox(11400, 6400, 12000, 7000, DrawingColor::Red);
    drawing.PenX = 3000;
    drawing.PenY = 3000;
    drawing.FontSize = 12;
    drawing.WriteLine("Total Length:30'0\"");
    return drawing;
}

inline EstimatePage PageOf(const Drawing& drawing) {
    EstimatePage page;
    page.Title = "     TARN RESULT  (PROJECT: MAPLE HOUSE)  11/21/2031";
    page.Picture = drawing;
    page.CarpetLines = {"Carpet-1  Width=12'0\"", "DOWNLAY"};
    page.Sheet = {16838, 11906};
    return page;
}

} // namespace tarn::testing
