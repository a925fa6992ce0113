// Ctrl+C as the wish to stop a search and keep its best.

#pragma once

namespace tarn {

/// Takes interrupts as the wish to stop while it lives; what took them before takes them again
/// then. One at a time.
class InterruptStops {
  public:
    InterruptStops();
    ~InterruptStops();
    InterruptStops(const InterruptStops&) = delete;
    InterruptStops& operator=(const InterruptStops&) = delete;

  private:
    void (*before_)(int);
};

/// Whether there was an interrupt since the last InterruptStops was made.
bool WasInterrupted();

} // namespace tarn
