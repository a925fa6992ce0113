#pragma once

#include <QPixmap>
#include <QPointF>
#include <QTimer>

#include <functional>

class QPainter;
class QWidget;

namespace tarn {

/// How a view shows a picture: a point of the picture stands at Zoom times its place, plus Origin.
struct PictureAt {
    double Zoom = 1;
    QPointF Origin; ///< pixels of the view

    bool operator==(const PictureAt&) const = default;
};

/// A picture of many parts that keeps up while it is scrolled and zoomed: what was painted is kept,
/// and moved and scaled for as long as the view moves. When it rests, all is painted exactly.
class MovingPicture {
  public:
    /// Paint exactly what is in `part` of the view.
    using PaintPart = std::function<void(QPainter&, const PictureAt&, const QRect& part)>;

    /// For what is painted on `surface`. `extent` is how far the picture reaches at a zoom of 1.
    MovingPicture(QWidget& surface, PaintPart paint, std::function<QSizeF()> extent);

    /// What the picture shows has changed.
    void Forget();
    /// Paint it as the view has it now.
    void Paint(QPainter& painter, const PictureAt& at);
    /// Whether what was painted last is not exact yet: it will be once the view rests.
    bool IsMoving() const { return rest_.isActive(); }

  private:
    bool IsKept() const;
    void PaintExactly(const PictureAt& at);
    void PaintOverview();
    bool Scroll(const PictureAt& at);
    void PaintScaled(QPainter& painter, const PictureAt& at) const;
    void PaintStrip(const PictureAt& at, const QRect& strip);

    QWidget& surface_;
    PaintPart paint_;
    std::function<QSizeF()> extent_;
    QPixmap kept_; ///< the surface as it was painted last
    PictureAt keptAt_;
    QPixmap overview_; ///< all of the picture, for what the surface did not show
    double overviewZoom_ = 1;
    PictureAt last_; ///< what was asked for last
    QTimer rest_;    ///< runs while the view moves
};

} // namespace tarn
