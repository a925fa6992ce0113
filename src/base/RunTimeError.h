// Faults of the computation: numbers and fixed texts as the user sees them.

#pragma once

#include <exception>
#include <string>

namespace tarn {

/// A fault that abandons the action in hand: a number and a fixed text, as shown to the user
/// ("Run-time error '9':", an empty line, "Subscript out of range"), and optionally one sentence
/// on what could not be done and the way out.
class RunTimeError : public std::exception {
  public:
    RunTimeError(int number, std::string text, std::string advice = {});

    int Number() const noexcept { return number_; }
    /// The fixed text that belongs to the number.
    const std::string& Text() const noexcept { return text_; }
    /// One sentence for the user, or empty.
    const std::string& Advice() const noexcept { return advice_; }
    /// What it is called: "Run-time error '9':".
    std::string Heading() const;
    /// The text and the advice in a row, for where there is one line: "Overflow. Choose fewer."
    std::string Sentences() const;
    /// The same error with `advice` in place of its own.
    RunTimeError WithAdvice(std::string advice) const;

    const char* what() const noexcept override { return text_.c_str(); }

  private:
    int number_;
    std::string text_;
    std::string advice_;
};

constexpr int InvalidCallNumber = 5;
constexpr int OverflowNumber = 6;
constexpr int SubscriptNumber = 9;
constexpr int DivisionByZeroNumber = 11;
constexpr int InternalNumber = 51;

/// Raise the error of that number with its fixed text.
[[noreturn]] void RaiseInvalidCall(std::string advice = {});
[[noreturn]] void RaiseOverflow(std::string advice = {});
[[noreturn]] void RaiseSubscript(std::string advice = {});
[[noreturn]] void RaiseDivisionByZero(std::string advice = {});
[[noreturn]] void RaiseInternal(std::string advice = {});

} // namespace tarn
