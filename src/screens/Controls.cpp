#include "screens/Controls.h"

#include "files/QtText.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QShortcutEvent>
#include <QTextDocument>

namespace tarn {

namespace {

QString Read(const QString& marked) {
    QString text;
    for (qsizetype i = 0; i < marked.size(); ++i) {
        if (marked[i] == QLatin1Char('&') && ++i == marked.size()) {
            break;
        }
        text += marked[i];
    }
    return text;
}

class SecondClickFilter : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        return event->type() == QEvent::MouseButtonDblClick || QObject::eventFilter(watched, event);
    }
};

/// The toolkit shows a button that its shortcut presses as pressed for a tenth of a second, and
/// acts only then: a quick second key would meet the screen as it was before, and get lost.
class PressAtOnce : public QObject {
  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Shortcut) {
            return false;
        }
        auto* button = static_cast<QAbstractButton*>(watched);
        const auto& shortcut = static_cast<const QShortcutEvent&>(*event);
        if (shortcut.isAmbiguous()) {
            return false;
        }
        button->setShortcutAutoRepeat(shortcut.shortcutId(), false); // a held key is one press
        if (button->isCheckable() && (button->focusPolicy() & Qt::ClickFocus) != 0) {
            button->setFocus(Qt::ShortcutFocusReason);
        }
        button->click();
        return true;
    }
};

} // namespace

void NameControl(QWidget& control, QAnyStringView name, const QString& accessibleName) {
    control.setObjectName(name);
    control.setAccessibleName(accessibleName);
}

void SetToolTip(QWidget& control, const QString& text) {
    control.setToolTip(Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text);
}

void SetCaption(QAbstractButton& button, std::string_view caption) {
    static PressAtOnce pressAtOnce;
    button.setText(ToQt(caption));
    button.setAccessibleName(WithoutMark(caption));
    button.installEventFilter(&pressAtOnce); // once, however often it is called
}

std::string Unmarked(std::string_view text) {
    return FromQt(ToQt(text).replace(QLatin1String("&"), QLatin1String("&&")));
}

QString WithoutMark(std::string_view caption) {
    return Read(ToQt(caption));
}

QString CaptionOf(const QAbstractButton& button) {
    return Read(button.text());
}

QPushButton* NewButton(QWidget* parent, QAnyStringView name, std::string_view caption) {
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    SetCaption(*button, caption);
    return button;
}

void PressOnKeys(QAbstractButton& button, const QKeySequence& keys, QWidget& screen) {
    auto* shortcut = new QShortcut(keys, &screen);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &button, &QAbstractButton::click);
}

void IgnoreSecondClick(QAbstractButton& button) {
    button.installEventFilter(new SecondClickFilter(&button));
}

void KeepTabAtChosen(QButtonGroup& group) {
    QObject::connect(&group, &QButtonGroup::idToggled, &group, [&group] {
        for (QAbstractButton* option : group.buttons()) {
            const bool takesTab = option->isChecked() || group.checkedButton() == nullptr;
            option->setFocusPolicy(takesTab ? Qt::StrongFocus : Qt::ClickFocus);
        }
    });
}

QLabel* NewLabel(QWidget* parent, QAnyStringView name, std::string_view caption) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(ToQt(caption));
    NameControl(*label, name, ToQt(caption));
    return label;
}

void SetText(QLabel& label, std::string_view text) {
    label.setText(ToQt(text));
    label.setAccessibleName(label.text());
}

QLabel* NewLabelFor(QWidget& control, QWidget* parent, QAnyStringView name,
                    std::string_view caption) {
    const QString read = WithoutMark(caption);
    QLabel* label = NewLabel(parent, name, FromQt(read));
    label->setText(ToQt(caption));
    label->setBuddy(&control);
    control.setAccessibleName(read);
    return label;
}

} // namespace tarn
