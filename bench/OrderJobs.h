// Random projects to order for, and the rolls they are compared on.
#pragma once

#include "order/MakeOrder.h"

#include <random>

namespace tarn {

/// Rooms of 3 to 20 feet a side, all of carpet 0.
Project RandomRooms(std::mt19937& random, int count);

/// Rolls of 6, 12, 13.5 and 15 feet, both lays.
OrderRequest FourWidths();

} // namespace tarn
