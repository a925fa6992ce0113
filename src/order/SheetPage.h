// A sheet of paper upright, and what stands on every page of an order.

#pragma once

#include "drawing/Drawing.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A sheet upright and the edges that stay white on it, twips. A4 unless told otherwise.
struct SheetPaper {
    Double Width = 11906;
    Double Height = 16838;
    Double Margin = 720;
};

/// The smallest sheets that an order can be put on, between their margins.
inline constexpr Double LeastSheetWidth = 8500;
inline constexpr Double LeastSheetHeight = 8500;

/// A rectangle of a page, twips from its corner.
struct SheetArea {
    Double Left = 0;
    Double Top = 0;
    Double Right = 0;
    Double Bottom = 0;

    Double Width() const { return Right - Left; }
    Double Height() const { return Bottom - Top; }
};

/// No text on a sheet is smaller, points.
inline constexpr Double LeastTypeSize = 8;
/// The type size of the lists, points.
inline constexpr Double ListTypeSize = 10;
/// Of lines that must not come before the pieces, twips.
inline constexpr Double FineLine = 6;

/// Where the contents of a page stand: inside the margins and below its head.
SheetArea BodyOf(const SheetPaper& paper);

/// A page with its head, a line of text; the page's number is added by NumberPages.
Drawing NewPage(const SheetPaper& paper, std::string_view head);

/// Write its number, "2 of 5", on each page.
void NumberPages(std::vector<Drawing>& pages, const SheetPaper& paper);

/// Lines of text below each other, the first at the top of `area`; where they end.
Double AddLines(Drawing& page, const SheetArea& area, const std::vector<std::string>& lines,
                Double fontSize);

} // namespace tarn
