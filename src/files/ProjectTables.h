// A project's rooms and its report as tables, as spreadsheets get them.

#pragma once

#include "base/Units.h"
#include "files/ValueTable.h"
#include "project/Project.h"

#include <vector>

namespace tarn {

/// The entered-data report: a row for each room, with its area, not rounded, and its base length as
/// listed. Sizes are whole inches or centimetres, which their heads say. Raises as MakeReport.
ValueTable ReportTable(const Project& project, Units shown);

/// The list of the rooms, and their totals by covering. The list has the columns of a room file,
/// and heads that say the unit: saved as CSV by a spreadsheet it can be read again.
std::vector<ValueTable> RoomTables(const Project& project, Units shown);

} // namespace tarn
