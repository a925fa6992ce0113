#include "order/OrderWords.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Text.h"
#include "base/Words.h"

namespace tarn {

std::string_view LayName(Lay lay) {
    return lay == Lay::Cross ? Words("cross") : Words("down");
}

std::string CandidateName(const Order& order, const OrderCandidate& candidate) {
    return RollName(order.Request.Rolls.at(candidate.Roll))
        .append(", ")
        .append(LayName(candidate.Direction));
}

std::string AreaText(std::int64_t area, Units units) {
    return Format(OrderArea(area, units), "#,##0.00");
}

std::string SeamText(const SeamTotal& seams, Units units) {
    return seams.Count == 0 ? std::string(Words("none"))
                            : TrimStr(seams.Count) + ", " +
                                  WholeLengthText(static_cast<Long>(seams.Length), units);
}

} // namespace tarn
