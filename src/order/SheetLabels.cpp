#include "order/SheetLabels.h"

#include "order/SheetText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace tarn {

namespace {

constexpr Double Pad = 50;       ///< between a box and what is written in it
constexpr Double LetterPad = 16; ///< the same for a letter alone
constexpr Double LaneGap = 180;  ///< between the roll and its letters, for their lines
constexpr Double LeaderGap = 40; ///< between two leaders, and a leader and a text
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

/// The name of a room in lines of that width; none when it takes too many, or has to be broken
/// inside a word.
std::vector<std::string> RoomLines(const std::string& room, Double width, Double size) {
    std::vector<std::string> lines = WrappedText(room, width, size);
    std::string whole;
    for (const std::string& line : lines) {
        whole += (whole.empty() ? "" : " ") + line;
    }
    if (lines.size() > MostRoomLines || whole != room) {
        lines.clear();
    }
    return lines;
}

/// The lines of a label that may be so wide; nothing when the room's name does not go into them.
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
    const auto room = RoomLines(box.Room, width, sizes.Text);
    if (room.empty()) {
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
    const auto wroteAny = [&](const LabelSizes& sizes, bool upward) {
        return wrote(Form::Stacked, sizes, upward) ||
               wrote(Form::LetterBesideSize, sizes, upward) ||
               wrote(Form::OneLine, sizes, upward) ||
               (sizes.Text == LeastTypeSize && wrote(Form::SizeInTwo, sizes, upward));
    };
    const auto& [large, medium, least] = Sizes;
    if (wroteAny(large, false) || wroteAny(medium, false) || wroteAny(large, true) ||
        wroteAny(medium, true) || wroteAny(least, false) || wroteAny(least, true)) {
        return true;
    }
    return box.Continues &&
           (wrote(Form::NameAlone, least, false) || wrote(Form::NameAlone, least, true));
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

SheetArea PlaceOf(const DrawingStep& text) {
    return text.IsUpward
               ? SheetArea{text.X1, text.Y2, text.X2, text.Y1}
               : SheetArea{text.X1, text.Y1, text.X2, text.Y1 + HeightOfLine(text.FontSize)};
}

/// A letter beside the roll, with a line to its box.
struct LaneLetter {
    std::size_t Box = 0;
    Double At = 0;  ///< where the line leaves the box
    Double Top = 0; ///< of the letter
};

class Labeller {
  public:
    Labeller(const std::vector<LabelledBox>& boxes, const LabelPlaces& places)
        : boxes_(boxes)
        , places_(places) {}

    StretchLabels Label() {
        for (std::size_t i = 0; i < boxes_.size(); ++i) {
            if (!WriteLabel(result_.Written, boxes_[i])) {
                result_.Small.push_back(i);
            }
        }
        std::vector<std::size_t> outside;
        for (const std::size_t i : result_.Small) {
            if (!WriteLetter(result_.Written, boxes_[i])) {
                outside.push_back(i);
            }
        }
        for (const DrawingStep& step : result_.Written.Steps()) {
            taken_.push_back(PlaceOf(step));
        }
        for (const std::size_t i : outside) {
            PutIntoLane(i);
        }
        PlaceLetters();
        for (const LaneLetter& letter : letters_) {
            WriteLane(letter);
        }
        return std::move(result_);
    }

  private:
    void PutIntoLane(std::size_t number) {
        const Double used = static_cast<Double>(letters_.size() + 1) * LineHeight();
        if (!places_.HasLane || used > places_.Bottom - places_.Top) {
            result_.Unmarked.push_back(number);
            return;
        }
        result_.InLane.push_back(number);
        letters_.push_back({number, LeaderOf(boxes_[number].Box), 0});
    }

    static Double LineHeight() { return HeightOfLine(LeastTypeSize); }

    /// Where a leader leaves a box: near its middle, clear of texts and other leaders.
    Double LeaderOf(const SheetArea& box) {
        constexpr int Tries = 40;
        const Double middle = (box.Top + box.Bottom) / 2;
        const Double x = (box.Left + box.Right) / 2;
        Double at = middle;
        for (int i = 0; i <= 2 * Tries; ++i) {
            const int step = (i + 1) / 2;
            const Double off = (i % 2 == 0 ? 0.45 : -0.45) * step / Tries;
            const Double y = middle + off * box.Height();
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

    /// Letters below each other, each as near to what it points to as the others let it.
    void PlaceLetters() {
        std::stable_sort(letters_.begin(), letters_.end(),
                         [](const auto& a, const auto& b) { return a.At < b.At; });
        Double y = places_.Top;
        for (LaneLetter& letter : letters_) {
            letter.Top = std::max(y, letter.At - LineHeight() / 2);
            y = letter.Top + LineHeight();
        }
        y = places_.Bottom;
        for (auto letter = letters_.rbegin(); letter != letters_.rend(); ++letter) {
            letter->Top = std::min(letter->Top, y - LineHeight());
            y = letter->Top;
        }
    }

    void WriteLane(const LaneLetter& letter) {
        constexpr Double Dot = 20;
        constexpr Double BeforeText = 20;
        Drawing& drawing = result_.Written;
        const LabelledBox& box = boxes_[letter.Box];
        const Double left = places_.Right + LaneGap;
        drawing.AddText(left, letter.Top, box.Letter, LeastTypeSize);
        const Double x = (box.Box.Left + box.Box.Right) / 2;
        const Double knee = places_.Right + 20;
        drawing.AddBox(x - Dot / 2, letter.At - Dot / 2, x + Dot / 2, letter.At + Dot / 2,
                       DrawingColor::Black);
        drawing.AddLine(x, letter.At, knee, letter.At, DrawingColor::Black, FineLine);
        drawing.AddLine(knee, letter.At, left - BeforeText, letter.Top + LineHeight() / 2,
                        DrawingColor::Black, FineLine);
    }

    const std::vector<LabelledBox>& boxes_;
    const LabelPlaces& places_;
    StretchLabels result_;
    std::vector<SheetArea> taken_; ///< by texts and leaders
    std::vector<LaneLetter> letters_;
};

} // namespace

StretchLabels LabelBoxes(const std::vector<LabelledBox>& boxes, const LabelPlaces& places) {
    return Labeller(boxes, places).Label();
}

Double WidthOfLane(const std::vector<LabelledBox>& boxes) {
    Double width = 0;
    for (const LabelledBox& box : boxes) {
        width = std::max(width, WidthOfText(box.Letter, LeastTypeSize));
    }
    return LaneGap + width;
}

} // namespace tarn
