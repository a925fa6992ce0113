// The one place that talks to SQLite, through Qt Sql: statements with bound values in, rows out,
// and each failure as an error with its cause in words.

#pragma once

#include <QString>
#include <QVariant>

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Text as a value for a statement. An empty text is a text and no null.
QVariant TextValue(std::string_view utf8);

/// What a statement gave.
struct Result {
    std::vector<std::string> Fields; ///< names of the columns, in their order
    std::vector<QVariantList> Rows;
    qint64 Affected = 0; ///< rows that an INSERT, UPDATE or DELETE touched
};

/// A connection of its own to one database file, closed when the object goes. Every failure raises
/// DatabaseError.
class Connection {
  public:
    enum class Access {
        ReadOnly,
        ReadWrite,
        Create, ///< as ReadWrite, and makes the file when it is missing
    };

    /// Open `path`, which may hold any character. A statement waits up to `busyWait` milliseconds
    /// for other programs. The file's content is first read by the first statement.
    Connection(const std::string& path, Access access, int busyWait);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Run one statement with `values` for its question marks and read all its rows, so that no
    /// lock stays behind. `failing` begins the text of the error: "MainTab cannot be read".
    Result Run(std::string_view statement, std::string_view failing,
               const QVariantList& values = {});

  private:
    QString name_;
};

} // namespace tarn
