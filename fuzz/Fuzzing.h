// What the fuzz targets share: an input as a text or as choices, and the rules that it must keep.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

/// The entry point that a fuzz target defines: one input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tarn {

/// The bytes of an input as text.
inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// The bytes of an input as a row of choices. Past its end every choice is the first.
class FuzzInput {
  public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : rest_(TextOf(data, size)) {}

    bool IsAtEnd() const { return rest_.empty(); }
    std::uint8_t Byte() {
        if (rest_.empty()) {
            return 0;
        }
        const auto byte = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return byte;
    }
    bool Bit() { return Byte() % 2 == 1; }
    /// 0 .. 65535.
    unsigned Word() {
        const unsigned high = Byte();
        return high * 256 + Byte();
    }
    /// 0 .. count - 1; at most 256 of them.
    std::size_t Choice(std::size_t count) { return Byte() % count; }
    /// A text with its length before it.
    std::string Text() {
        const std::size_t length = Byte();
        std::string text(rest_.substr(0, length));
        rest_.remove_prefix(text.size());
        return text;
    }
    /// The text up to the next line break, which is taken too.
    std::string Line() {
        const std::size_t end = rest_.find('\n');
        std::string line(rest_.substr(0, end));
        rest_.remove_prefix(std::min(rest_.size(), line.size() + 1));
        return line;
    }

  private:
    std::string_view rest_;
};

/// Report the input as a failure, with `rule` as the reason, unless the rule holds.
inline void Require(bool holds, const char* rule) {
    if (!holds) {
        std::cerr << "violated: " << rule << '\n';
        std::abort();
    }
}

} // namespace tarn
