#pragma once

// What the tests of the entered-data report share.

#include "rooms/Report.h"
#include "rooms/RoomRecord.h"

#include <string>
#include <vector>

namespace tarn::testing {

inline SharedState StateWith(const std::vector<RoomRecord>& rooms, bool metric,
                             const std::string& project = "MAPLE HOUSE") {
    SharedState state;
    state.MetricFlag = metric ? 1 : 0;
    state.CurProjName = project;
    PutRooms(state, rooms);
    return state;
}

/// The rows of a report, without its nine lines of heading.
inline std::string RowsOf(const std::string& report) {
    std::size_t begin = 0;
    for (int line = 0; line < 9; ++line) {
        begin = report.find("\r\n", begin) + 2;
    }
    return report.substr(begin);
}

inline std::string RowOf(const RoomRecord& room, bool metric) {
    return RowsOf(LoadReport(StateWith({room}, metric), "").Text());
}

} // namespace tarn::testing
