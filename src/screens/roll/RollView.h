#pragma once

#include "screens/Dialogs.h"
#include "screens/MovingPicture.h"
#include "screens/roll/RollChart.h"
#include "screens/roll/RollPainter.h"
#include "screens/roll/RollSpread.h"

#include <QAbstractScrollArea>

#include <functional>
#include <optional>

namespace tarn {

/// Shows a whole roll as large as it fits; its pieces can be pointed at and walked through by the
/// arrow keys, and it zooms: + and -, or Ctrl and the wheel; 0 or a double click shows all again.
/// Dragging and the wheel move what is larger than the view. On the accessibility bus each piece is
/// a child.
class RollView : public QAbstractScrollArea {
  public:
    RollView(QWidget* parent, Dialogs& boxes);
    ~RollView() override;

    void Show(RollChart chart);
    const RollChart& Shown() const { return chart_; }

    /// The piece that was chosen by key or click, and stays marked; by its number in the chart.
    std::optional<std::size_t> Current() const { return current_; }
    /// Choose a piece, and bring it into view; calls nothing back.
    void SetCurrent(std::optional<std::size_t> piece);
    /// The same as the user does it.
    void Choose(std::optional<std::size_t> piece);
    /// The piece that the pointer is on, here or in the list; it is marked for as long.
    std::optional<std::size_t> Pointed() const { return pointed_; }
    void SetPointed(std::optional<std::size_t> piece);

    /// Called when the user chose another piece, or pointed at another one or at none.
    std::function<void(std::optional<std::size_t>)> OnCurrent = [](auto) {};
    std::function<void(std::optional<std::size_t>)> OnPointed = [](auto) {};

    /// 1 shows all of the roll.
    double Zoom() const { return zoom_; }
    /// Whether the picture moves, and is not painted exactly.
    bool IsMoving() const { return picture_.IsMoving(); }
    /// The piece at a place of the viewport, pixels.
    std::optional<std::size_t> PieceAt(QPointF position) const;
    /// Where a piece is on the viewport, pixels: as much of it as its largest box has.
    QRect BoxOf(std::size_t piece) const;

    QSize sizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    bool Guard(const std::function<void()>& body) const;
    void Spread();
    void Arrange();
    PictureAt Place() const;
    void ZoomAbout(QPointF position, double zoom);
    void Mark(std::optional<std::size_t> piece);
    void Point(std::optional<std::size_t> piece);
    bool PressZoomKey(int key);
    bool PressWalkKey(int key);
    void BringIntoView(std::size_t piece);
    void ShowTip(QPoint position, QPoint global);
    void TellFocus();

    Dialogs& boxes_;
    RollChart chart_;
    std::optional<RollPainter> painter_;
    RollSpread spread_;
    MovingPicture picture_;
    double zoom_ = 1;
    std::optional<std::size_t> current_;
    std::optional<std::size_t> pointed_;
    bool dragging_ = false;
    QPoint dragFrom_;
    QPoint dragScrolled_;
};

} // namespace tarn
