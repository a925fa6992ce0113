#include "screens/EndSignals.h"

#ifdef _WIN32

namespace tarn {

/// The session tells the application itself.
class EndSignals::Impl {};

EndSignals::EndSignals() = default;
EndSignals::~EndSignals() = default;

} // namespace tarn

#else

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace tarn {

namespace {

constexpr std::array<int, 3> Ending{SIGTERM, SIGHUP, SIGINT};

/// The writing end of the pipe that leads from the handler to the event loop.
volatile std::sig_atomic_t toLoop = -1;

extern "C" void TellLoop(int /*signal*/) {
    const int before = errno;
    const char mark = 1;
    // A full pipe has told it already.
    [[maybe_unused]] const auto written = ::write(toLoop, &mark, 1);
    errno = before;
}

} // namespace

class EndSignals::Impl {
  public:
    Impl() {
        if (::pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            return; // the signals end the program at once, as they would without this
        }
        toLoop = ends_[1];
        notifier_.emplace(ends_[0], QSocketNotifier::Read);
        QObject::connect(&*notifier_, &QSocketNotifier::activated, &*notifier_, [this] {
            notifier_->setEnabled(false);
            QCoreApplication::exit(0);
        });
        struct sigaction action {};
        action.sa_handler = TellLoop;
        action.sa_flags = SA_RESTART;
        for (std::size_t i = 0; i < Ending.size(); ++i) {
            ::sigaction(Ending[i], &action, &before_[i]);
        }
    }
    ~Impl() {
        if (!notifier_) {
            return;
        }
        for (std::size_t i = 0; i < Ending.size(); ++i) {
            ::sigaction(Ending[i], &before_[i], nullptr);
        }
        notifier_.reset();
        toLoop = -1;
        ::close(ends_[0]);
        ::close(ends_[1]);
    }
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

  private:
    std::array<int, 2> ends_{-1, -1};
    std::array<struct sigaction, Ending.size()> before_{};
    std::optional<QSocketNotifier> notifier_;
};

EndSignals::EndSignals()
    : impl_(std::make_unique<Impl>()) {}
EndSignals::~EndSignals() = default;

} // namespace tarn

#endif
