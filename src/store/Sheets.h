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

/// What is stored of a project: rows as they were read.
struct StoredProject {
    std::vector<StoredRow>
        Sheets;                   ///< the first one counts; none for a project that was never saved
    std::vector<StoredRow> Rooms; ///< those under the first sheet's number, by ObjNum
    std::vector<StoredRow> Orders; ///< its rows of OrderData, by the carpet
};

/// What is stored of the project that reads as that name, whatever the case of A to Z. Raises
/// DatabaseError.
StoredProject ReadStored(Connection& connection, std::string_view project);

/// The number of a sheet. Raises DatabaseError when it has none or no whole one, and "Overflow" for
/// one past 32767; `project` names the sheet for the user.
Integer SheetNumberOf(const StoredRow& sheet, std::string_view project);

/// The number of the project's first sheet; nothing when it has none. Raises as ReadStored and
/// SheetNumberOf.
std::optional<Integer> FindSheetNumber(Connection& connection, std::string_view project);

/// The next free number: one above the greatest sheet's, at least 0, or the next above that under
/// which no table has rows. Raises DatabaseError, and "Overflow" past 32767.
Integer NewSheetNumber(Connection& connection);

/// The other projects that have a sheet under the number, as they read. Raises DatabaseError.
std::vector<std::string> OtherProjectsUnder(Connection& connection, Integer number,
                                            std::string_view project);

/// What a sheet says of its project.
struct SheetContent {
    std::size_t Rooms = 0; ///< 0 .. RoomCapacity
    Double Scale = 0;
};

/// Raises DatabaseError when the sheet is no good: a field is missing, a null or a number out of
/// range stands in it.
SheetContent ContentOf(const StoredRow& sheet);

/// In which units the sheet's rooms were entered: its EnteredMetric; where that is missing or null,
/// the units that were in force when it was saved. Raises DatabaseError for a text in either field.
Units EnteredUnitsOf(const StoredRow& sheet);

/// What is odd about the sheets of a project, the first of which has that number: a line that names
/// those that are not reached; none for one sheet.
std::vector<std::string> SheetFindings(const std::vector<StoredRow>& sheets, Integer number);

/// The number under which to save the project, of which `sheets` are stored: that of the first of
/// them, or the one set aside for it, or, where that is in use, the next free one. Raises as
/// SheetNumberOf and NewSheetNumber.
Integer SheetNumberToSave(Connection& connection, const Project& project,
                          const std::vector<StoredRow>& sheets);

/// Put a sheet of the project, with the number Project::Sheet, in the place of the first of the
/// `sheets` that are stored of it, and of those that share its number; the others stay. `shown` are
/// the units in force. EnteredMetric is added to the table where it is missing. Raises
/// DatabaseError.
void StoreSheet(Connection& connection, const Project& project,
                const std::vector<StoredRow>& sheets, Units shown);

/// Delete every sheet of the project, with all rows under its number in every table; a table that
/// is not there is skipped. Where another sheet has the number too, the rows stay: they do not tell
/// whose they are. Raises DatabaseError, also for a sheet without a number and for a view in the
/// place of a table, and "Overflow" for a number past 32767.
void DeleteSheetsOf(Connection& connection, std::string_view project);

} // namespace tarn
