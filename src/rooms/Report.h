#pragma once

#include "app/SharedState.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The entered-data report of the open project: heading, then one row for each room, every line
/// ended by CrLf. `date` is printed as it is.
///
/// The columns are padded as installers know them from earlier listings, with all their oddities:
/// the gaps around the X follow the plain number of the width on both sides, the imperial gap
/// behind the area follows the length of the metric figure, and the gaps around the base length
/// differ between the units. Lengths are counted in characters; a negative padding is none.
///
/// Raises "Overflow", with an advice that names the room, when a room's base length does not fit an
/// Integer.
std::string LoadReport(const SharedState& state, std::string_view date);

/// The title of the report, in its heading and of what is printed.
inline constexpr std::string_view ReportTitle = "ENTERED DATA REPORT";

/// How the report's lines stand, for who breaks them into pages: a heading, of which the last lines
/// are the heads of the columns, then the rows.
inline constexpr std::size_t ReportHeadingLines = 9;
inline constexpr std::size_t ReportColumnHeadLines = 3;
inline constexpr std::size_t ReportHeadingWidth = 87; ///< characters of the widest head

/// Where the remark begins in a row of the report, counted in characters from its left; 0 for a
/// line that is no row. A room number of more characters than its column holds is taken to end with
/// the column.
std::size_t RemarkColumn(std::string_view line);

/// The lines of a report, without the CrLf that ends each.
std::vector<std::string_view> ReportLines(std::string_view text);

/// A date in the short form of the system's locale.
std::string ShortDate(int year, int month, int day);

/// Today's date in that form.
std::string ShortDateOfToday();

} // namespace tarn
