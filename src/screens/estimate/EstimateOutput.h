// The estimate on paper and in files: what the estimate screen's PRINT and its picture's menu do.

#pragma once

#include "drawing/Drawing.h"
#include "estimate/Estimate.h"
#include "screens/Session.h"

#include <optional>
#include <string>

namespace tarn {

/// Print the drawing as it stands, which `screen` shows, with the line of its carpet, on one page
/// (see PrintQueue). The printer's sheet is asked for while it is not known.
void PrintEstimate(Session& session, QObject& screen, const std::optional<Estimate>& estimate,
                   const Drawing& drawing);

/// Ask for a file and save the printed page there as PDF; nothing when that was cancelled. Raises
/// OutputFileError, which names the file.
void SaveEstimateAsPdf(Session& session, const std::optional<Estimate>& estimate,
                       const Drawing& drawing);

/// The same with the drawing alone as SVG, under a title.
void SaveEstimateAsSvg(Session& session, const Drawing& drawing, const std::string& title);

/// The same with the whole roll of the estimate as DXF.
void SaveEstimateAsDxf(Session& session, const Estimate& estimate);

} // namespace tarn
