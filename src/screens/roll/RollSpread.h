// How a roll is spread over an area: lying or standing, in one piece or folded into rows, as large
// as it fits.

#pragma once

#include "screens/roll/RollChart.h"

#include <cstddef>
#include <vector>

namespace tarn {

/// The area that a roll is spread over, in pixels or any other unit of length.
struct SpreadArea {
    double Width = 0;
    double Height = 0;
    double LyingRuler = 0;    ///< kept free above a row that lies
    double StandingRuler = 0; ///< kept free left of a row that stands
    double Gap = 0;           ///< between two rows
    double LyingLane = 0;     ///< kept free below a row that lies, for letters
    double StandingLane = 0;  ///< kept free right of a row that stands
};

/// A stretch of the roll in one row, in the chart's unit.
struct SpreadRow {
    double From = 0;
    double To = 0;

    bool operator==(const SpreadRow&) const = default;
};

/// A rectangle of the area, from its top left.
struct SpreadBox {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

/// A roll spread over an area, from the area's top left. A roll that lies goes on from left to
/// right and has its left edge below, one that stands goes on from the top down and has its left
/// edge on the left: neither is a mirror image.
struct RollSpread {
    bool Stands = true;
    double Scale = 0; ///< of the area's unit per unit of the chart
    double Ruler = 0; ///< kept free before each row
    double Gap = 0;
    double Lane = 0;      ///< kept free behind each row
    double RollWidth = 0; ///< in the chart's unit
    std::vector<SpreadRow> Rows;

    bool operator==(const RollSpread&) const = default;

    /// The extent of all rows with their rulers and lanes.
    double Width() const;
    double Height() const;
    /// Where a row's roll begins, across the rows.
    double RowStart(std::size_t row) const;
    /// Where a rectangle of the roll lies: as much of it as is in that row, which may be nothing.
    SpreadBox BoxIn(std::size_t row, double x, double y, double width, double length) const;
};

/// Spread a roll. It is folded only where that shows it clearly larger, and then where no piece
/// lies, unless that made a row less than half as long as it may be.
RollSpread SpreadOver(const RollChart& chart, const SpreadArea& area);

} // namespace tarn
