#pragma once

// How controls are made. Each has its name (see ControlNames.h) as objectName, and as accessible
// name its caption or that of its label.

#include <QAnyStringView>
#include <QString>

#include <string>
#include <string_view>

class QAbstractButton;
class QButtonGroup;
class QKeySequence;
class QLabel;
class QPushButton;
class QWidget;

namespace tarn {

/// Give any control its names.
void NameControl(QWidget& control, QAnyStringView name, const QString& accessibleName);

/// Set a tool tip that is shown as it is written, also where it looks like rich text: what stands
/// in it may have been typed. An empty text takes it away.
void SetToolTip(QWidget& control, const QString& text);

/// Set a button's caption and accessible name. The letter behind an "&" in it, its mnemonic, is
/// underlined and presses the button together with Alt, at once and once however long it is held;
/// an ampersand is written "&&".
void SetCaption(QAbstractButton& button, std::string_view caption);
/// A text for a caption that stands there as it is.
std::string Unmarked(std::string_view text);
/// A caption as it is read, without the mark of its mnemonic.
QString WithoutMark(std::string_view caption);
/// A button's caption without the mark of its mnemonic.
QString CaptionOf(const QAbstractButton& button);

QPushButton* NewButton(QWidget* parent, QAnyStringView name, std::string_view caption);
/// Have keys press the button, too, wherever the focus is on its screen; once however long they are
/// held, and not while the button is out of use.
void PressOnKeys(QAbstractButton& button, const QKeySequence& keys, QWidget& screen);
/// Have a double click on the button press it once.
void IgnoreSecondClick(QAbstractButton& button);

/// Have Tab come to the chosen option of a group from the first time on: the toolkit sees to it
/// only once one of them has had the focus.
void KeepTabAtChosen(QButtonGroup& group);

QLabel* NewLabel(QWidget* parent, QAnyStringView name, std::string_view caption);

/// Give a label another text, which is its accessible name, too.
void SetText(QLabel& label, std::string_view text);

/// A label for `control`: gives the control its accessible name, and takes Alt and the mnemonic to
/// it, which is marked as in a button's caption.
QLabel* NewLabelFor(QWidget& control, QWidget* parent, QAnyStringView name,
                    std::string_view caption);

} // namespace tarn
