#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace tarn {

/// A failure of the database; what() says what failed and why, in words for the user.
class DatabaseError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The value of a field: nothing (null), a whole number, a number, or UTF-8 text.
using FieldValue = std::variant<std::monostate, std::int64_t, double, std::string>;

/// Rows of a query with a current row. A dynaset can be edited and reads its rows afresh at
/// MoveFirst; a snapshot keeps what it read when it was opened and refuses every edit.
/// Every member raises DatabaseError when the database refuses, when the set is closed, or when it
/// needs a current row and there is none (past the end, or the row was deleted).
class Recordset {
  public:
    virtual ~Recordset() = default;

    /// True past the last row, and always for an empty set.
    virtual bool AtEnd() const = 0;
    /// Go to the first row. An empty set stays at its end.
    virtual void MoveFirst() = 0;
    /// Go to the next row; also from a row that was just deleted.
    virtual void MoveNext() = 0;

    /// Whether the set has a field of that name (letter case does not matter).
    virtual bool HasField(std::string_view name) const = 0;
    /// The current row's value. Raises DatabaseError when there is no such field.
    virtual FieldValue Field(std::string_view name) const = 0;

    /// Begin a new row, all fields null; Update stores it.
    virtual void AddNew() = 0;
    /// Begin to change the current row; Update stores the change.
    virtual void Edit() = 0;
    /// Set a field of the row begun with AddNew or Edit.
    virtual void SetField(std::string_view name, FieldValue value) = 0;
    /// Store the row begun. It is in the file when Update returns, unless a transaction is open.
    virtual void Update() = 0;
    /// Delete the current row; there is then no current row until MoveNext.
    virtual void Delete() = 0;

    virtual void Close() = 0;
};

/// An open database. Query texts are plain SQL with text literals in double quotes.
class Database {
  public:
    virtual ~Database() = default;

    /// An editable set on "Select * from TABLE ..." over one table.
    virtual std::unique_ptr<Recordset> OpenDynaset(std::string_view query) = 0;
    /// A set for reading, on any query.
    virtual std::unique_ptr<Recordset> OpenSnapshot(std::string_view query) = 0;

    /// One transaction at a time; see Transaction.
    virtual void Begin() = 0;
    virtual void Commit() = 0;
    virtual void Rollback() noexcept = 0;
};

/// Rolls back what was stored since its construction unless Commit succeeded.
class Transaction {
  public:
    explicit Transaction(Database& database)
        : database_(database) {
        database_.Begin();
    }
    ~Transaction() {
        if (open_) {
            database_.Rollback();
        }
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit() {
        database_.Commit();
        open_ = false;
    }

  private:
    Database& database_;
    bool open_ = true;
};

} // namespace tarn
