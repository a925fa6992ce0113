#pragma once

#include "files/OrderDocument.h"

#include <string>

namespace tarn {

/// The orders as a text to be read: for each carpet the comparison, its best row marked with *,
/// what there is to note on it, and the list by which it is cut. Ends with a line feed.
std::string OrderText(const OrderDocument& document);

} // namespace tarn
