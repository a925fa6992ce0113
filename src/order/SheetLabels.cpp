#include "order/SheetLabels.h"

#include "order/SheetText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>

namespace tarn {

namespace {

constexpr Double Pad = 50;         ///< between a box and what is written in it
constexpr Double LetterPad = 16;   ///< the same for a letter alone
constexpr Double LaneGap = 240;    ///< between the roll and its notes, for the leaders
constexpr Double LaneEnd = 60;     ///< behind the notes
constexpr Double MostNote = 2000;  ///< width
constexpr Double NoteGap = 60;     ///< between two notes
constexpr Double LeaderGap = 40;   ///< between two leaders, and a leader and a text
constexpr std::size_t MostRoomLines = 3;

struct Line {
    std::string Text;
    Double Size;
};
using Lines = std::vector<Line>;

/// Sizes of the letter and of what follows it.
struct LabelSizes {
    Double Letter;
    Double Text;
};
constexpr std::array<LabelSizes, 3> Sizes{{{16, 11}, {13, 9}, {10, LeastTypeSize}}};

/// How a label is arranged.
enum class Form { Stacked, LetterBesideSize, OneLine, SizeInTwo, NameAlone };

Double WidthOf(const Lines& lines) {
    Double width = 0;
    for (const Line& line : lines) {
        width = std::max(width, WidthOfText(line.Text, line.Size));
    }
    return width;
}

Double HeightOf(const Lines& lines) {
    Double height = 0;
    for (const Line& line : lines) {
        height += HeightOfLine(line.Size);
    }
    return height;
}

/// The lines of a label in a room that is so wide; nothing when the room's name takes too many.
std::optional<Lines> LinesOf(const LabelledBox& box, Form form, const LabelSizes& sizes,
                             Double width) {
    Lines lines;
    const Double nameSize = box.Continues ? sizes.Text : sizes.Letter;
    switch (form) {
    case Form::Stacked:
        lines = {{box.Name(), nameSize}, {box.Size(), sizes.Text}};
        break;
    case Form::LetterBesideSize:
        lines = {{box.Name() + "  " + box.Size(), sizes.Text}};
        break;
    case Form::OneLine:
        return Lines{{box.Name() + "  " + box.Size() + "  " + box.Room, sizes.Text}};
    case Form::SizeInTwo:
        lines = {{box.Name(), nameSize}, {box.Across + " X", sizes.Text}, {box.Along, sizes.Text}};
        break;
    case Form::NameAlone:
        return Lines{{box.Name(), sizes.Text}};
    }
    const auto room = WrappedText(box.Room, width, sizes.Text);
    if (room.size() > MostRoomLines) {
        return std::nullopt;
    }
    for (const std::string& line : room) {
        lines.push_back({line, sizes.Text});
    }
    return lines;
}

/// The label of a box in that form, if it goes into it.
std::optional<Lines> Fitting(const LabelledBox& box, Form form, const LabelSizes& sizes,
                             bool upward) {
    Double width = box.Box.Width() - 2 * Pad;
    Double height = box.Box.Height() - 2 * Pad;
    if (upward) {
        std::swap(width, height);
    }
    auto lines = LinesOf(box, form, sizes, width);
    return lines && WidthOf(*lines) <= width && HeightOf(*lines) <= height ? lines : std::nullopt;
}

/// Write lines into the middle of a box.
void WriteInto(Drawing& drawing, const SheetArea& box, const Lines& lines, bool upward) {
    const Double middleX = (box.Left + box.Right) / 2;
    const Double middleY = (box.Top + box.Bottom) / 2;
    Double at = (upward ? middleX : middleY) - HeightOf(lines) / 2;
    for (const Line& line : lines) {
        const Double half = WidthOfText(line.Text, line.Size) / 2;
        if (upward) {
            drawing.AddUpwardText(at, middleY + half, line.Text, line.Size);
        } else {
            drawing.AddText(middleX - half, at, line.Text, line.Size);
        }
        at += HeightOfLine(line.Size);
    }
}

/// Write the whole label into its box; false when it does not go into it.
bool WriteLabel(Drawing& drawing, const LabelledBox& box) {
    const auto wrote = [&](Form form, const LabelSizes& sizes, bool upward) {
        const auto lines = Fitting(box, form, sizes, upward);
        if (lines) {
            WriteInto(drawing, box.Box, *lines, upward);
        }
        return lines.has_value();
    };
    for (const LabelSizes& sizes : Sizes) {
        for (const bool upward : {false, true}) {
            for (const Form form : {Form::Stacked, Form::LetterBesideSize, Form::OneLine}) {
                if (wrote(form, sizes, upward)) {
                    return true;
                }
            }
            if (sizes.Text == LeastTypeSize && wrote(Form::SizeInTwo, sizes, upward)) {
                return true;
            }
        }
    }
    return box.Continues && (wrote(Form::NameAlone, Sizes.back(), false) ||
                             wrote(Form::NameAlone, Sizes.back(), true));
}

/// Write the letter alone into its box; false when not even that goes into it.
bool WriteLetter(Drawing& drawing, const LabelledBox& box) {
    const Lines letter{{box.Letter, LeastTypeSize}};
    const bool fits = WidthOf(letter) <= box.Box.Width() - 2 * LetterPad &&
                      HeightOf(letter) <= box.Box.Height() - 2 * LetterPad;
    if (fits) {
        WriteInto(drawing, box.Box, letter, false);
    }
    return fits;
}

std::vector<std::string> NoteOf(const LabelledBox& box, Double width) {
    std::vector<std::string> lines{ShortenedText(box.Name() + "  " + box.Size(), width,
                                                 LeastTypeSize)};
    for (std::string& line : WrappedText(box.Room, width, LeastTypeSize)) {
        lines.push_back(std::move(line));
    }
    return lines;
}

SheetArea PlaceOf(const DrawingStep& text) {
    return text.IsUpward
               ? SheetArea{text.X1, text.Y2, text.X2, text.Y1}
               : SheetArea{text.X1, text.Y1, text.X2, text.Y1 + HeightOfLine(text.FontSize)};
}

/// A note beside the roll.
struct Note {
    std::size_t Box = 0;
    std::vector<std::string> Text;
    Double At = 0;     ///< where it points to along the roll
    Double Top = 0;    ///< where it stands
    bool Points = false; ///< it has a leader

