// Drawings for plotters and cutting tables: ASCII DXF as release 12 has it, which every program
// that knows the format reads.

#pragma once

#include "base/Types.h"
#include "base/Units.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A point of a drawing: X to the right, Y upwards.
struct DxfPoint {
    Double X = 0;
    Double Y = 0;
};

/// A layer, and its colour by the number that the format has for it (1 red, 3 green, 7 black or
/// white).
struct DxfLayer {
    std::string_view Name;
    int Colour = 7;
};

/// Where the place of a text is, seen from the text.
enum class DxfAnchor { LeftOfBaseline, Middle };

/// A text in one line.
struct DxfText {
    std::string Text; ///< UTF-8
    DxfPoint At;
    Double Height = 1;    ///< of a capital
    Double Direction = 0; ///< degrees, counter-clockwise
    DxfAnchor Anchor = DxfAnchor::Middle;
};

/// A drawing that is being made. Lengths are inches, or centimetres with Units::Metric, and the
/// document says which. They are written to a ten-thousandth.
class DxfDocument {
  public:
    DxfDocument(Units units, const std::vector<DxfLayer>& layers);

    /// A closed polyline around the rectangle between two corners.
    void AddRectangle(std::string_view layer, DxfPoint low, DxfPoint high);
    void AddLine(std::string_view layer, DxfPoint from, DxfPoint to);
    /// Letters beyond ASCII are written as \U+0041; those beyond U+FFFF, which the format does not
    /// have, and what no text may hold, as the replacement character; between percent signs a
    /// blank is put.
    void AddText(std::string_view layer, const DxfText& text);

    /// The whole document, ASCII with CR LF. Its extents are those of what was added; of texts
    /// their places alone.
    std::string Document() const;

  private:
    void Reach(DxfPoint point);

    Units units_;
    std::string layers_;
    std::string entities_;
    DxfPoint low_;
    DxfPoint high_;
    bool isEmpty_ = true;
};

} // namespace tarn
