// What is written on a piece: as much of its letter, size and room as fits, and never so small that
// it cannot be read.

#pragma once

#include "screens/roll/RollChart.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The type sizes of labels, largest first, relative to the program's text. Nothing is smaller than
/// the last.
inline constexpr std::array<double, 4> LabelSizes{1.7, 1.3, 1.0, 0.85};

/// How texts are measured in a type size, given by its place in LabelSizes.
struct LabelMeasure {
    std::function<double(std::string_view text, std::size_t size)> Width;
    std::function<double(std::size_t size)> Height;       ///< of a line
    std::function<double(std::size_t size)> LetterHeight; ///< of capitals alone
    double Margin = 0;                                    ///< kept free before and behind a line
};

/// One line of a label.
struct LabelLine {
    std::string Text;
    std::size_t Size = 0; ///< place in LabelSizes

    bool operator==(const LabelLine&) const = default;
};

/// Lines below each other, to be centred in the box; `Upward` ones read from the bottom up. No line
/// when not even the letter fits.
struct FittedLabel {
    std::vector<LabelLine> Lines;
    bool Upward = false;
};

/// What a label has to go by beside its box.
struct LabelWish {
    bool Continues = false;  ///< the piece began in another box, which the label says
    std::size_t Largest = 0; ///< place in LabelSizes of the largest letter
};

/// The label for a piece's box. What says more goes before what is larger, and upright lines before
/// upward ones that say the same.
FittedLabel FitLabel(const ChartPiece& piece, double width, double height,
                     const LabelMeasure& measure, const LabelWish& wish = {});

} // namespace tarn
