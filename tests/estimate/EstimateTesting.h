#pragma once

#include "app/RunTimeError.h"
#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "engine/EstOptions.h"
#include "engine/SearchObserver.h"
#include "estimate/CarpetEstimate.h"
#include "estimate/RollWidth.h"
#include "estimate/RunEstimate.h"
#include "rooms/RoomExtents.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace tarn::testing {

/// A room as entered: whole inches, or whole centimetres in a metric job.
struct Room {
    int Width;
    int Length;
    Byte Carpet = 0;
    Byte Base = 0;
};

/// One carpet's estimate with all that it works on.
struct Job {
    SharedState State;
    EngineArrays Engine;
    CarpetEstimate Estimate;

    explicit Job(bool metric = false, std::initializer_list<Room> rooms = {}) {
        State.MetricFlag = metric ? 1 : 0;
        for (const Room& room : rooms) {
            Add(room);
        }
    }

    void Add(const Room& room) {
        const Integer row = State.ObjNum;
        State.RoomWidth[row] = static_cast<Integer>(room.Width);
        State.RoomLength[row] = static_cast<Integer>(room.Length);
        State.RoomCarpet[row] = room.Carpet;
        State.RoomBase[row] = room.Base;
        State.ObjNum = static_cast<Integer>(row + 1);
    }
};

inline Job Imperial(std::initializer_list<Room> rooms) {
    return Job(false, rooms);
}
inline Job Metric(std::initializer_list<Room> rooms) {
    return Job(true, rooms);
}

inline constexpr std::array<bool, 2> BothUnits{false, true};
inline constexpr std::array<bool, 2> BothLays{true, false}; ///< down lay, cross lay

/// A room of that extent across the roll and along it.
inline Room AcrossAlong(bool downLay, int across, int along) {
    return downLay ? Room{across, along} : Room{along, across};
}

/// A roll of that many centimetres, in inches, as a metric caption gives it.
inline Single Centimetres(const std::string& figure) {
    return ReadRollWidth(figure + "cm");
}

/// Cut the rooms of `carpet`, their extents rebuilt, from a roll of `rollWidth` inches.
inline ConvertResult Cut(Job& job, Single rollWidth, bool downLay, Byte carpet = 0) {
    BuildAllRoomExtents(job.State);
    job.Engine.RollWidth = rollWidth;
    job.Engine.LayDir = downLay ? 0 : 1;
    job.Estimate.CarpetNo = carpet;
    return ConvertData(job.State, job.Engine, job.Estimate, downLay);
}

inline EstimateRequest Request(Single rollWidth, bool downLay = true, Integer estOption = 0) {
    EstimateRequest request;
    request.RollWidth = rollWidth;
    request.DownLay = downLay;
    request.EstOption = estOption;
    return request;
}

/// The whole estimate, watched by nobody.
inline ConvertResult MakeEstimate(Job& job, const EstimateRequest& request) {
    SearchObserver nobody;
    return RunEstimate(job.State, job.Engine, job.Estimate, request, nobody);
}

/// A rectangle in coordinate units: left, right, top, bottom.
using Corners = std::array<Single, 4>;

inline std::vector<Corners> Cuts(const Job& job) {
    std::vector<Corners> cuts;
    for (Integer i = 0; i < job.State.ECutCount; ++i) {
        cuts.push_back(
            {job.State.ECutX1[i], job.State.ECutX2[i], job.State.ECutY1[i], job.State.ECutY2[i]});
    }
    return cuts;
}

inline std::vector<Corners> RowsOf(const PieceRows& rows, Integer count) {
    std::vector<Corners> pieces;
    for (Integer i = 0; i < count; ++i) {
        pieces.push_back({rows.PCX1[i], rows.PCX2[i], rows.PCY1[i], rows.PCY2[i]});
    }
    return pieces;
}

inline std::vector<Corners> Pieces(const Job& job) {
    return RowsOf(job.Engine, job.Engine.PieceCount);
}

/// A rectangle turned so that left and right are its edges across the roll.
inline Corners Turned(const Corners& box, bool downLay) {
    return downLay ? box : Corners{box[2], box[3], box[0], box[1]};
}

/// Append a piece as a search leaves it: size and place on the roll in inches, down lay.
inline void AddPlaced(Job& job, Corners placed) {
    EngineArrays& engine = job.Engine;
    const Integer row = engine.PieceCount;
    engine.PCX2[row] = 100 * placed[2];
    engine.PCY2[row] = 100 * placed[3];
    engine.OrgPC[row] = row;
    engine.PosX[row] = placed[0];
    engine.PosY[row] = placed[1];
    engine.PosW[row] = placed[2];
    engine.PosL[row] = placed[3];
    engine.PieceCount = static_cast<Integer>(row + 1);
    engine.PosCount = engine.PieceCount;
    SaveFill(engine, job.Estimate);
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

inline void ExpectEmpty(const Job& job) {
    EXPECT_EQ(job.State.ECutCount, 0);
    EXPECT_EQ(job.Engine.PieceCount, 0);
    EXPECT_EQ(job.Engine.OrgCount, 0);
    EXPECT_EQ(job.Engine.PosCount, 0);
    EXPECT_EQ(job.Engine.CaseCount, 0);
    EXPECT_EQ(job.Engine.BestLen, 0);
    EXPECT_EQ(job.Engine.BestMode, 0);
    EXPECT_EQ(job.Engine.ResultLen, 0);
    EXPECT_EQ(job.Estimate.SavedFillCount, 0);
}

/// A whole number `least` .. `most`, the same for equal seeds with every standard library.
inline int Between(std::mt19937& random, int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
}

/// One of the standard roll widths or an odd one, inches.
inline Single RandomRollWidth(std::mt19937& random, bool metric) {
    const auto& captions = WidthCaptions(metric);
    const auto choice = static_cast<std::size_t>(Between(random, 0, 5));
    if (choice < captions.size()) {
        return CaptionRollWidth(captions[choice], metric);
    }
    return metric ? Centimetres(std::to_string(Between(random, 60, 500)))
                  : static_cast<Single>(Between(random, 60, 800)) / 4;
}

/// Up to `most` rooms of all coverings, now and then without an area, and now and then within a
/// unit of a multiple of the roll.
inline void AddRandomRooms(Job& job, std::mt19937& random, Single rollWidth, int most) {
    const bool metric = job.State.IsMetric();
    const double roll = static_cast<double>(rollWidth) * (metric ? 2.54 : 1);
    const auto side = [&] {
        if (Between(random, 0, 3) == 0) {
            return static_cast<int>(roll * Between(random, 1, 3)) + Between(random, -1, 1);
        }
        return Between(random, 0, metric ? 1000 : 400);
    };
    for (int count = Between(random, 1, most); count > 0; --count) {
        const int covering = Between(random, 0, 5);
        job.Add({side(), side(), static_cast<Byte>(covering > 1 ? 0 : 5 * covering + 1)});
    }
}

} // namespace tarn::testing
