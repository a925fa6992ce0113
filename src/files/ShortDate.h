// Dates as texts; the parts that compute are given them so.

#pragma once

#include <string>

namespace tarn {

/// A date in the short form of the system's locale.
std::string ShortDate(int year, int month, int day);

/// Today's date in that form.
std::string ShortDateOfToday();

} // namespace tarn
