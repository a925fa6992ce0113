#include "files/RollDxf.h"

#include "base/Lengths.h"
#include "base/Text.h"
#include "base/Words.h"
#include "estimate/CutList.h"
#include "estimate/FillLabels.h"
#include "estimate/RollPlaces.h"
#include "files/Dxf.h"
#include "files/OutputFile.h"
#include "order/OrderWords.h"
#include "order/SheetText.h"
#include "project/Coverings.h"
#include "project/OrderLengths.h"
#include "project/ShortRoomName.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

/// A piece as it is drawn.
struct DrawnPiece {
    std::array<std::string, 3> Lines; ///< letters, size, room
    Double Along = 0;                 ///< where it begins, from the start of the roll
    Double Across = 0;                ///< and from its edge
    Double Length = 0;                ///< along the roll
    Double Width = 0;
};

/// How much wider than a third of its height a letter of the plainest face may be.
constexpr Double LetterAdvance = 1.0;
constexpr Double LineAdvance = 1.5; ///< from one line to the next, of the letters' height
constexpr Double UsedOfPiece = 0.9; ///< what the writing may take of each side

Double LargestLetters(Units units) {
    return units == Units::Metric ? 15 : 6;
}

/// The height of letters in which the lines fit into a space.
Double FittingHeight(const DrawnPiece& piece, Double wide, Double high) {
    long long letters = 1;
    for (const std::string& line : piece.Lines) {
        letters = std::max(letters, Len(line));
    }
    const auto lines = static_cast<Double>(piece.Lines.size());
    return std::min(wide / (static_cast<Double>(letters) * LetterAdvance),
                    high / (lines * LineAdvance)) *
           UsedOfPiece;
}

/// Draws a roll and what lies on it.
class RollDrawer {
  public:
    RollDrawer(Units units, Double length, Double width, Double selvage)
        : dxf_(units, {{RollLayer, 3}, {PieceLayer, 7}, {TextLayer, 1}})
        , largest_(LargestLetters(units))
        , width_(width) {
        dxf_.AddRectangle(RollLayer, {0, 0}, {length, width});
        if (selvage > 0) {
            for (const Double across : {selvage, width - selvage}) {
                dxf_.AddLine(RollLayer, {0, across}, {length, across});
            }
        }
    }

    /// Write what the roll is above it.
    void AddTitle(const std::string& title) {
        dxf_.AddText(TextLayer,
                     {title, {0, width_ + largest_}, largest_, 0, DxfAnchor::LeftOfBaseline});
    }

    void Add(const DrawnPiece& piece) {
        const DxfPoint low{piece.Along, piece.Across};
        const DxfPoint high{piece.Along + piece.Length, piece.Across + piece.Width};
        dxf_.AddRectangle(PieceLayer, low, high);
        const Double lying = FittingHeight(piece, piece.Length, piece.Width);
        const Double standing = FittingHeight(piece, piece.Width, piece.Length);
        const bool isStanding = standing > lying && lying < largest_;
        const Double height = std::min(isStanding ? standing : lying, largest_);
        // The first line is the upper one, or, standing, the left one.
        Double offset = LineAdvance * height;
        for (const std::string& line : piece.Lines) {
            const DxfPoint middle{(low.X + high.X) / 2 - (isStanding ? offset : 0),
                                  (low.Y + high.Y) / 2 + (isStanding ? 0 : offset)};
            if (height > 0) {
                dxf_.AddText(TextLayer, {line, middle, height, isStanding ? 90.0 : 0.0});
            }
            offset -= LineAdvance * height;
        }
    }

    std::string Document() const { return dxf_.Document(); }

  private:
    DxfDocument dxf_;
    Double largest_; ///< letters
    Double width_;
};

/// A room's name as it is written on a piece.
std::string WrittenRoom(const Project& project, std::size_t place) {
    constexpr long long Most = 32;
    return FirstCharacters(ShortRoomName(project, place), Most);
}

