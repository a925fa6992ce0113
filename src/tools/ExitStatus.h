#pragma once

namespace tarn {

/// Exit statuses of the programs.
enum ExitStatus : int {
    Done = 0,
    Refused = 1, ///< or failed; the reason is on standard error
    WrongUsage = 2
};

} // namespace tarn
