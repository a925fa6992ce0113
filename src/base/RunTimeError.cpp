#include "base/RunTimeError.h"

#include "base/Words.h"

#include <utility>

namespace tarn {

RunTimeError::RunTimeError(int number, std::string text, std::string advice)
    : number_(number)
    , text_(std::move(text))
    , advice_(std::move(advice)) {}

std::string RunTimeError::Heading() const {
    return Words("Run-time error '%1':", std::to_string(number_));
}

std::string RunTimeError::Sentences() const {
    return text_ + "." + (advice_.empty() ? "" : " " + advice_);
}

RunTimeError RunTimeError::WithAdvice(std::string advice) const {
    return RunTimeError(number_, text_, std::move(advice));
}

void RaiseInvalidCall(std::string advice) {
    throw RunTimeError(InvalidCallNumber, Words("Invalid procedure call"), std::move(advice));
}

void RaiseOverflow(std::string advice) {
    throw RunTimeError(OverflowNumber, Words("Overflow"), std::move(advice));
}

void RaiseSubscript(std::string advice) {
    throw RunTimeError(SubscriptNumber, Words("Subscript out of range"), std::move(advice));
}

void RaiseDivisionByZero(std::string advice) {
    throw RunTimeError(DivisionByZeroNumber, Words("Division by zero"), std::move(advice));
}

void RaiseInternal(std::string advice) {
    throw RunTimeError(InternalNumber, Words("Internal error"), std::move(advice));
}

} // namespace tarn
