#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// The boxes that ask or tell the user something; each carries the application's title. Texts are
/// UTF-8, their lines are broken by CrLf. Each call returns when the user has closed the box.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// A message with an OK button. `informative` stands below the text, smaller: the cause, and
    /// what helps; empty for nothing.
    virtual void Message(const std::string& text, const std::string& informative) = 0;
    void Message(const std::string& text) { Message(text, {}); }
    /// A question with Yes and No. No is the default; Escape and closing the box count as No.
    virtual bool AskYesNo(const std::string& text) = 0;
    /// A question with a button for each of `actions`, and Cancel, which is the default; Escape and
    /// closing the box count as it. The place of the action chosen; nothing when it was cancelled.
    virtual std::optional<std::size_t> Choose(const std::string& text,
                                              const std::vector<std::string>& actions) = 0;
    /// An input box for one line (see OneLineText), in which `initial` stands selected. Nothing
    /// when it was cancelled.
    virtual std::optional<std::string> Input(const std::string& prompt,
                                             const std::string& initial) = 0;
    std::optional<std::string> Input(const std::string& prompt) { return Input(prompt, {}); }
    /// Where to write a file: a box that begins with `suggestedName` and shows files that end in
    /// `.suffix`, and asks before a file is replaced. The path ends in the suffix. Nothing when it
    /// was cancelled.
    virtual std::optional<std::string> SaveFileName(const std::string& suggestedName,
                                                    const std::string& suffix) = 0;
};

} // namespace tarn
