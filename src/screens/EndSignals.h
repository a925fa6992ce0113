#pragma once

#include <memory>

namespace tarn {

/// While it lives, a request of the system to end (such as at its shutdown) ends the event loop, so
/// that what is unsaved is kept as at any other end. One exists at a time, beside an application.
class EndSignals {
  public:
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

  private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace tarn
