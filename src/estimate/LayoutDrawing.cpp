#include "estimate/LayoutDrawing.h"

#include "base/RunTimeError.h"
#include "base/Words.h"
#include "estimate/CutList.h"
#include "estimate/FillLabels.h"

#include <algorithm>

namespace tarn {

namespace {

/// Top left of the roll, and the least it is drawn across and along, twips.
constexpr Double RollLeft = 7500;
constexpr Double RollTop = 500;
constexpr Double LeastAcross = 3400;
constexpr Double LeastAlong = 6400;
constexpr Double LabelOffset = 50; ///< a label begins this far up and left of its piece's centre

constexpr Double NoticeTop = 3000;
constexpr Double NoticeSize = 12;
constexpr Double BlockSize = 9;
constexpr Double PieceSizeSize = 7;
constexpr Double PieceSizeMargin = 40; ///< kept free at both sides of a size text

constexpr auto TooShortAdvice =
    Words("The fills are shorter than 1 inch: check the sizes of this carpet's rooms.");

/// Brings a drawing's font size and colour back.
class KeepPen {
  public:
    explicit KeepPen(Drawing& drawing)
        : drawing_(drawing)
        , size_(drawing.FontSize)
        , color_(drawing.Color) {}
    ~KeepPen() {
        drawing_.FontSize = size_;
        drawing_.Color = color_;
    }
    KeepPen(const KeepPen&) = delete;
    KeepPen& operator=(const KeepPen&) = delete;

  private:
    Drawing& drawing_;
    Double size_;
    DrawingColor color_;
};

/// Twips per inch of roll: the larger of the two scales, so that neither side falls below its
/// least.
Double TwipsPerRollInch(const Estimate& estimate) {
    if (estimate.Fills.Length == 0) {
        RaiseDivisionByZero(TooShortAdvice);
    }
    if (estimate.Request.RollWidth == 0) {
        RaiseDivisionByZero();
    }
    return std::max(LeastAcross / static_cast<Double>(estimate.Request.RollWidth),
                    LeastAlong / estimate.Fills.Length);
}

void WritePieceSize(Drawing& drawing, const std::string& size, Double centreX, Double bottom,
                    Double width) {
    drawing.FontSize = PieceSizeSize;
    const Double textWidth = drawing.TextWidth(size);
    if (textWidth + 2 * PieceSizeMargin <= width && drawing.PenY + drawing.LineHeight() <= bottom) {
        drawing.PenX = centreX - textWidth / 2;
        drawing.WriteLine(size);
    }
}

void DrawPiece(Drawing& drawing, const Estimate& estimate, const Placed& placed, Double scale,
               PieceSizes sizes) {
    const auto x = static_cast<Double>(placed.X);
    const auto y = static_cast<Double>(placed.Y);
    const auto w = static_cast<Double>(placed.Width);
    const auto l = static_cast<Double>(placed.Length);
    const std::string label = LabelOf(estimate, placed.Part);
    const std::string size = SizeOf(estimate, placed.Part);
    const Double bottom = RollTop + (y + l) * scale;
    const Double centreX = RollLeft + (x + w / 2) * scale;

    drawing.AddBox(RollLeft + x * scale, RollTop + y * scale, RollLeft + (x + w) * scale, bottom,
                   DrawingColor::Red, label + ": " + size);
    const KeepPen pen(drawing);
    drawing.Color = DrawingColor::Black;
    drawing.PenX = centreX - LabelOffset;
    drawing.PenY = RollTop - LabelOffset + (y + l / 2) * scale;
    drawing.WriteLine(label);
    if (sizes == PieceSizes::Shown) {
        WritePieceSize(drawing, size, centreX, bottom, w * scale);
    }
}

} // namespace

void DrawLayout(Drawing& drawing, const Estimate& estimate, PieceSizes sizes) {
    if (estimate.Fills.Layout.empty()) {
        DrawNoFills(drawing);
        return;
    }
    drawing.Clear();
    const Double scale = TwipsPerRollInch(estimate);
    for (const Placed& placed : estimate.Fills.Layout) {
        DrawPiece(drawing, estimate, placed, scale, sizes);
    }
    drawing.AddBox(RollLeft, RollTop,
                   RollLeft + static_cast<Double>(estimate.Request.RollWidth) * scale,
                   RollTop + estimate.Fills.Length * scale, DrawingColor::Black);
    drawing.Visible = true;
}

void DrawNoFills(Drawing& drawing) {
    drawing.Clear();
    const KeepPen pen(drawing);
    drawing.PenX = RollLeft;
    drawing.PenY = NoticeTop;
    drawing.FontSize = NoticeSize;
    drawing.Color = DrawingColor::Red;
    drawing.WriteLine(Words("NO FILLS TO DISPLAY"));
    drawing.Visible = true;
}

void DrawCutList(Drawing& drawing, const Estimate& estimate, Double x, Double y) {
    const KeepPen pen(drawing);
    drawing.FontSize = BlockSize;
    drawing.Color = DrawingColor::Black;
    drawing.PenY = y;
    for (const std::string& line : CutListLines(estimate)) {
        drawing.PenX = x;
        drawing.WriteLine(line);
    }
}

} // namespace tarn
