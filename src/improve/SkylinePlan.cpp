#include "improve/SkylinePlan.h"

namespace tarn {

SkylinePlan::SkylinePlan(const ImproveJob& job)
    : job_(&job)
    , area_(TotalArea(job)) {
    laid_.Parts.reserve(job.Fills.size());
}

Area64 SkylinePlan::Unpacked(Long roof, Area64 limit) {
    // What is left free below the roof beyond the slack cannot be packed any more.
    const Area64 slack = static_cast<Area64>(job_->Width) * roof - area_;
    return LayOut({roof, slack + limit, roof, limit}) ? area_ - LastLaid().Area : limit + 1;
}

Area64 SkylinePlan::Length(Area64 limit) {
    const Area64 slack = job_->Width * limit - area_;
    return LayOut({NoWall, slack, limit, 0}) ? LastLaid().End : limit + 1;
}

bool SkylinePlan::ChangeDepartures(RandomSteps& random, std::size_t steps, std::size_t kinds) {
    constexpr std::size_t OneIn = 10;
    if (random.Below(OneIn) != 0) {
        return false;
    }
    const std::size_t kind = kinds > 1 ? random.Below(kinds) : 0;
    departures_.Change(static_cast<Departure>(kind), random, steps);
    return random.Below(2) == 0;
}

} // namespace tarn
