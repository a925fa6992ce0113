// Which columns of a table have room beside each other, and how wide they are.

#pragma once

#include <vector>

namespace tarn {

enum class ColumnUse {
    Kept,     ///< always shown
    LookedUp, ///< left out where there is no room; those at the end first
    Repeated, ///< says nothing, or what stands elsewhere, too: the first to be left out
};

/// What a column asks for, pixels.
struct ColumnNeed {
    ColumnUse Use;
    int Usual; ///< as one likes to read it
    int Tight; ///< no narrower is all of it whole
    int Least; ///< of a kept one, where nothing else is left to be done
};

/// How wide each column is, 0 for one that is left out.
struct ColumnFit {
    bool IsTight;
    std::vector<int> Widths;

    bool operator==(const ColumnFit&) const = default;
};

/// Fit columns into `room`, with as little change as that takes: what is repeated goes, the others
/// get tight, what is looked up goes, the widest one of those that stay gives way.
ColumnFit FitColumns(const std::vector<ColumnNeed>& columns, int room);

} // namespace tarn
