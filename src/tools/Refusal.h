#pragma once

#include <stdexcept>
#include <string>

namespace tarn {

/// A request that cannot be done; what() is the reason, for standard error.
class Refusal : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Exit statuses of the command-line programs.
enum ExitStatus : int { Done = 0, Refused = 1, WrongUsage = 2 };

} // namespace tarn
