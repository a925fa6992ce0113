#pragma once

#include "estimate/EstimateChoices.h"

#include <optional>

namespace tarn {

struct Estimate;

/// The screen that asked for an estimate whose fills are to be laid out.
class EstimateClient {
  public:
    virtual ~EstimateClient() = default;

    /// The estimate is made: draw it and list it. May raise RunTimeError; NoEstimate then follows.
    virtual void EstimateReady(const Estimate& estimate) = 0;
    /// What is to be chosen for the fills at first; none: the first of the minimum cuts, and no
    /// number of pieces.
    virtual std::optional<FillChoices> FirstChoices() const { return std::nullopt; }
    /// No estimate comes: the search was stopped or failed, or was never started.
    virtual void NoEstimate() = 0;
};

} // namespace tarn
