#include "base/Format.h"

#include "Fuzzing.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>
#include <type_traits>

namespace tarn {
namespace {

template <typename T>
void CheckFigures(T value) {
    std::string plain;
    try {
        plain = Format(value, "###0.00");
    } catch (const RunTimeError& error) {
        Require(error.Number() == OverflowNumber && !std::isfinite(value),
                "only a value that is not finite overflows");
        return;
    }
    std::string grouped = Format(value, "#,##0.00");
    std::erase(grouped, ',');
    Require(grouped == plain, "grouping only adds commas");
    Require(plain.size() >= 4 && plain[plain.size() - 3] == '.', "two places are printed");
    Require(plain != "-0.00", "zero has no sign");
    if (std::abs(static_cast<Double>(value)) < 1e12) {
        const Double significant = std::is_same_v<T, Single> ? 1e-6 : 1e-14;
        const Double off = std::abs(Val(plain) - static_cast<Double>(value));
        Require(off <= 0.00501 + std::abs(static_cast<Double>(value)) * significant,
                "the figure is next to the value");
    }
}

/// The first bytes are the value, the rest is a pattern.
void CheckFormat(const std::uint8_t* data, std::size_t size) {
    Double value = 0;
    if (size < sizeof value) {
        return;
    }
    std::memcpy(&value, data, sizeof value);
    CheckFigures(value);
    Single single = 0;
    std::memcpy(&single, data, sizeof single);
    CheckFigures(single);
    if (std::isfinite(value)) {
        Format(value, TextOf(data + sizeof value, size - sizeof value));
    }
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckFormat(data, size);
    return 0;
}
