#pragma once

#include "store/Connection.h"
#include "store/Journal.h"

#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <string>

namespace tarn {

/// A database file opened to be looked over: neither it nor anything beside it is changed. Where a
/// crash left a journal, which opening the file would take back, a copy of both is read instead:
/// what the next program will find. A journal of another state is left out of the copy.
class UntouchedFile {
  public:
    /// Raises DatabaseError for a file that is missing, empty, no database or locked by another
    /// program for longer than `busyWait`. Its content may be damaged.
    UntouchedFile(const std::string& path, int busyWait);

    Connection& Database() { return *connection_; }
    /// The file that is read: the one given, or its copy.
    const std::string& Path() const { return path_; }
    /// What a crash left beside the file.
    JournalKind Journal() const { return journal_; }

  private:
    void Copy(const std::string& path);

    std::string path_;
    JournalKind journal_ = JournalKind::None;
    std::optional<QTemporaryDir> copy_;
    std::unique_ptr<Connection> connection_; // the last one: closed before the copy goes
};

} // namespace tarn
