#include "project/Coverings.h"

#include "base/Text.h"
#include "base/Words.h"

namespace tarn {

Integer CoveringNumber(Byte code) {
    return static_cast<Integer>(IsCarpet(code) ? code + 1 : code - FirstTileCode + 1);
}

std::string CoveringCaption(Byte code) {
    const std::string number = TrimStr(CoveringNumber(code));
    return IsCarpet(code) ? Words("CARPET-%1", number) : Words("TILE-%1", number);
}

std::string CoveringName(Byte code) {
    const InEnglish english;
    return CoveringCaption(code);
}

std::string CoveringTitle(const std::string& project, Byte code) {
    return (project.empty() ? "" : project + ", ") + CoveringCaption(code);
}

std::string CoveringReportText(Byte code) {
    const std::string kind = IsCarpet(code) ? "C" : "T";
    return kind + TrimStr(CoveringNumber(code));
}

std::optional<Byte> ReadCovering(std::string_view text) {
    const std::string wanted = UpperCaseLetters(TrimStr(text));
    for (Byte code = 0; code <= LastTileCode; ++code) {
        if (wanted == CoveringName(code) || wanted == CoveringReportText(code)) {
            return code;
        }
    }
    return std::nullopt;
}

} // namespace tarn
