#include "screens/MovingPicture.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarn {

namespace {

constexpr int RestAfter = 120;     ///< milliseconds without a movement
constexpr int ExactPartOfView = 4; ///< a strip of at most this part of the view is painted at once

/// Pixels for a whole surface, or for part of one.
QPixmap NewPixels(const QWidget& surface, QSize size) {
    const double ratio = surface.devicePixelRatioF();
    QPixmap pixels((QSizeF(size) * ratio).toSize().expandedTo(QSize(1, 1)));
    pixels.setDevicePixelRatio(ratio);
    return pixels;
}

} // namespace

MovingPicture::MovingPicture(QWidget& surface, PaintPart paint, std::function<QSizeF()> extent)
    : surface_(surface)
    , paint_(std::move(paint))
    , extent_(std::move(extent)) {
    rest_.setSingleShot(true);
    rest_.setInterval(RestAfter);
    QObject::connect(&rest_, &QTimer::timeout, &surface, [this] { surface_.update(); });
}

void MovingPicture::Forget() {
    kept_ = {};
    overview_ = {};
    rest_.stop();
}

bool MovingPicture::IsKept() const {
    return !kept_.isNull() && kept_.devicePixelRatio() == surface_.devicePixelRatioF() &&
           kept_.size() == NewPixels(surface_, surface_.size()).size();
}

void MovingPicture::Paint(QPainter& painter, const PictureAt& at) {
    if (!IsKept()) {
        rest_.stop();
        PaintExactly(at);
    } else if (at == keptAt_) {
        rest_.stop();
    } else if (!Scroll(at)) {
        if (at == last_ && !rest_.isActive()) {
            PaintExactly(at);
        } else {
            if (at != last_) {
                rest_.start();
            }
            last_ = at;
            PaintScaled(painter, at);
            return;
        }
    }
    last_ = at;
    painter.drawPixmap(QPointF(0, 0), kept_);
}

void MovingPicture::PaintExactly(const PictureAt& at) {
    kept_ = NewPixels(surface_, surface_.size());
    keptAt_ = at;
    PaintStrip(at, surface_.rect());
    if (overview_.isNull()) {
        PaintOverview();
    }
}

void MovingPicture::PaintStrip(const PictureAt& at, const QRect& strip) {
    QPainter painter(&kept_);
    painter.setClipRect(strip);
    paint_(painter, at, strip);
}

/// All of the picture, as large as the surface.
void MovingPicture::PaintOverview() {
    const QSizeF extent = extent_();
    overviewZoom_ = std::min(surface_.width() / std::max(1.0, extent.width()),
                             surface_.height() / std::max(1.0, extent.height()));
    const QSize size = (extent * overviewZoom_).toSize().expandedTo(QSize(1, 1));
    overview_ = NewPixels(surface_, size);
    QPainter painter(&overview_);
    painter.setClipRect(QRect(QPoint(0, 0), size));
    paint_(painter, {overviewZoom_, {}}, QRect(QPoint(0, 0), size));
}

/// Move what is kept by whole pixels and paint what comes into view; false where that would be
/// most of it.
bool MovingPicture::Scroll(const PictureAt& at) {
    const QPointF exact = at.Origin - keptAt_.Origin;
    const QPoint by = exact.toPoint();
    const double ratio = surface_.devicePixelRatioF();
    const bool isWhole = QPointF(by) == exact && ratio == std::floor(ratio);
    const QSize size = surface_.size();
    if (at.Zoom != keptAt_.Zoom || !isWhole || std::abs(by.x()) > size.width() / ExactPartOfView ||
        std::abs(by.y()) > size.height() / ExactPartOfView) {
        return false;
    }
    const int scale = static_cast<int>(ratio);
    kept_.scroll(by.x() * scale, by.y() * scale, kept_.rect());
    keptAt_ = at;
    if (by.x() != 0) {
        const int left = by.x() > 0 ? 0 : size.width() + by.x();
        PaintStrip(at, {left, 0, std::abs(by.x()), size.height()});
    }
    if (by.y() != 0) {
        const int top = by.y() > 0 ? 0 : size.height() + by.y();
        PaintStrip(at, {0, top, size.width(), std::abs(by.y())});
    }
    rest_.stop();
    return true;
}

void MovingPicture::PaintScaled(QPainter& painter, const PictureAt& at) const {
    const auto draw = [&](const QPixmap& pixels, const PictureAt& from) {
        const double scale = at.Zoom / from.Zoom;
        const QPointF topLeft = at.Origin - from.Origin * scale;
        const QSizeF size = QSizeF(pixels.size()) / pixels.devicePixelRatio() * scale;
        painter.drawPixmap(QRectF(topLeft, size), pixels, QRectF(pixels.rect()));
    };
    paint_(painter, at, {}); // the paper alone
    draw(overview_, {overviewZoom_, {}});
    draw(kept_, keptAt_);
}

} // namespace tarn
