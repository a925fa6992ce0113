#pragma once

#include "base/Words.h"
#include "screens/Dialogs.h"
#include "screens/MovingPicture.h"

#include <QAbstractScrollArea>

#include <functional>

namespace tarn {

/// Shows a picture that may be larger than the view. The wheel scrolls, with Ctrl it zooms about
/// the pointer; + and - zoom about the middle, 0 goes to a zoom of 1; dragging moves the picture.
/// What the picture is, how far it zooms and what else a key or press does, the kinds of view say.
class ZoomableView : public QAbstractScrollArea {
  public:
    double Zoom() const { return zoom_; }
    /// Whether the picture moves, and is not painted exactly until it rests.
    bool IsMoving() const { return picture_.IsMoving(); }

  protected:
    static constexpr double MostPixels = 1e9; ///< scroll bars count in int

    /// `failure` is what a message says first when an event fails (see Guarded).
    ZoomableView(QWidget* parent, Dialogs& boxes, Phrase failure);

    /// Where the picture is on the viewport now.
    virtual PictureAt Place() const = 0;
    /// How far the picture reaches where PictureAt::Zoom is 1.
    virtual QSizeF Extent() const = 0;
    /// As MovingPicture::PaintPart.
    virtual void PaintPart(QPainter& painter, const PictureAt& at, const QRect& part) const = 0;
    /// The margin that is left and above of the picture when it is scrolled to its start, pixels.
    virtual double Margin() const { return 0; }
    /// SetZoom as the user asks for it: within the bounds of the view.
    virtual void ChangeZoom(double zoom) = 0;
    /// SetScrolling for the size of the picture.
    virtual void Arrange() = 0;
    virtual void ShowTip(QPoint position, QPoint global) = 0;
    /// The pointer moved, and drags nothing.
    virtual void PointAt(QPointF /*position*/) {}
    /// Show by the pointer's shape what a press would do.
    virtual void UpdatePointer() {}

    bool Guard(const std::function<void()>& body) const;
    MovingPicture& Picture() { return picture_; }

    void SetZoom(double zoom);
    /// Zoom so that what is at a position of the viewport stays there.
    void ZoomAbout(QPointF position, double zoom);
    bool PressZoomKey(int key);

    /// How far it is scrolled, pixels.
    QPoint Scrolled() const;
    void ScrollTo(QPointF scrolled);
    /// Have the scroll bars reach over so many pixels more than `page`, which the view shows.
    void SetScrolling(QSize beyond, QSize page);

    bool IsDragging() const { return dragging_; }
    /// Let a press of the left or the middle button begin to drag the picture.
    void BeginDrag(const QMouseEvent& press);

    bool viewportEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void EndDragUnlessHeld(Qt::MouseButtons held);

    Dialogs& boxes_;
    Phrase failure_;
    MovingPicture picture_;
    double zoom_ = 1;
    bool dragging_ = false;
    QPoint dragFrom_;     ///< where the press was, pixels
    QPoint dragScrolled_; ///< how far it was scrolled then
};

} // namespace tarn