    Double Height() const {
        return static_cast<Double>(Text.size()) * HeightOfLine(LeastTypeSize) + NoteGap;
    }
};

class Labeller {
  public:
    Labeller(const std::vector<LabelledBox>& boxes, const LabelPlaces& places)
        : boxes_(boxes)
        , places_(places) {}

    StretchLabels Label() {
        std::vector<std::size_t> small;
        for (std::size_t i = 0; i < boxes_.size(); ++i) {
            if (!WriteLabel(result_.Written, boxes_[i])) {
                small.push_back(i);
            }
        }
        result_.Notes = small.size();
        std::vector<bool> lettered(boxes_.size());
        for (const std::size_t i : small) {
            lettered[i] = WriteLetter(result_.Written, boxes_[i]);
        }
        for (const SheetArea& place : Places()) {
            taken_.push_back(place);
        }
        for (const std::size_t i : small) {
            AddNote(i, !lettered[i]);
        }
        PlaceNotes();
        for (const Note& note : notes_) {
            WriteNote(note);
        }
        return std::move(result_);
    }

  private:
    std::vector<SheetArea> Places() const {
        std::vector<SheetArea> places;
        for (const DrawingStep& step : result_.Written.Steps()) {
            places.push_back(PlaceOf(step));
        }
        return places;
    }

