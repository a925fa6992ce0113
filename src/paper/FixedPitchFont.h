#pragma once

#include <QFont>
#include <QStringList>

namespace tarn {

/// "Courier New" in that size (in the painter's units), not bold; where it is missing the first of
/// its stand-ins with letters of the same width. With none of them, another fixed-pitch face in the
/// size that gives letters of that width, so that columns stay where they are.
QFont CourierNew(int size);

/// The same for other faces in order of preference.
QFont FixedPitchFont(const QStringList& faces, int size);

} // namespace tarn
