#include "estimate/EstimateChoices.h"

#include "Fuzzing.h"
#include "base/Lengths.h"
#include "base/RunTimeError.h"
#include "estimate/RollWidth.h"

#include <cmath>
#include <stdexcept>

namespace tarn {
namespace {

void RequireUsable(const EstimateRequest& request) {
    Require(IsUsableRollWidth(request.RollWidth), "a request has a width that can be estimated");
    Require(std::isfinite(request.RollWidth) && request.RollWidth > 0, "a width is a number");
    if (request.Repeat) {
        Require(request.Repeat->Across >= 0 && request.Repeat->Along >= 0,
                "no repeat is less than 0");
    }
}

/// Lines: the free width and the pattern repeat as typed. The first byte says what is in use.
void CheckChoices(FuzzInput input) {
    const std::uint8_t uses = input.Byte();
    const Units units = uses % 2 == 1 ? Units::Metric : Units::Imperial;
    EstimateChoices choices;
    choices.Match = (uses & 2) != 0;
    choices.Direction = (uses & 4) != 0 ? Lay::Cross : Lay::Down;
    choices.Carpet = uses >> 5;
    if ((uses & 8) != 0) {
        choices.StandardWidth = (uses >> 3) % 4;
    }
    choices.OtherFeet = input.Line();
    choices.OtherInches = input.Line();
    choices.MatchWidth = input.Line();
    choices.MatchLength = input.Line();
    OtherWidthHint(choices.OtherFeet, choices.OtherInches);
    try {
        const auto answer = RequestOf(choices, units);
        if (const auto* refusal = std::get_if<ChoicesRefusal>(&answer)) {
            Require(refusal->Box < 2 && !RefusalMessage(*refusal).empty(),
                    "a refusal has a message and a place");
        } else {
            RequireUsable(std::get<EstimateRequest>(answer));
        }
    } catch (const RunTimeError& error) {
        Require(error.Number() == OverflowNumber, "choices raise nothing but an overflow");
    }
}

void CheckRollWidth(const std::string& text) {
    try {
        const Single width = ReadRollWidth(text);
        Require(IsUsableRollWidth(width), "a width that is read can be estimated");
    } catch (const std::invalid_argument& error) {
        Require(*error.what() != '\0', "a refusal has a text");
    }
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckChoices(tarn::FuzzInput(data, size));
    tarn::CheckRollWidth(std::string(tarn::TextOf(data, size)));
    return 0;
}
