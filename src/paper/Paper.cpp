#include "paper/Paper.h"

#include <QMarginsF>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>

namespace tarn {

namespace {

QRectF Twips(const QRectF& points) {
    return {points.topLeft() * TwipsPerPoint, points.size() * TwipsPerPoint};
}

} // namespace

Paper PaperOf(PageTwips sheet) {
    Paper paper;
    if (sheet.IsKnown()) {
        paper.Size = {static_cast<Double>(sheet.Width), static_cast<Double>(sheet.Height)};
    }
    return paper;
}

QPageLayout LayoutOf(const Paper& paper) {
    // A page size is that of the sheet held upright.
    const QSizeF upright(paper.Size.Height / TwipsPerPoint, paper.Size.Width / TwipsPerPoint);
    const QPageSize size(upright, QPageSize::Point, QString(), QPageSize::FuzzyMatch);
    const QMarginsF margins =
        QMarginsF(paper.Left, paper.Top, paper.Right, paper.Bottom) / TwipsPerPoint;
    QPageLayout layout(size, QPageLayout::Landscape, QMarginsF(), QPageLayout::Point);
    layout.setMode(QPageLayout::FullPageMode);
    layout.setMargins(margins);
    return layout;
}

QRectF SheetOf(const QPagedPaintDevice& device) {
    return Twips(device.pageLayout().fullRect(QPageLayout::Point));
}

QRectF PrintableOf(const QPagedPaintDevice& device) {
    const QPageLayout layout = device.pageLayout();
    return Twips(
        layout.fullRect(QPageLayout::Point).marginsRemoved(layout.margins(QPageLayout::Point)));
}

void CountInTwips(QPainter& painter, const QPagedPaintDevice& device) {
    painter.scale(painter.device()->logicalDpiX() / TwipsPerInch,
                  painter.device()->logicalDpiY() / TwipsPerInch);
    if (device.pageLayout().mode() == QPageLayout::StandardMode) {
        painter.translate(-PrintableOf(device).topLeft());
    }
}

} // namespace tarn
