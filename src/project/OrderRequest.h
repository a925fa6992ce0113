// What is asked for when carpet is to be ordered: the rolls that could be bought, and how the rooms
// of one carpet may be cut from them.

#pragma once

#include "base/Lay.h"
#include "base/Types.h"
#include "base/Units.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A roll that could be bought.
struct RollChoice {
    Double Width = 0;            ///< in the request's units; whole ones count, see WholeRollWidth
    std::string Name;            ///< as the installer calls it, or empty
    std::string AsTyped;         ///< the width as it was typed
    std::optional<Double> Price; ///< of a square yard, with metric of a square metre

    bool operator==(const RollChoice&) const = default;
};

/// A roll by its name, if it has one, and its width as typed: "Shop 12ft".
std::string RollName(const RollChoice& roll);

/// The pattern of a carpet, in whole units; 0 for no repeat in that direction.
struct PatternChoice {
    Long Across = 0;       ///< to the next column of the pattern
    Long Along = 0;        ///< to the next row
    bool HalfDrop = false; ///< the next column stands half a repeat further along

    bool operator==(const PatternChoice&) const = default;
};

/// Most rolls that are compared.
inline constexpr std::size_t MostRolls = 12;
/// No strip is longer, in whole units and with its trim.
inline constexpr Long LongestStrip = 32767;
/// Most parts that a strip may have.
inline constexpr Long MostPartsOfStrip = 6;

/// How carpet is to be ordered. All lengths are whole inches, or whole centimetres with metric; the
/// members as they are here are what counts when nothing else is said, in inches: for the units in
/// force see DefaultOrderRequest.
struct OrderRequest {
    Units In = Units::Imperial;
    std::vector<RollChoice> Rolls;      ///< compared in this order
    std::vector<Lay> Lays{Lay::Down};   ///< each once, down before cross
    Long Selvage = 0;                   ///< cut off along each edge of the roll
    Long TrimAlong = 0;                 ///< more than a strip's length, at its far end
    Long TrimAcross = 0;                ///< more than a room's width, at its right edge
    Long MostParts = 1;                 ///< of a strip, 1 .. MostPartsOfStrip
    Long ShortestPart = 36;             ///< of a divided strip
    bool JoinRooms = false;             ///< a room no wider than the roll may be divided too
    PatternChoice Pattern;              ///< with what the pieces of a room have to match
    std::optional<Double> PatternDrift; ///< percent; without it see DriftOf
    Long Step = 3;                      ///< the roll is ordered in whole steps
    Double Seconds = 2;                 ///< that the search takes

    bool operator==(const OrderRequest&) const = default;
};

/// A request without a roll, by the lengths that are usual in `units`.
OrderRequest DefaultOrderRequest(Units units);

/// The drift of the pattern that is allowed for, in percent: as asked; else 1 with a repeat along
/// and 0 without.
Double DriftOf(const OrderRequest& request);

/// What the request cannot be searched with.
struct OrderRequestFault {
    std::string Option;   ///< as the installer knows it: "half drop"
    std::string Reason;   ///< a sentence: "A half drop needs a repeat along."
    std::size_t Roll = 0; ///< number of the roll, where the fault is that of one

    bool operator==(const OrderRequestFault&) const = default;
};

/// The first fault of a request; nothing when all of it is within its bounds.
std::optional<OrderRequestFault> FaultOf(const OrderRequest& request);

/// Whether a number can be a price.
bool IsPrice(Double number);

/// A roll's width in whole units: what is not whole is rounded down.
Long WholeRollWidth(Double width);
/// A trim, selvage, shortest part or step in whole units: what is not whole is rounded up. Raises
/// "Overflow" when it is no Long.
Long RaisedToWhole(Double length);
/// A pattern repeat in whole units; nothing when it is not whole, which FaultOfRepeat words.
std::optional<Long> WholeRepeat(Double length);
/// An option as the subject of a sentence, by its name: "The trim along" of "trim along".
std::string_view NameOfOption(std::string_view option);
/// Why a repeat that is not whole cannot be asked for; `option` is "pattern across" or "pattern
/// along".
OrderRequestFault FaultOfRepeat(const std::string& option, Units units);

/// A length of the request as text that stands by itself: 12'6", or 366 cm.
std::string OrderLengthText(Long length, Units units);

} // namespace tarn
