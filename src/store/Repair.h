#pragma once

#include "store/DatabaseAccess.h"

#include <string>
#include <vector>

namespace tarn {

/// Write a clean database file, made anew, with all that can be read of another, be it damaged or
/// out of order. `target` must not exist. Gives what was left out or changed, a line for each,
/// and how many more where there are hundreds of a kind; none when everything is as it was. The
/// source and all beside it stay as they are.
///
/// No room that can be read is lost: rooms that nothing shows become projects of their own.
/// Raises DatabaseError, and leaves nothing behind, when nothing can be read of the source or the
/// copy cannot be made.
std::vector<std::string> RepairDatabaseFile(const std::string& source, const std::string& target,
                                            int busyWait = DefaultBusyWait);

} // namespace tarn
