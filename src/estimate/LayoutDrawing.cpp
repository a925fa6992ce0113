#include "estimate/LayoutDrawing.h"

#include "app/RunTimeError.h"
#include "estimate/CutList.h"

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

constexpr const char* TooShortAdvice =
    "The fills are shorter than 1 inch: check the sizes of this carpet's rooms.";

/// Brings a picture's font size and colour back.
class KeepPen {
  public:
    explicit KeepPen(Picture& picture)
        : picture_(picture)
        , size_(picture.FontSize)
        , color_(picture.ForeColor) {}
    ~KeepPen() {
        picture_.FontSize = size_;
        picture_.ForeColor = color_;
    }
    KeepPen(const KeepPen&) = delete;
    KeepPen& operator=(const KeepPen&) = delete;

  private:
    Picture& picture_;
    Double size_;
    QBColor color_;
};

/// Twips per inch of roll: the larger of the two scales, so that neither side falls below its
/// least.
Double Scale(const EngineArrays& engine) {
    if (engine.ResultLen == 0) {
        RaiseDivisionByZero(TooShortAdvice);
    }
    if (engine.RollWidth == 0) {
        RaiseDivisionByZero();
    }
    return std::max(LeastAcross / static_cast<Double>(engine.RollWidth),
                    LeastAlong / engine.ResultLen);
}

void PrintPieceSize(Picture& picture, const std::string& size, Double centreX, Double bottom,
                    Double width) {
    picture.FontSize = PieceSizeSize;
    const Double textWidth = picture.TextWidth(size);
    if (textWidth + 2 * PieceSizeMargin <= width &&
        picture.CurrentY + picture.LineHeight() <= bottom) {
        picture.CurrentX = centreX - textWidth / 2;
        picture.Print(size);
    }
}

void DrawPiece(Picture& picture, const SharedState& state, const EngineArrays& engine,
               const CarpetEstimate& estimate, Integer i, PieceSizes sizes) {
    const Double scale = Scale(engine);
    const auto x = static_cast<Double>(engine.PosX[i]);
    const auto y = static_cast<Double>(engine.PosY[i]);
    const auto w = static_cast<Double>(engine.PosW[i]);
    const auto l = static_cast<Double>(engine.PosL[i]);
    const std::string label = PieceLabel(engine.OrgPC[i], estimate.SavedFillCount);
    const std::string size = PieceSizeText(state, engine, i);
    const Double bottom = RollTop + (y + l) * scale;
    const Double centreX = RollLeft + (x + w / 2) * scale;

    picture.Line(RollLeft + x * scale, RollTop + y * scale, RollLeft + (x + w) * scale, bottom,
                 QBColor::Red, label + ": " + size);
    const KeepPen pen(picture);
    picture.ForeColor = QBColor::Black;
    picture.CurrentX = centreX - LabelOffset;
    picture.CurrentY = RollTop - LabelOffset + (y + l / 2) * scale;
    picture.Print(label);
    if (sizes == PieceSizes::Shown) {
        PrintPieceSize(picture, size, centreX, bottom, w * scale);
    }
}

} // namespace

void RedrawPC(Picture& picture, const SharedState& state, const EngineArrays& engine,
              const CarpetEstimate& estimate, PieceSizes sizes) {
    picture.Cls();
    if (engine.PieceCount == 0) {
        const KeepPen pen(picture);
        picture.CurrentX = RollLeft;
        picture.CurrentY = NoticeTop;
        picture.FontSize = NoticeSize;
        picture.ForeColor = QBColor::Red;
        picture.Print("NO FILLS TO DISPLAY");
    } else {
        for (Integer i = 0; i < engine.PieceCount; ++i) {
            DrawPiece(picture, state, engine, estimate, i, sizes);
        }
        const Double scale = Scale(engine);
        picture.Line(RollLeft, RollTop, RollLeft + static_cast<Double>(engine.RollWidth) * scale,
                     RollTop + engine.ResultLen * scale, QBColor::Black);
    }
    picture.Visible = true;
}

void ShowECutsInfo(Picture& picture, const SharedState& state, const EngineArrays& engine,
                   const CarpetEstimate& estimate, Double x, Double y) {
    const KeepPen pen(picture);
    picture.FontSize = BlockSize;
    picture.ForeColor = QBColor::Black;
    picture.CurrentY = y;
    for (const std::string& line : CutListLines(state, engine, estimate)) {
        picture.CurrentX = x;
        picture.Print(line);
    }
}

} // namespace tarn
