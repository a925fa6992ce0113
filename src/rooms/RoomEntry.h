#pragma once

#include "rooms/OpenProject.h"
#include "rooms/RoomSize.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The rules of typing rooms one at a time, without a screen. A room number from 0 to ObjNum - 1 is
/// a room of the project; ObjNum is the new room after the last one, which is not stored yet.

inline constexpr std::string_view WrongSizeMessage =
    "The Size of room is not correct. Data is not changed";

/// What stands in the fields of the entry.
struct RoomFields {
    SizeParts Width;
    SizeParts Length;
    std::optional<Byte> Covering; ///< nothing: none is chosen
    std::string Base;
    std::string RoomNo;
    std::string Remark;

    bool operator==(const RoomFields&) const = default;
};

/// A room 0 .. ObjNum - 1 as its fields show it, under the MetricFlag in force. A covering that
/// cannot be chosen is none.
RoomFields FieldsOf(const SharedState& state, Integer room);

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
    SizeField Wrong = SizeField::WidthMajor; ///< the text to correct, for WrongSize

    bool IsStored() const { return What == Outcome::Stored; }
    /// Whether what the user wanted beside storing the room waits until the fields are corrected.
    bool Stops() const { return What == Outcome::WrongSize || What == Outcome::ProjectFull; }
    /// What to tell the user; empty for nothing.
    std::string_view Message() const;
};

/// Take the fields into `room`, 0 .. ObjNum; a new room raises ObjNum. A room of the project is
/// stored whatever its sizes, also 0; without a chosen covering it keeps its own, and with the base
/// text that FieldsOf gives its base code, so that showing a room and storing it changes nothing.
/// Rebuilds the room's extents, and notes when it changes while Metric is ticked. Nothing is
/// changed unless it is Stored. Raises, with nothing changed, "Overflow" for a size beyond an
/// Integer.
StoreResult StoreRoom(SharedState& state, OpenProject& project, Integer room,
                      const RoomFields& fields);

/// Remove `room`, 0 .. ObjNum: the rooms behind it move up, and the slot of the last one keeps what
/// it held; the last room and the new one are emptied. Extents are not moved. Beyond the capacity
/// there is nothing to empty.
void DeleteRoom(SharedState& state, Integer room);

/// What storing `room` may change, to take it back when the action that stored it is abandoned.
class RoomBackup {
  public:
    RoomBackup(const SharedState& state, const OpenProject& project, Integer room);
    void Restore(SharedState& state, OpenProject& project) const;

  private:
    Integer room_;
    Integer objNum_;
    bool typedInMetric_;
    RoomRecord record_;
    Single farX_ = 0;
    Single farY_ = 0;
};

/// Whether a size field is emptied because it holds no size: Val of its text is 0. While it is
/// being typed in, a decimal point alone or with zeros stays, so that .85 can be typed.
bool IsEmptiedSizeText(std::string_view text, bool beingTyped);

/// What is shown for a wall base that is not valid, with the example that belongs to the occasion.
std::string BaseMessage(std::string_view secondExample);
inline constexpr std::string_view TypedBaseExample =
    "Example2: W21 - means 2 x Width and Length is not calculated.";
inline constexpr std::string_view EnteredBaseExample =
    "Example2: W2 - means 2 x Width and Length is not calculated.";

} // namespace tarn
