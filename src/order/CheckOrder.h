// Whether an order holds what it promises: computed anew from the rooms and the request, apart from
// the search.

#pragma once

#include "order/Order.h"
#include "project/Project.h"

#include <string>

namespace tarn {

/// What is wrong with one row of an order of the project's rooms, as a sentence; empty when nothing
/// is. Of a row that has pieces: their sizes and places in their rooms, that they lie on the roll
/// and do not overlap, that parts are no more and no shorter than asked for, that the pieces of a
/// room match, that each room is covered, their labels, and the figures.
std::string CheckCandidate(const Project& project, const Order& order, std::size_t candidate);

/// The same of all rows, that there is one for each roll and lay, and that the best is the best.
std::string CheckOrder(const Project& project, const Order& order);

} // namespace tarn
