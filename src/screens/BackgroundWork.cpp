#include "screens/BackgroundWork.h"

#include <QThread>

#include <utility>

namespace tarn {

BackgroundWork::BackgroundWork() = default;

BackgroundWork::~BackgroundWork() {
    Drop();
}

void BackgroundWork::Start(std::function<void()> work, std::function<void()> done) {
    Q_ASSERT(!IsRunning());
    done_ = std::move(done);
    written_ = false;
    thread_.reset(QThread::create([this, work = std::move(work)] {
        work();
        written_ = true;
        written_.notify_one();
    }));
    const int number = ++number_;
    QObject::connect(thread_.get(), &QThread::finished, &receiver_, [this, number] {
        if (number == number_) { // else it was waited for, and other work runs
            Finish();
        }
    });
    thread_->start();
}

void BackgroundWork::Finish() {
    if (!IsRunning()) {
        return;
    }
    written_.wait(false);
    thread_->wait();
    thread_.reset();
    std::exchange(done_, nullptr)();
}

void BackgroundWork::Drop() {
    done_ = [] {};
    Finish();
}

} // namespace tarn
