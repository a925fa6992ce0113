#pragma once

#include "app/Types.h"

namespace tarn {

/// What a search tells its caller while it runs: Started, Scored after each placement, Ended, and
/// then, if it was neither stopped nor failed, Finished. The default does nothing and never stops.
/// Nothing it calls may touch the engine's arrays before Finished.
class SearchObserver {
  public:
    virtual ~SearchObserver() = default;

    /// The cases are counted: `maximum` placements will be scored.
    virtual void Started([[maybe_unused]] Long maximum) {}
    /// `done` of `maximum` placements are scored. False stops the search.
    virtual bool Scored([[maybe_unused]] Long done) { return true; }
    /// The search is over, in whatever way, also by an error, and also before it could start.
    virtual void Ended() noexcept {}
    /// The layout is final and back in the caller's orientation: draw it. May raise.
    virtual void Finished() {}
};

} // namespace tarn
