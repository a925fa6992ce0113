// The database engine's own locks on a file, taken without the engine: to copy a file or to put
// another in its place while no program is in the middle of a change, also when the engine itself
// must not open it.

#pragma once

#include <memory>
#include <string>

namespace tarn {

/// A lock on a database file, as the engine takes it; let go with the object. While a Reading lock
/// is held no program changes the file or takes a change back; while a Replacing lock is held none
/// reads it either. Another part of this program that holds a lock on the file through the engine
/// loses it when the object goes.
class FileLock {
  public:
    enum class Kind { Reading, Replacing };

    /// Wait up to `busyWait` milliseconds for other programs. Raises DatabaseError, naming the
    /// file, when they keep it longer or the file cannot be locked.
    FileLock(const std::string& path, Kind kind, int busyWait);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Whether another program has begun a change, of which nothing reaches the file while this
    /// lock is held.
    bool HasWriter() const;

  private:
    bool TryTake(Kind kind) const;

    int file_ = -1;
};

} // namespace tarn
