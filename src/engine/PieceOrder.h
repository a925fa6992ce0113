// The order in which pieces are placed: the powers that are tried, and the key.

#pragma once

#include "engine/PieceGeometry.h"

#include <array>
#include <vector>

namespace tarn {

/// The order of the pieces is that of a key, largest first: length ^ power × width. Equal keys keep
/// their order. These are the powers, in the order in which every case tries them: area, width,
/// length squared times width.
inline constexpr std::array<Integer, 3> OrderPowers{1, 0, 2};

/// The power of the order of the undivided pieces, by which cases are counted: mostly by length.
inline constexpr Integer LongestFirst = 2;

/// The key, in Double. Raises "Overflow" when it is not finite.
Double OrderKey(const PieceSize& size, Integer power);

/// Finds the order of pieces. Nothing is allocated once it has seen the largest number of them.
class PieceOrder {
  public:
    /// The numbers of the pieces with the given sizes, in the order of a power. Raises as OrderKey.
    const std::vector<std::size_t>& LargestFirst(const std::vector<PieceSize>& sizes,
                                                 Integer power);

  private:
    struct Row {
        Double Key;
        std::size_t Number;
    };

    std::vector<Row> rows_;
    std::vector<std::size_t> numbers_;
};

} // namespace tarn
