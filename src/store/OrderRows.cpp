#include "store/OrderRows.h"

#include "base/RunTimeError.h"
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

} // namespace

StoredRequests RequestsOf(const std::vector<StoredRow>& rows) {
    StoredRequests stored;
    std::string unreadable;
    for (const StoredRow& row : rows) {
        const auto carpet = NumberOf(row, "Carpet");
        const auto metric = NumberOf(row, "Metric");
        const auto request =
            metric ? ReadOrderRequestJson(row.TextIn("Request"),
                                          *metric == 1 ? Units::Metric : Units::Imperial)
                   : std::nullopt;
        if (carpet && *carpet >= 1 && *carpet <= FirstTileCode && request) {
            stored.Requests.insert_or_assign(static_cast<Byte>(*carpet - 1), *request);
        } else {
            unreadable += (unreadable.empty() ? "" : ", ") + row.TextIn("Carpet");
        }
    }
    if (!unreadable.empty()) {
        stored.Findings.push_back("Requests for orders that cannot be read, left out and dropped "
                                  "by SAVE: carpet " +
                                  unreadable + ".");
    }
    return stored;
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
