#pragma once

// Saving what a screen shows as a file of the user's choice.

#include "base/Words.h"
#include "screens/Dialogs.h"
#include "screens/Session.h"

#include <functional>
#include <string>

namespace tarn {

/// What every screen calls its ways to a file.
inline constexpr auto SaveAsPdfCaption = Words("Save as &PDF");
inline constexpr auto SaveAsSvgCaption = Words("Save as &SVG");
inline constexpr auto SaveAsDxfCaption = Words("Save as &DXF");
inline constexpr auto SaveAsXlsxCaption = Words("Save as spreadsheet (&XLSX)");
inline constexpr auto SaveAsCsvCaption = Words("Save as &CSV");

/// Ask for a file, beginning with `name`, have `write` write it, and note in the window that it is
/// saved; nothing when that was cancelled. Raises OutputFileError, which names the file, whatever
/// `write` raises.
void SaveAs(const Session& session, const std::string& name, const std::string& suffix,
            const std::function<void(const std::string& path)>& write);

} // namespace tarn
