#pragma once

// A picture of every alignment at a number of escapements, and where ink may be on it.

#include "print/APIFont.h"

#include <QImage>
#include <QPolygonF>
#include <QTransform>

#include <vector>

namespace tarn::testing {

/// One text on the sheet.
struct SheetText {
    bool BaseLine = false; ///< else Bottom, else top
    bool Bottom = false;
    bool Center = false; ///< else Right, else left
    bool Right = false;
    Long Escapement = 0;
    QRect Cell;     ///< pixels; nothing else is drawn in it
    QPointF Anchor; ///< the text's position, marked by a faint cross
};

inline constexpr const char* SheetWord = "Hxg";
inline constexpr Long SheetTextHeight = 48; ///< of the cell of its letters, pixels

/// All nine alignments in columns, for each escapement a row.
std::vector<SheetText> SheetTexts();

/// The sheet: each text in "Liberation Sans", black on white.
QImage PaintTextSheet();

/// From a text's own frame to the sheet: (0, 0) is its anchor, x runs along the line.
QTransform FrameOf(const SheetText& text);
/// The text's cell in its own frame.
QRectF BoxOf(const SheetText& text);
/// Where the letters of the text stand, in its own frame.
double BaseLineOf(const SheetText& text);

/// The size of its letters, pixels.
double SheetTypeSize();

/// Whether a pixel is part of a letter, not of paper or a mark.
bool IsInk(QRgb pixel);

} // namespace tarn::testing
