#pragma once

#include <stdexcept>

namespace tarn {

/// A failure of the database; what() says what failed and why, in words for the user: the table or
/// the file, what could not be done, and the cause.
class DatabaseError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace tarn
