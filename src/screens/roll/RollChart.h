// What the whole view of a roll shows, as a value: its pieces, what is left over, and the list by
// which it is cut. Made without a screen from an estimate or from a row of an order's comparison.

#pragma once

#include "base/Units.h"
#include "estimate/Estimate.h"
#include "order/Order.h"
#include "project/Project.h"

#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A piece of the roll. All lengths are in the chart's unit.
struct ChartPiece {
    std::string Label;    ///< its letters, or Cut1
    std::string Size;     ///< as the list has it: across X along
    std::string Room;     ///< as it is written on the piece: "102"
    std::size_t Tint = 0; ///< number of its room's tint, see Tints.h
    double X = 0;         ///< across the roll
    double Y = 0;         ///< along it, from its start
    double Width = 0;     ///< across
    double Length = 0;    ///< along
    /// For tips and for those who cannot see it: B, 11'0" by 12'4", room 102, from 17'8" to 30'0"
    std::string Description;

    bool operator==(const ChartPiece&) const = default;
};

/// Carpet that no piece takes.
struct ChartSpace {
    double X = 0;
    double Y = 0;
    double Width = 0;
    double Length = 0;

    bool operator==(const ChartSpace&) const = default;
};

/// A line of the list, and the piece that it is about, if any.
struct ChartLine {
    std::string Text;
    std::optional<std::size_t> Piece;

    bool operator==(const ChartLine&) const = default;
};

/// A whole roll, or rather as much of it as is bought. The unit is an inch, with metric a
/// centimetre.
struct RollChart {
    Units In = Units::Imperial;
    double RollWidth = 0;
    double Length = 0;
    std::string Description; ///< "Roll 12'0" wide, 45'0" long, 12 pieces"
    std::vector<ChartPiece> Pieces;
    std::vector<ChartSpace> LeftOver; ///< all of the roll that no piece takes
    std::vector<ChartLine> Lines;

    bool operator==(const RollChart&) const = default;
};

/// The roll of an estimate: its cuts one behind the other, then the fills where the drawing has
/// them; its cut list. Empty when there is nothing to cut. `project` is the one that was estimated.
/// Raises "Overflow" when a length does not fit.
RollChart ChartOf(const Estimate& estimate, const Project& project);

/// The roll of a row of the comparison, as it is ordered, and its list in cutting order. The
/// selvages are left over. Empty for a row without pieces. `project` is the one that was ordered
/// for.
RollChart ChartOf(const Order& order, std::size_t candidate, const Project& project);

} // namespace tarn
