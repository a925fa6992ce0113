#pragma once

#include "screens/ZoomableView.h"
#include "screens/roll/RollChart.h"
#include "screens/roll/RollPainter.h"
#include "screens/roll/RollSpread.h"

#include <functional>
#include <optional>

namespace tarn {

/// Shows a whole roll as large as it fits, which is a zoom of 1; a double click shows all again.
/// Its pieces can be pointed at and walked through by the arrow keys. On the accessibility bus each
/// piece is a child.
class RollView : public ZoomableView {
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
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    PictureAt Place() const override;
    QSizeF Extent() const override;
    void PaintPart(QPainter& painter, const PictureAt& at, const QRect& part) const override;
    double Margin() const override;
    void ChangeZoom(double zoom) override;
    void Arrange() override;
    void ShowTip(QPoint position, QPoint global) override;
    void PointAt(QPointF position) override;

    void Spread();
    void Mark(std::optional<std::size_t> piece);
    void Point(std::optional<std::size_t> piece);
    bool PressWalkKey(int key);
    void BringIntoView(std::size_t piece);
    void TellFocus();

    RollChart chart_;
    std::optional<RollPainter> painter_;
    RollSpread spread_;
    std::optional<std::size_t> current_;
    std::optional<std::size_t> pointed_;
};

} // namespace tarn
