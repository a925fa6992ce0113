#include "Fuzzing.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace tarn {
namespace {

/// ReadVal, or nothing for an overflow; any other error fails the input.
std::optional<ValReading> Reading(std::string_view text) {
    try {
        return ReadVal(text);
    } catch (const RunTimeError& error) {
        Require(error.Number() == OverflowNumber, "Val raises nothing but an overflow");
        return std::nullopt;
    }
}

void CheckVal(std::string_view text) {
    const auto reading = Reading(text);
    std::string dense(text);
    std::erase_if(dense, [](char c) { return c == ' ' || c == '\t'; });
    const auto denseReading = Reading(dense);
    Require(reading.has_value() == denseReading.has_value(), "blanks do not cause an overflow");
    if (!reading) {
        return;
    }
    Require(std::isfinite(reading->Value), "the value is finite");
    Require(reading->Value == denseReading->Value, "blanks do not change the value");
    Require(!denseReading->BlankInside, "no blank is found where there is none");
    Require(reading->Length <= text.size(), "no more is read than there is");
    Require(reading->Readable || (reading->Value == 0 && reading->Length == 0),
            "nothing readable is 0");
    const auto again = Reading(text.substr(0, reading->Length));
    Require(again && again->Value == reading->Value && again->Length == reading->Length,
            "what was read reads the same alone");
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckVal(tarn::TextOf(data, size));
    return 0;
}
