#pragma once

#include "base/Types.h"

namespace tarn {

/// What a search tells its caller while it runs: Started, Scored after each placement, and Ended.
/// The default does nothing and never stops.
class SearchObserver {
  public:
    virtual ~SearchObserver() = default;

    /// The cases are counted: `maximum` placements will be scored.
    virtual void Started([[maybe_unused]] Long maximum) {}
    /// `done` of `maximum` placements are scored. False stops the search.
    virtual bool Scored([[maybe_unused]] Long done) { return true; }
    /// The search is over, in whatever way, also by an error, and also before it could start.
    virtual void Ended() noexcept {}
};

} // namespace tarn
