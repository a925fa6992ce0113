#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A query text taken apart: "Select FIELDS from TABLE[, TABLE] [where CONDITION]
/// [order by FIELDS]", with at most one text literal, in double quotes, as the last thing in it.
struct QueryText {
    std::string Fields;
    std::vector<std::string> Tables;
    std::string Condition; ///< with a question mark for the literal; empty without a condition
    std::string Order;     ///< empty without an order
    std::optional<std::string> Literal; ///< the text between the double quotes

    /// The tables as a list for a message.
    std::string TableList() const;
    /// The statement for SQLite. Rows come in the order asked for, equal ones and all others by
    /// row number.
    std::string Statement() const;
    /// The same for a query on one table, with the row number as the first column.
    std::string StatementWithRowNumber() const;
};

/// Take a query text apart. Raises DatabaseError for a literal that is not closed, text after a
/// literal, a doubled quote in one, a literal outside the condition, apostrophes and semicolons
/// outside a literal, and any other shape of query.
QueryText ReadQuery(std::string_view text);

} // namespace tarn