    void AddNote(std::size_t number, bool points) {
        const LabelledBox& box = boxes_[number];
        const Double width = places_.LaneWidth - LaneGap - LaneEnd;
        Note note{number, NoteOf(box, width), (box.Box.Top + box.Box.Bottom) / 2, 0, points};
        const Double used = std::accumulate(
            notes_.begin(), notes_.end(), note.Height(),
            [](Double sum, const Note& each) { return sum + each.Height(); });
        if (width <= 0 || used > places_.Bottom - places_.Top) {
            result_.Lost.push_back(number);
            return;
        }
        if (points) {
            note.At = LeaderOf(box.Box);
        }
        notes_.push_back(std::move(note));
    }

    /// Where a leader leaves a box: near its middle, clear of texts and other leaders.
    Double LeaderOf(const SheetArea& box) {
        constexpr int Tries = 40;
        const Double middle = (box.Top + box.Bottom) / 2;
        const Double x = (box.Left + box.Right) / 2;
        Double at = middle;
        for (int i = 0; i <= 2 * Tries; ++i) {
            const Double off = (i + 1) / 2 * (i % 2 == 0 ? 1.0 : -1.0) / Tries;
            const Double y = middle + off * box.Height() * 0.45;
            const bool clear = std::none_of(taken_.begin(), taken_.end(), [&](const auto& each) {
                return each.Right > x && each.Top - LeaderGap < y && each.Bottom + LeaderGap > y;
            });
            if (clear) {
                at = y;
                break;
            }
        }
        taken_.push_back({x, at, places_.Right, at});
        return at;
    }

    /// Notes below each other, each as near to what it points to as the others let it.
    void PlaceNotes() {
        std::stable_sort(notes_.begin(), notes_.end(),
                         [](const Note& a, const Note& b) { return a.At < b.At; });
        Double y = places_.Top;
        for (Note& note : notes_) {
            note.Top = std::max(y, note.At - HeightOfLine(LeastTypeSize) / 2);
            y = note.Top + note.Height();
        }
        y = places_.Bottom;
        for (auto note = notes_.rbegin(); note != notes_.rend(); ++note) {
            note->Top = std::min(note->Top, y - note->Height());
            y = note->Top;
        }
    }

    void WriteNote(const Note& note) {
        Drawing& drawing = result_.Written;
        const Double left = places_.Right + LaneGap;
        AddLines(drawing, {left, note.Top, 0, 0}, note.Text, LeastTypeSize);
        if (!note.Points) {
            return;
        }
        constexpr Double Dot = 20;
        constexpr Double BeforeText = 30;
        const SheetArea& box = boxes_[note.Box].Box;
        const Double x = (box.Left + box.Right) / 2;
        const Double knee = places_.Right + 20;
        const Double y = note.Top + HeightOfLine(LeastTypeSize) / 2;
        drawing.AddBox(x - Dot / 2, note.At - Dot / 2, x + Dot / 2, note.At + Dot / 2,
                       DrawingColor::Black);
        drawing.AddLine(x, note.At, knee, note.At, DrawingColor::Black, FineLine);
        drawing.AddLine(knee, note.At, left - BeforeText, y, DrawingColor::Black, FineLine);
    }

    const std::vector<LabelledBox>& boxes_;
    const LabelPlaces& places_;
    StretchLabels result_;
    std::vector<SheetArea> taken_; ///< by texts and leaders
    std::vector<Note> notes_;
};

} // namespace

StretchLabels LabelBoxes(const std::vector<LabelledBox>& boxes, const LabelPlaces& places) {
    return Labeller(boxes, places).Label();
}

Double WidthOfLane(const std::vector<LabelledBox>& boxes) {
    Double width = 0;
    for (const LabelledBox& box : boxes) {
        width = std::max({width, WidthOfText(box.Name() + "  " + box.Size(), LeastTypeSize),
                          std::min(MostNote, WidthOfText(box.Room, LeastTypeSize))});
    }
    return width + LaneGap + LaneEnd;
}

} // namespace tarn
