#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

namespace tarn {

/// One piece of work at a time on a thread of its own, so that the window goes on working. Made,
/// used and destroyed on one thread, that of the window.
class BackgroundWork {
  public:
    BackgroundWork();
    /// Waits for the work; nothing follows it.
    ~BackgroundWork();
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;

    /// Run `work` on a thread of its own, then `done` from the event loop of this one. `work` must
    /// raise nothing and use nothing that this thread uses meanwhile; `done` finds all that it
    /// wrote. None may be running.
    void Start(std::function<void()> work, std::function<void()> done);
    /// Until `done` was called.
    bool IsRunning() const { return thread_ != nullptr; }
    /// Wait for the work, if any runs, and call `done` now.
    void Finish();
    /// Wait for the work, if any runs, without `done`.
    void Drop();

  private:
    QObject receiver_; ///< of the word that the work is done, on this thread
    std::unique_ptr<QThread> thread_;
    std::function<void()> done_;
    int number_ = 0;                    ///< of the work
    std::atomic<bool> written_ = false; ///< leads from what the work wrote to who reads it
};

} // namespace tarn
