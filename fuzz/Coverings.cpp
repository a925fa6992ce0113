#include "project/Coverings.h"

#include "Fuzzing.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "project/WallBase.h"

namespace tarn {
namespace {

void CheckCovering(std::string_view text) {
    const auto code = ReadCovering(text);
    if (!code) {
        return;
    }
    Require(*code <= LastTileCode, "only a covering that can be chosen is read");
    Require(ReadCovering(CoveringCaption(*code)) == code, "its caption names it");
    Require(ReadCovering(CoveringReportText(*code)) == code, "its short form names it");
    Require(ReadCovering(" " + std::string(text) + " ") == code, "blanks at the ends do not count");
}

void CheckBase(std::string_view text) {
    if (!IsBaseText(text)) {
        try {
            BaseCode(text);
        } catch (const RunTimeError& error) {
            Require(error.Number() == OverflowNumber, "a text raises nothing but an overflow");
        }
        return;
    }
    Require(IsBaseText(UpperCaseLetters(text)), "letter case does not matter");
    Byte code = 0;
    try {
        code = BaseCode(text);
    } catch (const RunTimeError& error) {
        Require(error.Number() == OverflowNumber, "a base raises nothing but an overflow");
        return;
    }
    Require(code <= 8, "a base has at most two widths and two lengths");
    Require(BaseCode(UpperCaseLetters(text)) == code, "letter case does not change it");
    Require(IsBaseText(BaseText(code)) && BaseCode(BaseText(code)) == code,
            "the text of a base names it");
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckCovering(tarn::TextOf(data, size));
    tarn::CheckBase(tarn::TextOf(data, size));
    return 0;
}
