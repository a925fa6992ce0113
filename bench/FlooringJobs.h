#pragma once

#include "estimate/EstimateRequest.h"
#include "project/Project.h"

#include <cstdint>

namespace tarn {

/// A random job of an installer: the rooms of one carpet, and how they are to be estimated.
struct FlooringJob {
    Project Rooms;
    EstimateRequest Request;
};

/// A job of so many rooms of 3 to 20 feet (or 90 to 600 cm) a side, always the same for a number.
/// Standard rolls from 12 ft on; units, lays, minimum cuts and 1 to 6 pieces per fill take turns
/// with the number.
FlooringJob RandomFlooringJob(int rooms, std::uint32_t number);

} // namespace tarn
