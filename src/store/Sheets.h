#pragma once

#include "app/SharedState.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What GetProjTabIndex answers for a project without a sheet. Never stored.
inline constexpr Long NoSheet = -100;

/// A sheet number belongs to one project. Where a file has several projects under one, the row of
/// CurProjName counts, and the first one when that project has none.

/// Replace the sheet rows of `tabIndex` by one that holds CurProjName, ObjNum, DimScale and
/// MetricFlag. EnteredMetric, where the table has that field, becomes 0 without rooms, else 1 with
/// MetricFlag 1, else keeps its value. False, with the cause in DatabaseFailure, at the first
/// database error; what was stored until then stays, unless a transaction takes it back.
bool SaveMainTab(SharedState& state, Integer tabIndex);

/// Set ObjNum, DimScale and the argument from the sheet row of `tabIndex`. MetricFlag becomes 0 in
/// every case, whatever the row says. False, with nothing else set and the cause in
/// DatabaseFailure, when there is no row, the database fails, or the row is no good: a null in
/// ObjNum, TabIndex or DigScale, an ObjNum outside 0 .. 501, a DigScale of 0 or less.
bool LoadMainTab(SharedState& state, Integer& tabIndex);

/// Whether the sheet's rooms were entered in metric: its EnteredMetric; where that is missing or
/// null, the units flag it was last saved with. False without a sheet row. Raises DatabaseError.
bool WasEnteredInMetric(SharedState& state, Integer tabIndex);

/// The next free sheet number: one above the greatest, at least 0. Raises DatabaseError when the
/// database fails and "Overflow" past 32767.
Long NewTabIndex(SharedState& state);

/// Sheet number of the project CurProjName; nothing when it has no sheet. Raises DatabaseError when
/// the database fails or the sheet row has no number, and "Overflow" for a number past 32767.
std::optional<Long> FindProjTabIndex(SharedState& state);

/// As FindProjTabIndex, but NoSheet for "no sheet" and for a database failure, whose cause is then
/// in DatabaseFailure.
Long GetProjTabIndex(SharedState& state);

/// Before `projects` are deleted by their sheet numbers: give each of their sheets that shares its
/// number with another project the next free one. The room rows stay under the old number, since
/// they do not tell whose they are. Raises, with nothing changed, DatabaseError and as NewTabIndex.
void LeaveSharedNumbers(SharedState& state, const std::vector<std::string>& projects);

/// The query for the rows of `table` that belong to a sheet.
std::string SheetQuery(std::string_view table, Long tabIndex);

/// The query for the rows of `table` whose `field` is `text`.
std::string TextQuery(std::string_view table, std::string_view field, std::string_view text);

} // namespace tarn
