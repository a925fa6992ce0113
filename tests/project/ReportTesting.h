#pragma once

// What the tests of the entered-data report share.

#include "project/Report.h"

#include <string>
#include <vector>

namespace tarn::testing {

inline Project ProjectWith(const std::vector<Room>& rooms,
                           const std::string& name = "MAPLE HOUSE") {
    Project project;
    project.Name = name;
    project.Rooms = rooms;
    return project;
}

/// The rows of a report, without its nine lines of heading.
inline std::string RowsOf(const std::string& report) {
    std::size_t begin = 0;
    for (int line = 0; line < 9; ++line) {
        begin = report.find("\r\n", begin) + 2;
    }
    return report.substr(begin);
}

inline std::string RowOf(const Room& room, Units shown) {
    return RowsOf(MakeReport(ProjectWith({room}), shown, "").Text());
}

} // namespace tarn::testing
