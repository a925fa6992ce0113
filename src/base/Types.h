#pragma once

#include <cstdint>

namespace tarn {

/// The number types of the estimate. Their widths are part of every rule: a count or a length that
/// does not fit raises "Overflow" instead of wrapping, and a Single is rounded where it is stored.
using Byte = std::uint8_t;
using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;

} // namespace tarn
