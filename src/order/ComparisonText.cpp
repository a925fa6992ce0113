#include "order/ComparisonText.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Words.h"
#include "order/Comparison.h"
#include "order/OrderWords.h"

namespace tarn {

std::vector<std::string> ComparisonHeads(Units units) {
    const bool metric = units == Units::Metric;
    return {Words("Roll"),
            Words("Lay"),
            metric ? Words("Order cm") : Words("Order"),
            metric ? Words("Needed cm") : Words("Needed"),
            metric ? Words("Least possible cm") : Words("Least possible"),
            metric ? Words("Bought sq. m") : Words("Bought sq. ft."),
            metric ? Words("Rooms sq. m") : Words("Rooms sq. ft."),
            metric ? Words("Trimmed sq. m") : Words("Trimmed sq. ft."),
            Words("Waste %"),
            metric ? Words("Seams cm") : Words("Seams"),
            metric ? Words("Joins cm") : Words("Joins"),
            Words("Price")};
}

std::vector<std::string> ComparisonCells(const Order& order, const OrderCandidate& candidate) {
    const Units units = order.Request.In;
    std::vector<std::string> cells{RollName(order.Request.Rolls.at(candidate.Roll)),
                                   std::string(LayName(candidate.Direction))};
    if (!candidate.Figures) {
        cells.emplace_back(candidate.Refused.IsEmpty() ? Phrase() : Words("refused"));
        cells.resize(ComparisonHeads(units).size());
        return cells;
    }
    const OrderFigures& figures = *candidate.Figures;
    const auto length = [units](std::int64_t value) {
        return WholeLengthText(static_cast<Long>(value), units);
    };
    cells.insert(cells.end(),
                 {length(figures.Length), length(figures.LengthNeeded), length(figures.LeastLength),
                  AreaText(figures.AreaBought, units), AreaText(figures.AreaRooms, units),
                  AreaText(figures.AreaRoomsTrimmed, units), Format(figures.WastePercent, "##0.0"),
                  SeamText(figures.SideSeams, units), SeamText(figures.CrossJoins, units),
                  figures.Price ? Format(*figures.Price, "#,##0.00") : ""});
    return cells;
}

std::string AboveLeastText(const OrderCandidate& candidate) {
    if (!candidate.Figures || candidate.Figures->LeastLength <= 0) {
        return {};
    }
    constexpr Double Whole = 100;
    const auto least = static_cast<Double>(candidate.Figures->LeastLength);
    return Format((static_cast<Double>(candidate.Figures->LengthNeeded) - least) / least * Whole,
                  "##0.0");
}

std::string TakenText(const Order& order, std::size_t row) {
    const OrderCandidate& taken = order.Candidates.at(row);
    return Words(IsBest(order, row) ? Words("Best: %1, %2 in one length without a join")
                                    : Words("Chosen: %1, %2 in one length without a join"),
                 CandidateName(order, taken),
                 OrderLengthText(static_cast<Long>(taken.Figures->Length), order.Request.In));
}

std::string RuleOfBest(const Order& order) {
    if (!order.Best) {
        return {};
    }
    bool isAnyPriced = false;
    std::vector<std::size_t> unpriced; // rolls, each once
    for (const OrderCandidate& candidate : order.Candidates) {
        if (!candidate.Figures) {
            continue;
        }
        if (candidate.Figures->Price) {
            isAnyPriced = true;
        } else if (unpriced.empty() || unpriced.back() != candidate.Roll) {
            unpriced.push_back(candidate.Roll);
        }
    }
    if (unpriced.empty()) {
        return Words("Best is the least price; of equal ones, the shortest seams and joins.");
    }
    if (!isAnyPriced) {
        return Words("Best is the least carpet, for no roll has a price; of equal ones, the "
                     "shortest seams and joins.");
    }
    std::string names;
    for (const std::size_t roll : unpriced) {
        names += (names.empty() ? "" : ", ") + RollName(order.Request.Rolls.at(roll));
    }
    return Words("Best is the least carpet, for these rolls have no price: %1.", names);
}

std::string RemarksOf(const OrderCandidate& candidate) {
    if (!candidate.Figures) {
        return candidate.Refused.Shown;
    }
    std::string remarks;
    for (const Saying& note : candidate.Figures->Notes) {
        remarks += (remarks.empty() ? "" : "\n") + note.Shown;
    }
    return remarks;
}

} // namespace tarn
