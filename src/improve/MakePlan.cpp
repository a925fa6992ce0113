#include "improve/MakePlan.h"

#include "improve/PartPlan.h"
#include "improve/PatternPlan.h"
#include "improve/WholePlan.h"

namespace tarn {

std::unique_ptr<Plan> MakePlan(const ImproveJob& job) {
    if (HasPattern(job)) {
        return std::make_unique<PatternPlan>(job);
    }
    if (AnyDivisible(job)) {
        return std::make_unique<PartPlan>(job);
    }
    return std::make_unique<WholePlan>(job);
}

} // namespace tarn
