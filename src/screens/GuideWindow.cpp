#include "screens/GuideWindow.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Guard.h"
#include "screens/GuideView.h"
#include "screens/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace tarn {

namespace {

constexpr int LineLength = 80; ///< characters
constexpr auto FindFailure = Words("The guide could not be searched.");
constexpr auto AboutFailure = Words("The text could not be shown.");

} // namespace

GuideWindow::GuideWindow(QWidget& program, Dialogs& boxes)
    : QDialog(&program)
    , program_(program)
    , boxes_(boxes) {
    NameControl(*this, Controls::guideWindow, ToQt(Words("Guide")));
    setWindowTitle(ToQt(Words("GUIDE")));
    LayOut();
    Connect();
}

void GuideWindow::LayOut() {
    text_ = new GuideView(this);
    NameControl(*text_, Controls::guideText, ToQt(Words("Guide")));
    search_ = new QLineEdit(this);
    search_->setObjectName(Controls::guideSearch);
    find_ = NewButton(this, Controls::findInGuide, Words("&FIND NEXT"));
    find_->setDefault(true);
    about_ = NewButton(this, Controls::aboutFromGuide, Words("&ABOUT"));
    close_ = NewButton(this, Controls::closeGuide, Words("&CLOSE"));
    note_ = NewLabel(this, Controls::guideNote, "");
    note_->setWordWrap(true);
    note_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    note_->hide();
    SetRole(*note_, TextRole::Hint);

    auto* row = new QHBoxLayout;
    row->setSpacing(Pixels(Metrics::Spacing));
    row->addWidget(NewLabelFor(*search_, this, Controls::guideSearchCaption, Words("&WORD")));
    row->addWidget(search_, 1);
    row->addWidget(find_);
    row->addWidget(about_);
    row->addWidget(close_);
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, Metrics::Spacing);
    rows->addWidget(text_, 1);
    rows->addWidget(note_);
    rows->addLayout(row);
    SetTabOrders({text_, search_, find_, about_, close_});
}

void GuideWindow::Connect() {
    const auto find = [this] { Guarded(boxes_, FindFailure, [this] { Find(); }); };
    connect(find_, &QPushButton::clicked, this, find);
    connect(new QShortcut(QKeySequence(QKeySequence::FindNext), this), &QShortcut::activated, this,
            find);
    connect(new QShortcut(QKeySequence(QKeySequence::Find), this), &QShortcut::activated, this,
            [this] {
                search_->setFocus();
                search_->selectAll();
            });
    connect(about_, &QPushButton::clicked, this, [this] {
        Guarded(boxes_, AboutFailure, [this] {
            if (OnAbout) {
                OnAbout();
            }
        });
    });
    connect(close_, &QPushButton::clicked, this, &QDialog::reject);
    text_->OnLinkAway = [this](const QString& address) {
        Guarded(boxes_, {}, [&] { TellLinkAway(address); });
    };
}

void GuideWindow::ShowPage(std::string_view page) {
    if (!placed_) {
        PlaceBesideTyping();
        placed_ = true;
    }
    note_->hide();
    show();
    raise();
    activateWindow();
    text_->setFocus();
    text_->ShowPage(ToQt(page));
}

void GuideWindow::PlaceBesideTyping() {
    ensurePolished();
    const QRect beside = program_.geometry();
    const int width = text_->fontMetrics().averageCharWidth() * LineLength;
    const QSize size(std::min(width, beside.width()), beside.height());
    setGeometry(QRect(QPoint(beside.right() + 1 - size.width(), beside.top()), size));
}

void GuideWindow::Find() {
    const QString word = search_->text();
    bool found = !word.isEmpty() && text_->find(word);
    if (!found && !word.isEmpty()) {
        const QTextCursor before = text_->textCursor();
        text_->moveCursor(QTextCursor::Start);
        found = text_->find(word);
        if (!found) {
            text_->setTextCursor(before);
        }
    }
    SetText(*note_, found ? Phrase() : Words("The guide does not have this word."));
    note_->setVisible(!found && !word.isEmpty());
}

void GuideWindow::TellLinkAway(const QString& address) {
    SetText(*note_, Words("This is not in the guide, and the program opens nothing else: %1",
                          FromQt(address)));
    note_->show();
}

void GuideWindow::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    if (program_.isVisible()) {
        program_.activateWindow();
    }
}

} // namespace tarn
