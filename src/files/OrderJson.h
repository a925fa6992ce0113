#pragma once

#include "files/OrderDocument.h"

#include <string>

namespace tarn {

/// The orders as a JSON document (UTF-8, ends with a line feed): the request, the comparison and
/// the pieces of the best row for each carpet. Lengths are whole inches or centimetres, areas
/// square feet or square metres; a figure that a row does not have is null.
std::string OrderJson(const OrderDocument& document);

} // namespace tarn
