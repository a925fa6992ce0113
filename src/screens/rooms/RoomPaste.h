// Rooms that are pasted from the clipboard of a spreadsheet, and what the user is told of it.

#pragma once

#include "base/Words.h"
#include "files/RoomCsv.h"

#include <string>

namespace tarn {

/// What the ways to paste are called, with the mnemonic.
inline constexpr auto PasteRoomsCaption = Words("&Paste rooms");

/// The rooms of the clipboard's text: `most` at most, their sizes in `units`. A text without a room
/// is a mistake.
RoomCsvReading ReadClipboardRooms(Units units, std::size_t most);

/// The step of that many rooms, for the user: "paste 3 rooms".
std::string NameOfPaste(std::size_t rooms);

/// Nothing was pasted, and why.
inline constexpr auto NothingPasted = Words("The rooms could not be pasted: nothing was changed.");
std::string WhyNotPasted(const RoomCsvReading& reading);

/// Sizes were rounded, and which.
inline constexpr auto PastedRounded = Words("The rooms are pasted. Some sizes are rounded:");
std::string RoundedText(const RoomCsvReading& reading);

} // namespace tarn
