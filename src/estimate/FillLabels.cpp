#include "estimate/FillLabels.h"

#include "base/Text.h"
#include "base/Words.h"

namespace tarn {

std::string FillLabel(Integer number, std::size_t fills) {
    constexpr Integer Letters = 26;
    const auto letter = [](Integer index) {
        return std::string(1, static_cast<char>('A' + index));
    };
    if (fills <= Letters) {
        return letter(number);
    }
    return letter(static_cast<Integer>(number / Letters)) +
           letter(static_cast<Integer>(number % Letters));
}

std::string LabelOf(const Estimate& estimate, const Piece& piece) {
    return FillLabel(piece.Number, estimate.Job.Pieces.size());
}

std::string CutLabel(std::size_t cut) {
    return Words("Cut%1", TrimStr(static_cast<long long>(cut) + 1));
}

} // namespace tarn
