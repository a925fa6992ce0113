#include "screens/Screen.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Guard.h"
#include "screens/Theme.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace tarn {

namespace {

constexpr auto GuideFailure = Words("The guide could not be shown.");

/// Scrolls to what takes the focus, but not under a mouse that is pressing it: a click whose button
/// moved away is none. The scroll area itself follows the Tab key alone.
class FocusFollower : public QObject {
  public:
    FocusFollower(QScrollArea& scroller, const QWidget& body)
        : scroller_(scroller)
        , body_(body) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn && watched->isWidgetType()) {
            auto* widget = static_cast<QWidget*>(watched);
            const auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::MouseFocusReason && body_.isAncestorOf(widget)) {
                ShowWhole(*widget);
                // What took the focus may be about to move, as a panel that opens does.
                QTimer::singleShot(0, this, [this, moved = QPointer(widget)] {
                    if (moved && moved->hasFocus()) {
                        ShowWhole(*moved);
                    }
                });
            }
        }
        return false;
    }

  private:
    /// The scroll area itself is content with the text cursor of a field.
    void ShowWhole(QWidget& widget) {
        scroller_.ensureWidgetVisible(&widget);
        const QSize room = scroller_.viewport()->size();
        if (widget.width() <= room.width() && widget.height() <= room.height()) {
            const QPoint middle = widget.mapTo(&body_, widget.rect().center());
            scroller_.ensureVisible(middle.x(), middle.y(), widget.width() / 2 + 1,
                                    widget.height() / 2 + 1);
        }
    }

    QScrollArea& scroller_;
    const QWidget& body_;
};

} // namespace

Screen::Screen(Session& session, QAnyStringView name)
    : session_(session) {
    setObjectName(name);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    scroller_ = new QScrollArea(this);
    scroller_->setWidgetResizable(true);
    scroller_->setFocusPolicy(Qt::NoFocus);
    body_ = new QWidget;
    body_->setObjectName(Controls::body);
    scroller_->setWidget(body_);
    follower_ = std::make_unique<FocusFollower>(*scroller_, *body_);
    layout->addWidget(scroller_);
    MakeKeys();
}

void Screen::MakeKeys() {
    auto* guide = new QShortcut(QKeySequence(Qt::Key_F1), this);
    guide->setAutoRepeat(false);
    connect(guide, &QShortcut::activated, this,
            [this] { Guard(GuideFailure, [this] { ShowGuide(); }); });
    // The toolkit knows the menu key alone, which many a keyboard lacks.
    auto* menu = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), this);
    connect(menu, &QShortcut::activated, this, [this] {
        Guard(Words("The menu could not be opened."), [this] { OpenContextMenu(); });
    });
}

void Screen::OpenContextMenu() const {
    if (QWidget* focused = focusWidget()) {
        const QPoint at = focused->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, at, focused->mapToGlobal(at));
        QCoreApplication::sendEvent(focused, &event);
    }
}

QPushButton& Screen::GuideButton() {
    if (guide_ == nullptr) {
        guide_ = NewButton(body_, Controls::showGuide, Words("GUIDE (F1)"));
        guide_->setFocusPolicy(Qt::NoFocus); // the typing stays where it is
        SetRole(*guide_, TextRole::Hint);
        OnClick(*guide_, GuideFailure, [this] { ShowGuide(); });
    }
    return *guide_;
}

void Screen::ShowGuide() const {
    session_.Go.ShowGuide(GuidePage());
}

void Screen::CloseByFrame() {
    if (isEnabled()) {
        Guard(Words("The screen could not be closed."), [this] { OnCloseByFrame(); });
    }
}

void Screen::Uncover() {
    setEnabled(true);
    Guard(Words("The screen could not be shown."), [this] { OnUncover(); });
}

QMenuBar& Screen::Menus() {
    if (menus_ == nullptr) {
        menus_ = new QMenuBar(this);
        menus_->setNativeMenuBar(false);
        layout()->setMenuBar(menus_);
    }
    return *menus_;
}

void Screen::AddHelpMenu() {
    // Without a mnemonic: on some screens every letter is taken.
    QMenu* menu = Menus().addMenu(ToQt(Words("Help")));
    menu->setObjectName(Controls::helpMenu);
    QAction* guide = menu->addAction(ToQt(Words("&Guide")));
    guide->setObjectName(Controls::helpGuide);
    connect(guide, &QAction::triggered, this,
            [this] { Guard(GuideFailure, [this] { ShowGuide(); }); });
    QAction* about = menu->addAction(ToQt(Words("&About")));
    about->setObjectName(Controls::helpAbout);
    connect(about, &QAction::triggered, this, [this] {
        Guard(Words("The text could not be shown."), [this] { session_.Go.ShowAbout(); });
    });
}

bool Screen::Guard(const std::string& failure, const std::function<void()>& body) const noexcept {
    return Guarded(session_.Boxes, failure, body);
}

void Screen::OnClick(QAbstractButton& button, std::string failure, std::function<void()> body) {
    connect(&button, &QAbstractButton::clicked, this,
            [this, failure = std::move(failure), body = std::move(body)] { Guard(failure, body); });
}

void Screen::Later(std::function<void()> body) {
    QTimer::singleShot(0, this, [this, body = std::move(body)] { Guard({}, body); });
}

namespace {

bool IsEnterPressed(const QKeyEvent& key) {
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) && !key.isAutoRepeat();
}

} // namespace

bool Screen::PressesFromOption(const QKeyEvent& key) const {
    return IsEnterPressed(key) && qobject_cast<const QRadioButton*>(focusWidget()) != nullptr;
}

void Screen::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (button != nullptr && IsEnterPressed(*event)) {
        button->click(); // whose handler is under the guard
        return;
    }
    QWidget::keyPressEvent(event);
}

int Screen::BodyRoom() const {
    return width() - scroller_->verticalScrollBar()->sizeHint().width();
}

void Screen::TellBodyRoom() {
    Guard(Words("The screen could not be arranged."), [this] { OnBodyRoom(); });
}

void Screen::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        TellBodyRoom();
    }
}

void Screen::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        Later([this] { TellBodyRoom(); }); // when all in it have the new type
    }
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
