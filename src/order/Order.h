// What to buy and how to cut it: the comparison of the rolls and lays, and the pieces of each.

#pragma once

#include "base/Lay.h"
#include "base/Types.h"
#include "base/Words.h"
#include "project/OrderRequest.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A piece to be cut, in whole units.
struct OrderPiece {
    std::string Label; ///< A .. Z, AA, AB, ..: in cutting order
    Long Room = 0;     ///< place of its room in the project, from 1
    Long Strip = 0;    ///< in its room, from 0
    Long Strips = 1;
    Long Part = 1; ///< of its strip, from 1
    Long Parts = 1;
    Long X = 0; ///< on the roll, from the usable edge
    Long Y = 0; ///< from the roll's start
    Long Width = 0;
    Long Length = 0;
    Long RoomX = 0; ///< where it begins in the room as laid
    Long RoomY = 0;

    bool operator==(const OrderPiece&) const = default;
};

/// Seams or joins: how many, and how long together.
struct SeamTotal {
    Long Count = 0;
    std::int64_t Length = 0;

    bool operator==(const SeamTotal&) const = default;
};

/// The figures of one row of the comparison. Lengths are whole units, areas whole square units; see
/// OrderArea.
struct OrderFigures {
    std::int64_t Length = 0; ///< to be ordered
    Long LengthNeeded = 0;   ///< the end of the last piece
    Long LeastLength = 0;    ///< no layout by the same rules needs less
    std::int64_t AreaBought = 0;
    std::int64_t AreaRooms = 0;
    std::int64_t AreaRoomsTrimmed = 0; ///< of the strips, with their trim
    Double WastePercent = 0;           ///< what is bought less the rooms, of what is bought
    SeamTotal SideSeams;
    SeamTotal CrossJoins;
    std::optional<Double> Price; ///< rounded to two places
    std::vector<Saying> Notes;

    bool operator==(const OrderFigures&) const = default;
};

/// A roll and a lay. It is refused, or has figures and pieces; neither only while its first layout
/// is still to come.
struct OrderCandidate {
    std::size_t Roll = 0; ///< number in the request
    Long RollWidth = 0;
    Long UsableWidth = 0;
    Lay Direction = Lay::Down;
    Saying Refused; ///< why there is none: a sentence, or empty
    std::optional<OrderFigures> Figures;
    std::vector<OrderPiece> Pieces; ///< in cutting order

    bool operator==(const OrderCandidate&) const = default;
};

/// The order of one carpet.
struct Order {
    Byte Carpet = 0; ///< its covering code
    OrderRequest Request;
    std::vector<OrderCandidate> Candidates; ///< by roll as asked, down before cross
    std::optional<std::size_t> Best;        ///< the row to take; none when there is none

    bool operator==(const Order&) const = default;
};

/// The label of the piece of that number, from 0: A .. Z, AA .. ZZ, AAA ..
std::string PieceLabel(std::size_t number);

inline constexpr Double CentimetresInSquareMetre = 10000;

/// Square units as square feet, or square metres.
Double OrderArea(std::int64_t squareUnits, Units units);

} // namespace tarn
