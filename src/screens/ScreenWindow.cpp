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
constexpr double MostOfLine = 0.4; ///< of the window's width: the title stands there too

} // namespace

ScreenWindow::ScreenWindow()
    : screens_(new QStackedLayout(this)) {
    setObjectName(Controls::window);
    screens_->setContentsMargins(0, 0, 0, 0);
    line_ = NewLabel(this, Controls::printingNote, {});
    line_->setAttribute(Qt::WA_TransparentForMouseEvents);
    line_->setAutoFillBackground(true); // a long title may reach behind it
    SetRole(*line_, TextRole::Hint);
    line_->hide();
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
        ShowNote({});
        QTimer::singleShot(0, this, [this] { PlaceLine(); }); // beside what is laid out by then
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
    PlaceLine();
    QTimer::singleShot(0, this, [this] { FitAgainToANewFrame(); });
}

void ScreenWindow::SetWork(std::string_view work) {
    work_ = work;
    ShowLine();
}

void ScreenWindow::ShowNote(const std::string& note) {
    note_ = note;
    ShowLine();
}

void ScreenWindow::ShowLine() {
    SetText(*line_, work_.empty() ? note_ : work_);
    line_->setVisible(!line_->text().isEmpty());
    PlaceLine();
}

void ScreenWindow::PlaceLine() {
    const int margin = Pixels(Metrics::Margin);
    QRect place(width() - margin, margin, 0, line_->sizeHint().height());
    const QWidget* front = Front();
    const auto* guide = front == nullptr
                            ? nullptr
                            : front->findChild<QWidget*>(QString::fromLatin1(Controls::showGuide));
    if (guide != nullptr) {
        const QRect button(guide->mapTo(this, QPoint()), guide->size());
        place = {button.left() - Pixels(Metrics::Spacing), button.top(), 0, button.height()};
    }
    line_->setText(line_->fontMetrics().elidedText(line_->accessibleName(), Qt::ElideMiddle,
                                                   static_cast<int>(width() * MostOfLine)));
    line_->adjustSize();
    line_->move(place.left() - line_->width(), place.center().y() - line_->height() / 2);
    line_->raise();
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
