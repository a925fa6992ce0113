// The page of an estimate on a sheet of paper: where its parts stand, and its painting.

#pragma once

#include "paper/EstimatePage.h"

#include <QRectF>
#include <QTransform>

class QPagedPaintDevice;
class QPainter;

namespace tarn {

/// Where the parts of an estimate's page stand on a sheet of `width` by `height`, twips from its
/// corner.
struct EstimatePlaces {
    QPointF Title;       ///< top left of the title line
    QRectF Picture;      ///< at (500, 800), width / 1.2 by height / 1.35
    QPointF CarpetLines; ///< top left of the first: (500, 600 + height / 1.25)
    QRectF All;          ///< what surrounds them
};
EstimatePlaces PlacesOn(Double width, Double height);

/// The part of a drawing that is printed: from (0, 0) to the farthest point drawn and its margin,
/// made wider or longer to the proportions of `target`. Empty when nothing is drawn.
QRectF PrintedSource(const Drawing& drawing, const QRectF& target);

/// How far the page has to be moved, and then made smaller, for all of it to lie inside
/// `printable`: not at all on a sheet whose margins leave it room.
QTransform FitInto(const QRectF& all, const QRectF& printable);

/// Paint an estimate's page, "Arial" 12 and the drawing as lines and text, in black (and the
/// drawing's own colours) on the bare paper. A sheet that is not known stands for the
/// device's own. Raises PrinterError when the device cannot be painted on or its sheet is too
/// small.
void PaintEstimate(QPagedPaintDevice& device, const EstimatePage& page);

} // namespace tarn
