// The months as directories.

#pragma once

#include <QDate>
#include <QLocale>

#include <array>
#include <string>
#include <string_view>

namespace tarn {

/// The months that are always offered as directories; they have no row of their own.
inline constexpr std::array<std::string_view, 12> MonthNames = {
    "JANUARY", "FEBRUARY", "MARCH",     "APRIL",   "MAY",      "JUNE",
    "JULY",    "AUGUST",   "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"};

/// The name of the directory for the month of `date`: the locale's stand-alone long month name in
/// upper case.
std::string MonthDirectoryName(const QDate& date, const QLocale& locale);

} // namespace tarn
