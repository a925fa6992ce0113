#pragma once

namespace tarn {

/// The units in which sizes are typed and shown, and in which a room's sizes count: feet and inches
/// (whole inches), or metres and centimetres (whole centimetres).
enum class Units { Imperial, Metric };

} // namespace tarn
