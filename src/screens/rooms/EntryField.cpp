#include "screens/rooms/EntryField.h"

#include "files/QtText.h"

#include <QSignalBlocker>

#include <algorithm>

namespace tarn {

EntryField::EntryField(QWidget* parent, std::size_t most)
    : QLineEdit(parent)
    , most_(most) {
    connect(this, &QLineEdit::textEdited, this, [this] { FitLastChange(); });
    connect(this, &QLineEdit::textChanged, this, [this] { before_ = text(); });
}

void EntryField::Show(const QString& text) {
    setMaxLength(std::max(maxLength(), static_cast<int>(text.size())));
    setText(text);
}

void EntryField::Replace(const QString& text) {
    if (text != this->text()) {
        selectAll();
        insert(text);
    }
}

void EntryField::Empty() {
    if (isUndoAvailable()) {
        ReplaceLastChange({});
    }
    if (!text().isEmpty() || isRedoAvailable()) {
        setText({});
    }
}

void EntryField::ReplaceLastChange(const QString& text) {
    const bool outer = replacing_;
    replacing_ = true;
    {
        const QSignalBlocker unseen(this);
        undo();
        end(false);
    }
    if (this->text() != text) {
        selectAll();
        if (text.isEmpty()) {
            del();
        } else {
            insert(text);
        }
    }
    replacing_ = outer;
    before_ = this->text();
}

void EntryField::FitLastChange() {
    if (replacing_ || isRedoAvailable()) { // a change that was undone leaves a text that stood
        return;
    }
    const QString typed = text();
    const TypedText fitted =
        Fitted(ToCharacters(before_),
               {ToCharacters(typed), ToCharacters(typed.left(cursorPosition())).size()}, most_);
    const QString allowed = FromCharacters(fitted.Text);
    if (allowed == typed) {
        return;
    }
    ReplaceLastChange(allowed);
    if (text() == allowed) {
        const auto left = FromCharacters(fitted.Text.substr(0, fitted.Cursor));
        setCursorPosition(static_cast<int>(left.size()));
    }
}

} // namespace tarn
