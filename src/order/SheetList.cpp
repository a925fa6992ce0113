#include "order/SheetList.h"

#include "base/Text.h"
#include "base/Words.h"
#include "order/CutLines.h"
#include "order/SheetText.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace tarn {

namespace {

constexpr Double ColumnGap = 190;
constexpr Double RowGap = 45; ///< above and below a row's text
// How wide columns of texts stay while others that are wider are broken into lines first.
constexpr Double WidestColumn = 2800;
constexpr Double WideColumn = 1800;
constexpr Double NarrowColumn = 1300;
constexpr Double LeastColumn = 1000;

enum Column { Cut, From, To, Across, Size, InRoom, Which, Match, ColumnCount };

template <typename T>
using Row = std::array<T, ColumnCount>;
using Cells = Row<std::vector<std::string>>;

constexpr bool IsFlushRight(int column) {
    return column == From || column == To || column == Across;
}

class ListPainter {
  public:
    ListPainter(const Project& project, const Order& order, const OrderCandidate& candidate,
                const SheetPaper& paper, std::string_view head)
        : paper_(paper)
        , head_(head)
        , body_(BodyOf(paper))
        , units_(order.Request.In)
        , patternAdvice_(order.Request.Pattern.Along > 0
                             ? Words(" Where a piece must match, cut on the pattern, not on the "
                                     "tape.")
                             : Phrase()) {
        for (const CutLine& line : CutLines(project, order.Request, candidate)) {
            rows_.push_back({line.Label, line.From, line.To, line.Across, line.Size,
                             OneLine(line.Room), line.Which, line.Match});
        }
        SetWidths();
    }

    std::vector<Drawing> Paint() {
        for (const Row<std::string>& row : rows_) {
            const Cells cells = CellsOf(row);
            if (pages_.empty() || y_ + HeightOf(cells) > body_.Bottom) {
                Turn();
            }
            PaintRow(cells);
        }
        return std::move(pages_);
    }

  private:
    static Row<std::string> Heads() {
        return {Words("Cut"),  Words("From"), Words("To"),    Words("Across"),
                Words("Size"), Words("Room"), Words("Which"), Words("In the pattern")};
    }

    bool IsShown(int column) const { return widths_.at(static_cast<std::size_t>(column)) > 0; }

    /// What a column would take by itself; 0 where nothing stands in it.
    Double NaturalWidth(std::size_t column) const {
        Double width = 0;
        for (const auto& row : rows_) {
            width = std::max(width, WidthOfText(row.at(column), ListTypeSize));
        }
        return width == 0 ? 0 : std::max(width, WidthOfText(Heads().at(column), ListTypeSize));
    }

    /// Numbers are never broken; of what they leave the room's name gets the most.
    void SetWidths() {
        for (std::size_t column = 0; column < ColumnCount; ++column) {
            widths_.at(column) = NaturalWidth(column);
        }
        const auto gaps =
            static_cast<Double>(
                std::count_if(widths_.begin(), widths_.end(), [](Double w) { return w > 0; }) - 1) *
            ColumnGap;
        const auto excess = [&] {
            return std::accumulate(widths_.begin(), widths_.end(), gaps) - body_.Width();
        };
        const auto narrow = [&](Column column, Double least) {
            Double& width = widths_.at(column);
            width = std::min(width, std::max(least, width - std::max(excess(), 0.0)));
        };
        narrow(Match, WideColumn);
        narrow(InRoom, WidestColumn);
        narrow(Which, NarrowColumn);
        narrow(InRoom, WideColumn);
        for (const Column column : {Match, Which, InRoom}) {
            narrow(column, LeastColumn);
        }
    }

    Cells CellsOf(const Row<std::string>& row) const {
        Cells cells;
        for (std::size_t column = 0; column < ColumnCount; ++column) {
            if (widths_.at(column) > 0) {
                cells.at(column) =
                    WrappedText(row.at(column), widths_.at(column) + 1, ListTypeSize);
            }
        }
        return cells;
    }

    static Double HeightOf(const Cells& cells) {
        std::size_t lines = 1;
        for (const auto& cell : cells) {
            lines = std::max(lines, cell.size());
        }
        return static_cast<Double>(lines) * HeightOfLine(ListTypeSize) + 2 * RowGap;
    }

    void Turn() {
        constexpr Double CaptionSize = 9;
        pages_.push_back(NewPage(paper_, head_));
        const Phrase advice =
            units_ == Units::Metric
                ? Words("Cut in this order. From and to count along the roll from its start, "
                        "across from its usable edge; centimetres.")
                : Words("Cut in this order. From and to count along the roll from its start, "
                        "across from its usable edge; feet and inches.");
        y_ = AddLines(pages_.back(), body_,
                      WrappedText(std::string(advice) + patternAdvice_, body_.Width(), CaptionSize),
                      CaptionSize) +
             2 * RowGap;
        PaintRow(CellsOf(Heads()));
    }

    void PaintRow(const Cells& cells) {
        Drawing& page = pages_.back();
        Double x = body_.Left;
        for (int column = 0; column < ColumnCount; ++column) {
            if (!IsShown(column)) {
                continue;
            }
            const Double width = widths_.at(static_cast<std::size_t>(column));
            Double y = y_ + RowGap;
            for (const std::string& line : cells.at(static_cast<std::size_t>(column))) {
                const Double indent =
                    IsFlushRight(column) ? width - WidthOfText(line, ListTypeSize) : 0;
                if (!line.empty()) {
                    page.AddText(x + indent, y, line, ListTypeSize);
                }
                y += HeightOfLine(ListTypeSize);
            }
            x += width + ColumnGap;
        }
        y_ += HeightOf(cells);
        page.AddLine(body_.Left, y_, body_.Right, y_, DrawingColor::Gray, FineLine);
    }

    const SheetPaper& paper_;
    std::string_view head_;
    SheetArea body_;
    Units units_;
    std::string patternAdvice_;
    std::vector<Row<std::string>> rows_;
    Row<Double> widths_{};
    std::vector<Drawing> pages_;
    Double y_ = 0; ///< where the next row begins
};

} // namespace

std::vector<Drawing> ListPages(const Project& project, const Order& order,
                               const OrderCandidate& candidate, const SheetPaper& paper,
                               std::string_view head) {
    return ListPainter(project, order, candidate, paper, head).Paint();
}

} // namespace tarn
