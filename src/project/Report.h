// The entered-data report, a listing of a project's rooms in columns of fixed pitch.

#pragma once

#include "base/Units.h"
#include "base/Words.h"
#include "project/Project.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// One line of the report, UTF-8, without its line break. Control characters, such as a line break
/// in a remark that was brought in from elsewhere, are blanks in it.
struct ReportLine {
    std::string Text;
    /// Where the remark begins, characters from the left; 0 for a line that is no row.
    std::size_t Remark = 0;

    bool operator==(const ReportLine&) const = default;
};

/// The entered-data report: what the report frame shows, the printer prints and files hold.
struct EnteredDataReport {
    std::vector<ReportLine> Lines;

    /// The lines, each ended by CrLf.
    std::string Text() const;

    bool operator==(const EnteredDataReport&) const = default;
};

/// The report of a project whose sizes are shown in `shown`: heading, then one row for each room.
/// `date` is printed as it is.
///
/// The columns are padded as installers know them from earlier listings, with all their oddities:
/// the gaps around the X follow the plain number of the width on both sides, the imperial gap
/// behind the area follows the length of the metric figure, and the gaps around the base length
/// differ between the units. Lengths are counted in characters; a negative padding is none.
///
/// Raises "Overflow", with an advice that names the room, when a room's base length does not fit an
/// Integer.
EnteredDataReport MakeReport(const Project& project, Units shown, std::string_view date);

/// The base length that the report lists for the room that is number `item` of the project, in the
/// small unit. Raises as MakeReport.
Integer ReportedBaseLength(const Room& room, long long item, Units shown);

/// The title of the report, in its heading and of what is printed.
inline constexpr auto ReportTitle = Words("ENTERED DATA REPORT");

/// How the report's lines stand, for who breaks them into pages: a heading, of which the last lines
/// are the heads of the columns, then the rows.
inline constexpr std::size_t ReportHeadingLines = 9;
inline constexpr std::size_t ReportColumnHeadLines = 3;
inline constexpr std::size_t ReportHeadingWidth = 87; ///< characters of the widest head

} // namespace tarn
