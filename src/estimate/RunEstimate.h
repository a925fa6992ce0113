#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "engine/SearchObserver.h"
#include "estimate/CarpetEstimate.h"

#include <optional>
#include <string>

namespace tarn {

/// What is chosen for one estimate.
struct EstimateRequest {
    Byte Carpet = 0;       ///< covering code 0..7
    Single RollWidth = 0;  ///< inches
    bool DownLay = true;   ///< else cross lay
    Integer EstOption = 0; ///< see SharedState::EstOption

    /// A pattern repeat, as typed.
    struct Repeat {
        std::string Width;
        std::string Length;
    };
    std::optional<Repeat> Match;
};

/// Rebuild the extents of the rooms and cut those of carpet CarpetNo from a roll of RollWidth, with
/// the lay LayDir. An error leaves an empty estimate. Raises as BuildAllRoomExtents and
/// ConvertData.
ConvertResult CutRooms(SharedState& state, EngineArrays& engine, CarpetEstimate& estimate);

/// The whole estimate of one carpet of the open project, as the screens make it: rebuild the
/// extents of the rooms, cut them, and search for a layout of the pieces if there are any. A search
/// that the observer stops, and an error, also one of the observer's own, leave an empty estimate.
/// Raises as ConvertData and MultiEstimate do, and "Overflow" for a pattern repeat that does not
/// fit.
ConvertResult RunEstimate(SharedState& state, EngineArrays& engine, CarpetEstimate& estimate,
                          const EstimateRequest& request, SearchObserver& observer);

} // namespace tarn
