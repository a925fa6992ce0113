#pragma once

#include "estimate/EstimatePage.h"
#include "print/Paper.h"

#include <string>

namespace tarn {

struct EnteredDataReport;

/// The pages that a printer gets, as a PDF document: landscape, real text in embedded faces, inside
/// the margins of `paper`. They need a QGuiApplication, on whatever platform. Raise PrinterError
/// when the pages cannot be made.
std::string ReportPdf(const EnteredDataReport& report, const Paper& paper = {});
std::string EstimatePdf(const EstimatePage& page, const Paper& paper);
/// The same on a sheet of the page's PrnWidth by PrnHeight, with the least margins; A4 when either
/// is 0.
std::string EstimatePdf(const EstimatePage& page);

/// Write such a document to a file, whole or not at all. Raise OutputFileError, which names the
/// file, when it cannot be written.
void WriteReportPdf(const EnteredDataReport& report, const std::string& path,
                    const Paper& paper = {});
void WriteEstimatePdf(const EstimatePage& page, const std::string& path);

} // namespace tarn
