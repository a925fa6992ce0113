#pragma once

#include "engine/Piece.h"

#include <vector>

namespace tarn {

/// The roll length in use, inches: the farthest end of a placed piece, 0 without any.
Single LengthInUse(const std::vector<Placed>& layout);

/// The length that is reported to the user, inches: the length in use raised to a multiple of 3, by
/// whole inches. Raises "Overflow" when it does not fit, with the way out.
Integer ResultLength(const std::vector<Placed>& layout);

} // namespace tarn
