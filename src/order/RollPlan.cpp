#include "order/RollPlan.h"

#include "base/Lengths.h"
#include "base/Text.h"
#include "base/Words.h"
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
    std::string text = TrimStr(OneLine(ShownText(name)));
    text.erase(
        std::unique(text.begin(), text.end(), [](char a, char b) { return a == ' ' && b == ' '; }),
        text.end());
    return text.empty() ? Words("room %1", TrimStr(piece.Room))
                        : FirstCharacters(text, MostRoomCharacters);
}

class RollPlanner {
  public:
    RollPlanner(const Project& project, const Order& order, const OrderCandidate& candidate,
                const SheetPaper& paper)
        : candidate_(candidate)
        , request_(order.Request)
        , body_(BodyOf(paper))
        , length_(static_cast<Long>(candidate.Figures->Length))
        , headWidth_(WidthOfText(HeadOf({length_, length_}), StripHeadSize)) {
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
        RollPlan best;
        std::size_t least = 0;
        for (int columns = 1; ScaleFor(columns, 0); ++columns) {
            RollPlan plan = Folded(columns);
            const std::size_t trouble = TroubleOf(plan);
            const bool isHopeless = NotesOf(plan) > std::max<std::size_t>(boxes_.size() / 2, 8);
            if (columns == 1 || trouble < least) {
                least = trouble;
                best = std::move(plan);
            }
            if (isHopeless) {
                break;
            }
        }
        return best;
    }

  private:
    /// The scale for so many strips beside each other; nothing when they are too many.
    std::optional<Double> ScaleFor(int columns, Double lane) const {
        const Double width = body_.Width() / columns - RulerWidth - StripGap - lane;
        if (columns > 1 &&
            (width < LeastWidth || body_.Width() / columns < headWidth_ + StripGap)) {
            return std::nullopt;
        }
        const Double most =
            request_.In == Units::Metric ? MostScale / CentimetresPerInch : MostScale;
        return std::min(width / static_cast<Double>(candidate_.RollWidth), most);
    }

    /// So many strips beside each other, with a lane beside each if one is needed.
    RollPlan Folded(int columns) const {
        RollPlan plan = Folded(columns, 0);
        const Double lane = WidthOfLane(boxes_);
        if (UnmarkedOf(plan) > 0 && ScaleFor(columns, lane)) {
            plan = Folded(columns, lane);
        }
        return plan;
    }

    RollPlan Folded(int columns, Double lane) const {
        RollPlan plan;
        plan.Scale = *ScaleFor(columns, lane);
        const PageKind kind{columns, lane, plan.Scale};
        Long from = 0;
        do {
            plan.Pages.push_back(PageFrom(from, kind));
            from = plan.Pages.back().Strips.back().Stretch.To;
        } while (from < length_);
        return plan;
    }

    /// What all pages of a plan have in common.
    struct PageKind {
        int Columns;
        Double Lane;
        Double Scale;
    };

    /// A page with as much room for notes at its foot as it needs, within bounds.
    RollPage PageFrom(Long from, const PageKind& kind) const {
        constexpr Double MostOfPage = 0.4;
        const auto most =
            static_cast<std::size_t>(body_.Height() * MostOfPage / HeightOfLine(NoteSize));
        for (std::size_t lines = 0;;) {
            RollPage page = PageFrom(from, kind, lines);
            const std::size_t needed =
                (page.Notes.size() + page.NoteColumns - 1) / page.NoteColumns;
            if (needed <= lines || lines == most) {
                return page;
            }
            lines = std::min(needed, most);
        }
    }

