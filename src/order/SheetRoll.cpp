#include "order/SheetRoll.h"

#include "base/Lengths.h"
#include "base/Text.h"
#include "base/Words.h"
#include "order/RollPlan.h"
#include "order/SheetText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarn {

namespace {

constexpr Double HatchStep = 130; ///< between two hatching lines, down the page
constexpr Double TickLength = 60;
constexpr Double LongTickLength = 110;
constexpr auto PileWord = Words("pile");

class RollPainter {
  public:
    RollPainter(const OrderCandidate& candidate, const OrderRequest& request, const RollPlan& plan,
                const SheetPaper& paper, std::string_view head)
        : candidate_(candidate)
        , request_(request)
        , plan_(plan)
        , paper_(paper)
        , head_(head) {}

    std::vector<Drawing> Paint() {
        for (const RollPage& planned : plan_.Pages) {
            pages_.push_back(NewPage(paper_, head_));
            Drawing& page = pages_.back();
            for (const RollStrip& strip : planned.Strips) {
                PaintHead(page, strip);
                PaintRuler(page, strip);
                PaintLeftOvers(page, strip);
                PaintPieces(page, strip);
                page.Append(strip.Labels.Written, 0, 0);
            }
            PaintNotes(page, planned);
        }
        AddRest();
        return std::move(pages_);
    }

  private:
    std::string Text(Long length) const { return WholeLengthText(length, request_.In); }

    Double Down(const RollStrip& strip, Long y) const {
        return strip.Roll.Top + static_cast<Double>(y - strip.Stretch.From) * plan_.Scale;
    }

    /// Which stretch of the roll it is, and the way of the pile.
    void PaintHead(Drawing& page, const RollStrip& strip) const {
        const Double top = strip.Roll.Top - StripHeadHeight + 20;
        const Double left = strip.Roll.Left - RulerWidth;
        page.AddText(left, top, strip.Head, StripHeadSize);
        const Double second = top + HeightOfLine(StripHeadSize) + 40;
        page.AddText(strip.Roll.Left, second, PileWord, LeastTypeSize);
        const Double x = strip.Roll.Left + WidthOfText(PileWord, LeastTypeSize) + 110;
        const Double tip = second + HeightOfLine(LeastTypeSize) + 20;
        constexpr Double Head = 55;
        page.AddLine(x, second - 10, x, tip);
        page.AddLine(x - Head, tip - 1.6 * Head, x, tip);
        page.AddLine(x + Head, tip - 1.6 * Head, x, tip);
    }

    /// The least of the round lengths that is at least so many twips, and divides `whole` if given.
    Long RoundStep(Double twips, Long whole = 0) const {
        static constexpr std::array<Long, 4> Steps{1, 2, 5, 10};
        const Long unit = request_.In == Units::Metric ? 10 : 12;
        for (Long power = unit;; power *= Steps.back()) {
            for (const Long step : Steps) {
                const Long length = step * power;
                if (static_cast<Double>(length) * plan_.Scale >= twips &&
                    (whole == 0 || whole % length == 0)) {
                    return length;
                }
                if (whole > 0 && length >= whole) {
                    return whole;
                }
                if (length > LongestStrip) {
                    return length;
                }
            }
        }
    }

    void PaintRuler(Drawing& page, const RollStrip& strip) const {
        constexpr Double LabelRoom = 500;
        constexpr Double TickRoom = 70;
        const Double right = strip.Roll.Left;
        const Long labelled = RoundStep(LabelRoom);
        const Long ticked = RoundStep(TickRoom, labelled);
        const Long first = (strip.Stretch.From + ticked - 1) / ticked * ticked;
        for (Long y = first; y <= strip.Stretch.To; y += ticked) {
            const bool isLong = y % labelled == 0;
            const Double at = Down(strip, y);
            const Double tick = isLong ? LongTickLength : TickLength;
            page.AddLine(right - tick, at, right, at, DrawingColor::Black, FineLine);
            if (isLong) {
                const std::string text = Text(y);
                page.AddText(right - LongTickLength - 40 - WidthOfText(text, LeastTypeSize),
                             at - HeightOfLine(LeastTypeSize) / 2, text, LeastTypeSize);
            }
        }
    }

    void Hatch(Drawing& page, const SheetArea& area) const {
        // Of all lines x + y = k × HatchStep, so that the hatching goes on from area to area.
        const auto first = static_cast<Long>(std::ceil((area.Left + area.Top) / HatchStep));
        const auto last = static_cast<Long>((area.Right + area.Bottom) / HatchStep);
        for (Long i = first; i <= last; ++i) {
            const Double sum = i * HatchStep;
            const Double x1 = std::max(area.Left, sum - area.Bottom);
            const Double x2 = std::min(area.Right, sum - area.Top);
            page.AddLine(x1, sum - x1, x2, sum - x2, DrawingColor::Gray, FineLine);
        }
    }

