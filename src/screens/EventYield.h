#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>

namespace tarn {

/// Lets the window system work now and then during a long computation: often enough that nobody
/// notices, seldom enough that thousands of steps do not wait for it after each.
class EventYield {
  public:
    /// Let it work.
    void Now() {
        QCoreApplication::processEvents();
        since_.start();
    }
    /// Let it work if it did not for a while, or never did.
    void WhenDue() {
        constexpr qint64 Interval = 10; // milliseconds
        if (!since_.isValid() || since_.elapsed() >= Interval) {
            Now();
        }
    }

  private:
    QElapsedTimer since_;
};

} // namespace tarn
