// Places that lie a whole number of repeats from another.

#pragma once

#include "base/Types.h"

namespace tarn {

/// The first place at or behind `place` that is a whole number of `repeat` (1 or more) from
/// `phase`.
constexpr Long NextInPhase(Long place, Long phase, Long repeat) {
    const Long beyond = (phase - place) % repeat;
    return place + (beyond < 0 ? beyond + repeat : beyond);
}

/// The last such place at or before `place`.
constexpr Long LastInPhase(Long place, Long phase, Long repeat) {
    const Long before = (place - phase) % repeat;
    return place - (before < 0 ? before + repeat : before);
}

} // namespace tarn
