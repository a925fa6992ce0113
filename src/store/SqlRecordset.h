#pragma once

#include "app/Database.h"
#include "store/Connection.h"
#include "store/QueryText.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tarn {

/// Rows of a query, held in memory, so that no lock stays on the file.
///
/// A dynaset knows each row's number. Its Update and Delete touch the row only if it still holds
/// what was read, and raise DatabaseError otherwise: a row number can be given to another row when
/// the last row of a table is deleted. A row added through a dynaset is seen in it from the next
/// MoveFirst on.
class SqlRecordset final : public Recordset {
  public:
    enum class Kind { Dynaset, Snapshot };

    /// Read the rows and stand on the first. Raises DatabaseError when the query fails, and for a
    /// dynaset on anything but "Select *" from one table.
    SqlRecordset(const std::shared_ptr<Connection>& connection, QueryText query, Kind kind);

    bool AtEnd() const override;
    void MoveFirst() override;
    void MoveNext() override;
    bool HasField(std::string_view name) const override;
    FieldValue Field(std::string_view name) const override;
    void AddNew() override;
    void Edit() override;
    void SetField(std::string_view name, FieldValue value) override;
    void Update() override;
    void Delete() override;
    void Close() override;

  private:
    struct Row {
        QVariant Number; ///< the row number; invalid in a snapshot
        QVariantList Values;
        bool Deleted = false;
    };
    enum class Pending { Nothing, New, Change };

    void Read();
    /// The connection; raises when the set or the database is closed.
    std::shared_ptr<Connection> Open() const;
    void RequireEditable() const;
    /// The current row; raises when there is none.
    const Row& Current() const;
    /// Column of the field; -1 when there is none.
    qsizetype Column(std::string_view name) const;
    qsizetype RequireColumn(std::string_view name) const;
    void Insert();
    void ChangeCurrent();
    /// Run a statement that must touch the current row alone, as it was read.
    void RunOnCurrent(std::string statement, QVariantList values, const char* failing);
    std::string Failing(const char* what) const { return query_.TableList() + what; }

    std::weak_ptr<Connection> connection_;
    QueryText query_;
    Kind kind_;
    bool closed_ = false;
    std::vector<std::string> fields_;
    std::vector<Row> rows_;
    std::size_t position_ = 0;
    Pending pending_ = Pending::Nothing;
    std::vector<std::pair<qsizetype, QVariant>> buffer_; ///< columns set since AddNew or Edit
};

} // namespace tarn
