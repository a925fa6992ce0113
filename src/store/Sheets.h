// The rows of MainTab. A project's sheet is its row there; the sheet's number, TabIndex, keys the
// project's rows in every other table. A number belongs to one project, but older files may have
// several under one.

#pragma once

#include "base/Types.h"
#include "base/Units.h"
#include "project/Project.h"
#include "store/Tables.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Stands for "no sheet" in older versions; never given to a sheet.
inline constexpr Integer NoSheet = -100;

/// The number of the project's first sheet; nothing when it has none. Raises DatabaseError when the
/// sheet has no number, and "Overflow" for one past 32767.
std::optional<Integer> FindSheetNumber(Connection& connection, std::string_view project);

/// The next free number: one above the greatest, at least 0. Raises "Overflow" past 32767.
Integer NewSheetNumber(Connection& connection);

/// The sheets under one number, as they stood when this was made.
class SheetsUnder {
  public:
    SheetsUnder(Connection& connection, Integer number, std::string_view project);

    /// The project's own sheet; the first one where none is its own. Null without any.
    const StoredRow* Own() const;
    /// The other projects that have a sheet under the number, as stored.
    std::vector<std::string> OtherProjects() const;

  private:
    bool IsOwn(const StoredRow& sheet) const;

    std::string project_;
    std::vector<StoredRow> sheets_;
};

/// What a sheet says of its project.
struct SheetContent {
    Integer Number = 0;
    Integer Rooms = 0; ///< 0 .. RoomCapacity
    Double Scale = 0;
};

/// Raises DatabaseError when the sheet is no good: a field is missing, a null or a number out of
/// range stands in it.
SheetContent ContentOf(const StoredRow& sheet);

/// In which units the sheet's rooms were entered: its EnteredMetric; where that is missing or null,
/// the units that were in force when it was saved.
Units EnteredUnitsOf(const StoredRow& sheet);

/// The number under which to save the project: that of its sheet, or the one set aside for it, or,
/// where another project has that number, the next free one. Sheets that the project has already
/// are given the number.
Integer SheetNumberToSave(Connection& connection, const Project& project);

/// Replace the sheets under Project::Sheet by one of the project; `shown` are the units in force.
/// EnteredMetric is added to the table where it is missing. Raises DatabaseError.
void StoreSheet(Connection& connection, const Project& project, Units shown);

/// Delete every sheet of the project with all rows of its number in every table; a table that is
/// not there is skipped.
void DeleteSheetsOf(Connection& connection, const QVariant& project);

/// Before `projects` are deleted by their sheet numbers: give each of their sheets that shares its
/// number with another project the next free one. The room rows stay under the old number, since
/// they do not tell whose they are.
void LeaveSharedNumbers(Connection& connection, const std::vector<std::string>& projects);

} // namespace tarn
