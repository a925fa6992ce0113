#include "screens/AfterBoxes.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace tarn {

namespace {

/// Goes with its context, or once it has run the action.
class BoxWatch : public QObject {
  public:
    BoxWatch(QObject& context, std::function<void()> action)
        : QObject(&context)
        , action_(std::move(action)) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Hide && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->isWindow()) {
            // A box is still on the stack.
            QTimer::singleShot(0, this, [this] { RunUnlessBoxed(); });
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    void RunUnlessBoxed() {
        if (action_ && QApplication::activeModalWidget() == nullptr) {
            deleteLater();
            std::exchange(action_, nullptr)();
        }
    }

    std::function<void()> action_;
};

} // namespace

void AfterBoxes(QObject& context, std::function<void()> action) {
    if (QApplication::activeModalWidget() == nullptr) {
        action();
    } else {
        new BoxWatch(context, std::move(action));
    }
}

} // namespace tarn
