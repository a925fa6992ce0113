#include "app/Guard.h"

#include "app/RunTimeError.h"
#include "app/Text.h"

#include <exception>

namespace tarn {

namespace {

std::string Joined(const std::string& first, const std::string& second) {
    return first.empty() || second.empty() ? first + second : first + " " + second;
}

std::string MessageOf(const RunTimeError& error, const std::string& failure) {
    const std::string lineBreak(CrLf);
    return "Run-time error '" + TrimStr(error.Number()) + "':" + lineBreak + lineBreak +
           error.Text() + lineBreak + Joined(failure, error.Advice());
}

} // namespace

bool Guarded(Dialogs& boxes, const std::string& failure,
             const std::function<void()>& body) noexcept {
    std::string message;
    try {
        body();
        return true;
    } catch (const RunTimeError& error) {
        message = MessageOf(error, failure);
    } catch (const std::exception& error) {
        message = Joined(failure, error.what());
    }
    boxes.Message(message);
    return false;
}

} // namespace tarn
