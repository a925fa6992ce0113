#include "screens/GuideWindow.h"

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
constexpr const char* FindFailure = "The guide could not be searched.";

} // namespace

GuideWindow::GuideWindow(QWidget& program, Dialogs& boxes)
    : QDialog(&program)
    , program_(program)
    , boxes_(boxes) {
    NameControl(*this, Controls::guideWindow, QStringLiteral("Guide"));
    setWindowTitle(QStringLiteral("GUIDE"));
    LayOut();
    Connect();
}

void GuideWindow::LayOut() {
    text_ = new GuideView(this);
    NameControl(*text_, Controls::guideText, QStringLiteral("Guide"));
    search_ = new QLineEdit(this);
    search_->setObjectName(Controls::guideSearch);
    find_ = NewButton(this, Controls::findInGuide, "FIND NEXT", 'F');
    find_->setDefault(true);
    close_ = NewButton(this, Controls::closeGuide, "CLOSE", 'C');
    note_ = NewLabel(this, Controls::guideNote, "");
    note_->setWordWrap(true);
    note_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    note_->hide();
    SetRole(*note_, TextRole::Hint);

    auto* row = new QHBoxLayout;
    row->setSpacing(Pixels(Metrics::Spacing));
    row->addWidget(NewLabelFor(*search_, this, Controls::guideSearchCaption, "WORD", 'W'));
    row->addWidget(search_, 1);
    row->addWidget(find_);
    row->addWidget(close_);
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, Metrics::Spacing);
    rows->addWidget(text_, 1);
    rows->addWidget(note_);
    rows->addLayout(row);
    SetTabOrders({text_, search_, find_, close_});
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
    SetText(*note_, found ? "" : "The guide does not have this word.");
    note_->setVisible(!found && !word.isEmpty());
}

void GuideWindow::TellLinkAway(const QString& address) {
    SetText(*note_,
            "This is not in the guide, and the program opens nothing else: " + FromQt(address));
    note_->show();
}

void GuideWindow::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    if (program_.isVisible()) {
        program_.activateWindow();
    }
}

} // namespace tarn
