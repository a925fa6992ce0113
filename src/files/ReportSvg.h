#pragma once

#include <string>

namespace tarn {

struct EnteredDataReport;

/// The entered-data report as an SVG document: on white paper as large as its text, one text
/// element for each line, in a monospaced face, all blanks kept. Well-formed whatever its lines
/// hold: control characters become blanks, and what is no character the replacement character.
std::string ReportSvg(const EnteredDataReport& report);

} // namespace tarn
