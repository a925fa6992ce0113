#pragma once

// A sheet of texts: every alignment at a number of escapements, in colours, clipped, and written
// into a clip that another text left.

#include "text/TextWriter.h"

#include <QPainter>
#include <QRect>
#include <QRgb>

#include <string>
#include <vector>

namespace tarn::testing {

/// A colour as it is set, and as it shows.
struct SheetColor {
    Long Value = 0;
    QRgb Ink = qRgb(0, 0, 0);
};

/// The word of the sheet, written once.
struct SheetText {
    QPoint Position;
    SheetColor Color;
};

struct SheetRow {
    std::string Label;
    Long Escapement = 0;
    bool Colored = false;
    bool Clipped = false; ///< the first text is written with CharPlace
    bool Twice = false;   ///< a second one is written with FontOut after it
};

/// What is written with one alignment and escapement.
struct SheetCell {
    bool BaseLine = false; ///< else Bottom, else top
    bool Bottom = false;
    bool Center = false; ///< else Right, else left
    bool Right = false;
    SheetRow Row;
    QRect Area; ///< pixels; nothing else is drawn in it
    std::vector<SheetText> Texts;
};

inline constexpr const char* SheetWord = "Hxg";
inline constexpr Long SheetTextHeight = 56; ///< of the cell of its letters, pixels
inline constexpr int SheetCellSize = 220;   ///< pixels

std::vector<SheetRow> SheetRows();
/// The heading of each column: its alignment.
std::vector<std::string> SheetColumns();
/// All cells, row by row, nine in each: an alignment in every column.
std::vector<SheetCell> SheetCells();
QSize SheetSize();
/// "top left, escapement 300".
std::string NameOf(const SheetCell& cell);
/// The rectangle that the first text of a clipped cell leaves for ink, from the size of the word in
/// the surface's own font.
QRect ClipOf(const SheetCell& cell);

enum class SheetInk {
    None,      ///< paper and marks: an outline around each cell, a cross at each position, the clip
    Unclipped, ///< FontOut for CharPlace
    All,
};

/// Paint the sheet in "Liberation Sans" at (0, 0), a unit of the painter for a pixel.
void PaintTextSheet(QPainter& painter, SheetInk ink);

} // namespace tarn::testing
