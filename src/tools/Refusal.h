#pragma once

#include <stdexcept>
#include <string>

namespace tarn {

/// A request that cannot be done; what() is the reason, for standard error.
class Refusal : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace tarn
