#pragma once

#include "tools/EstimateOptions.h"

namespace tarn {

/// Make the estimate that the options ask for and write the outputs. Warnings go to standard error.
/// Raises Refusal, DatabaseError or RunTimeError when it cannot be done; nothing is written then,
/// but outputs before one that cannot be written are there. A PDF needs a QGuiApplication.
void EstimateFor(const EstimateOptions& options);

} // namespace tarn
