#include "order/RollPlan.h"

#include "base/Lengths.h"
#include "base/Text.h"
#include "order/SheetText.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace tarn {

namespace {

constexpr Double StripGap = 240;             ///< behind each strip
constexpr Double MostScale = 64;             ///< twips in an inch
constexpr Double LeastWidth = 700;           ///< of a roll among several
constexpr Double LeastPart = 420;            ///< of a piece that is broken, where that can be
constexpr long long MostRoomCharacters = 32; ///< on a piece; the list has all of them

/// What is written on a piece for its room: its number, or else its remark.
std::string ShortRoom(const Project& project, const OrderPiece& piece) {
    const Room& room = project.Rooms.at(static_cast<std::size_t>(piece.Room - 1));
    const std::string& name = room.Number.empty() ? room.Remark : room.Number;
    const std::string text = OneLine(ShownText(name));
    return TrimStr(text).empty() ? "room " + TrimStr(piece.Room)
                                 : FirstCharacters(TrimStr(text), MostRoomCharacters);
}

class RollPlanner {
  public:
    RollPlanner(const Project& project, const Order& order, const OrderCandidate& candidate,
                const SheetPaper& paper)
        : candidate_(candidate)
        , request_(order.Request)
        , body_(BodyOf(paper)) {
        for (const OrderPiece& piece : candidate.Pieces) {
            LabelledBox box;
            box.Letter = piece.Label;
            box.Across = WholeLengthText(piece.Width, request_.In);
            box.Along = WholeLengthText(piece.Length, request_.In);
            box.Room = ShortRoom(project, piece);
            boxes_.push_back(std::move(box));
        }
    }

    RollPlan Plan() const {
        std::vector<RollPlan> plans;
        for (int columns = 1; const auto scale = ScaleFor(columns, 0); ++columns) {
            RollPlan plan = Folded(columns, *scale, 0);
            const Double lane = WidthOfLane(SmallBoxes(plan));
            const auto smaller = NotesOf(plan) > 0 ? ScaleFor(columns, lane) : std::nullopt;
            plans.push_back(smaller ? Folded(columns, *smaller, lane) : std::move(plan));
        }
        return Best(std::move(plans));
    }

  private:
    /// The scale for so many strips beside each other; nothing when they are too many.
    std::optional<Double> ScaleFor(int columns, Double lane) const {
        const Double width = body_.Width() / columns - RulerWidth - StripGap - lane;
        if (columns > 1 && width < LeastWidth) {
            return std::nullopt;
        }
        const Double most =
            request_.In == Units::Metric ? MostScale / CentimetresPerInch : MostScale;
        return std::min(width / static_cast<Double>(candidate_.RollWidth), most);
    }

    RollPlan Folded(int columns, Double scale, Double lane) const {
        const auto length = static_cast<Long>(candidate_.Figures->Length);
        const Double height = body_.Height() - StripHeadHeight;
        const auto units = [scale](Double twips) { return static_cast<Long>(twips / scale); };
        RollPlan plan;
        plan.Scale = scale;
        const auto stretches =
            FoldedRoll(candidate_.Pieces, length, std::max(units(height), Long{1}),
                       std::max(units(LeastPart), Long{1}));
        const Double pitch =
            RulerWidth + static_cast<Double>(candidate_.RollWidth) * scale + lane + StripGap;
        for (std::size_t i = 0; i < stretches.size(); ++i) {
            RollStrip strip;
            strip.Stretch = stretches[i];
            strip.Page = i / static_cast<std::size_t>(columns);
            strip.Lane = lane;
            const auto column = static_cast<Double>(i % static_cast<std::size_t>(columns));
            strip.Roll.Left = body_.Left + column * pitch + RulerWidth;
            strip.Roll.Right =
                strip.Roll.Left + static_cast<Double>(candidate_.RollWidth) * scale;
            strip.Roll.Top = body_.Top + StripHeadHeight;
            strip.Roll.Bottom =
                strip.Roll.Top + static_cast<Double>(strip.Stretch.To - strip.Stretch.From) * scale;
            AddPieces(strip, scale);
            plan.Strips.push_back(std::move(strip));
        }
        return plan;
    }

    void AddPieces(RollStrip& strip, Double scale) const {
        const Double left = strip.Roll.Left + static_cast<Double>(request_.Selvage) * scale;
        for (std::size_t i = 0; i < boxes_.size(); ++i) {
            const OrderPiece& piece = candidate_.Pieces[i];
            const Long from = std::max(piece.Y, strip.Stretch.From);
            const Long to = std::min(piece.Y + piece.Length, strip.Stretch.To);
            if (from >= to) {
                continue;
            }
            LabelledBox box = boxes_[i];
            box.Continues = from > piece.Y;
            box.Box.Left = left + static_cast<Double>(piece.X) * scale;
            box.Box.Right = box.Box.Left + static_cast<Double>(piece.Width) * scale;
            const auto down = [&](Long y) {
                return strip.Roll.Top + static_cast<Double>(y - strip.Stretch.From) * scale;
            };
            box.Box.Top = down(from);
            box.Box.Bottom = down(to);
            strip.Pieces.push_back(i);
            strip.Boxes.push_back(std::move(box));
        }
        strip.Labels = LabelBoxes(strip.Boxes, {strip.Roll.Left, strip.Roll.Right, strip.Roll.Top,
                                                body_.Bottom, strip.Lane});
    }

    static std::vector<LabelledBox> SmallBoxes(const RollPlan& plan) {
        std::vector<LabelledBox> boxes;
        for (const RollStrip& strip : plan.Strips) {
            for (const std::size_t lost : strip.Labels.Lost) {
                boxes.push_back(strip.Boxes.at(lost));
            }
        }
        return boxes;
    }

    template <typename Count> static std::size_t Sum(const RollPlan& plan, Count count) {
        return std::accumulate(
            plan.Strips.begin(), plan.Strips.end(), std::size_t{0},
            [&](std::size_t sum, const RollStrip& strip) { return sum + count(strip); });
    }
    static std::size_t NotesOf(const RollPlan& plan) {
        return Sum(plan, [](const RollStrip& strip) { return strip.Labels.Notes; });
    }
    static std::size_t LostOf(const RollPlan& plan) {
        return Sum(plan, [](const RollStrip& strip) { return strip.Labels.Lost.size(); });
    }

    RollPlan Best(std::vector<RollPlan> plans) const {
        constexpr std::size_t OneNoteIn = 12; // pieces
        const auto least = [&plans](auto value) {
            return value(*std::min_element(plans.begin(), plans.end(), [&](auto& a, auto& b) {
                return value(a) < value(b);
            }));
        };
        const auto keep = [&plans](auto value, std::size_t most) {
            std::erase_if(plans, [&](const RollPlan& plan) { return value(plan) > most; });
        };
        keep(LostOf, least(LostOf));
        keep(NotesOf, least(NotesOf) + boxes_.size() / OneNoteIn);
        const auto pages = [](const RollPlan& plan) { return plan.Pages(); };
        keep(pages, least(pages));
        return std::move(plans.front());
    }

    const OrderCandidate& candidate_;
    const OrderRequest& request_;
    SheetArea body_;
    std::vector<LabelledBox> boxes_; ///< for each piece, without its place
};

} // namespace

RollPlan PlanRoll(const Project& project, const Order& order, const OrderCandidate& candidate,
                  const SheetPaper& paper) {
    return RollPlanner(project, order, candidate, paper).Plan();
}

} // namespace tarn
