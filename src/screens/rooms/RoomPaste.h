// Rooms that are pasted from the clipboard of a spreadsheet, and what the user is told of it.

#pragma once

#include "files/RoomCsv.h"

#include <string>

namespace tarn {

/// What the ways to paste are called, with the mnemonic.
inline constexpr const char* PasteRoomsCaption = "&Paste rooms";

/// The rooms of the clipboard's text: `most` at most, their sizes in `units`. A text without a room
/// is a mistake.
RoomCsvReading ReadClipboardRooms(Units units, std::size_t most);

/// The step of that many rooms, for the user: "Paste 3 rooms".
std::string NameOfPaste(std::size_t rooms);

/// Nothing was pasted, and why.
inline constexpr const char* NothingPasted = "The rooms could not be pasted: nothing was changed.";
std::string WhyNotPasted(const RoomCsvReading& reading);

/// Sizes were rounded, and which.
inline constexpr const char* PastedRounded = "The rooms are pasted. Some sizes are rounded:";
std::string RoundedText(const RoomCsvReading& reading);

} // namespace tarn
