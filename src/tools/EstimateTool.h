#pragma once

#include "tools/EstimateOptions.h"

namespace tarn {

/// Make the estimate that the options ask for and write the outputs. Warnings go to standard error.
/// Raises Refusal, DatabaseError, RunTimeError or PrinterError when it cannot be done, and
/// OutputFileError when an output cannot be written; outputs before that one are there then, and
/// nothing else is. A PDF needs a QGuiApplication.
void EstimateFor(const EstimateOptions& options);

} // namespace tarn
