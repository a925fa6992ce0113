#pragma once

#include "screens/MovingPicture.h"
#include "screens/roll/LabelFit.h"
#include "screens/roll/RollChart.h"
#include "screens/roll/RollSpread.h"

#include <QFont>
#include <QRect>
#include <QRectF>

#include <array>
#include <vector>

class QPainter;

namespace tarn {

/// Advances of the letters of one font, found once: labels are measured by the thousand.
class LetterWidths {
  public:
    LetterWidths() = default;
    explicit LetterWidths(const QFont& font);
    double Of(std::string_view utf8) const;

  private:
    static constexpr std::size_t Known = 128;
    QFont font_;
    std::array<double, Known> widths_{};
};

/// Paints a chart that is spread over an area: rulers, pieces, what is left over, labels.
class RollPainter {
  public:
    /// Letters are in `font` and larger, see LabelSizes; nothing in much smaller ones.
    RollPainter(const RollChart& chart, const QFont& font);
    RollPainter(const RollPainter&) = delete;
    RollPainter& operator=(const RollPainter&) = delete;

    /// Spread the chart over an area of that size, with lanes for letters where it takes them.
    RollSpread SpreadOn(QSizeF size) const;

    /// Paint what is in `part`; the background alone where that is empty.
    void Paint(QPainter& painter, const RollSpread& spread, const PictureAt& at,
               const QRect& part) const;
    /// Paint the mark of a piece over it.
    void PaintMark(QPainter& painter, const RollSpread& spread, const PictureAt& at,
                   std::size_t piece) const;

    /// A piece's boxes, one for each row that it lies in; pixels of the view.
    static std::vector<QRectF> BoxesOf(const ChartPiece& piece, const RollSpread& spread,
                                       const PictureAt& at);

  private:
    /// How all of a picture is labelled: letters that differ in size without a reason look like a
    /// mistake.
    struct Labelling {
        RollSpread Of;
        double Zoom = 0;
        std::size_t Largest = 0;          ///< of the letters, place in LabelSizes
        std::vector<std::size_t> Outside; ///< pieces of which no box has room for the letter
    };
    SpreadArea AreaOf(QSizeF size) const;
    Labelling LabellingOf(const RollSpread& spread, double zoom) const;
    const Labelling& LabellingAt(const RollSpread& spread, double zoom) const;
    void PaintLane(QPainter& painter, const RollSpread& spread, const PictureAt& at,
                   std::size_t row, const QRectF& roll) const;
    void PaintRow(QPainter& painter, const RollSpread& spread, const PictureAt& at, std::size_t row,
                  const QRect& part) const;
    void PaintRuler(QPainter& painter, const RollSpread& spread, const PictureAt& at,
                    std::size_t row, const QRect& part) const;
    static void PaintOutline(QPainter& painter, const RollSpread& spread, std::size_t row,
                             const QRect& roll);
    void PaintLabel(QPainter& painter, const ChartPiece& piece, const QRectF& box,
                    const LabelWish& wish) const;

    const RollChart& chart_;
    std::array<QFont, LabelSizes.size()> fonts_;
    std::array<QFont, LabelSizes.size()> bold_;
    std::array<LetterWidths, LabelSizes.size()> widths_;
    std::array<double, LabelSizes.size()> heights_{};
    LabelMeasure measure_;
    mutable Labelling labelling_; ///< of what was painted last
};

} // namespace tarn
