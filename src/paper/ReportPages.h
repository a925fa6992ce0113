// The entered-data report broken into lines and pages of a fixed-pitch face.

#pragma once

#include "project/Report.h"

#include <cstddef>
#include <vector>

namespace tarn {

using PaperPage = std::vector<ReportLine>;

/// A page has room for that much at least.
inline constexpr std::size_t LeastPageLines = 6;
inline constexpr std::size_t LeastPageColumns = 40;

/// The entered-data report as pages of at most `lines` lines (at least LeastPageLines) of at most
/// `columns` characters (at least LeastPageColumns). Before it stands one empty line; a page after
/// the first begins with the heads of the columns. A line that is too long goes on in the next,
/// indented to its remark; it is broken behind a blank if there is one. No character is lost, but
/// for blanks at the end of a line. A row with its continuation stays on one page unless it is
/// longer than that.
std::vector<PaperPage> ReportPages(const EnteredDataReport& report, std::size_t columns,
                                   std::size_t lines);

} // namespace tarn
