#pragma once

namespace tarn {

/// The screen that asked for the fills of a carpet to be laid out.
class FillsClient {
  public:
    virtual ~FillsClient() = default;

    /// The search is done and the arrays hold its layout: draw it and list it. May raise
    /// RunTimeError; NoLayout then follows.
    virtual void LayoutReady() = 0;
    /// No layout comes: the search was stopped or failed, or was never started. Empty the estimate.
    virtual void NoLayout() = 0;
};

} // namespace tarn
