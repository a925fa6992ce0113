// Rows of tables with their row numbers: all that is read and written of the tables goes through
// here.

#pragma once

#include "base/Types.h"
#include "base/Words.h"
#include "store/Connection.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// A row as it was read. The readings raise DatabaseError for a field that is not there; letter
/// case does not matter in its name.
class StoredRow {
  public:
    /// What the rows of one reading have in common.
    struct Source {
        std::string Table;
        std::vector<std::string> Fields;
    };

    StoredRow(std::shared_ptr<const Source> source, QVariant rowNumber, QVariantList values);

    bool HasField(std::string_view field) const;

    /// The value as it stands.
    const QVariant& ValueIn(std::string_view field) const;
    /// The number in a field; nothing for a null. Raises DatabaseError for a text.
    std::optional<Double> NumberIn(std::string_view field) const;
    /// The number in a field, null as 0; halves are rounded to even. Raises "Overflow" when it does
    /// not fit.
    Integer IntegerIn(std::string_view field) const;
    Byte ByteIn(std::string_view field) const;
    /// The text in a field, null as the empty text, a number as its decimal text; with a
    /// ReplacementCharacter for what may not be stored, whoever stored it.
    std::string TextIn(std::string_view field) const;
    /// All that stands in the row, as bytes to be compared: two rows have the same where the same
    /// fields hold the same values of the same types. A null counts as a missing field.
    std::string Content() const;

  private:
    friend class Table;

    std::shared_ptr<const Source> source_;
    QVariant rowNumber_;
    QVariantList values_;
};

/// "table" or "view", what stands in the database under the name of a table; empty for nothing.
/// Raises DatabaseError.
std::string KindOf(Connection& connection, std::string_view table);

/// A table of a database, read and written by rows. What is read is read afresh each time, and all
/// of it at once, so that no lock stays behind. Rows are changed and deleted by their numbers,
/// which hold as long as the transaction in which they were read. Every failure raises
/// DatabaseError.
class Table {
  public:
    /// Values of a new row by their fields; the fields left out become null.
    using Values = std::vector<std::pair<std::string_view, QVariant>>;

    Table(Connection& connection, std::string_view name);

    bool HasField(std::string_view field);
    /// Add a field of whole numbers, null in every row. Whether there is one of that name is the
    /// caller's to check.
    void AddNumberField(std::string_view field);

    /// All rows by the field `order`; equal ones, and all without an order, by row number.
    std::vector<StoredRow> Rows(std::string_view order = {});
    /// The rows whose `field` is `value`, in the same order.
    std::vector<StoredRow> RowsWhere(std::string_view field, const QVariant& value,
                                     std::string_view order = {});
    /// The rows whose `field` reads as `text`, whatever the case of A to Z, by row number. Found by
    /// the field's index, unless the text holds a ReplacementCharacter.
    std::vector<StoredRow> RowsShowing(std::string_view field, std::string_view text);
    /// The greatest value of a field of numbers; nothing when no row has one.
    std::optional<Double> Greatest(std::string_view field);
    /// The numbers from `least` to `most` that stand in a field.
    std::set<Double> NumbersBetween(std::string_view field, Double least, Double most);

    // A row that the database does not take, or keeps as it was, such as for a trigger that another
    // program left in it, is a failure.

    /// Add a row; with the row number of `place`, which is no longer there, where one is given.
    void Add(const Values& values, const StoredRow* place = nullptr);
    void Change(const StoredRow& row, std::string_view field, const QVariant& value);
    void Delete(const std::vector<StoredRow>& rows);
    /// Delete all rows whose `field` is `value`, in one statement.
    void DeleteWhere(std::string_view field, const QVariant& value);

  private:
    /// How many rows there are; with a condition, how many it holds for.
    qint64 Count(const std::string& condition, const QVariantList& values);
    /// Run a statement that has to touch exactly one row.
    void RunOnRow(const std::string& statement, const std::string& failing,
                  const QVariantList& values);
    std::vector<StoredRow> Read(const std::string& condition, const QVariantList& values,
                                std::string_view order);
    /// Have the database engine learn of fields that another program added or dropped: its driver
    /// does not survive a change in the number of columns that comes to light in the middle of a
    /// statement.
    void LearnOfChanges();
    const std::vector<std::string>& Fields();
    std::string Failing(Phrase what) const { return Words(what, name_); }
    std::string DeleteFailing() const { return Failing(Words("%1 cannot be deleted from")); }

    Connection& connection_;
    std::string name_;
    std::vector<std::string> fields_; ///< empty until they are learned
};

} // namespace tarn
