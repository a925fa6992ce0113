#include "app/Screen.h"

#include "app/Guard.h"

#include <QKeyEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarn {

Screen::Screen(Session& session, const QString& name)
    : session_(session) {
    setObjectName(name);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    scroller_ = new QScrollArea(this);
    scroller_->setWidgetResizable(true);
    scroller_->setFocusPolicy(Qt::NoFocus);
    body_ = new QWidget;
    body_->setObjectName(QStringLiteral("Body"));
    scroller_->setWidget(body_);
    layout->addWidget(scroller_);
}

void Screen::CloseByFrame() {
    if (isEnabled()) {
        Guard("The screen could not be closed.", [this] { OnCloseByFrame(); });
    }
}

void Screen::Uncover() {
    setEnabled(true);
    Guard("The screen could not be shown.", [this] { OnUncover(); });
}

QMenuBar& Screen::Menus() {
    if (menus_ == nullptr) {
        menus_ = new QMenuBar(this);
        menus_->setNativeMenuBar(false);
        layout()->setMenuBar(menus_);
    }
    return *menus_;
}

bool Screen::Guard(const std::string& failure, const std::function<void()>& body) const noexcept {
    return Guarded(session_.Boxes, failure, body);
}

void Screen::OnClick(QAbstractButton& button, std::string failure, std::function<void()> body) {
    connect(&button, &QAbstractButton::clicked, this,
            [this, failure = std::move(failure), body = std::move(body)] { Guard(failure, body); });
}

void Screen::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && button != nullptr && !event->isAutoRepeat()) {
        Guard({}, [&] { button->click(); });
        return;
    }
    QWidget::keyPressEvent(event);
}

void Screen::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!shown_) {
        shown_ = true;
        if (QWidget* first = FirstFocus()) {
            first->setFocus();
        }
    }
}

} // namespace tarn
