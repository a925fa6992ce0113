// The rules of typing rooms one at a time, without a screen. A room of the project is counted from
// 0; the number of its rooms stands for the new room after the last one, which is not stored yet.

#pragma once

#include "base/Units.h"
#include "base/Words.h"
#include "project/Project.h"
#include "project/RoomDraft.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

inline constexpr auto WrongSizeMessage =
    Words("The Size of room is not correct. Data is not changed");

/// Refuses a room beyond RoomCapacity, however it comes.
inline constexpr auto ProjectFullText = Words("The project is full: it can hold 501 rooms.");
static_assert(RoomCapacity == 501);

/// A room as its fields show it, with sizes in `shown`. A covering that cannot be chosen is none.
RoomDraft DraftOf(const Room& room, Units shown);

/// The four size texts in the order in which they are typed.
enum class SizeField { WidthMajor, WidthMinor, LengthMajor, LengthMinor };

/// What became of the fields.
struct StoreResult {
    enum class Outcome {
        Stored,
        Empty,          ///< a new room without sizes: nothing to store
        OneSizeMissing, ///< a new room of which one size is 0
        WrongSize,      ///< a size text that may not be stored: negative, or refused
        ProjectFull,    ///< a new room beyond the capacity
    };
    Outcome What = Outcome::Stored;
    /// The text to correct, for WrongSize and OneSizeMissing.
    SizeField Wrong = SizeField::WidthMajor;
    /// What is wrong with it and how to write it, for the user; for those two alone.
    std::string Advice;

    bool IsStored() const { return What == Outcome::Stored; }
    /// Whether what the user wanted beside storing the room waits until the fields are corrected.
    bool Stops() const { return What == Outcome::WrongSize || What == Outcome::ProjectFull; }
    /// What to tell the user; empty for nothing.
    std::string_view Message() const;
};

/// Take the fields into `room`, 0 .. number of rooms; the new room is added. A room of the project
/// is stored whatever its sizes, also 0; without a chosen covering it keeps its own, and with the
/// base text that DraftOf gives its base code, so that showing a room and storing it changes
/// nothing. A room that is added or changes its size makes `shown` the units in which the project
/// was entered. Nothing is changed unless it is Stored. Raises, with nothing changed, "Overflow"
/// for a size beyond an Integer, "Subscript out of range" for a room beyond the new one, and as
/// ExtentOf for sizes that the project's scale gives no extent.
StoreResult StoreRoom(Project& project, Units shown, std::size_t room, const RoomDraft& draft);

/// Add rooms behind the last one, all of them or none; `shown` are then the units in which the
/// project was entered. Nothing for no rooms. Raises as RequireExtents, with nothing changed.
void AddRooms(Project& project, Units shown, const std::vector<Room>& rooms);

/// Remove a room: the rooms behind it move up. Nothing for the new room, which is not stored.
void DeleteRoom(Project& project, std::size_t room);

/// Whether a size field is emptied because it holds no size: Val of its text is 0. While it is
/// being typed in, a decimal point alone or with zeros stays, so that .85 can be typed.
bool IsEmptiedSizeText(std::string_view text, bool beingTyped);

/// What is shown for a wall base that is not valid, with the example that belongs to the occasion.
std::string BaseMessage(std::string_view secondExample);
inline constexpr auto TypedBaseExample =
    Words("Example2: W21 - means 2 x Width and Length is not calculated.");
inline constexpr auto EnteredBaseExample =
    Words("Example2: W2 - means 2 x Width and Length is not calculated.");

} // namespace tarn
