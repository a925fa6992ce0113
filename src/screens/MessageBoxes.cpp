#include "screens/MessageBoxes.h"

#include "base/Text.h"
#include "files/QtText.h"
#include "project/TypedText.h"
#include "screens/BoxPlace.h"
#include "screens/Controls.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace tarn {

namespace {

/// A box that does not cover the field that it is about.
template <class Box>
class Placed : public Box {
  public:
    explicit Placed(QWidget* parent)
        : Box(parent) {}

  protected:
    void showEvent(QShowEvent* event) override {
        Box::showEvent(event); // has its size now, and stands in the middle of the window
        if (const QWidget* parent = this->parentWidget()) {
            PlaceBox(*this, *parent->window());
        }
    }
};

/// Shown as typed: a project may be named like a piece of rich text.
void Prepare(QMessageBox& box, const std::string& text) {
    box.setWindowTitle(ToQt(ApplicationTitle));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQtLines(text));
}

} // namespace

void MessageBoxes::Message(const std::string& text, const std::string& informative) {
    Placed<QMessageBox> box(parent_);
    Prepare(box, text);
    box.setInformativeText(ToQtLines(informative));
    if (auto* below = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))) {
        below->setTextFormat(Qt::PlainText); // the box sets that of its text alone
    }
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

bool MessageBoxes::AskYesNo(const std::string& text) {
    Placed<QMessageBox> box(parent_);
    Prepare(box, text);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::optional<std::size_t> MessageBoxes::Choose(const std::string& text,
                                                const std::vector<std::string>& actions) {
    Placed<QMessageBox> box(parent_);
    Prepare(box, text);
    std::vector<QAbstractButton*> buttons;
    for (const std::string& action : actions) {
        auto* button = new QPushButton(&box);
        SetCaption(*button, Unmarked(action));
        box.addButton(button, QMessageBox::ActionRole);
        buttons.push_back(button);
    }
    QPushButton* cancel = box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    const auto chosen = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    if (chosen == buttons.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(chosen - buttons.begin());
}

std::optional<std::string> MessageBoxes::Input(const std::string& prompt,
                                               const std::string& initial) {
    Placed<QInputDialog> box(parent_);
    box.setWindowTitle(ToQt(ApplicationTitle));
    box.setLabelText(ToQt(prompt));
    box.setInputMode(QInputDialog::TextInput);
    box.setTextValue(ToQt(initial));
    if (box.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    const std::u32string line = OneLineText(ToCharacters(box.textValue()));
    return FromQt(FromCharacters(line));
}

std::optional<std::string> MessageBoxes::SaveFileName(const std::string& suggestedName,
                                                      const std::string& suffix) {
    QFileDialog box(parent_, ToQt(ApplicationTitle), QDir::homePath(), ToQt("*." + suffix));
    box.setAcceptMode(QFileDialog::AcceptSave);
    box.setDefaultSuffix(ToQt(suffix));
    box.selectFile(ToQt(suggestedName + "." + suffix));
    const QString ending = ToQt("." + suffix);
    while (box.exec() == QDialog::Accepted && !box.selectedFiles().isEmpty()) {
        QString path = box.selectedFiles().constFirst();
        if (path.endsWith(ending, Qt::CaseInsensitive)) {
            return FromQt(path);
        }
        // The box adds its suffix to names without a point only.
        path += ending;
        if (!QFileInfo::exists(path)) {
            return FromQt(path);
        }
        box.selectFile(path); // shown as it will be called, and asked about before it is replaced
    }
    return std::nullopt;
}

} // namespace tarn
