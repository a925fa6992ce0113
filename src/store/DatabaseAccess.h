// How a database is opened; the words that all who open one share.

#pragma once

namespace tarn {

/// How a database is opened.
enum class DatabaseAccess {
    ReadWrite,
    ReadOnly, ///< for programs that only read; a read-only file or folder will do
};

/// How long a statement waits for another program's lock, in milliseconds.
inline constexpr int DefaultBusyWait = 5000;

} // namespace tarn
