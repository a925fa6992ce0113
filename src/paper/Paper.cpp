#include "paper/Paper.h"

#include <QMarginsF>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace tarn {

namespace {

QRectF Twips(const QRectF& points) {
    return {points.topLeft() * TwipsPerPoint, points.size() * TwipsPerPoint};
}

QPageLayout LayoutOf(const Paper& paper, QPageLayout::Orientation orientation,
                     const QMarginsF& margins) {
    // A page size is that of the sheet held upright.
    const QSizeF upright(paper.Size.Height / TwipsPerPoint, paper.Size.Width / TwipsPerPoint);
    const QPageSize size(upright, QPageSize::Point, QString(), QPageSize::FuzzyMatch);
    QPageLayout layout(size, orientation, QMarginsF(), QPageLayout::Point);
    layout.setMode(QPageLayout::FullPageMode);
    layout.setMargins(margins / TwipsPerPoint);
    return layout;
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
    return LayoutOf(paper, QPageLayout::Landscape,
                    QMarginsF(paper.Left, paper.Top, paper.Right, paper.Bottom));
}

QPageLayout UprightLayoutOf(const Paper& paper) {
    const double widest = std::max({paper.Left, paper.Top, paper.Right, paper.Bottom});
    return LayoutOf(paper, QPageLayout::Portrait, QMarginsF(widest, widest, widest, widest));
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
