#pragma once

#include "tools/OrderOptions.h"

namespace tarn {

/// Make the orders that the options ask for and write them. Raises Refusal when it cannot be done,
/// and when no carpet has an order, what is asked for being written all the same.
void OrderFor(const OrderOptions& options);

} // namespace tarn
