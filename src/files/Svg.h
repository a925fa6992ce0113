#pragma once

#include "drawing/Drawing.h"

#include <string>

namespace tarn {

/// A drawing as an SVG document: the rectangle from (0, 0) to the farthest point drawn and a small
/// margin, at 15 twips to one pixel, on white paper. Well-formed whatever `title` (UTF-8) holds:
/// control characters become blanks, and what is no character the replacement character.
std::string SvgDocument(const Drawing& drawing, const std::string& title);

} // namespace tarn
