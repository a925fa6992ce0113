#pragma once

#include <stdexcept>

namespace tarn {

/// A failure of the database; what() says what failed and why, in words for the user, and names the
/// file.
class DatabaseError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace tarn
