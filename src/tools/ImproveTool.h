#pragma once

#include "estimate/Estimate.h"
#include "tools/EstimateOptions.h"

namespace tarn {

/// The estimate improved as the options ask. On a terminal, standard error shows how far it is; an
/// interrupt (Ctrl+C) ends it and keeps the best layout so far. Says so when nothing better was
/// found.
Estimate ImprovedFor(const EstimateOptions& options, const Estimate& estimate);

} // namespace tarn
