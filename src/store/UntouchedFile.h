#pragma once

#include "store/Connection.h"

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
    /// What lies beside the file and what that means, a sentence; empty when nothing does.
    const std::string& JournalFinding() const { return journalFinding_; }

  private:
    void Copy(const std::string& path);

    std::string path_;
    std::string journalFinding_;
    std::optional<QTemporaryDir> copy_;
    std::unique_ptr<Connection> connection_; // the last one: closed before the copy goes
};

} // namespace tarn
