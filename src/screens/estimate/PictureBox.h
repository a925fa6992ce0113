#pragma once

#include "drawing/Drawing.h"
#include "screens/ZoomableView.h"

#include <functional>

namespace tarn {

/// Shows a drawing on white paper, over all of which it scrolls. It is hidden while the drawing is
/// not visible. Its top left is (0, 0) of the drawing, which goes on beyond what is drawn. A zoom
/// of 1 is actual size. A drawing of few steps is painted exactly also while it moves.
///
/// A double click fits the whole drawing; arrows, Page Up, Page Down, Home and End scroll. While a
/// press is waited for, Enter and Space press near the visible top left.
class PictureBox : public ZoomableView {
  public:
    PictureBox(QWidget* parent, Dialogs& boxes);

    /// What it shows.
    const Drawing& Shown() const { return drawing_; }
    /// Show the changed drawing where the old one was looked at.
    void ShowChanged(Drawing drawing);
    /// Show another drawing, from its start. All of it is fitted into the box if that stays
    /// readable; else its width, but no larger than actual size; else it shows in actual size. It
    /// is fitted anew as the box changes its size, until the user zooms.
    void ShowFromStart(Drawing drawing);

    /// Called with a mouse press, in twips of the drawing. Answers whether it was taken; else the
    /// press begins to drag the paper.
    std::function<bool(Double x, Double y)> MouseDown = [](Double, Double) { return false; };
    /// Show by the pointer that the next press is waited for, and take a key for it too.
    void SetWaiting(bool waiting);
    /// Called where a context menu is asked for, in global pixels; not by a press that was taken.
    std::function<void(QPoint global)> ContextMenu = [](QPoint) {};

    /// Between positions on the viewport, pixels, and those in the drawing, twips.
    QPointF ToTwips(QPointF position) const;
    QPointF ToViewport(QPointF twips) const;

    /// How to zoom, for the user.
    static QString ZoomHint();

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    PictureAt Place() const override;
    QSizeF Extent() const override;
    void PaintPart(QPainter& painter, const PictureAt& at, const QRect& part) const override;
    void ChangeZoom(double zoom) override;
    void Arrange() override;
    void ShowTip(QPoint position, QPoint global) override;
    void UpdatePointer() override;

    bool HasManySteps() const;
    double PixelsPerTwip() const;
    QSize DrawnPixels() const;
    QSize RoomFor(QSize drawn) const;
    double FittingZoom() const;
    double FirstZoom() const;
    double LeastZoom() const;
    void FitFirst();
    void FollowSize();
    void ShowDrawing();
    bool PressWaitedFor(int key);
    bool PressScrollKey(int key);

    Drawing drawing_;
    bool fitted_ = true;   ///< the zoom follows the box
    QSize fittedTo_;       ///< the room that it was fitted into last
    bool waiting_ = false; ///< for a press that is taken
    bool taken_ = false;   ///< the last press was
};

} // namespace tarn
