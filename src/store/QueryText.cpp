#include "store/QueryText.h"

#include "app/Database.h"
#include "app/Text.h"

#include <algorithm>
#include <cctype>

namespace tarn {

namespace {

constexpr std::string_view Blanks = " \t\r\n";

[[noreturn]] void Refuse(std::string_view text, std::string_view cause) {
    throw DatabaseError("The query " + std::string(text) + " fails: " + std::string(cause) + ".");
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(Blanks);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(Blanks) - begin + 1);
}

/// The text with a question mark in place of the literal, which is the second.
std::pair<std::string, std::optional<std::string>> SplitLiteral(std::string_view text) {
    const std::size_t open = text.find('"');
    if (open == std::string_view::npos) {
        return {std::string(text), std::nullopt};
    }
    const std::size_t close = text.find('"', open + 1);
    if (close == std::string_view::npos) {
        Refuse(text, "a text in it is not closed");
    }
    if (!Trimmed(text.substr(close + 1)).empty()) {
        Refuse(text, "a double quote stands inside a text");
    }
    return {std::string(text.substr(0, open)) + "?",
            std::string(text.substr(open + 1, close - open - 1))};
}

/// Where `keyword` stands as a word of its own; npos when it does not.
std::size_t FindKeyword(std::string_view text, std::string_view keyword) {
    std::size_t begin = text.find_first_not_of(Blanks);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(Blanks, begin), text.size());
        if (EqualsIgnoringCase(text.substr(begin, end - begin), keyword)) {
            return begin;
        }
        begin = text.find_first_not_of(Blanks, end);
    }
    return std::string_view::npos;
}

/// Takes the clauses off the text from behind.
class Clauses {
  public:
    /// `query` is the whole text, for the message.
    Clauses(std::string_view text, std::string_view query)
        : rest_(text)
        , query_(query) {}

    /// The text behind `keyword`, trimmed; empty when the keyword does not occur. One that has
    /// nothing behind it is refused: half a condition must never become none.
    std::string TakeAfter(std::string_view keyword) {
        const std::size_t at = FindKeyword(rest_, keyword);
        if (at == std::string_view::npos) {
            return {};
        }
        const std::string_view clause = Trimmed(rest_.substr(at + keyword.size()));
        if (clause.empty()) {
            Refuse(query_, "nothing follows \"" + std::string(keyword) + "\"");
        }
        rest_ = rest_.substr(0, at);
        return std::string(clause);
    }
    /// What is left.
    std::string_view Rest() const { return Trimmed(rest_); }

  private:
    std::string_view rest_;
    std::string_view query_;
};

bool IsTableName(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](unsigned char c) {
        return std::isalnum(c) != 0 || c == '_';
    });
}

std::vector<std::string> SplitTables(std::string_view list, std::string_view text) {
    std::vector<std::string> tables;
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(',', begin), list.size());
        const std::string_view name = Trimmed(list.substr(begin, end - begin));
        if (!IsTableName(name)) {
            Refuse(text, "it does not name its tables plainly");
        }
        tables.emplace_back(name);
        begin = end + 1;
    }
    return tables;
}

} // namespace

std::string QueryText::TableList() const {
    std::string list;
    for (const std::string& table : Tables) {
        list += (list.empty() ? "" : ", ") + table;
    }
    return list;
}

std::string QueryText::Statement() const {
    std::string statement = "SELECT " + Fields + " FROM " + TableList();
    if (!Condition.empty()) {
        statement += " WHERE " + Condition;
    }
    std::string order = Order;
    for (const std::string& table : Tables) {
        order += (order.empty() ? "" : ", ") + table + ".rowid";
    }
    return statement + " ORDER BY " + order;
}

std::string QueryText::StatementWithRowNumber() const {
    QueryText numbered = *this;
    numbered.Fields = Tables.front() + ".rowid, " + Fields;
    return numbered.Statement();
}

QueryText ReadQuery(std::string_view text) {
    const auto [outside, literal] = SplitLiteral(text);
    if (outside.find_first_of("';") != std::string::npos) {
        Refuse(text, "an apostrophe or a semicolon stands outside a text");
    }

    QueryText query;
    query.Literal = literal;
    Clauses clauses(outside, text);
    const std::string order = clauses.TakeAfter("order");
    query.Condition = clauses.TakeAfter("where");
    query.Tables = SplitTables(clauses.TakeAfter("from"), text);
    query.Fields = clauses.TakeAfter("select");
    if (!clauses.Rest().empty() || query.Fields.empty()) {
        Refuse(text, "it does not begin with Select and fields");
    }
    if (!order.empty()) {
        if (FindKeyword(order, "by") != 0) {
            Refuse(text, "its order does not say by what");
        }
        query.Order = Clauses(order, text).TakeAfter("by");
    }
    if (query.Literal && !query.Condition.ends_with('?')) {
        Refuse(text, "its text is not part of a condition");
    }
    return query;
}

} // namespace tarn
