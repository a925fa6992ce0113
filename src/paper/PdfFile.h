// The pages of reports, estimates and orders as PDF documents and files.

#pragma once

#include "paper/EstimatePage.h"
#include "paper/Paper.h"

#include <string>
#include <string_view>

namespace tarn {

struct EnteredDataReport;
struct OrderDocument;

/// The pages that a printer gets, as a PDF document: landscape, real text in embedded faces, inside
/// the margins of `paper`. They need a QGuiApplication, on whatever platform. Raise PrinterError
/// when the pages cannot be made.
std::string ReportPdf(const EnteredDataReport& report, const Paper& paper = {});
std::string EstimatePdf(const EstimatePage& page, const Paper& paper);
/// The same on the page's own sheet, with the least margins; A4 when it is not known.
std::string EstimatePdf(const EstimatePage& page);

/// The sheet of a project's orders (see OrderSheet), upright, as PDF. Raises as the others.
std::string OrderPdf(const OrderDocument& document, std::string_view date, const Paper& paper = {});

/// Write such a document to a file, whole or not at all. Raise OutputFileError, which names the
/// file, when it cannot be written.
void WriteReportPdf(const EnteredDataReport& report, const std::string& path,
                    const Paper& paper = {});
void WriteEstimatePdf(const EstimatePage& page, const std::string& path);

} // namespace tarn
