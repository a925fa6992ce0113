#include "engine/FinishLayout.h"

#include "engine/CleanUp.h"
#include "engine/PieceGeometry.h"
#include "engine/ResultLength.h"

#include <algorithm>
#include <utility>

namespace tarn {

void FinishLayout(std::vector<Placed> layout, const SearchJob& job, SearchResult& result) {
    CheckLayout(layout, job.RollWidth);
    JoinParts(layout);
    ShiftLooseLeft(layout, job.RollWidth);
    result.Length = ResultLength(layout);
    if (job.Direction == Lay::Cross) {
        for (Placed& placed : layout) {
            placed.Part = Transposed(placed.Part);
        }
    }
    std::stable_sort(layout.begin(), layout.end(), [](const Placed& a, const Placed& b) {
        return a.Part.Number < b.Part.Number;
    });
    result.Layout = std::move(layout);
}

} // namespace tarn
