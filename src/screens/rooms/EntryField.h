#pragma once

#include "project/TypedText.h"

#include <QLineEdit>

namespace tarn {

/// A field of the room entry, of so many characters. What is typed, pasted or dropped into it is
/// fitted (see Fitted); what the program shows in it is not, however long it is. Undo and redo go
/// through the texts as they stood after the fitting.
class EntryField : public QLineEdit {
  public:
    EntryField(QWidget* parent, std::size_t most);

    void Show(const QString& text);
    /// Put another text in place of the present one, as one step of undo.
    void Replace(const QString& text);
    /// Put another text in place of the last change, which undo does not bring back; the cursor is
    /// at its end.
    void ReplaceLastChange(const QString& text);
    /// Take out what is there, which neither undo nor redo brings back.
    void Empty();

  private:
    void FitLastChange();

    std::size_t most_;
    QString before_; ///< the text before a change that is being fitted
    bool replacing_ = false;
};

} // namespace tarn
