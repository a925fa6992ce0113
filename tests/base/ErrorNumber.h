#pragma once

#include "base/RunTimeError.h"

namespace tarn {

/// The number of the run-time error that `action` raises; 0 when it raises none.
template <typename Action>
int ErrorNumber(Action&& action) {
    try {
        static_cast<void>(action());
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace tarn
