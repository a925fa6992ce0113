#pragma once

#include "screens/GuidePages.h"
#include "screens/Session.h"

#include <QAnyStringView>
#include <QScrollArea>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class QAbstractButton;
class QMenuBar;
class QPushButton;

namespace tarn {

/// One screen of the program, as the window shows it: an optional menu bar, and a body that scrolls
/// where it does not fit, to whatever takes the focus. Everything that acts runs under the guard
/// (see screens/Guard.h).
class Screen : public QWidget {
  public:
    /// `name` is its objectName.
    Screen(Session& session, QAnyStringView name);

    /// The caption of the window while this screen is in front.
    QString Caption() const { return windowTitle(); }

    /// The user closes the window by its frame. A disabled screen ignores it.
    void CloseByFrame();
    /// The screen above was unloaded; this one is enabled and shown again.
    void Uncover();

  protected:
    /// The page of the guide that tells about the screen as it is now (see GuidePages.h).
    virtual std::string_view GuidePage() const { return GuidePages::beginning; }
    /// The button that opens the guide, as F1 does, made when it is first asked for. It stands in
    /// the body, where the screen puts it; the Tab key passes it by.
    QPushButton& GuideButton();

    Session& Shared() const { return session_; }

    /// What closing by the frame does on this screen.
    virtual void OnCloseByFrame() = 0;
    /// Called when the screen is shown again after the one above was unloaded.
    virtual void OnUncover() {}
    /// Where the focus stands when the screen is shown first.
    virtual QWidget* FirstFocus() { return nullptr; }

    /// The menu bar, made when it is first asked for.
    QMenuBar& Menus();
    /// A menu at the end of the bar that leads to the guide and to what the program is.
    void AddHelpMenu();
    /// What holds the controls.
    QWidget& Body() const { return *body_; }
    QScrollArea& Scroller() { return *scroller_; }
    /// How wide the body is where nothing in it is wider, with a bar beside it, pixels. It changes
    /// with the window alone.
    int BodyRoom() const;
    /// Called when BodyRoom has changed, or the size of the text: what is too wide makes do with it
    /// (see screens/Narrowing.h).
    virtual void OnBodyRoom() {}

    /// See Guarded.
    bool Guard(const std::string& failure, const std::function<void()>& body) const noexcept;
    /// Run `body` under the guard whenever the button is clicked.
    void OnClick(QAbstractButton& button, std::string failure, std::function<void()> body);
    /// Run `body` under the guard once the events that wait now have been handled; not at all when
    /// the screen is gone by then.
    void Later(std::function<void()> body);

    /// Whether a key is Enter, pressed and not held, on an option: that is for the button that
    /// takes the choices.
    bool PressesFromOption(const QKeyEvent& key) const;

    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void MakeKeys();
    void TellBodyRoom();
    void ShowGuide() const;
    /// The context menu of what has the focus.
    void OpenContextMenu() const;

    Session& session_;
    QMenuBar* menus_ = nullptr;
    QScrollArea* scroller_ = nullptr;
    QWidget* body_ = nullptr;
    std::unique_ptr<QObject> follower_; ///< gone before what it follows
    QPushButton* guide_ = nullptr;
    bool shown_ = false;
};

} // namespace tarn
