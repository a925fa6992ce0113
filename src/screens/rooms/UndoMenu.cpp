#include "screens/rooms/UndoMenu.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

namespace tarn {

namespace {

// Not the toolkit's standard keys: those differ between desktops.
const QKeySequence& UndoKey() {
    static const QKeySequence key(Qt::CTRL | Qt::Key_Z);
    return key;
}

const QList<QKeySequence>& RedoKeys() {
    static const QList<QKeySequence> keys{QKeySequence(Qt::CTRL | Qt::Key_Y),
                                          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)};
    return keys;
}

bool IsUndo(const QKeyEvent& event) {
    return QKeySequence(event.keyCombination()) == UndoKey();
}

bool IsRedo(const QKeyEvent& event) {
    return RedoKeys().contains(QKeySequence(event.keyCombination()));
}

QAction* AddItem(QMenu& menu, const char* name, const std::function<void()>& act) {
    QAction* item = menu.addAction(QString());
    item->setObjectName(name);
    QObject::connect(item, &QAction::triggered, item, act);
    return item;
}

/// `what` has the name as %1; it is `caption` alone that is shown where there is none.
void ShowItem(QAction& item, Phrase caption, Phrase what, const std::string& name) {
    item.setText(ToQt(name.empty() ? std::string(caption) : Words(what, Unmarked(name))));
    item.setEnabled(!name.empty());
}

} // namespace

UndoMenu::UndoMenu(QMenuBar& menus, QObject* parent, const std::function<void()>& undo,
                   const std::function<void()>& redo)
    : QObject(parent) {
    menu_ = menus.addMenu(ToQt(Words("&Undo")));
    menu_->setObjectName(Controls::editMenu);
    undo_ = AddItem(*menu_, Controls::undoRooms, undo);
    redo_ = AddItem(*menu_, Controls::redoRooms, redo);
    undo_->setShortcut(UndoKey());
    redo_->setShortcuts(RedoKeys());
    Show({}, {});
}

void UndoMenu::Attend(EntryField& field) {
    field.installEventFilter(this);
}

void UndoMenu::Show(const std::string& undo, const std::string& redo) {
    ShowItem(*undo_, Words("&Undo"), Words("&Undo %1"), undo);
    ShowItem(*redo_, Words("&Redo"), Words("&Redo %1"), redo);
}

bool UndoMenu::eventFilter(QObject* watched, QEvent* event) {
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if (!asks && event->type() != QEvent::KeyPress) {
        return false;
    }
    auto& field = *static_cast<EntryField*>(watched);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!IsUndo(key) && !IsRedo(key)) {
        return false;
    }
    const bool isFieldsOwn = IsUndo(key) ? field.isUndoAvailable() : field.isRedoAvailable();
    if (asks) {
        event->setAccepted(isFieldsOwn); // else it is the menu's
    } else if (isFieldsOwn) {
        IsUndo(key) ? field.undo() : field.redo();
    }
    return true;
}

} // namespace tarn
