// What helps when a database file cannot be used, in words for the user.

#pragma once

namespace tarn {

/// A file that holds nothing to go on with.
inline constexpr const char* RestoreAdvice =
    "Put a backup in its place with \"tarn-data restore\".";
/// A file of which a part may still be read.
inline constexpr const char* DamageAdvice =
    "Put a backup in its place with \"tarn-data restore\", or save what can still be read of it "
    "with \"tarn-data repair\".";

} // namespace tarn
