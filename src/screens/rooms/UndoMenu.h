#pragma once

#include "screens/rooms/EntryField.h"

#include <QObject>

#include <functional>
#include <string>

class QAction;
class QMenu;
class QMenuBar;

namespace tarn {

/// The Undo menu of the room entry: Undo and Redo of the rooms, which say what they do, with their
/// keys. In a field the keys first take back, or make again, the typing in it.
class UndoMenu : public QObject {
  public:
    /// The callbacks may not raise.
    UndoMenu(QMenuBar& menus, QObject* parent, const std::function<void()>& undo,
             const std::function<void()>& redo);

    /// The menu, for what stands behind them in it.
    QMenu& Menu() { return *menu_; }
    /// Take the keys of a field where it has nothing to take back or to make again.
    void Attend(EntryField& field);
    /// What there is to take back and to make again; empty for nothing.
    void Show(const std::string& undo, const std::string& redo);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QMenu* menu_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
};

} // namespace tarn
