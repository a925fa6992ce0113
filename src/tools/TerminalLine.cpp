#include "tools/TerminalLine.h"

#include <iostream>
#include <unistd.h>

namespace tarn {

namespace {

constexpr const char* StartOfLine = "\r\033[K"; ///< with nothing behind it

} // namespace

TerminalLine::TerminalLine(End end)
    : end_(end)
    , isThere_(isatty(STDERR_FILENO) == 1) {}

TerminalLine::~TerminalLine() {
    if (isWritten_) {
        std::cerr << (end_ == End::Kept ? "\n" : StartOfLine) << std::flush;
    }
}

void TerminalLine::Write(const std::string& text) {
    if (isThere_) {
        std::cerr << StartOfLine << text << std::flush;
        isWritten_ = true;
    }
}

} // namespace tarn
