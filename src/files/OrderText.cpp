#include "files/OrderText.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Text.h"
#include "order/CutLines.h"
#include "order/OrderWords.h"
#include "project/Coverings.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

using TextRow = std::vector<std::string>;

std::size_t WidthOf(const std::string& text) {
    return static_cast<std::size_t>(Len(text));
}

/// Rows of texts in columns as wide as their widest text; the first `left` of them flush left.
std::string Columns(const std::vector<TextRow>& rows, std::size_t left) {
    std::vector<std::size_t> widths(rows.front().size());
    for (const TextRow& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], WidthOf(row[i]));
        }
    }
    std::string text;
    for (const TextRow& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string blanks(widths[i] - WidthOf(row[i]), ' ');
            line += (i == 0 ? "" : "  ") + (i < left ? row[i] + blanks : blanks + row[i]);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

TextRow Heads(Units units) {
    const bool metric = units == Units::Metric;
    return {"",
            "Roll",
            "Lay",
            metric ? "Order cm" : "Order",
            metric ? "Needed cm" : "Needed",
            metric ? "Least possible cm" : "Least possible",
            metric ? "Bought sq. m" : "Bought sq. ft.",
            metric ? "Rooms sq. m" : "Rooms sq. ft.",
            metric ? "Trimmed sq. m" : "Trimmed sq. ft.",
            "Waste %",
            metric ? "Seams cm" : "Seams",
            metric ? "Joins cm" : "Joins",
            "Price"};
}

TextRow RowOf(const Order& order, std::size_t number) {
    const OrderCandidate& candidate = order.Candidates.at(number);
    const Units units = order.Request.In;
    TextRow row{order.Best == number ? "*" : "", RollName(order.Request.Rolls.at(candidate.Roll)),
                LayName(candidate.Direction)};
    if (!candidate.Figures) {
        row.emplace_back("refused");
        row.resize(Heads(units).size());
        return row;
    }
    const OrderFigures& figures = *candidate.Figures;
    const auto length = [units](std::int64_t value) {
        return WholeLengthText(static_cast<Long>(value), units);
    };
    for (std::string& text : std::array<std::string, 10>{
             length(figures.Length), length(figures.LengthNeeded), length(figures.LeastLength),
             AreaText(figures.AreaBought, units), AreaText(figures.AreaRooms, units),
             AreaText(figures.AreaRoomsTrimmed, units), Format(figures.WastePercent, "##0.0"),
             SeamText(figures.SideSeams, units), SeamText(figures.CrossJoins, units),
             figures.Price ? Format(*figures.Price, "#,##0.00") : ""}) {
        row.push_back(std::move(text));
    }
    return row;
}

std::string ComparisonText(const Order& order) {
    std::vector<TextRow> rows{Heads(order.Request.In)};
    for (std::size_t number = 0; number < order.Candidates.size(); ++number) {
        rows.push_back(RowOf(order, number));
    }
    constexpr std::size_t LeftColumns = 3;
    return Columns(rows, LeftColumns);
}

std::string RefusalText(const Order& order) {
    std::string text;
    for (const OrderCandidate& candidate : order.Candidates) {
        if (!candidate.Refused.empty()) {
            text += CandidateName(order, candidate) + ": " + candidate.Refused + '\n';
        }
    }
    return text.empty() ? text : '\n' + text;
}

std::string ListText(const OrderDocument& document, const Order& order) {
    const OrderCandidate& best = order.Candidates.at(*order.Best);
    std::vector<TextRow> rows{
        {"Cut", "Which", "Room", "From", "To", "Across", "Size", "In the pattern"}};
    for (const CutLine& line : CutLines(document.Of, order.Request, best)) {
        rows.push_back({line.Label, line.Which, line.Room, line.From, line.To, line.Across,
                        line.Size, line.Match});
    }
    constexpr std::size_t LeftColumns = 3;
    std::string text = "\nBest: " + CandidateName(order, best) + ", " +
                       OrderLengthText(static_cast<Long>(best.Figures->Length), order.Request.In) +
                       " in one length without a join\n";
    for (const std::string& note : best.Figures->Notes) {
        text += note + '\n';
    }
    return text + '\n' + Columns(rows, LeftColumns);
}

} // namespace

std::string OrderText(const OrderDocument& document) {
    std::string text;
    for (const Order& order : document.Orders) {
        text += text.empty() ? "" : "\n";
        text += document.Of.Name.empty() ? "" : ShownText(document.Of.Name) + ", ";
        text += CoveringCaption(order.Carpet) + "\n\n" + ComparisonText(order) + RefusalText(order);
        if (order.Best) {
            text += ListText(document, order);
        }
    }
    return text;
}

} // namespace tarn
