// Sheets of paper in twips, and paged devices that hold them.

#pragma once

#include "base/Twips.h"
#include "base/Words.h"
#include "paper/Printer.h"
#include "paper/PrinterPage.h"

#include <QPageLayout>
#include <QRectF>

class QPagedPaintDevice;
class QPainter;

namespace tarn {

/// A sheet in landscape and the edges that stay white on it, twips.
struct Paper {
    Printer::PageSize Size{16838, 11906}; ///< A4 unless told otherwise
    Double Left = LeastMargin;
    Double Top = LeastMargin;
    Double Right = LeastMargin;
    Double Bottom = LeastMargin;

    /// What is kept free at least: few printers reach nearer to the edge of a sheet.
    static constexpr Double LeastMargin = 360;
};

/// Letters smaller than this, twips, are of no use to anybody.
inline constexpr Double LeastLetters = 3 * TwipsPerPoint;

/// What helps then.
inline constexpr auto LargerPaperAdvice =
    Words("Choose a larger paper in the system's printer settings.");

/// The resolution in which pages are made, dots per inch; whole numbers in a document count them.
inline constexpr int PageResolution = 1200;

/// A sheet of that size; A4 when it is not known.
Paper PaperOf(PageTwips sheet);

/// The layout of a paged device for such a sheet in landscape. Positions on it count from the
/// sheet's corner.
QPageLayout LayoutOf(const Paper& paper);

/// The same for such a sheet held upright, all edges as wide as the widest.
QPageLayout UprightLayoutOf(const Paper& paper);

/// A device's sheet, twips from its corner: the whole of it, and the part inside its margins.
QRectF SheetOf(const QPagedPaintDevice& device);
QRectF PrintableOf(const QPagedPaintDevice& device);

/// Transform a painter on `device` so that one unit is one twip and (0, 0) the sheet's corner,
/// whether the device counts from there or from its margins.
void CountInTwips(QPainter& painter, const QPagedPaintDevice& device);

} // namespace tarn
