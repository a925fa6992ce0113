#pragma once

namespace tarn {

/// Whether `above` / `below` is a proper fraction of an inch as a tape measure has them: halves ..
/// 64ths.
constexpr bool IsInchFraction(long long above, long long below) {
    constexpr long long Finest = 64;
    const bool isPowerOfTwo = below > 1 && (below & (below - 1)) == 0;
    return isPowerOfTwo && below <= Finest && above >= 0 && above < below;
}

} // namespace tarn
