#include "estimate/RoomCuts.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
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

void AppendCut(RoomCuts& cuts, Cut cut, Integer room) {
    if (cuts.Cuts.size() == MaxCuts) {
        RaiseSubscript(Words("There are more than %1 cuts: choose a wider roll or estimate the "
                             "rooms in two projects.",
                             TrimStr(static_cast<Long>(MaxCuts))));
    }
    cut.Room = room;
    cuts.Cuts.push_back(cut);
}

void AppendFill(RoomCuts& cuts, const Cut& edges, Integer room) {
    Piece fill;
    fill.X1 = edges.X1;
    fill.X2 = edges.X2;
    fill.Y1 = edges.Y1;
    fill.Y2 = edges.Y2;
    fill.Number = ToInteger(static_cast<long long>(cuts.Fills.size()));
    fill.Room = room;
    cuts.Fills.push_back(fill);
}

/// Whether length `a` is at least `b` (inches), or the same length.
bool IsAtLeast(Double a, Double b) {
    return IsWithinTolerance(CSng(b - a));
}

void CutRoom(RoomCuts& cuts, Integer number, const RoomExtent& room, const EstimateRequest& request,
             Double scale) {
    const Lay lay = request.Direction;
    const auto rollWidth = static_cast<Double>(request.RollWidth);
    const Single across = lay == Lay::Down ? room.X : room.Y;
    const Single along = lay == Lay::Down ? room.Y : room.X;
    const auto edge = [&](Integer k) { return CSng((k * rollWidth) / scale); };
    Double left = static_cast<Double>(across) * scale;
    Integer k = 0;
    while (IsAtLeast(left, rollWidth)) {
        const auto next = ToInteger(k + 1);
        AppendCut(cuts, AsCut({edge(k), edge(next), 0, along}, lay), number);
        left -= rollWidth;
        k = next;
    }
    if (!IsWithinTolerance(CSng(left))) {
        AppendFill(cuts, AsCut({edge(k), across, 0, along}, lay), number);
    }
}

} // namespace

RoomCuts CutAcrossRoll(const Project& project, const EstimateRequest& request) {
    RequireExtents(project, request.In);
    RoomCuts cuts;
    for (std::size_t i = 0; i < project.Rooms.size(); ++i) {
        const Room& room = project.Rooms[i];
        const bool hasArea = room.Width > 0 && room.Length > 0;
        if (hasArea && room.Covering == request.Carpet) {
            CutRoom(cuts, ToInteger(static_cast<long long>(i)),
                    ExtentOf(room, request.In, project.Scale), request, project.Scale);
        }
    }
    return cuts;
}

} // namespace tarn
