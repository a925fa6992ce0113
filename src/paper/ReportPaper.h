#pragma once

class QPagedPaintDevice;

namespace tarn {

struct EnteredDataReport;

/// Paint the entered-data report on the pages of `device`, in landscape or as
/// the device lies: "Courier New" 12 points inside the margins, smaller only where the heading does
/// not fit the sheet. Each column stands where it does in the report, also behind letters that the
/// face does not have. Raises PrinterError when the device cannot be painted on or its sheet is too
/// small.
void PaintReport(QPagedPaintDevice& device, const EnteredDataReport& report);

} // namespace tarn
