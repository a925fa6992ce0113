#pragma once

#include "estimate/EstimatePage.h"

#include <QRectF>
#include <QTransform>

class QPagedPaintDevice;
class QPainter;

namespace tarn {

/// Where the parts of an estimate's page stand on a sheet of PrnWidth by PrnHeight, twips from its
/// corner.
struct EstimatePlaces {
    QPointF Title;       ///< top left of the title line
    QRectF Drawing;      ///< the picture: at (500, 800), PrnWidth / 1.2 by PrnHeight / 1.35
    QPointF CarpetLines; ///< top left of the first: (500, 600 + PrnHeight / 1.25)
    QRectF All;          ///< what surrounds them
};
EstimatePlaces PlacesOn(Double prnWidth, Double prnHeight);

/// The part of a drawing that is printed: from (0, 0) to the farthest point drawn and its margin,
/// made wider or longer to the proportions of `target`. Empty when nothing is drawn.
QRectF PrintedSource(const Picture& picture, const QRectF& target);

/// How far the page has to be moved, and then made smaller, for all of it to lie inside
/// `printable`: not at all on a sheet whose margins leave it room.
QTransform FitInto(const QRectF& all, const QRectF& printable);

/// Paint an estimate's page, "Arial" 12 and the drawing as lines and text, in black (and the
/// drawing's own colours) on the bare paper. A PrnWidth or PrnHeight of 0 stands for the device's
/// own sheet. Raises PrinterError when the device cannot be painted on or its sheet is too small.
void PaintEstimate(QPagedPaintDevice& device, const EstimatePage& page);

} // namespace tarn
