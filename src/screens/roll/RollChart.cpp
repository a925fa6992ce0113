#include "screens/roll/RollChart.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Words.h"
#include "estimate/CutList.h"
#include "estimate/FillLabels.h"
#include "estimate/RollPlaces.h"
#include "order/CutLines.h"
#include "order/OrderWords.h"
#include "order/RollFold.h"
#include "project/OrderRequest.h"
#include "project/ShortRoomName.h"
#include "screens/roll/Tints.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tarn {

namespace {

/// "room 102", also of a room whose name says that it is one.
std::string RoomSpoken(const std::string& name) {
    const std::string spoken = Words("room %1", name);
    const std::string_view word = std::string_view(spoken).substr(0, spoken.find(' ') + 1);
    const bool says = UpperCaseLetters(name).starts_with(UpperCaseLetters(word));
    return says ? name : spoken;
}

/// A length in inches as text that stands by itself.
std::string SpokenLength(Double inches, Units units) {
    return OrderLengthText(units == Units::Metric ? WholeCentimetres(inches) : WholeInches(inches),
                           units);
}

std::string Described(const ChartPiece& piece, const std::string& across, const std::string& along,
                      const std::string& from, const std::string& to) {
    return Words("%1, %2 by %3, %4, from %5 to %6", piece.Label, across, along,
                 RoomSpoken(piece.Room), from, to);
}

std::string DescribedRoll(const std::string& width, const std::string& length, std::size_t pieces) {
    return CountedWords("Roll %1 wide, %2 long, %n piece", "Roll %1 wide, %2 long, %n pieces",
                        static_cast<long long>(pieces), width, length);
}

/// What the pieces leave of the roll, found to a hundredth of a unit where a Long can count so far.
std::vector<ChartSpace> SpaceAround(const std::vector<ChartPiece>& pieces, double width,
                                    double length) {
    constexpr double Finest = 100;
    constexpr double Most = std::numeric_limits<Long>::max();
    const double steps = std::clamp(std::floor(Most / std::max(width, length)), 1.0, Finest);
    const auto fine = [steps](double value) { return ToLong(std::llround(value * steps)); };
    std::vector<RollArea> taken;
    taken.reserve(pieces.size());
    for (const ChartPiece& piece : pieces) {
        taken.push_back({fine(piece.X), fine(piece.Y), fine(piece.X + piece.Width),
                         fine(piece.Y + piece.Length)});
    }
    std::vector<ChartSpace> spaces;
    for (const LeftOver& each : LeftOvers(taken, fine(width), {0, fine(length)})) {
        spaces.push_back({each.X1 / steps, each.Y1 / steps, (each.X2 - each.X1) / steps,
                          (each.Y2 - each.Y1) / steps});
    }
    return spaces;
}

/// Makes the chart of an estimate.
class EstimateCharter {
  public:
    EstimateCharter(const Estimate& estimate, const Project& project)
        : estimate_(estimate)
        , project_(project)
        , units_(estimate.Request.In)
        , places_(PlacesOnRoll(estimate)) {}

    RollChart Chart() {
        const auto width = static_cast<Double>(estimate_.Request.RollWidth);
        chart_.In = units_;
        chart_.RollWidth = InUnit(width);
        chart_.Length = InUnit(places_.Length);
        for (std::size_t i = 0; i < estimate_.Cuts.size(); ++i) {
            AddCut(i);
        }
        for (const Placed& placed : estimate_.Fills.Layout) {
            AddFill(placed);
        }
        GiveTints(chart_.Pieces, rooms_);
        chart_.LeftOver = SpaceAround(chart_.Pieces, chart_.RollWidth, chart_.Length);
        chart_.Description =
            DescribedRoll(SpokenLength(width, units_), SpokenLength(places_.Length, units_),
                          chart_.Pieces.size());
        AddLines();
        return std::move(chart_);
    }

  private:
    double InUnit(Double inches) const {
        return units_ == Units::Metric ? inches * CentimetresPerInch : inches;
    }

    void AddCut(std::size_t number) {
        ChartPiece piece;
        piece.Label = CutLabel(number);
        piece.Size = SizeOf(estimate_, estimate_.Cuts[number]);
        Add(std::move(piece), SizeOnRollOf(estimate_, estimate_.Cuts[number]), 0,
            places_.Cuts[number], estimate_.Cuts[number].Room);
    }

