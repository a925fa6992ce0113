#include "screens/ScreenWindow.h"

#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"

#include <QCloseEvent>
#include <QLabel>
#include <QStackedLayout>
#include <QTimer>

#include <utility>

namespace tarn {

namespace {

constexpr int MostRefits = 4;

} // namespace

ScreenWindow::ScreenWindow()
    : screens_(new QStackedLayout(this)) {
    setObjectName(Controls::window);
    screens_->setContentsMargins(0, 0, 0, 0);
    note_ = NewLabel(this, Controls::printingNote, {});
    note_->setAttribute(Qt::WA_TransparentForMouseEvents);
    note_->setAutoFillBackground(true); // a long title may reach behind it
    SetRole(*note_, TextRole::Hint);
    note_->hide();
    Fit();
}

ScreenWindow::~ScreenWindow() = default;

void ScreenWindow::Replace(std::unique_ptr<Screen> screen) {
    Screen* replaced = Front();
    Add(std::move(screen));
    if (replaced != nullptr) {
        Unload(*replaced);
    }
    ShowFront();
}

void ScreenWindow::Cover(std::unique_ptr<Screen> screen) {
    if (Screen* covered = Front()) {
        covered->setEnabled(false);
    }
    Add(std::move(screen));
    ShowFront();
}

void ScreenWindow::Uncover() {
    if (Screen* top = Front()) {
        Unload(*top);
    }
    ShowFront();
    if (Screen* uncovered = Front()) {
        uncovered->Uncover();
    }
}

Screen* ScreenWindow::Front() const {
    const int count = screens_->count();
    return count == 0 ? nullptr : static_cast<Screen*>(screens_->widget(count - 1));
}

int ScreenWindow::Loaded() const {
    return screens_->count();
}

void ScreenWindow::Add(std::unique_ptr<Screen> screen) {
    screens_->addWidget(screen.release());
    Fit();
}

void ScreenWindow::Unload(Screen& screen) {
    // It may be in the middle of one of its own handlers.
    screen.setEnabled(false);
    screens_->removeWidget(&screen);
    screen.hide();
    screen.deleteLater();
}

void ScreenWindow::ShowFront() {
    if (Screen* front = Front()) {
        screens_->setCurrentWidget(front);
        QTimer::singleShot(0, this, [this] { PlaceNote(); }); // beside what is laid out by then
        setWindowTitle(front->Caption());
    }
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (Screen* front = Front()) {
        front->CloseByFrame();
    }
}

void ScreenWindow::Fit() {
    refitsLeft_ = MostRefits;
    frame_ = FrameMargins(*this);
    FitToDisplay(*this);
}

void ScreenWindow::FitAgainToANewFrame() {
    if (windowState() != Qt::WindowNoState) {
        return; // the user's own doing, in which the frame may be another one
    }
    // A window manager tells the frame only once it has drawn it, by moving or resizing the window.
    const QMargins frame = FrameMargins(*this);
    if (frame != frame_ && refitsLeft_ > 0) {
        --refitsLeft_;
        frame_ = frame;
        FitToDisplay(*this);
    }
}

void ScreenWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    QTimer::singleShot(0, this, [this] { FitAgainToANewFrame(); });
}

void ScreenWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    QTimer::singleShot(0, this, [this] { FitAgainToANewFrame(); });
}

void ScreenWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceNote();
    QTimer::singleShot(0, this, [this] { FitAgainToANewFrame(); });
}

void ScreenWindow::SetNote(std::string_view note) {
    SetText(*note_, note);
    note_->setVisible(!note.empty());
    PlaceNote();
}

void ScreenWindow::PlaceNote() {
    const int margin = Pixels(Metrics::Margin);
    QRect place(width() - margin, margin, 0, note_->sizeHint().height());
    const QWidget* front = Front();
    const auto* guide = front == nullptr
                            ? nullptr
                            : front->findChild<QWidget*>(QString::fromLatin1(Controls::showGuide));
    if (guide != nullptr) {
        const QRect button(guide->mapTo(this, QPoint()), guide->size());
        place = {button.left() - Pixels(Metrics::Spacing), button.top(), 0, button.height()};
    }
    note_->adjustSize();
    note_->move(place.left() - note_->width(), place.center().y() - note_->height() / 2);
    note_->raise();
}

void ScreenWindow::AfterFirstPaint(std::function<void()> action) {
    afterFirstPaint_ = std::move(action);
}

void ScreenWindow::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (afterFirstPaint_) {
        // The screens in the window are painted after it, in the same turn.
        QTimer::singleShot(0, this, std::exchange(afterFirstPaint_, nullptr));
    }
}

} // namespace tarn