    RollPage PageFrom(Long from, const PageKind& kind, std::size_t noteLines) const {
        RollPage page;
        page.NoteLines = noteLines;
        const Double foot =
            noteLines == 0 ? 0 : NoteGap + static_cast<Double>(noteLines) * HeightOfLine(NoteSize);
        const Double height = body_.Height() - StripHeadHeight - foot - StripFoot;
        const StretchLimits limits{WholeUnits(height / kind.Scale),
                                   WholeUnits(LeastPart / kind.Scale)};
        const Double width = static_cast<Double>(candidate_.RollWidth) * kind.Scale;
        const Double pitch = std::max(RulerWidth + width + kind.Lane, headWidth_) + StripGap;
        for (int column = 0; column < kind.Columns && (column == 0 || from < length_); ++column) {
            RollStrip strip;
            strip.Stretch = StretchFrom(candidate_.Pieces, from, length_, limits);
            strip.Head = HeadOf(strip.Stretch);
            strip.Roll.Left = body_.Left + RulerWidth + column * pitch;
            strip.Roll.Right = strip.Roll.Left + width;
            strip.Roll.Top = body_.Top + StripHeadHeight;
            strip.Roll.Bottom =
                strip.Roll.Top + static_cast<Double>(strip.Stretch.To - from) * kind.Scale;
            AddPieces(strip, kind.Scale);
            strip.Labels =
                LabelBoxes(strip.Boxes, {strip.Roll.Left, strip.Roll.Right, strip.Roll.Top,
                                         body_.Bottom - foot, kind.Lane > 0});
            from = strip.Stretch.To;
            page.Strips.push_back(std::move(strip));
        }
        AddNotes(page);
        return page;
    }

    std::string HeadOf(const RollStretch& stretch) const {
        return Words("%1 to %2", WholeLengthText(stretch.From, request_.In),
                     OrderLengthText(stretch.To, request_.In));
    }

    static Long WholeUnits(Double length) {
        return static_cast<Long>(std::clamp(length, 1.0, 1e9));
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
    }

    /// A note for each piece that is too small, by strips and in the order of their letters.
    void AddNotes(RollPage& page) const {
        Double widest = 1;
        for (const RollStrip& strip : page.Strips) {
            for (const std::size_t small : strip.Labels.Small) {
                page.Notes.push_back(NoteOf(strip, small));
                widest = std::max(widest, WidthOfText(page.Notes.back(), NoteSize) + StripGap);
            }
        }
        page.NoteColumns =
            std::max(static_cast<std::size_t>((body_.Width() + StripGap) / widest), std::size_t{1});
    }

    /// The whole label of a box; where it is, too, where not even its letter has a place.
    std::string NoteOf(const RollStrip& strip, std::size_t number) const {
        const LabelledBox& box = strip.Boxes.at(number);
        std::string text = box.Name() + "  " + box.Size() + "  " + box.Room;
        const auto& unmarked = strip.Labels.Unmarked;
        if (std::find(unmarked.begin(), unmarked.end(), number) != unmarked.end()) {
            const OrderPiece& piece = candidate_.Pieces.at(strip.Pieces.at(number));
            text = Words("%1  (at %2, %3 across)", text, OrderLengthText(piece.Y, request_.In),
                         OrderLengthText(piece.X, request_.In));
        }
        return ShortenedText(text, body_.Width(), NoteSize);
    }

    static std::size_t NotesOf(const RollPlan& plan) {
        return std::accumulate(
            plan.Pages.begin(), plan.Pages.end(), std::size_t{0},
            [](std::size_t sum, const RollPage& page) { return sum + page.Notes.size(); });
    }

    template <typename Count>
    static std::size_t Sum(const RollPlan& plan, Count count) {
        std::size_t sum = 0;
        for (const RollPage& page : plan.Pages) {
            for (const RollStrip& strip : page.Strips) {
                sum += count(strip.Labels);
            }
        }
        return sum;
    }
    static std::size_t UnmarkedOf(const RollPlan& plan) {
        return Sum(plan, [](const StretchLabels& labels) { return labels.Unmarked.size(); });
    }

    /// How hard the pages are to read: a page more is worth a few labels beside their pieces.
    static std::size_t TroubleOf(const RollPlan& plan) {
        constexpr std::size_t Page = 4;
        constexpr std::size_t LaneLetter = 2;
        constexpr std::size_t UnmarkedPiece = 20;
        const std::size_t inLane =
            Sum(plan, [](const StretchLabels& labels) { return labels.InLane.size(); });
        return Page * plan.Pages.size() + NotesOf(plan) + LaneLetter * inLane +
               UnmarkedPiece * UnmarkedOf(plan);
    }

    const OrderCandidate& candidate_;
    const OrderRequest& request_;
    SheetArea body_;
    Long length_;                    ///< of the whole roll
    Double headWidth_;               ///< of the widest head of a strip, twips
    std::vector<LabelledBox> boxes_; ///< for each piece, without its place
};

} // namespace

RollPlan PlanRoll(const Project& project, const Order& order, const OrderCandidate& candidate,
                  const SheetPaper& paper) {
    return RollPlanner(project, order, candidate, paper).Plan();
}

} // namespace tarn
