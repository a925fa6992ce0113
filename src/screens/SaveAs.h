#pragma once

// Saving what a screen shows as a file of the user's choice.

#include "base/Words.h"
#include "screens/Dialogs.h"

#include <functional>
#include <string>

namespace tarn {

/// What every screen calls its ways to a file.
inline constexpr const char* SaveAsPdfCaption = "Save as &PDF";
inline constexpr const char* SaveAsSvgCaption = "Save as &SVG";
inline constexpr const char* SaveAsDxfCaption = "Save as &DXF";
inline constexpr const char* SaveAsXlsxCaption = "Save as spreadsheet (&XLSX)";
inline constexpr const char* SaveAsCsvCaption = "Save as &CSV";

/// Ask for a file, beginning with `name`, have `write` write it, and note in the window that it is
/// saved; nothing when that was cancelled. Raises OutputFileError, which names the file, whatever
/// `write` raises.
void SaveAs(const Session& session, const std::string& name, const std::string& suffix,
            const std::function<void(const std::string& path)>& write);

} // namespace tarn