/// What the roll is: project, carpet, roll and length.
std::string Title(const std::string& project, Byte carpet, const std::string& roll,
                  const std::string& length) {
    return OneLine(ShownText(CoveringTitle(project, carpet)) + ", " + ShownText(roll) + ", " +
                   length);
}

/// Draws the roll of an estimate; everything is inches until it is drawn.
class EstimateDrawer {
  public:
    EstimateDrawer(const Estimate& estimate, const Project& project)
        : estimate_(estimate)
        , project_(project)
        , places_(PlacesOnRoll(estimate))
        , drawer_(estimate.Request.In, InUnit(places_.Length),
                  InUnit(static_cast<Double>(estimate.Request.RollWidth)), 0) {}

    std::string Document() {
        for (std::size_t i = 0; i < estimate_.Cuts.size(); ++i) {
            const Cut& cut = estimate_.Cuts[i];
            Add({CutLabel(i), SizeOf(estimate_, cut),
                 WrittenRoom(project_, static_cast<std::size_t>(cut.Room))},
                SizeOnRollOf(estimate_, cut), 0, places_.Cuts[i]);
        }
        for (const Placed& placed : estimate_.Fills.Layout) {
            const Piece& piece = placed.Part;
            Add({LabelOf(estimate_, piece), SizeOf(estimate_, piece),
                 WrittenRoom(project_, static_cast<std::size_t>(piece.Room))},
                SizeOnRollOf(estimate_, piece), static_cast<Double>(placed.X),
                places_.Fills + static_cast<Double>(placed.Y));
        }
        const EstimateRequest& request = estimate_.Request;
        const Double width = static_cast<Double>(request.RollWidth);
        drawer_.AddTitle(
            Title(estimate_.ProjectName, request.Carpet,
                  Shown(width) + (request.Direction == Lay::Cross ? ", cross" : ", down"),
                  Shown(places_.Length)));
        return drawer_.Document();
    }

  private:
    Double InUnit(Double inches) const {
        return estimate_.Request.In == Units::Metric ? inches * CentimetresPerInch : inches;
    }
    std::string Shown(Double inches) const {
        const Units units = estimate_.Request.In;
        return OrderLengthText(
            units == Units::Metric ? WholeCentimetres(inches) : WholeInches(inches), units);
    }
    void Add(std::array<std::string, 3> lines, const SizeOnRoll& size, Double across,
             Double along) {
        drawer_.Add({std::move(lines), InUnit(along), InUnit(across), InUnit(size.Along),
                     InUnit(size.Across)});
    }

    const Estimate& estimate_;
    const Project& project_;
    RollPlaces places_;
    RollDrawer drawer_;
};

} // namespace

std::string OrderDxf(const OrderDocument& document) {
    const Order& order = document.Orders.front();
    if (!order.Best) {
        throw OutputFileError(Words("There is no roll to draw: every roll and lay is refused."));
    }
    const OrderCandidate& row = order.Candidates.at(*order.Best);
    const Units units = order.Request.In;
    const auto length = static_cast<Double>(row.Figures->Length);
    const auto selvage = static_cast<Double>(order.Request.Selvage);
    RollDrawer drawer(units, length, row.RollWidth, selvage);
    for (const OrderPiece& piece : row.Pieces) {
        const std::string size =
            WholeLengthText(piece.Width, units) + " X " + WholeLengthText(piece.Length, units);
        drawer.Add({{piece.Label, size,
                     WrittenRoom(document.Of, static_cast<std::size_t>(piece.Room - 1))},
                    static_cast<Double>(piece.Y),
                    selvage + piece.X,
                    static_cast<Double>(piece.Length),
                    static_cast<Double>(piece.Width)});
    }
    drawer.AddTitle(Title(document.Of.Name, order.Carpet, CandidateName(order, row),
                          OrderLengthText(static_cast<Long>(row.Figures->Length), units)));
    return drawer.Document();
}

std::string EstimateDxf(const Estimate& estimate, const Project& project) {
    return EstimateDrawer(estimate, project).Document();
}

} // namespace tarn
