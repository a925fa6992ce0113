#pragma once

#include <cstdint>
#include <string>

namespace tarn {

/// A line on standard error that is written over and over, where that is a terminal; else nothing
/// is written.
class TerminalLine {
  public:
    /// What becomes of what was written last.
    enum class End : std::uint8_t { Erased, Kept };

    explicit TerminalLine(End end);
    ~TerminalLine();
    TerminalLine(const TerminalLine&) = delete;
    TerminalLine& operator=(const TerminalLine&) = delete;

    bool IsThere() const { return isThere_; }
    bool IsWritten() const { return isWritten_; }
    void Write(const std::string& text);

  private:
    End end_;
    bool isThere_;
    bool isWritten_ = false;
};

} // namespace tarn
