#pragma once

#include "improve/ImproveJob.h"

#include <cstddef>
#include <vector>

namespace tarn {

/// A measure of lengths by which fills that lie one behind the other below a roof never count more
/// than the roof does: a dual feasible function. So what a column of the roll leaves free by it is
/// lost for the area of all fills by it.
struct LengthMeasure {
    std::vector<Area64> Of; ///< by fill
    Area64 Roof = 0;
    Area64 Spare =
        0; ///< what the roll below the roof counts more than all fills; below 0: no layout
};

/// The measures of a job below a roof that leave the least to spare, the plain length first: at
/// most `most`, fewer when one of them leaves less than nothing.
std::vector<LengthMeasure> LengthMeasures(const ImproveJob& job, Long roof, std::size_t most);

} // namespace tarn