    void AddFill(const Placed& placed) {
        ChartPiece piece;
        piece.Label = LabelOf(estimate_, placed.Part);
        piece.Size = SizeOf(estimate_, placed.Part);
        Add(std::move(piece), SizeOnRollOf(estimate_, placed.Part), static_cast<Double>(placed.X),
            places_.Fills + static_cast<Double>(placed.Y), placed.Part.Room);
    }

    void Add(ChartPiece piece, const SizeOnRoll& size, Double x, Double y, Integer ofRoom) {
        const auto room = static_cast<std::size_t>(ofRoom);
        piece.Room = ShortRoomName(project_, room);
        piece.X = InUnit(x);
        piece.Y = InUnit(y);
        piece.Width = InUnit(size.Across);
        piece.Length = InUnit(size.Along);
        const auto spoken = [&](Double inches) { return SpokenLength(inches, units_); };
        piece.Description = Described(piece, spoken(size.Across), spoken(size.Along), spoken(y),
                                      spoken(y + size.Along));
        chart_.Pieces.push_back(std::move(piece));
        rooms_.push_back(room);
    }

    void AddLines() {
        for (const CutListLine& item : CutListItems(estimate_)) {
            ChartLine line{item.Text, item.Cut};
            if (item.Piece) {
                line.Piece = estimate_.Cuts.size() + *item.Piece;
            }
            chart_.Lines.push_back(std::move(line));
        }
    }

    const Estimate& estimate_;
    const Project& project_;
    Units units_;
    RollPlaces places_;
    RollChart chart_;
    std::vector<std::size_t> rooms_; ///< of the pieces
};

/// A piece of an order in one line. Most pieces begin at the edge: that is not said.
std::string LineText(const CutLine& line, bool isAtEdge) {
    std::string text = isAtEdge ? Words("%1: %2  %3  %4 to %5", line.Label, line.Size, line.Room,
                                        line.From, line.To)
                                : Words("%1: %2  %3  %4 to %5, across %6", line.Label, line.Size,
                                        line.Room, line.From, line.To, line.Across);
    for (const std::string& more : {line.Which, line.Match}) {
        if (!more.empty()) {
            text += ", " + more;
        }
    }
    return OneLine(text);
}

} // namespace

RollChart ChartOf(const Estimate& estimate, const Project& project) {
    return HasNothingToCut(estimate) ? RollChart() : EstimateCharter(estimate, project).Chart();
}

RollChart ChartOf(const Order& order, std::size_t candidate, const Project& project) {
    const OrderCandidate& row = order.Candidates.at(candidate);
    RollChart chart;
    if (!row.Figures || row.Pieces.empty()) {
        return chart;
    }
    const Units units = order.Request.In;
    const auto length = ToLong(row.Figures->Length);
    chart.In = units;
    chart.RollWidth = row.RollWidth;
    chart.Length = length;
    const std::vector<CutLine> lines = CutLines(project, order.Request, row);
    chart.Description = DescribedRoll(OrderLengthText(row.RollWidth, units),
                                      OrderLengthText(length, units), row.Pieces.size());
    chart.Lines = {{OneLine(CandidateName(order, row)), {}}, {chart.Description, {}}};
    std::vector<std::size_t> rooms;
    for (std::size_t i = 0; i < row.Pieces.size(); ++i) {
        const OrderPiece& from = row.Pieces[i];
        const auto room = static_cast<std::size_t>(from.Room - 1);
        const auto spoken = [&](Long value) { return OrderLengthText(value, units); };
        ChartPiece piece;
        piece.Label = from.Label;
        piece.Size = lines[i].Size;
        piece.Room = ShortRoomName(project, room);
        piece.X = order.Request.Selvage + from.X;
        piece.Y = from.Y;
        piece.Width = from.Width;
        piece.Length = from.Length;
        piece.Description = Described(piece, spoken(from.Width), spoken(from.Length),
                                      spoken(from.Y), spoken(from.Y + from.Length));
        chart.Lines.push_back({LineText(lines[i], from.X == 0), i});
        chart.Pieces.push_back(std::move(piece));
        rooms.push_back(room);
    }
    GiveTints(chart.Pieces, rooms);
    chart.LeftOver = SpaceAround(chart.Pieces, chart.RollWidth, chart.Length);
    return chart;
}

} // namespace tarn
