#pragma once

#include "app/Text.h"
#include "estimate/EstimatePage.h"
#include "estimate/Picture.h"
#include "rooms/Report.h"
#include "rooms/RoomRecord.h"

#include <string>
#include <vector>

namespace tarn::testing {

inline constexpr double A4Width = 842; ///< landscape, points
inline constexpr double A4Height = 595;

/// The report of `count` rooms of different sizes, coverings and bases.
inline EnteredDataReport ReportOf(int count, bool metric = false) {
    std::vector<RoomRecord> rooms;
    for (int i = 0; i < count; ++i) {
        RoomRecord room;
        room.Width = static_cast<Integer>(60 + 37 * i % 400);
        room.Length = static_cast<Integer>(90 + 53 * i % 700);
        room.Covering = static_cast<Byte>(i % 12);
        room.Base = static_cast<Byte>(i % 9);
        room.RoomNo = "R" + std::to_string(i + 1);
        room.Remark = "remark" + std::to_string(i + 1);
        rooms.push_back(room);
    }
    SharedState state;
    state.MetricFlag = metric ? 1 : 0;
    state.CurProjName = "MAPLE HOUSE";
    PutRooms(state, rooms);
    return LoadReport(state, "11/21/2031");
}

/// A drawing with a box in every corner of 12000 by 7000 twips, and a text.
inline Picture CornersDrawing() {
    Picture picture;
    picture.Line(0, 0, 12000, 7000, QBColor::Black);
    picture.Line(0, 0, 600, 600, QBColor::Red);
    picture.Line(11400, 6400, 12000, 7000, QBColor::Red);
    picture.CurrentX = 3000;
    picture.CurrentY = 3000;
    picture.FontSize = 12;
    picture.Print("Total Length:30'0\"");
    return picture;
}

inline EstimatePage PageOf(const Picture& picture) {
    EstimatePage page;
    page.Title = "     TARN RESULT  (PROJECT: MAPLE HOUSE)  11/21/2031";
    page.Drawing = &picture;
    page.CarpetLines = {"Carpet-1  Width=12'0\"", "DOWNLAY"};
    page.PrnWidth = 16838;
    page.PrnHeight = 11906;
    return page;
}

} // namespace tarn::testing
