#pragma once

#include "app/SharedState.h"

#include <string>
#include <string_view>

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

/// A date in the short form of the system's locale.
std::string ShortDate(int year, int month, int day);

/// Today's date in that form.
std::string ShortDateOfToday();

} // namespace tarn
