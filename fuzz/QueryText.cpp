#include "store/QueryText.h"

#include "Fuzzing.h"
#include "app/Database.h"

#include <algorithm>

namespace tarn {
namespace {

/// Whatever a name holds that has no double quote, it reaches the database as it is, as a value.
void CheckLiteral(std::string_view name) {
    const std::string text = "Select * from MainTab where ProjName = \"" + std::string(name) + "\"";
    if (name.find('"') != std::string_view::npos) {
        try {
            ReadQuery(text);
            Require(false, "a double quote in a name is refused");
        } catch (const DatabaseError&) {
        }
        return;
    }
    const QueryText query = ReadQuery(text);
    Require(query.Literal == std::string(name), "the name is the value");
    Require(query.Tables == std::vector<std::string>{"MainTab"}, "the table is the table");
    Require(query.Condition == "ProjName = ?", "the condition is the condition");
}

/// A text is refused, or has one place for its value.
void CheckQuery(std::string_view text) {
    try {
        const QueryText query = ReadQuery(text);
        const std::string statement = query.Statement();
        Require(!query.Tables.empty(), "a query has a table");
        Require(statement.find_first_of("\"';") == std::string::npos,
                "nothing in the statement begins a text or another statement");
        const auto places = std::count(query.Condition.begin(), query.Condition.end(), '?');
        Require(!query.Literal || places >= 1, "the value has a place");
    } catch (const DatabaseError&) {
    }
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = tarn::TextOf(data, size);
    tarn::CheckLiteral(text);
    tarn::CheckQuery(text);
    return 0;
}
