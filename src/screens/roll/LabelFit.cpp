#include "screens/roll/LabelFit.h"

#include <algorithm>
#include <optional>

namespace tarn {

namespace {

using Lines = std::vector<LabelLine>;

/// The sizes of the letter and of what follows it, places in LabelSizes.
struct SizePair {
    std::size_t Letter;
    std::size_t Text;
};
constexpr std::array<SizePair, 4> Pairs{{{0, 2}, {1, 2}, {2, 2}, {3, 3}}};

/// Finds the label for one box.
class Fitter {
  public:
    Fitter(const ChartPiece& piece, double width, double height, const LabelMeasure& measure)
        : piece_(piece)
        , width_(width)
        , height_(height)
        , measure_(measure) {}

    FittedLabel Fit() const {
        // What has no room for its letter has none for more.
        const std::size_t least = LabelSizes.size() - 1;
        if (!FitsEitherWay({{piece_.Label, least}})) {
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
            Lines stacked{{piece_.Label, sizes.Letter}};
            std::string joined = piece_.Label;
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
        if (lines.size() == 1 && lines.front().Text == piece_.Label) {
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
    double width_;
    double height_;
    const LabelMeasure& measure_;
};

} // namespace

FittedLabel FitLabel(const ChartPiece& piece, double width, double height,
                     const LabelMeasure& measure) {
    return Fitter(piece, width, height, measure).Fit();
}

} // namespace tarn
