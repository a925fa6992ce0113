#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

/// The entry point that a fuzz target defines: one input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tarn {

/// The bytes of an input as text.
inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Report the input as a failure, with `rule` as the reason, unless the rule holds.
inline void Require(bool holds, const char* rule) {
    if (!holds) {
        std::cerr << "violated: " << rule << '\n';
        std::abort();
    }
}

} // namespace tarn
