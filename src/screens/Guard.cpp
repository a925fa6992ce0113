#include "screens/Guard.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"

#include <exception>

namespace tarn {

namespace {

std::string Joined(const std::string& first, const std::string& second) {
    return first.empty() || second.empty() ? first + second : first + " " + second;
}

std::string MessageOf(const RunTimeError& error, const std::string& failure) {
    const std::string lineBreak(CrLf);
    const std::string text = error.Heading() + lineBreak + lineBreak + error.Text();
    const std::string sentence = Joined(failure, error.Advice());
    return sentence.empty() ? text : text + lineBreak + sentence;
}

/// The message about the exception that is being handled.
std::string MessageOfCurrent(const std::string& failure) {
    try {
        throw;
    } catch (const RunTimeError& error) {
        return MessageOf(error, failure);
    } catch (const std::exception& error) {
        return Joined(failure, error.what());
    } catch (...) {
        return Joined(failure, Words("The reason is not known."));
    }
}

} // namespace

bool Guarded(Dialogs& boxes, const std::string& failure,
             const std::function<void()>& body) noexcept {
    try {
        body();
        return true;
    } catch (...) {
        try {
            boxes.Message(MessageOfCurrent(failure));
        } catch (...) {
            // There is no other way to tell it.
        }
        return false;
    }
}

} // namespace tarn
