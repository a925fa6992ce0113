// The rows of OrderData: what was asked for of a project's orders. A database without the table has
// none, and gets it with the first that is stored.

#pragma once

#include "project/OrderRequest.h"
#include "store/RawRows.h"
#include "store/Tables.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// The requests that stand in rows of OrderData.
struct StoredRequests {
    std::map<Byte, OrderRequest> Requests; ///< by the carpets' covering codes
    std::vector<std::string> Findings;     ///< rows that cannot be read, a line for all of them
};

/// Read the requests; of two for one carpet the last row counts. Raises DatabaseError for a field
/// that is missing.
StoredRequests RequestsOf(const std::vector<StoredRow>& rows);

/// A request as it stands in a row of OrderData, whatever else stands there.
struct RawRequest {
    std::int64_t Sheet = 0;
    std::int64_t Carpet = 0; ///< its number
    bool IsReadable = false; ///< as RequestsOf reads it
};

/// The request of a row; nothing without a whole number for its sheet, or when its carpet or its
/// units are at fault.
std::optional<RawRequest> RawRequestOf(const RawRow& row);

/// Replace the stored requests of a sheet. Raises DatabaseError.
void StoreOrderRows(Connection& connection, Integer sheet,
                    const std::map<Byte, OrderRequest>& requests);

} // namespace tarn
