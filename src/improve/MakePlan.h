#pragma once

#include "improve/Plan.h"

#include <memory>

namespace tarn {

/// A plan of the fastest kind that can lay out the job, which has at least one fill and must
/// outlive it.
std::unique_ptr<Plan> MakePlan(const ImproveJob& job);

} // namespace tarn
