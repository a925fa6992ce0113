#pragma once

#include "drawing/Drawing.h"

class QPainter;

namespace tarn {

/// Whether letters of that type size, points, are painted at all where a twip takes `scale` pixels
/// of the device: lower than a pixel they are left out.
bool AreLettersPainted(Double fontSize, double scale);

/// Paint the steps of `drawing`, in their order, with a painter that is transformed so that one
/// unit is one twip. Paints no paper. Leaves the painter as it was.
///
/// Lines are as wide as drawn, and at least one pixel of the device, and lie on whole pixels. A
/// text begins at its X1, has the top of its line at Y1 and ends at its X2, whatever face has to
/// stand in for "Arial"; see AreLettersPainted. With a clip set, only the steps
/// that reach into it cost anything.
void PaintDrawing(QPainter& painter, const Drawing& drawing);

} // namespace tarn
