// What the user is told about sizes that are not kept as they were typed.

#pragma once

#include "base/Units.h"
#include "project/Room.h"
#include "project/RoomSize.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What a size field did not take, and how to write it: "A comma is not taken: type 3.45".
/// `dropped` is what was taken off the typing as it held no size (see IsEmptiedSizeText),
/// `standing` what stands in the field. Told are a comma, also one that stands before digits, and a
/// sign, letters and marks that were dropped, or a minus sign that stands. Empty for nothing to
/// tell, such as for 0'6" of which 6" stands.
std::string DroppedNote(std::string_view dropped, std::string_view standing, Units units);

/// What is wrong with a size that cannot be stored as it is typed (see Spread), and how to write
/// it: "12'6 is not taken: type it like .."; empty for nothing.
std::string RefusedNote(const SizeParts& typed, Units units);

/// What is kept of a size that is no whole number: "Kept as 12'6" (typed 12'6.5")". Empty for a
/// whole one, and for one that cannot be stored.
std::string KeptNote(const SizeParts& typed, Units units);

/// Whether a size is 0 as it stands in its fields: an empty one, mostly. One that cannot be stored
/// is none.
bool IsEmptySize(const SizeParts& typed, Units units);

/// What an empty size means; empty when neither is.
std::string EmptySizeNote(bool isWidthEmpty, bool isLengthEmpty);

/// Which rooms have a width or length of 0, when the project is stored: those of `now` that were
/// not stored so `before`. "Room 3 has no width or no length .."; empty for none.
std::string EmptyRoomsText(const std::vector<Room>& before, const std::vector<Room>& now);

} // namespace tarn
