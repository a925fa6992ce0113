// The page of an estimate on a sheet of paper: where its parts stand, and its painting.

#pragma once

#include "paper/EstimatePage.h"
#include "paper/Paper.h"

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
    QPointF ListNote;    ///< top left of what is said of a cut list that cannot be shown
    QRectF All;          ///< what surrounds them
};
EstimatePlaces PlacesOn(Double width, Double height);

/// The part of a drawing that is printed: from (0, 0) to the farthest point drawn and its margin,
/// made wider or longer to the proportions of `target`. Empty when nothing is drawn.
QRectF PrintedSource(const Drawing& drawing, const QRectF& target);

/// How far the page has to be moved, and then made smaller, for all of it to lie inside
/// `printable`: not at all on a sheet whose margins leave it room.
QTransform FitInto(const QRectF& all, const QRectF& printable);

/// Whether the cut list that stands in the page's drawing is lost on such paper: the whole of the
/// drawing has to fit there, and that of a layout of hundreds of yards is so small that no letter
/// of it is painted. What is very small, but there, is not lost: a PDF can be magnified.
bool LosesCutList(const EstimatePage& page, const Paper& paper);

/// Paint an estimate's page, "Arial" 12 and the drawing as lines and text, in black (and the
/// drawing's own colours) on the bare paper. A sheet that is not known stands for the
/// device's own. A cut list that is lost is replaced by a line that says where it is. Raises
/// PrinterError when the device cannot be painted on or its sheet is too
/// small.
void PaintEstimate(QPagedPaintDevice& device, const EstimatePage& page);

} // namespace tarn
