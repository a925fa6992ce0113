#pragma once

#include <string>
#include <string_view>

namespace tarn {

/// The entered-data report (lines ended by CrLf) as an SVG document: on white paper as large as its
/// text, one text element for each line, in a monospaced face, all blanks kept. Well-formed
/// whatever `text` (UTF-8) holds: control characters become blanks, and what is no character the
/// replacement character.
std::string ReportSvg(std::string_view text);

} // namespace tarn
