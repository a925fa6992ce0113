// The size of the printer's sheet as an estimate's page counts it.

#pragma once

#include "base/Types.h"

namespace tarn {

class Printer;

/// The printer's sheet in landscape, twips. A side of 0 was not read.
struct PageTwips {
    Integer Width = 0;
    Integer Height = 0;

    bool IsKnown() const { return Width > 0 && Height > 0; }

    bool operator==(const PageTwips&) const = default;
};

/// The sheet of the printer. Raises PrinterError, and "Overflow" for a side that does not fit an
/// Integer.
PageTwips AskPrinterPage(Printer& printer);

/// The same where no failure matters, as at the program's start: a system without a usable printer
/// starts all the same. Nothing is known then.
PageTwips ReadPrinterPage(Printer& printer) noexcept;

} // namespace tarn
