#include "order/RollPlan.h"

#include "base/Lengths.h"
#include "base/Text.h"
#include "order/SheetText.h"

#include <algorithm>
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
    return text.empty() ? "room " + TrimStr(piece.Room) : FirstCharacters(text, MostRoomCharacters);
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
        RollPlan best;
        std::size_t least = 0;
        for (int columns = 1; ScaleFor(columns, 0); ++columns) {
            RollPlan plan = Folded(columns);
            const std::size_t trouble = TroubleOf(plan);
            const bool isHopeless = plan.Notes.size() > std::max<std::size_t>(boxes_.size() / 2, 8);
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
        if (columns > 1 && width < LeastWidth) {
            return std::nullopt;
        }
        const Double most =
            request_.In == Units::Metric ? MostScale / CentimetresPerInch : MostScale;
        return std::min(width / static_cast<Double>(candidate_.RollWidth), most);
    }

    /// So many strips beside each other, with a lane beside each if one is needed, and as much room
    /// for notes at the foot of the pages as they take.
    RollPlan Folded(int columns) const {
        constexpr int Tries = 5;
        Double lane = 0;
        std::size_t noteLines = 0;
        RollPlan plan;
        for (int i = 0; i < Tries; ++i) {
            plan = Folded(columns, lane, noteLines);
            const bool needsLane = lane == 0 && HasUnmarked(plan);
            const Double wanted = needsLane ? WidthOfLane(boxes_) : lane;
            const std::size_t lines = std::min(LinesOfNotes(plan), MostNoteLines());
            if ((!needsLane || !ScaleFor(columns, wanted)) && lines <= noteLines) {
                break;
            }
            lane = ScaleFor(columns, wanted) ? wanted : lane;
            noteLines = std::max(noteLines, lines);
        }
        return plan;
    }

    RollPlan Folded(int columns, Double lane, std::size_t noteLines) const {
        RollPlan plan;
        plan.Scale = *ScaleFor(columns, lane);
        plan.NoteLines = noteLines;
        const Double foot =
            noteLines == 0 ? 0 : NoteGap + static_cast<Double>(noteLines) * HeightOfLine(NoteSize);
        const auto units = [&](Double twips) {
            return std::max(static_cast<Long>(twips / plan.Scale), Long{1});
        };
        const auto stretches = FoldedRoll(
            candidate_.Pieces, static_cast<Long>(candidate_.Figures->Length),
            units(body_.Height() - StripHeadHeight - foot - BreakRoom), units(LeastPart));
        const Double width = static_cast<Double>(candidate_.RollWidth) * plan.Scale;
        for (std::size_t i = 0; i < stretches.size(); ++i) {
            RollStrip strip;
            strip.Stretch = stretches[i];
            strip.Page = i / static_cast<std::size_t>(columns);
            const auto column = static_cast<Double>(i % static_cast<std::size_t>(columns));
            strip.Roll.Left =
                body_.Left + column * (RulerWidth + width + lane + StripGap) + RulerWidth;
            strip.Roll.Right = strip.Roll.Left + width;
            strip.Roll.Top = body_.Top + StripHeadHeight;
            strip.Roll.Bottom =
                strip.Roll.Top +
                static_cast<Double>(strip.Stretch.To - strip.Stretch.From) * plan.Scale;
            AddPieces(strip, plan.Scale);
            strip.Labels = LabelBoxes(strip.Boxes, {strip.Roll.Left, strip.Roll.Right,
                                                    strip.Roll.Top, body_.Bottom - foot, lane > 0});
            plan.Strips.push_back(std::move(strip));
        }
        AddNotes(plan);
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
    }

    /// A note for each piece on a page that is too small there, in the order of their letters.
    void AddNotes(RollPlan& plan) const {
        Double widest = 1;
        for (const RollStrip& strip : plan.Strips) {
            for (const std::size_t small : strip.Labels.Small) {
                const LabelledBox& box = strip.Boxes.at(small);
                std::string text = box.Name() + "  " + box.Size() + "  " + box.Room;
                const auto& unmarked = strip.Labels.Unmarked;
                if (std::find(unmarked.begin(), unmarked.end(), small) != unmarked.end()) {
                    const OrderPiece& piece = candidate_.Pieces.at(strip.Pieces.at(small));
                    text += "  (at " + OrderLengthText(piece.Y, request_.In) + ", " +
                            OrderLengthText(piece.X, request_.In) + " across)";
                }
                text = ShortenedText(text, body_.Width(), NoteSize);
                widest = std::max(widest, WidthOfText(text, NoteSize) + StripGap);
                plan.Notes.push_back({std::move(text), strip.Page});
            }
        }
        plan.NoteColumns =
            std::max(static_cast<std::size_t>((body_.Width() + StripGap) / widest), std::size_t{1});
    }

    /// How many lines the notes of that page take that has the most.
    static std::size_t LinesOfNotes(const RollPlan& plan) {
        std::vector<std::size_t> notes(plan.Pages());
        for (const RollNote& note : plan.Notes) {
            ++notes.at(note.Page);
        }
        const std::size_t most = *std::max_element(notes.begin(), notes.end());
        return (most + plan.NoteColumns - 1) / plan.NoteColumns;
    }

    std::size_t MostNoteLines() const {
        constexpr Double MostOfPage = 0.4;
        return static_cast<std::size_t>(body_.Height() * MostOfPage / HeightOfLine(NoteSize));
    }

    static bool HasUnmarked(const RollPlan& plan) {
        return std::any_of(plan.Strips.begin(), plan.Strips.end(),
                           [](const RollStrip& strip) { return !strip.Labels.Unmarked.empty(); });
    }

    static std::size_t TroubleOf(const RollPlan& plan) {
        constexpr std::size_t Page = 4;
        constexpr std::size_t LaneLetter = 2;
        constexpr std::size_t UnmarkedPiece = 20;
        std::size_t trouble = Page * plan.Pages() + plan.Notes.size();
        for (const RollStrip& strip : plan.Strips) {
            trouble += LaneLetter * strip.Labels.InLane.size() +
                       UnmarkedPiece * strip.Labels.Unmarked.size();
        }
        return trouble;
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
