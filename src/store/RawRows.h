// Rows as they stand in the file, whatever stands there: what looking a file over and repairing it
// read. (Tables.h reads rows as the program uses them.)

#pragma once

#include "store/Connection.h"
#include "store/Schema.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarn {

/// Bytes that are stored as no text.
struct Blob {
    std::string Hexadecimal;
};

/// A value of a row: nothing, a whole number, a number, a text by its bytes, or bytes.
using RawValue = std::variant<std::monostate, std::int64_t, double, std::string, Blob>;

bool IsNull(const RawValue& value);
/// The number that a value is, whole or not; nothing for any other.
std::optional<double> NumberOf(const RawValue& value);
/// The text of a value as it is shown, in one line: a text as ShownText, a number in decimal.
std::string TextOf(const RawValue& value);
/// The same with quotes around a text, cut where it is long, and "nothing" for a null.
std::string QuotedValue(const RawValue& value);

/// Why a value may not stand in a field, "is no whole number from 0 to 8"; nothing when it may.
std::optional<std::string> FaultOf(const RawValue& value, const Field& field);

/// A row by its number, with a value for each field of the table's shape; null for a field that
/// the file does not have.
struct RawRow {
    std::int64_t Number = 0;
    std::vector<RawValue> Values;
};

/// A table of a file, read from its first row to its last, never all at once.
class RawTable {
  public:
    using Visitor = std::function<void(const RawRow&)>;
    /// Told of a gap in the rows that cannot be read: the last number before it.
    using GapVisitor = std::function<void(std::int64_t)>;

    /// Raises DatabaseError when the table's fields cannot be read.
    RawTable(Connection& connection, const TableShape& shape);

    /// Whether it is a table of rows with numbers: no view, and no table of another kind.
    bool HasRowNumbers() const { return hasRowNumbers_; }
    bool Has(std::string_view field) const;
    /// Whether every field is there that must be.
    bool IsComplete() const;
    /// Where a field's value stands in RawRow::Values.
    std::size_t At(std::string_view field) const;

    /// Visit every row. Raises DatabaseError where one cannot be read.
    void Visit(const Visitor& visit);
    /// Visit the rows of which at least one value has a FaultOf its field.
    void VisitFaulty(const Visitor& visit);
    /// Visit every row that can be read, also behind those that cannot. Rows without numbers are
    /// counted from 1, and read all at once, no more of them than the file has room for.
    void VisitReadable(const Visitor& visit, const GapVisitor& gap);

  private:
    /// At most `most` rows after the number `after` for which `condition` holds.
    std::vector<RawRow> Read(std::int64_t after, int most, const std::string& condition);
    void VisitWhere(const std::string& condition, const Visitor& visit);
    void VisitUnnumbered(const Visitor& visit);
    std::int64_t PageCount();
    /// The number behind a gap from which rows can be read again; nothing when there is none.
    std::optional<std::int64_t> EndOfGap(std::int64_t after);

    Connection& connection_;
    const TableShape& shape_;
    std::vector<bool> has_; ///< by the fields of the shape
    std::string selected_;  ///< the fields' values
    bool hasRowNumbers_ = true;
};

} // namespace tarn
