#include "store/OrderRows.h"

#include "base/RunTimeError.h"
#include "base/Words.h"
#include "files/OrderRequestJson.h"
#include "project/Coverings.h"
#include "store/DatabaseError.h"
#include "store/Schema.h"

#include <optional>

namespace tarn {

namespace {

/// The whole number in a field; nothing for a null, a text or one that does not fit.
std::optional<Integer> NumberOf(const StoredRow& row, std::string_view field) {
    row.ValueIn(field); // it must be there
    try {
        return row.NumberIn(field) ? std::optional(row.IntegerIn(field)) : std::nullopt;
    } catch (const DatabaseError&) {
        return std::nullopt;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::optional<OrderRequest> ReadRequest(const std::string& text, bool metric) {
    return ReadOrderRequestJson(text, metric ? Units::Metric : Units::Imperial);
}

} // namespace

StoredRequests RequestsOf(const std::vector<StoredRow>& rows) {
    StoredRequests stored;
    std::string unreadable;
    for (const StoredRow& row : rows) {
        const auto carpet = NumberOf(row, "Carpet");
        const auto metric = NumberOf(row, "Metric");
        const auto request =
            metric ? ReadRequest(row.TextIn("Request"), *metric == 1) : std::nullopt;
        if (carpet && *carpet >= 1 && *carpet <= FirstTileCode && request) {
            stored.Requests.insert_or_assign(static_cast<Byte>(*carpet - 1), *request);
        } else {
            unreadable += (unreadable.empty() ? "" : ", ") + row.TextIn("Carpet");
        }
    }
    if (!unreadable.empty()) {
        stored.Findings.push_back(Words("Requests for orders that cannot be read, left out and "
                                        "dropped by SAVE: carpet %1.",
                                        unreadable));
    }
    return stored;
}

std::optional<RawRequest> RawRequestOf(const RawRow& row) {
    const auto& fields = ShapeOf(OrderData).Fields;
    const RawValue* text = nullptr;
    std::map<std::string_view, std::int64_t> numbers;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const RawValue& value = row.Values.at(i);
        if (fields.at(i).Content == FieldContent::Text) {
            text = &value;
            continue;
        }
        const auto* number = std::get_if<std::int64_t>(&value);
        const bool isSheet = fields.at(i).Name == "TabIndex";
        if (number == nullptr || (!isSheet && FaultOf(value, fields.at(i)))) {
            return std::nullopt;
        }
        numbers[fields.at(i).Name] = *number;
    }
    const auto* written = std::get_if<std::string>(text);
    const bool isReadable =
        written != nullptr && ReadRequest(*written, numbers.at("Metric") == 1).has_value();
    return RawRequest{numbers.at("TabIndex"), numbers.at("Carpet"), isReadable};
}

void StoreOrderRows(Connection& connection, Integer sheet,
                    const std::map<Byte, OrderRequest>& requests) {
    const bool isThere = !KindOf(connection, OrderData).empty();
    if (!isThere && requests.empty()) {
        return;
    }
    if (!isThere) {
        CreateTable(connection, ShapeOf(OrderData));
    }
    Table table(connection, OrderData);
    table.DeleteWhere("TabIndex", sheet);
    for (const auto& [carpet, request] : requests) {
        table.Add({{"TabIndex", sheet},
                   {"Carpet", carpet + 1},
                   {"Metric", request.In == Units::Metric ? 1 : 0},
                   {"Request", TextValue(OrderRequestJson(request))}});
    }
}

} // namespace tarn
