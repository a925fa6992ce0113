#include "screens/roll/LabelFit.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tarn {

namespace {

using Lines = std::vector<LabelLine>;

/// The sizes of the letter and of what follows it, places in LabelSizes.
struct SizePair {
    std::size_t Letter;
    std::size_t Text;
};
constexpr std::array<SizePair, 4> Pairs{{{0, 2}, {1, 2}, {2, 2}, {3, 3}}};

/// What a piece is called in a box that goes on from another one, and where that has no room.
std::string ContinuedName(const std::string& label) {
    return label + " continues";
}
std::string ShortContinuedName(const std::string& label) {
    return "\u2026" + label;
}

/// Finds the label for one box.
class Fitter {
  public:
    /// `name` is what the piece is called.
    Fitter(const ChartPiece& piece, std::string name, double width, double height,
           const LabelMeasure& measure, std::size_t largest)
        : piece_(piece)
        , name_(std::move(name))
        , width_(width)
        , height_(height)
        , measure_(measure)
        , largest_(largest) {}

    FittedLabel Fit() const {
        // What has no room for its letter has none for more.
        const std::size_t least = LabelSizes.size() - 1;
        if (!FitsEitherWay({{name_, least}})) {
            return {};
        }
        for (const auto& texts :
             {Texts{piece_.Size, piece_.Room}, Texts{piece_.Size}, Texts{piece_.Room}, Texts{}}) {
            for (const bool upward : {false, true}) {
                if (auto lines = LinesOf(texts, upward)) {
                    return {std::move(*lines), upward};
                }
            }
        }
        return {};
    }

  private:
    using Texts = std::vector<std::string>;

    std::optional<Lines> LinesOf(const Texts& texts, bool upward) const {
        for (const SizePair& sizes : Pairs) {
            if (sizes.Letter < largest_) {
                continue;
            }
            Lines stacked{{name_, sizes.Letter}};
            std::string joined = name_;
            for (const std::string& text : texts) {
                stacked.push_back({text, sizes.Text});
                joined += "  " + text;
            }
            if (Fits(stacked, upward)) {
                return stacked;
            }
            const Lines line{{joined, sizes.Text}};
            if (sizes.Letter == sizes.Text && Fits(line, upward)) {
                return line;
            }
        }
        return std::nullopt;
    }

    bool Fits(const Lines& lines, bool upward) const {
        double height = 0;
        for (const LabelLine& line : lines) {
            height += measure_.Height(line.Size);
        }
        if (lines.size() == 1 && lines.front().Text == name_) {
            height = measure_.LetterHeight(lines.front().Size);
        }
        const double most = (upward ? height_ : width_) - 2 * measure_.Margin;
        return height <= (upward ? width_ : height_) &&
               std::all_of(lines.begin(), lines.end(), [&](const LabelLine& line) {
                   return measure_.Width(line.Text, line.Size) <= most;
               });
    }

    bool FitsEitherWay(const Lines& lines) const { return Fits(lines, false) || Fits(lines, true); }

    const ChartPiece& piece_;
    std::string name_;
    double width_;
    double height_;
    const LabelMeasure& measure_;
    std::size_t largest_;
};

} // namespace

FittedLabel FitLabel(const ChartPiece& piece, double width, double height,
                     const LabelMeasure& measure, const LabelWish& wish) {
    const auto fit = [&](std::string name, std::size_t largest) {
        return Fitter(piece, std::move(name), width, height, measure, largest).Fit();
    };
    if (!wish.Continues) {
        return fit(piece.Label, wish.Largest);
    }
    // A word is no larger than the texts.
    constexpr std::size_t TextSize = 2;
    FittedLabel label = fit(ContinuedName(piece.Label), std::max(wish.Largest, TextSize));
    return label.Lines.empty() ? fit(ShortContinuedName(piece.Label), wish.Largest) : label;
}

} // namespace tarn
