#pragma once

#include "app/Printer.h"
#include "app/SharedState.h"

namespace tarn {

/// Set PrnWidth and then PrnHeight from the printer's sheet, in landscape. Raises PrinterError, and
/// "Overflow" for a side that does not fit an Integer; what was set before stays.
void TakePrinterPage(SharedState& state, Printer& printer);

/// The same at the program's start, where no failure matters: a system without a usable printer
/// starts all the same.
void ReadPrinterPage(SharedState& state, Printer& printer) noexcept;

} // namespace tarn
