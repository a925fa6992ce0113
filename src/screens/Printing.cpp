#include "screens/Printing.h"

#include "base/Text.h"
#include "paper/Printer.h"
#include "screens/SaveAs.h"
#include "screens/WaitCursor.h"

#include <exception>
#include <iostream>
#include <optional>
#include <string>

namespace tarn {

namespace {

/// The way out that needs no printer.
std::string SaveInstead() {
    std::string caption(SaveAsPdfCaption);
    std::erase(caption, '&');
    return "Or right-click what is shown and choose \"" + caption + "\".";
}

std::string Informative(const std::string& cause, const std::string& advice) {
    std::string text = cause;
    for (const std::string& line : {advice, SaveInstead()}) {
        text += line.empty() ? line : std::string(CrLf) + line;
    }
    return text;
}

/// Raises nothing: what went wrong, and what helps; nothing when it was printed.
std::optional<std::string> TroubleOf(const std::function<void()>& print) {
    try {
        const WaitCursor waiting;
        print();
        return std::nullopt;
    } catch (const PrinterError& error) {
        std::cerr << "tarn: " << error.what() << '\n';
        return Informative(error.what(), error.Advice());
    } catch (const std::exception& error) {
        std::cerr << "tarn: " << error.what() << '\n';
        return Informative(error.what(), {});
    }
}

} // namespace

bool Print(Dialogs& boxes, const std::function<void()>& print) {
    const auto trouble = TroubleOf(print);
    if (trouble) {
        boxes.Message(PrinterNotReadyMessage, *trouble);
    }
    return !trouble;
}

} // namespace tarn
