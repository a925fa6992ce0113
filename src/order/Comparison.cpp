#include "order/Comparison.h"

#include "base/Format.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>

namespace tarn {

namespace {

constexpr Long NarrowFillInches = 6;
constexpr Long NarrowFillCentimetres = 15;
constexpr std::array<Long, 4> StandardMetricRolls{183, 366, 411, 457};

constexpr Double InchesInSquareYard = 1296;

/// A sum of money with two places, halves away from zero.
Double RoundedPrice(Double price) {
    return Val(Format(price, "###0.00"));
}

/// "rooms" of a note, each once.
std::string RoomList(const Project& project, const std::vector<Long>& rooms) {
    std::string text;
    for (const Long room : rooms) {
        text += (text.empty() ? "" : ", ") + RoomText(project, room);
    }
    return text;
}

/// The rooms of the strips for which `holds` is true, each once and in their order.
template <typename Holds>
std::vector<Long> RoomsWhere(const std::vector<OrderStrip>& strips, Holds holds) {
    std::vector<Long> rooms;
    for (const OrderStrip& strip : strips) {
        if (holds(strip) && (rooms.empty() || rooms.back() != strip.Room)) {
            rooms.push_back(strip.Room);
        }
    }
    return rooms;
}

/// Whether a metric roll was given in feet and so came out just short of a standard one.
bool IsShortOfStandard(const RollChoice& roll, Long width, Units units) {
    const bool inFeet = roll.AsTyped.find('\'') != std::string::npos ||
                        UpperCaseLetters(roll.AsTyped).find("FT") != std::string::npos;
    return units == Units::Metric && inFeet &&
           std::find(StandardMetricRolls.begin(), StandardMetricRolls.end(), width + 1) !=
               StandardMetricRolls.end();
}

std::vector<Saying> NotesOf(const Project& project, const OrderRequest& request,
                            const OrderCandidate& candidate,
                            const std::vector<OrderStrip>& strips) {
    std::vector<Saying> notes;
    const std::vector<Long> tight = RoomsWhere(strips, [&](const OrderStrip& strip) {
        return strip.Number == strip.Count - 1 && strip.Width < strip.NetWidth + request.TrimAcross;
    });
    if (!tight.empty()) {
        notes.push_back(
            Said([&] { return Words("Less trim than asked for: %1.", RoomList(project, tight)); }));
    }
    const Long narrow = request.In == Units::Metric ? NarrowFillCentimetres : NarrowFillInches;
    const std::vector<Long> slivers = RoomsWhere(strips, [&](const OrderStrip& strip) {
        return strip.Count > 1 && strip.NetWidth < std::min(narrow, candidate.UsableWidth);
    });
    if (!slivers.empty()) {
        notes.push_back(Said([&] {
            return Words("A fill narrower than %1: %2.", OrderLengthText(narrow, request.In),
                         RoomList(project, slivers));
        }));
    }
    if (request.TrimAlong == 0 && request.TrimAcross == 0) {
        notes.push_back(Said([] { return Words("Nothing is allowed for trimming."); }));
    }
    const RollChoice& roll = request.Rolls.at(candidate.Roll);
    if (IsShortOfStandard(roll, candidate.RollWidth, request.In)) {
        notes.push_back(Said([&] {
            return Words("The roll of %1 counts as %2, a centimetre short of the standard one.",
                         roll.AsTyped, OrderLengthText(candidate.RollWidth, request.In));
        }));
    }
    return notes;
}

const OrderStrip& StripOf(const std::vector<OrderStrip>& strips, const OrderPiece& piece) {
    return *std::lower_bound(strips.begin(), strips.end(), std::pair(piece.Room - 1, piece.Strip),
                             [](const OrderStrip& strip, const auto& wanted) {
                                 return std::pair(strip.Room, strip.Number) < wanted;
                             });
}

/// What decides once prices or areas are equal.
std::int64_t JoinedLength(const OrderFigures& figures) {
    return figures.SideSeams.Length + figures.CrossJoins.Length;
}

} // namespace

std::int64_t LengthToOrder(Long needed, const OrderRequest& request) {
    constexpr std::int64_t Hundred = 1000000; ///< percent, in whole numbers
    constexpr Double PerPercent = 10000;
    constexpr Double Negligible = 1e-6;
    const auto drift =
        static_cast<std::int64_t>(std::ceil(DriftOf(request) * PerPercent - Negligible));
    const std::int64_t raised = (needed * (Hundred + drift) + Hundred - 1) / Hundred;
    return (raised + request.Step - 1) / request.Step * request.Step;
}

OrderFigures FiguresOf(const Project& project, const OrderRequest& request,
                       const OrderCandidate& candidate, const std::vector<OrderStrip>& strips,
                       Long least) {
    OrderFigures figures;
    for (const OrderPiece& piece : candidate.Pieces) {
        figures.LengthNeeded = std::max(figures.LengthNeeded, piece.Y + piece.Length);
        if (piece.Part > 1) {
            ++figures.CrossJoins.Count;
            figures.CrossJoins.Length += StripOf(strips, piece).NetWidth;
        }
    }
    figures.LeastLength = least;
    figures.Length = LengthToOrder(figures.LengthNeeded, request);
    figures.AreaBought = figures.Length * candidate.RollWidth;
    for (const OrderStrip& strip : strips) {
        const std::int64_t along = strip.NetLength;
        figures.AreaRooms += along * strip.NetWidth;
        figures.AreaRoomsTrimmed += static_cast<std::int64_t>(strip.Length) * strip.Width;
        if (strip.Number > 0) {
            ++figures.SideSeams.Count;
            figures.SideSeams.Length += along;
        }
    }
    const auto bought = static_cast<Double>(figures.AreaBought);
    figures.WastePercent = (bought - static_cast<Double>(figures.AreaRooms)) / bought * 100;
    if (const auto price = request.Rolls.at(candidate.Roll).Price) {
        figures.Price = RoundedPrice(
            *price * bought /
            (request.In == Units::Metric ? CentimetresInSquareMetre : InchesInSquareYard));
    }
    figures.Notes = NotesOf(project, request, candidate, strips);
    return figures;
}

std::optional<std::size_t> BestOf(const std::vector<OrderCandidate>& candidates) {
    const bool priced = std::all_of(candidates.begin(), candidates.end(), [](const auto& each) {
        return !each.Figures || each.Figures->Price.has_value();
    });
    const auto worth = [&](const OrderFigures& figures) {
        return std::make_tuple(priced ? *figures.Price : static_cast<Double>(figures.AreaBought),
                               JoinedLength(figures));
    };
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (candidates[i].Figures &&
            (!best || worth(*candidates[i].Figures) < worth(*candidates[*best].Figures))) {
            best = i;
        }
    }
    return best;
}

bool IsBest(const Order& order, std::size_t row) {
    return BestOf(order.Candidates) == row;
}

} // namespace tarn
