#pragma once

#include <QTranslator>

namespace tarn {

/// Has the toolkit say its own texts in the language in force, from its translations where those
/// are installed; the buttons of boxes in any case. To be made once the application is there, and
/// to last as long as its windows.
class ToolkitWords {
  public:
    ToolkitWords();
    ~ToolkitWords();
    ToolkitWords(const ToolkitWords&) = delete;
    ToolkitWords& operator=(const ToolkitWords&) = delete;

  private:
    /// The buttons of boxes.
    class Buttons : public QTranslator {
      public:
        QString translate(const char* context, const char* source, const char* remark,
                          int count) const override;
        bool isEmpty() const override { return false; }
    };

    Buttons buttons_;
    QTranslator toolkit_;
};

} // namespace tarn
