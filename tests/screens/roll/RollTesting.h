// Charts for tests of the whole view of a roll.

#pragma once

#include "screens/roll/RollChart.h"

#include <string>
#include <vector>

namespace tarn::testing {

/// A piece of feet-and-inches sizes at a place, all in inches.
inline ChartPiece PieceAt(const std::string& label, double x, double y, double width,
                          double length) {
    ChartPiece piece;
    piece.Label = label;
    piece.Size = "12'0\" X 10'0\"";
    piece.Room = "102";
    piece.X = x;
    piece.Y = y;
    piece.Width = width;
    piece.Length = length;
    piece.Description = label + ", described";
    return piece;
}

/// A roll 144 wide of so many whole-width pieces, each that long, with a heading and a total.
inline RollChart ChartOfCuts(int count, double each) {
    RollChart chart;
    chart.RollWidth = 144;
    chart.Length = count * each;
    chart.Description = "Roll";
    chart.Lines.push_back({"Heading", {}});
    for (int i = 0; i < count; ++i) {
        const std::string label = "P" + std::to_string(i + 1);
        chart.Pieces.push_back(PieceAt(label, 0, i * each, 144, each));
        chart.Lines.push_back({label + ": line", static_cast<std::size_t>(i)});
    }
    chart.Lines.push_back({"Total", {}});
    return chart;
}

} // namespace tarn::testing
