// What is written on the pieces of a stretch of roll, and where a piece is too small for it.

#pragma once

#include "base/Words.h"
#include "order/SheetPage.h"

#include <string>
#include <vector>

namespace tarn {

/// A piece as it is drawn, and what is to be written on it.
struct LabelledBox {
    SheetArea Box;
    std::string Letter;
    bool Continues = false; ///< the piece began on another stretch
    std::string Across;     ///< its size across the roll
    std::string Along;      ///< and along
    std::string Room;

    std::string Size() const { return Across + " X " + Along; }
    /// The letter, and whether it goes on from another stretch.
    std::string Name() const { return Continues ? Words("%1 continues", Letter) : Letter; }
};

/// Where a stretch is drawn.
struct LabelPlaces {
    Double Left = 0;   ///< edge of the roll
    Double Right = 0;  ///< the other edge; the lane begins there
    Double Top = 0;    ///< of the lane
    Double Bottom = 0; ///< of the lane
    bool HasLane = false;
};

/// The writing on the boxes and in the lane.
struct StretchLabels {
    Drawing Written;
    /// Boxes that are too small for their label: their letter alone is in them, or else in the lane
    /// with a line to the box.
    std::vector<std::size_t> Small;
    std::vector<std::size_t> InLane;   ///< of these those whose letter is in the lane
    std::vector<std::size_t> Unmarked; ///< and those whose letter found no place there either
};

/// Label the boxes of one stretch. No two texts overlap, and each text is inside its box or in the
/// lane.
StretchLabels LabelBoxes(const std::vector<LabelledBox>& boxes, const LabelPlaces& places);

/// How wide a lane has to be for the letters of such boxes.
Double WidthOfLane(const std::vector<LabelledBox>& boxes);

} // namespace tarn
