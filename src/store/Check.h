#pragma once

#include "store/DatabaseAccess.h"

#include <string>
#include <vector>

namespace tarn {

/// Look a database file over: whether it can be read, whether its content is sound, whether every
/// table is there, and whether what stands in the tables is what the program would store: all that
/// a load would complain of, and what it would pass over. A line for each kind of finding, with the
/// first places and how many more there are; none when all is well. Changes neither the file nor
/// anything beside it.
std::vector<std::string> CheckDatabaseFile(const std::string& path, int busyWait = DefaultBusyWait);

} // namespace tarn
