#pragma once

// Where a painted sheet has ink, and where it has none.

#include "text/TextSheet.h"

#include <QImage>

namespace tarn::testing {

/// The sheet, painted three times in the same way.
struct SheetPictures {
    QImage Bare;      ///< SheetInk::None
    QImage Unclipped; ///< SheetInk::Unclipped
    QImage All;       ///< SheetInk::All
    /// How far an edge may lie from where it belongs, pixels: of a letter and of the clip.
    double LetterEdge = 0;
    int ClipEdge = 0;
};

/// Every pixel outside the letters' boxes, turned with their text, is that of the bare sheet.
void ExpectPaperAroundLetters(const SheetPictures& pictures);
/// Every pixel inside a stroke that a letter has is of the text's colour, and some are.
void ExpectInkInStrokes(const SheetPictures& pictures);
/// Every pixel between the strokes of a letter is that of the bare sheet, and some are there.
void ExpectPaperInCounters(const SheetPictures& pictures);
/// A clipped cell is the unclipped one within its clip, and bare around it.
void ExpectClipsToCutExactly(const SheetPictures& pictures);

} // namespace tarn::testing
