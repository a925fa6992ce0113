#pragma once

#include "store/ProjectStore.h"

#include <QTemporaryDir>

#include <string>
#include <vector>

namespace tarn::testing {

/// The rows of a table, or other texts line by line.
using Lines = std::vector<std::string>;

/// Short enough for a test that waits for a lock in vain, in milliseconds.
inline constexpr int ShortWait = 20;

/// A connection to a database file that shares no code with the store: what a test uses to look at
/// a file independently, to damage it, and to play another program. Statements are plain SQL of the
/// database engine. Failures end the test program with a message.
class RawDatabase {
  public:
    explicit RawDatabase(const std::string& path);
    ~RawDatabase();
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    void Run(const std::string& statement);
    /// Every row as its values joined by "|", a null as "NULL".
    Lines Rows(const std::string& query);

  private:
    std::string name_;
};

/// A folder of its own for a test, removed with everything in it.
class TestFolder {
  public:
    TestFolder();
    /// The path of `name` in the folder.
    std::string Path(const std::string& name = {}) const;
    /// Every file and folder in it, by name, also hidden ones.
    Lines Content() const;

  private:
    QTemporaryDir folder_;
};

/// Write `bytes` as the whole content of a file, and read them.
void WriteFile(const std::string& path, const std::string& bytes);
std::string ReadFile(const std::string& path);

/// A database file with every table and no row, in a folder of its own.
class TestDatabase {
  public:
    TestDatabase();

    std::string Path() const { return folder_.Path("Tarn.mdb"); }
    const TestFolder& Folder() const { return folder_; }

    /// Open it through the store.
    ProjectStore Open(int busyWait = DefaultBusyWait) const;

    /// As RawDatabase, on a connection of its own each time.
    void Run(const std::string& statement) const { RawDatabase(Path()).Run(statement); }
    Lines Rows(const std::string& query) const { return RawDatabase(Path()).Rows(query); }

    /// Add a directory, and a project with a sheet of `rooms` rooms (width 100 + number, length 200
    /// + number, covering and base 0) to the file.
    void AddDirectory(const std::string& name) const;
    void AddProject(const std::string& directory, const std::string& project, int tabIndex,
                    int rooms = 0) const;
    /// Add the directory HOUSES, in it SMITH (sheet 1, three rooms) and JONES (sheet 2, one room),
    /// and in a month NEW, which was never saved.
    void AddHouses() const;

  private:
    TestFolder folder_;
};

/// `text` as a literal of the database engine.
std::string Literal(const std::string& text);

/// Run `action`; the text of the DatabaseError that it raised, or a note that it raised none.
template <typename Action>
std::string DatabaseErrorOf(Action&& action) {
    try {
        action();
    } catch (const DatabaseError& error) {
        return error.what();
    }
    return "(no DatabaseError was raised)";
}

} // namespace tarn::testing
