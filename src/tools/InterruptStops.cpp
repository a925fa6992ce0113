#include "tools/InterruptStops.h"

#include <csignal>

namespace tarn {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void NoteInterrupt(int /*signal*/) {
    interrupted = 1;
}

} // namespace

InterruptStops::InterruptStops()
    : before_(std::signal(SIGINT, NoteInterrupt)) {
    interrupted = 0;
}

InterruptStops::~InterruptStops() {
    static_cast<void>(std::signal(SIGINT, before_ == SIG_ERR ? SIG_DFL : before_));
}

bool WasInterrupted() {
    return interrupted != 0;
}

} // namespace tarn
