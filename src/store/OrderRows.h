// The rows of OrderData: what was asked for of a project's orders. A database without the table has
// none, and gets it with the first that is stored.

#pragma once

#include "project/OrderRequest.h"
#include "store/Tables.h"

#include <map>
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

/// Replace the stored requests of a sheet. Raises DatabaseError.
void StoreOrderRows(Connection& connection, Integer sheet,
                    const std::map<Byte, OrderRequest>& requests);

} // namespace tarn
