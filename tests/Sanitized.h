// What a test does less of under the sanitizers: code runs many times slower there, and the faults
// that they look for show in a few of many cases alike.

#pragma once

namespace tarn::testing {

#ifdef TARN_SANITIZED
inline constexpr bool IsSanitized = true;
#else
inline constexpr bool IsSanitized = false;
#endif

/// `usual`, or what stands in its place under the sanitizers.
template <typename T>
constexpr T UnlessSanitized(T usual, T sanitized) {
    return IsSanitized ? sanitized : usual;
}

} // namespace tarn::testing
