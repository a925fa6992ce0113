#pragma once

#include <QLineEdit>

#include <functional>
#include <string>
#include <string_view>

namespace tarn {

struct NameText;

/// The box for a project's name. Locked it shows the project chosen; unlocked it takes a name, in
/// which the rules of ProjectNames.h hold however it is put in: typed, pasted, dropped. It takes
/// the focus by the mouse, not by Tab.
class ProjectBox : public QLineEdit {
  public:
    explicit ProjectBox(QWidget* parent);

    /// Neither may raise.
    /// The mouse put the focus here, or clicked the locked box that has it; not called when the
    /// window or a message box gives it back. What it selects when it unlocks the box stays
    /// selected, whatever place the mouse pressed.
    std::function<void()> OnTaken;
    /// Characters were left out: called once for a key, and once for what is pasted or dropped.
    std::function<void()> OnLeftOut;

    bool IsLocked() const { return isReadOnly(); }
    void SetLocked(bool locked) { setReadOnly(locked); }
    std::string Name() const;
    void SetName(std::string_view name);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void TakeByMouse();
    /// Put text in at the cursor, in place of what is selected, as far as there is room.
    void Enter(const NameText& text);
    void Paste(const QString& text);
    void PasteClipboard();
    std::string Fitting(const std::string& text) const;

    bool justUnlocked_ = false; ///< by the mouse press that is under way
};

} // namespace tarn
