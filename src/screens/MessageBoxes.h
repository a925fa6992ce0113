#pragma once

#include "screens/Dialogs.h"

#include <QPointer>
#include <QWidget>

#include <optional>
#include <string>

namespace tarn {

/// The real boxes, modal to `parent`, which may be none.
class MessageBoxes : public Dialogs {
  public:
    explicit MessageBoxes(QWidget* parent = nullptr)
        : parent_(parent) {}

    void SetParent(QWidget* parent) { parent_ = parent; }

    using Dialogs::Message;
    void Message(const std::string& text, const std::string& informative) override;
    bool AskYesNo(const std::string& text) override;
    std::optional<std::size_t> Choose(const std::string& text,
                                      const std::vector<std::string>& actions) override;
    std::optional<std::string> Input(const std::string& prompt,
                                     const std::string& initial) override;
    std::optional<std::string> SaveFileName(const std::string& suggestedName,
                                            const std::string& suffix) override;

  private:
    QPointer<QWidget> parent_;
};

} // namespace tarn
