// How soon the first complete comparison of an order stands, and in how much memory.
#pragma once

#include <string>

namespace tarn {

/// A table in Markdown for 10 to 500 rooms, four widths and both lays, with and without a pattern:
/// seconds to the first complete comparison and the most memory that the process has had by then,
/// so that it is to be measured before what takes more.
std::string FirstComparisonTable();

} // namespace tarn
