#include "engine/ResultLength.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"

#include <limits>

namespace tarn {

Single LengthInUse(const std::vector<Placed>& layout) {
    Single length = 0;
    for (const Placed& placed : layout) {
        const Single end = placed.Y + placed.Length;
        if (end > length) {
            length = end;
        }
    }
    return length;
}

Integer ResultLength(const std::vector<Placed>& layout) {
    const auto length = static_cast<Double>(LengthInUse(layout));
    try {
        return CInt(3 * Int((length + 2) / 3));
    } catch (const RunTimeError& error) {
        throw error.WithAdvice(
            Words("The fills need more than %1 inches of roll: estimate the rooms in two projects.",
                  TrimStr(std::numeric_limits<Integer>::max())));
    }
}

} // namespace tarn
