#include "base/RunTimeError.h"

#include <utility>

namespace tarn {

RunTimeError::RunTimeError(int number, std::string text, std::string advice)
    : number_(number)
    , text_(std::move(text))
    , advice_(std::move(advice)) {}

std::string RunTimeError::Heading() const {
    return "Run-time error '" + std::to_string(number_) + "':";
}

std::string RunTimeError::Sentences() const {
    return text_ + "." + (advice_.empty() ? "" : " " + advice_);
}

RunTimeError RunTimeError::WithAdvice(std::string advice) const {
    return RunTimeError(number_, text_, std::move(advice));
}

void RaiseInvalidCall(std::string advice) {
    throw RunTimeError(InvalidCallNumber, "Invalid procedure call", std::move(advice));
}

void RaiseOverflow(std::string advice) {
    throw RunTimeError(OverflowNumber, "Overflow", std::move(advice));
}

void RaiseSubscript(std::string advice) {
    throw RunTimeError(SubscriptNumber, "Subscript out of range", std::move(advice));
}

void RaiseDivisionByZero(std::string advice) {
    throw RunTimeError(DivisionByZeroNumber, "Division by zero", std::move(advice));
}

void RaiseInternal(std::string advice) {
    throw RunTimeError(InternalNumber, "Internal error", std::move(advice));
}

} // namespace tarn
