#include "estimate/RoomCuts.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "project/RoomExtents.h"

namespace tarn {

namespace {

/// A strip of a room, its edges across the roll and along it.
struct Strip {
    Single Left, Right, Begin, End;
};

Cut AsCut(const Strip& strip, Lay lay) {
    return lay == Lay::Down ? Cut{strip.Left, strip.Right, strip.Begin, strip.End}
                            : Cut{strip.Begin, strip.End, strip.Left, strip.Right};
}

void AppendCut(RoomCuts& cuts, const Cut& cut) {
    if (cuts.Cuts.size() == MaxCuts) {
        RaiseSubscript("There are more than " + TrimStr(static_cast<Long>(MaxCuts)) +
                       " cuts: choose a wider roll or estimate the rooms in two projects.");
    }
    cuts.Cuts.push_back(cut);
}

void AppendFill(RoomCuts& cuts, const Cut& edges) {
    Piece fill;
    fill.X1 = edges.X1;
    fill.X2 = edges.X2;
    fill.Y1 = edges.Y1;
    fill.Y2 = edges.Y2;
    fill.Number = ToInteger(static_cast<long long>(cuts.Fills.size()));
    cuts.Fills.push_back(fill);
}

/// Whether length `a` is at least `b` (inches), or the same length.
bool IsAtLeast(Double a, Double b) {
    return IsWithinTolerance(CSng(b - a));
}

void CutRoom(RoomCuts& cuts, const RoomExtent& room, Lay lay, Double rollWidth, Double scale) {
    const Single across = lay == Lay::Down ? room.X : room.Y;
    const Single along = lay == Lay::Down ? room.Y : room.X;
    const auto edge = [&](Integer k) { return CSng((k * rollWidth) / scale); };
    Double left = static_cast<Double>(across) * scale;
    Integer k = 0;
    while (IsAtLeast(left, rollWidth)) {
        const auto next = ToInteger(k + 1);
        AppendCut(cuts, AsCut({edge(k), edge(next), 0, along}, lay));
        left -= rollWidth;
        k = next;
    }
    if (!IsWithinTolerance(CSng(left))) {
        AppendFill(cuts, AsCut({edge(k), across, 0, along}, lay));
    }
}

} // namespace

RoomCuts CutAcrossRoll(const Project& project, const EstimateRequest& request) {
    RequireExtents(project, request.In);
    RoomCuts cuts;
    for (const Room& room : project.Rooms) {
        const bool hasArea = room.Width > 0 && room.Length > 0;
        if (hasArea && room.Covering == request.Carpet) {
            CutRoom(cuts, ExtentOf(room, request.In, project.Scale), request.Direction,
                    static_cast<Double>(request.RollWidth), project.Scale);
        }
    }
    return cuts;
}

} // namespace tarn
