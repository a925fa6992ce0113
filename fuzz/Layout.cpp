#include "Fuzzing.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "estimate/CutList.h"
#include "estimate/ImproveEstimate.h"
#include "estimate/MakeEstimate.h"
#include "estimate/MinCuts.h"
#include "estimate/Totals.h"

#include <cmath>
#include <map>
#include <optional>
#include <vector>

namespace tarn {
namespace {

/// Inches: lengths that differ by less are the same; and what Singles may be off where it ends.
constexpr double Tolerance = 0.005;
constexpr double Hair = 1e-3;

/// Stops a search whose cases are too many for one input.
class ShortSearch : public SearchObserver {
  public:
    bool Scored(Long done) override { return done < 3000; }
};

/// A rectangle on the roll, or of a room turned to it; inches.
struct Box {
    double Left, Right, Begin, End;

    double Area() const { return (Right - Left) * (End - Begin); }
};

Box BoxOf(const Placed& placed) {
    const auto x = static_cast<double>(placed.X);
    const auto y = static_cast<double>(placed.Y);
    return {x, x + static_cast<double>(placed.Width), y, y + static_cast<double>(placed.Length)};
}

/// The rectangle of a piece or a cut in its room, X across the roll.
template <class Rectangle>
Box InRoom(const Rectangle& piece, Lay lay) {
    const auto inches = [](Single units) { return static_cast<double>(units) * 0.01; };
    return lay == Lay::Down
               ? Box{inches(piece.X1), inches(piece.X2), inches(piece.Y1), inches(piece.Y2)}
               : Box{inches(piece.Y1), inches(piece.Y2), inches(piece.X1), inches(piece.X2)};
}

void RequireNoOverlap(const std::vector<Placed>& layout, double roll) {
    for (std::size_t i = 0; i < layout.size(); ++i) {
        const Box a = BoxOf(layout[i]);
        Require(a.Left >= -Tolerance && a.Begin >= -Tolerance && a.Right < roll + Tolerance + Hair,
                "a piece lies on the roll");
        for (std::size_t j = 0; j < i; ++j) {
            const Box b = BoxOf(layout[j]);
            const double wide = std::min(a.Right, b.Right) - std::max(a.Left, b.Left);
            const double along = std::min(a.End, b.End) - std::max(a.Begin, b.Begin);
            Require(!(wide > Tolerance + Hair && along > Tolerance + Hair),
                    "no two pieces overlap");
        }
    }
}

double AreaOfRooms(const Project& project, const EstimateRequest& request) {
    double area = 0;
    for (const Room& room : project.Rooms) {
        if (room.Covering == request.Carpet) {
            area += static_cast<double>(room.Width) * static_cast<double>(room.Length);
        }
    }
    return request.In == Units::Metric ? area / (2.54 * 2.54) : area;
}

/// Cuts and fills are the rooms' areas, and the pieces on the roll those of the fills. A sliver of
/// half a coordinate unit may be missing along each room, and shares of parts are dropped.
void RequireAreaCovered(const Project& project, const Estimate& estimate) {
    const Lay lay = estimate.Request.Direction;
    double cut = 0;
    double slack = 1;
    for (const Cut& each : estimate.Cuts) {
        cut += InRoom(each, lay).Area();
    }
    double fills = 0;
    for (const Piece& each : estimate.Job.Pieces) {
        const Box box = InRoom(each, lay);
        fills += box.Area();
        slack += (box.End - box.Begin + box.Right - box.Left) * 6 * 0.01;
    }
    for (const Room& room : project.Rooms) {
        slack += (room.Width + room.Length) * 0.02;
    }
    Require(std::abs(cut + fills - AreaOfRooms(project, estimate.Request)) < slack,
            "cuts and fills cover the rooms");
    double placed = 0;
    for (const Placed& each : estimate.Fills.Layout) {
        placed += BoxOf(each).Area();
    }
    Require(std::abs(placed - fills) < slack, "the pieces on the roll are the fills");
}

double EndOf(const std::vector<Placed>& layout) {
    double end = 0;
    for (const Placed& placed : layout) {
        end = std::max(end, BoxOf(placed).End);
    }
    return end;
}

void RequireSound(const Project& project, const Estimate& estimate) {
    RequireNoOverlap(estimate.Fills.Layout, static_cast<double>(estimate.Request.RollWidth));
    RequireAreaCovered(project, estimate);
    const double end = EndOf(estimate.Fills.Layout);
    Require(estimate.Fills.Length % 3 == 0 && estimate.Fills.Length > end - 1 &&
                estimate.Fills.Length < end + 3,
            "the length reported is the pieces' end, raised");
    Require(HasNothingToCut(estimate) == CutListLines(estimate).empty(), "what is cut is listed");
    TotalRoll(estimate);
}

void CheckImproved(const Project& project, const Estimate& estimate, std::uint64_t seed) {
    ImproveObserver nobody;
    ImproveLimits limits;
    limits.Steps = 20;
    limits.Seed = seed;
    const ImprovedEstimate improved = ImproveEstimate(estimate, limits, nobody);
    RequireSound(project, improved.Value);
    const ImproveResult& result = improved.Result;
    Require(IsWithinTolerance(result.Length - result.StartLength),
            "an improved layout is never longer");
    Require(improved.Value.Fills.Length <= estimate.Fills.Length, "no more has to be ordered");
    Require(EndOf(improved.Value.Fills.Layout) <= EndOf(estimate.Fills.Layout) + Tolerance + Hair,
            "its pieces end no later");
    Require(result.StartBelowRules || result.Bound <= static_cast<double>(result.Length) + Hair,
            "no layout is shorter than the bound");
    Require(result.Improved || improved.Value.Fills == estimate.Fills, "nothing better is the old");
}

EstimateRequest RequestFrom(FuzzInput& input) {
    EstimateRequest request;
    request.In = input.Bit() ? Units::Metric : Units::Imperial;
    request.Direction = input.Bit() ? Lay::Cross : Lay::Down;
    request.RollWidth = CSng(20 + input.Word() % 1200 / 4.0);
    request.ShortestPart = AllMinCuts[input.Choice(AllMinCuts.size())];
    request.PiecesPerFill = static_cast<Integer>(1 + input.Choice(MostPiecesPerFill));
    if (input.Bit()) {
        request.Repeat = PatternRepeat{input.Byte(), input.Byte()};
    }
    return request;
}

Project ProjectFrom(FuzzInput& input) {
    Project project;
    while (!input.IsAtEnd() && project.Rooms.size() < 12) {
        Room room;
        room.Width = static_cast<Integer>(input.Word() % 1000);
        room.Length = static_cast<Integer>(input.Word() % 1000);
        room.Covering = input.Byte() % 8 == 7 ? 9 : 0;
        project.Rooms.push_back(room);
    }
    return project;
}

std::optional<Estimate> EstimateOf(const Project& project, const EstimateRequest& request) {
    ShortSearch observer;
    try {
        return MakeEstimate(project, request, observer);
    } catch (const SearchStopped&) {
        return std::nullopt;
    } catch (const RunTimeError& error) {
        Require(error.Number() == OverflowNumber || error.Number() == SubscriptNumber,
                "an estimate is refused for its size alone");
        return std::nullopt;
    }
}

void CheckLayout(FuzzInput input) {
    const EstimateRequest request = RequestFrom(input);
    const std::uint8_t seed = input.Byte();
    const Project project = ProjectFrom(input);
    const auto estimate = EstimateOf(project, request);
    if (!estimate) {
        return;
    }
    RequireSound(project, *estimate);
    Require(EstimateOf(project, request) == estimate, "the same rooms give the same estimate");
    CheckImproved(project, *estimate, seed);
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckLayout(tarn::FuzzInput(data, size));
    return 0;
}
