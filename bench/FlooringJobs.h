#pragma once

#include "estimate/RunEstimate.h"

#include <cstdint>
#include <memory>

namespace tarn {

/// A random job of an installer: the rooms of one carpet, and how they are to be estimated.
struct FlooringJob {
    int Rooms = 0;
    SharedState State;
    EstimateRequest Request;
};

/// A job of so many rooms of 3 to 20 feet (or 90 to 600 cm) a side, one in five a narrow hall,
/// always the same for a number. Standard rolls from 12 ft on; units, lays, minimum cuts and 1 to 6
/// pieces per fill take turns with the number.
std::unique_ptr<FlooringJob> RandomFlooringJob(int rooms, std::uint32_t number);

} // namespace tarn
