#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"

#include <QDate>
#include <QLocale>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Shown when there is no configuration file, or the one found first is empty; the program then
/// ends.
inline constexpr std::string_view ConfigurationMissingMessage = "Couldn't find TarnWin.ini";

/// The database file below the data folder, with a backslash as its path is kept as text.
inline constexpr std::string_view DatabaseFileInDataFolder = "DATA\\Tarn.mdb";

/// Prepare the shared state as the program finds it at its start: options and counts, the database
/// (OpenDataBase), the month names, the arrays, no project, and the directory of the current month.
/// False when there is no usable configuration file: the caller shows ConfigurationMissingMessage
/// and ends. The display and the printer are the caller's.
bool InitSharedState(SharedState& state, EngineArrays& engine,
                     const std::vector<std::filesystem::path>& configurationDirectories,
                     const QDate& today, const QLocale& locale);

/// Read the configuration, set DataPath and DBName, and open CurDB and DBRS 1 to 3. What cannot be
/// opened stays unset and the rest is tried all the same; DatabaseFailure then says why. False,
/// with nothing set, when there is no configuration file or the one found first is empty.
bool OpenDataBase(SharedState& state,
                  const std::vector<std::filesystem::path>& configurationDirectories);

/// Open CurDB and DBRS 1 to 3 once more from DBName where OpenDataBase left CurDB unset, such as a
/// file that was locked then. Answers whether CurDB is set; DatabaseFailure says why not.
bool RetryDataBase(SharedState& state);

/// Set MonthStr 0 .. 11 to the twelve month names.
void FillMonthStr(SharedState& state);

/// Give every shared array its fixed bounds, with all elements empty.
void DimAllArrays(SharedState& state, EngineArrays& engine);

/// The name of the directory for the month of `date`: the locale's stand-alone long month name in
/// upper case.
std::string MonthDirectoryName(const QDate& date, const QLocale& locale);

} // namespace tarn
