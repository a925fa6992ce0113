// What helps when a database file cannot be used, in words for the user.

#pragma once

#include "base/Words.h"

namespace tarn {

/// A file that holds nothing to go on with.
inline constexpr auto RestoreAdvice =
    Words("Put a backup in its place with \"tarn-data restore\".");
/// A file of which a part may still be read.
inline constexpr auto DamageAdvice =
    Words("Put a backup in its place with \"tarn-data restore\", or save what can still be read of "
          "it with \"tarn-data repair\".");

} // namespace tarn
