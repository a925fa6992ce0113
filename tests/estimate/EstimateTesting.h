// Projects, requests and estimates for tests, at random and by hand.

#pragma once

#include "base/RunTimeError.h"
#include "engine/SearchObserver.h"
#include "estimate/MakeEstimate.h"
#include "estimate/RollWidth.h"
#include "project/Project.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace tarn {

/// A cut, and with it every rectangle of these tests, in a failure's message.
inline void PrintTo(const Cut& cut, std::ostream* out) {
    *out << "{" << cut.X1 << ", " << cut.X2 << ", " << cut.Y1 << ", " << cut.Y2 << "}";
}

} // namespace tarn

namespace tarn::testing {

inline constexpr std::array<Units, 2> BothUnits{Units::Imperial, Units::Metric};
inline constexpr std::array<Lay, 2> BothLays{Lay::Down, Lay::Cross};

/// A room by its sizes, covering and base.
struct Sized {
    int Width;
    int Length;
    Byte Covering = 0;
    Byte Base = 0;

    Room AsRoom() const {
        Room room;
        room.Width = static_cast<Integer>(Width);
        room.Length = static_cast<Integer>(Length);
        room.Covering = Covering;
        room.Base = Base;
        return room;
    }
};
using Rooms = std::vector<Sized>;

inline Project ProjectOf(const Rooms& rooms) {
    Project project;
    for (const Sized& room : rooms) {
        project.Rooms.push_back(room.AsRoom());
    }
    return project;
}

/// A room of that extent across the roll and along it.
inline Sized AcrossAlong(Lay lay, int across, int along) {
    return lay == Lay::Down ? Sized{across, along} : Sized{along, across};
}

/// A roll of that many centimetres, in inches, as a metric caption gives it.
inline Single Centimetres(const std::string& figure) {
    return ReadRollWidth(figure + "cm");
}

/// What is asked for carpet 1 with the first of all options.
inline EstimateRequest Request(Single rollWidth, Lay lay = Lay::Down) {
    EstimateRequest request;
    request.RollWidth = rollWidth;
    request.Direction = lay;
    return request;
}
/// The same in metric units; the roll's width in centimetres.
inline EstimateRequest MetricRequest(const std::string& rollWidth, Lay lay = Lay::Down) {
    EstimateRequest request = Request(Centimetres(rollWidth), lay);
    request.In = Units::Metric;
    return request;
}

inline EstimateRequest WithCarpet(EstimateRequest request, Byte carpet) {
    request.Carpet = carpet;
    return request;
}
inline EstimateRequest WithParts(EstimateRequest request, MinCut shortest, Integer pieces) {
    request.ShortestPart = shortest;
    request.PiecesPerFill = pieces;
    return request;
}
inline EstimateRequest WithRepeat(EstimateRequest request, Integer across, Integer along) {
    request.Repeat = PatternRepeat{across, along};
    return request;
}

/// The whole estimate, watched by nobody.
inline Estimate EstimateOf(const Project& project, const EstimateRequest& request) {
    SearchObserver nobody;
    return MakeEstimate(project, request, nobody);
}
inline Estimate Estimated(const Rooms& rooms, const EstimateRequest& request) {
    return EstimateOf(ProjectOf(rooms), request);
}

/// The rectangle of a piece in its room.
inline Cut EdgesOf(const Piece& piece) {
    return {piece.X1, piece.X2, piece.Y1, piece.Y2};
}
inline std::vector<Cut> EdgesOf(const std::vector<Piece>& pieces) {
    std::vector<Cut> edges;
    edges.reserve(pieces.size());
    for (const Piece& piece : pieces) {
        edges.push_back(EdgesOf(piece));
    }
    return edges;
}
inline std::vector<Cut> EdgesOf(const std::vector<Placed>& layout) {
    std::vector<Cut> edges;
    edges.reserve(layout.size());
    for (const Placed& placed : layout) {
        edges.push_back(EdgesOf(placed.Part));
    }
    return edges;
}

/// A rectangle turned so that X1 and X2 are its edges across the roll.
inline Cut Turned(const Cut& box, Lay lay) {
    return lay == Lay::Down ? box : Cut{box.Y1, box.Y2, box.X1, box.X2};
}

/// Append a fill as a search leaves it: place and size on the roll in inches, down lay.
inline void AddPlaced(Estimate& estimate, Single x, Single y, Single width, Single length) {
    Piece fill;
    fill.X2 = 100 * width;
    fill.Y2 = 100 * length;
    fill.Number = static_cast<Integer>(estimate.Job.Pieces.size());
    estimate.Job.Pieces.push_back(fill);
    estimate.Fills.Layout.push_back({fill, x, y, width, length});
}

/// The run-time error that `action` raises; a failure when it raises none.
template <typename Action>
RunTimeError ErrorOf(Action action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error;
    }
    ADD_FAILURE() << "no run-time error was raised";
    return {0, ""};
}

/// A whole number `least` .. `most`, the same for equal seeds with every standard library.
inline int Between(std::mt19937& random, int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
}

/// One of the standard roll widths or an odd one, inches.
inline Single RandomRollWidth(std::mt19937& random, Units units) {
    const auto& captions = WidthCaptions(units);
    const auto choice = static_cast<std::size_t>(Between(random, 0, 5));
    if (choice < captions.size()) {
        return CaptionRollWidth(captions[choice], units);
    }
    return units == Units::Metric ? Centimetres(std::to_string(Between(random, 60, 500)))
                                  : static_cast<Single>(Between(random, 60, 800)) / 4;
}

/// Up to `most` rooms of all coverings, now and then without an area, and now and then within a
/// unit of a multiple of the roll.
inline Project RandomProject(std::mt19937& random, Units units, Single rollWidth, int most) {
    const bool metric = units == Units::Metric;
    const double roll = static_cast<double>(rollWidth) * (metric ? 2.54 : 1);
    const auto side = [&] {
        if (Between(random, 0, 3) == 0) {
            return static_cast<int>(roll * Between(random, 1, 3)) + Between(random, -1, 1);
        }
        return Between(random, 0, metric ? 1000 : 400);
    };
    Project project;
    for (int count = Between(random, 1, most); count > 0; --count) {
        const int covering = Between(random, 0, 5);
        const Sized room{side(), side(), static_cast<Byte>(covering > 1 ? 0 : 5 * covering + 1)};
        project.Rooms.push_back(room.AsRoom());
    }
    return project;
}

} // namespace tarn::testing