    void PaintLeftOvers(Drawing& page, const RollStrip& strip) const {
        const Double edge = static_cast<Double>(request_.Selvage) * plan_.Scale;
        for (const LeftOver& each :
             LeftOvers(candidate_.Pieces, candidate_.UsableWidth, strip.Stretch)) {
            const auto across = [&](Long x) {
                return strip.Roll.Left + edge + static_cast<Double>(x) * plan_.Scale;
            };
            Hatch(page,
                  {across(each.X1), Down(strip, each.Y1), across(each.X2), Down(strip, each.Y2)});
        }
        if (request_.Selvage > 0) {
            SheetArea band = strip.Roll;
            band.Right = band.Left + edge;
            Hatch(page, band);
            page.AddLine(band.Right, band.Top, band.Right, band.Bottom);
            band = strip.Roll;
            band.Left = band.Right - edge;
            Hatch(page, band);
            page.AddLine(band.Left, band.Top, band.Left, band.Bottom);
        }
        page.AddBox(strip.Roll.Left, strip.Roll.Top, strip.Roll.Right, strip.Roll.Bottom,
                    DrawingColor::Black);
    }

    /// Mark an edge at which a piece is broken, to go on elsewhere.
    static void PaintBreak(Drawing& page, const SheetArea& box, Double y) {
        constexpr Double Tooth = 60;
        const Double middle = (box.Left + box.Right) / 2;
        if (box.Width() < 4 * Tooth) {
            return;
        }
        page.AddLine(middle - Tooth, y, middle - Tooth / 2, y - Tooth / 2);
        page.AddLine(middle - Tooth / 2, y - Tooth / 2, middle + Tooth / 2, y + Tooth / 2);
        page.AddLine(middle + Tooth / 2, y + Tooth / 2, middle + Tooth, y);
    }

    void PaintPieces(Drawing& page, const RollStrip& strip) const {
        for (std::size_t i = 0; i < strip.Boxes.size(); ++i) {
            const LabelledBox& each = strip.Boxes[i];
            const OrderPiece& piece = candidate_.Pieces.at(strip.Pieces[i]);
            page.AddBox(each.Box.Left, each.Box.Top, each.Box.Right, each.Box.Bottom,
                        DrawingColor::Black, each.Letter + ": " + each.Size());
            if (each.Continues) {
                PaintBreak(page, each.Box, each.Box.Top);
            }
            if (piece.Y + piece.Length > strip.Stretch.To) {
                PaintBreak(page, each.Box, each.Box.Bottom);
            }
        }
    }

    /// The notes of a page at its foot, in columns.
    void PaintNotes(Drawing& page, const RollPage& planned) {
        if (planned.NoteLines == 0) {
            return;
        }
        const SheetArea body = BodyOf(paper_);
        const Double line = HeightOfLine(NoteSize);
        const Double foot = body.Bottom - static_cast<Double>(planned.NoteLines) * line;
        const Double width = body.Width() / static_cast<Double>(planned.NoteColumns);
        page.AddLine(body.Left, foot - NoteGap / 4, body.Right, foot - NoteGap / 4,
                     DrawingColor::Gray, FineLine);
        for (std::size_t i = 0; i < planned.Notes.size(); ++i) {
            const std::size_t column = i / planned.NoteLines;
            const std::size_t row = i % planned.NoteLines;
            if (i >= planned.NoteLines * planned.NoteColumns) {
                rest_.push_back(planned.Notes[i]);
            } else {
                page.AddText(body.Left + static_cast<Double>(column) * width,
                             foot + static_cast<Double>(row) * line, planned.Notes[i], NoteSize);
            }
        }
    }

    /// Notes that found no place on their page, on pages of their own.
    void AddRest() {
        const SheetArea body = BodyOf(paper_);
        const auto perPage = static_cast<std::size_t>(body.Height() / HeightOfLine(NoteSize)) - 2;
        for (std::size_t first = 0; first < rest_.size(); first += perPage) {
            pages_.push_back(NewPage(paper_, head_));
            std::vector<std::string> shown{Words("Pieces too small to be labelled on the roll"),
                                           ""};
            const auto begin = rest_.begin() + static_cast<std::ptrdiff_t>(first);
            const auto count = std::min(perPage, rest_.size() - first);
            shown.insert(shown.end(), begin, begin + static_cast<std::ptrdiff_t>(count));
            AddLines(pages_.back(), body, shown, NoteSize);
        }
    }

    const OrderCandidate& candidate_;
    const OrderRequest& request_;
    const RollPlan& plan_;
    const SheetPaper& paper_;
    std::string_view head_;
    std::vector<Drawing> pages_;
    std::vector<std::string> rest_; ///< of the notes
};

} // namespace

std::vector<Drawing> RollPages(const Project& project, const Order& order,
                               const OrderCandidate& candidate, const SheetPaper& paper,
                               std::string_view head) {
    const RollPlan plan = PlanRoll(project, order, candidate, paper);
    return RollPainter(candidate, order.Request, plan, paper, head).Paint();
}

} // namespace tarn
