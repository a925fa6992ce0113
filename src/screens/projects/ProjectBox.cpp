#include "screens/projects/ProjectBox.h"

#include "base/Text.h"
#include "files/QtText.h"
#include "store/ProjectNames.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

namespace tarn {

namespace {

/// Whether the key puts a character in, and is no command.
bool IsCharacter(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (modifiers == Qt::ControlModifier || event.text().isEmpty()) {
        return false;
    }
    const QChar first = event.text().front();
    return first.isPrint() || first.isSurrogate();
}

} // namespace

ProjectBox::ProjectBox(QWidget* parent)
    : QLineEdit(parent) {
    setFocusPolicy(Qt::ClickFocus);
}

std::string ProjectBox::Name() const {
    return FromQt(text());
}

void ProjectBox::SetName(std::string_view name) {
    setText(ToQt(name));
}

void ProjectBox::focusInEvent(QFocusEvent* event) {
    justUnlocked_ = false;
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason) {
        TakeByMouse();
    }
}

void ProjectBox::TakeByMouse() {
    const bool wasLocked = IsLocked();
    if (OnTaken) {
        OnTaken();
    }
    justUnlocked_ = wasLocked && !IsLocked();
}

void ProjectBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && IsLocked() && hasFocus()) {
        TakeByMouse();
    }
    if (!justUnlocked_ || event->button() != Qt::LeftButton) {
        QLineEdit::mousePressEvent(event);
    }
}

void ProjectBox::mouseMoveEvent(QMouseEvent* event) {
    if (!justUnlocked_) {
        QLineEdit::mouseMoveEvent(event);
    }
}

void ProjectBox::keyPressEvent(QKeyEvent* event) {
    if (!IsLocked() && event->matches(QKeySequence::Paste)) {
        PasteClipboard();
    } else if (!IsLocked() && IsCharacter(*event)) {
        Enter(TypedNameText(FromQt(event->text())));
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void ProjectBox::inputMethodEvent(QInputMethodEvent* event) {
    const NameText typed = TypedNameText(FromQt(event->commitString()));
    QInputMethodEvent cleaned(event->preeditString(), event->attributes());
    cleaned.setCommitString(ToQt(Fitting(typed.Text)), event->replacementStart(),
                            event->replacementLength());
    QLineEdit::inputMethodEvent(&cleaned);
    event->setAccepted(cleaned.isAccepted());
    if (!IsLocked() && typed.LeftOut && OnLeftOut) {
        OnLeftOut();
    }
}

void ProjectBox::mouseReleaseEvent(QMouseEvent* event) {
    justUnlocked_ = false;
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard.supportsSelection() && !IsLocked()) {
        deselect();
        Paste(clipboard.text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void ProjectBox::dropEvent(QDropEvent* event) {
    if (IsLocked() || event->source() == this || !event->mimeData()->hasText()) {
        QLineEdit::dropEvent(event);
        return;
    }
    event->acceptProposedAction();
    deselect();
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    Paste(event->mimeData()->text());
}

void ProjectBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions()) {
        if (action->text().startsWith(QLineEdit::tr("&Paste"))) { // it has no other name
            action->disconnect(this);
            connect(action, &QAction::triggered, this, [this] { PasteClipboard(); });
        }
    }
    menu->popup(event->globalPos());
}

std::string ProjectBox::Fitting(const std::string& text) const {
    return FittingNameText(text, Len(Name()) - Len(FromQt(selectedText())));
}

void ProjectBox::Enter(const NameText& text) {
    if (!text.Text.empty()) {
        insert(ToQt(Fitting(text.Text)));
    }
    if (text.LeftOut && OnLeftOut) {
        OnLeftOut();
    }
}

void ProjectBox::Paste(const QString& text) {
    Enter(PastedNameText(FromQt(text)));
}

void ProjectBox::PasteClipboard() {
    Paste(QGuiApplication::clipboard()->text());
}

} // namespace tarn
