#include "rooms/Coverings.h"

#include "app/Text.h"

#include <algorithm>

namespace tarn {

Integer CoveringNumber(Byte code) {
    return static_cast<Integer>(IsCarpet(code) ? code + 1 : code - FirstTileCode + 1);
}

std::string CoveringCaption(Byte code) {
    const std::string kind = IsCarpet(code) ? "CARPET-" : "TILE-";
    return kind + TrimStr(CoveringNumber(code));
}

std::string CoveringReportText(Byte code) {
    const std::string kind = IsCarpet(code) ? "C" : "T";
    return kind + TrimStr(CoveringNumber(code));
}

std::optional<Byte> ReadCovering(std::string_view text) {
    std::string wanted = TrimStr(text);
    std::transform(wanted.begin(), wanted.end(), wanted.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    for (Byte code = 0; code <= LastTileCode; ++code) {
        if (wanted == CoveringCaption(code) || wanted == CoveringReportText(code)) {
            return code;
        }
    }
    return std::nullopt;
}

} // namespace tarn
