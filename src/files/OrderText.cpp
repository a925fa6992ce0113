#include "files/OrderText.h"

#include "base/Text.h"
#include "base/Words.h"
#include "order/ComparisonText.h"
#include "order/CutLines.h"
#include "order/OrderWords.h"
#include "project/Coverings.h"

#include <algorithm>

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

/// A row of the comparison with its mark before it.
TextRow MarkedRow(const char* mark, TextRow cells) {
    cells.insert(cells.begin(), mark);
    return cells;
}

std::string ComparisonText(const Order& order) {
    std::vector<TextRow> rows{MarkedRow("", ComparisonHeads(order.Request.In))};
    for (std::size_t number = 0; number < order.Candidates.size(); ++number) {
        rows.push_back(MarkedRow(order.Best == number ? "*" : "",
                                 ComparisonCells(order, order.Candidates[number])));
    }
    constexpr std::size_t LeftColumns = 3;
    return Columns(rows, LeftColumns);
}

std::string RefusalText(const Order& order) {
    std::string text;
    for (const OrderCandidate& candidate : order.Candidates) {
        if (!candidate.Refused.IsEmpty()) {
            text += CandidateName(order, candidate) + ": " + candidate.Refused.Shown + '\n';
        }
    }
    return text.empty() ? text : '\n' + text;
}

std::string ListText(const OrderDocument& document, const Order& order) {
    const OrderCandidate& best = order.Candidates.at(*order.Best);
    std::vector<TextRow> rows{{Words("Cut"), Words("Which"), Words("Room"), Words("From"),
                               Words("To"), Words("Across"), Words("Size"),
                               Words("In the pattern")}};
    for (const CutLine& line : CutLines(document.Of, order.Request, best)) {
        rows.push_back({line.Label, line.Which, line.Room, line.From, line.To, line.Across,
                        line.Size, line.Match});
    }
    constexpr std::size_t LeftColumns = 3;
    std::string text = '\n' + TakenText(order, *order.Best) + '\n';
    for (const Saying& note : best.Figures->Notes) {
        text += note.Shown + '\n';
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
