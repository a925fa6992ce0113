#include "improve/Course.h"

#include <algorithm>
#include <utility>

namespace tarn {

Watch::Watch(const ImproveJob& job, std::vector<std::size_t> fills)
    : job_(&job)
    , fills_(std::move(fills)) {
    for (const std::size_t fill : fills_) {
        most_.push_back(PartsAllowed(job, job.Fills[fill]));
    }
    std::vector<Long> state(fills_.size(), 0);
    AddStates(state, 0, job.Width);
}

void Watch::AddStates(std::vector<Long>& state, std::size_t watched, Long room) {
    if (watched == fills_.size()) {
        states_.push_back(state);
        room_.push_back(room);
        return;
    }
    const Long width = job_->Fills[fills_[watched]].Width;
    for (Long parts = 0; parts <= most_[watched] && parts * width <= room; ++parts) {
        state[watched] = parts;
        AddStates(state, watched + 1, room - parts * width);
    }
    state[watched] = 0;
}

Long Watch::PartsOf(const Course& course, std::size_t watched) const {
    Long parts = 0;
    Long last = 0;
    for (const std::size_t state : course.States) {
        parts += std::max(0, PartsIn(state, watched) - last);
        last = PartsIn(state, watched);
    }
    return parts;
}

Long Watch::ReachBefore(const Course& course, std::size_t watched) const {
    return course.States.empty() || course.FromStart ? 0 : PartsIn(course.States.front(), watched);
}

Long Watch::ReachBehind(const Course& course, std::size_t watched) const {
    return course.States.empty() || course.ToEnd ? 0 : PartsIn(course.States.back(), watched);
}

std::vector<PartInCourse> Watch::WholeParts(const Course& course) const {
    std::vector<PartInCourse> parts;
    for (std::size_t watched = 0; watched < fills_.size(); ++watched) {
        AddWholeParts(course, watched, parts);
    }
    return parts;
}

void Watch::AddWholeParts(const Course& course, std::size_t watched,
                          std::vector<PartInCourse>& parts) const {
    std::vector<std::size_t> begins;
    std::vector<std::size_t> ends;
    const std::size_t count = course.States.size();
    const Long before = ReachBefore(course, watched);
    Long last = before;
    for (std::size_t i = 0; i < count; ++i) {
        const Long now = PartsIn(course.States[i], watched);
        begins.insert(begins.end(), static_cast<std::size_t>(std::max(0, now - last)), i);
        ends.insert(ends.end(), static_cast<std::size_t>(std::max(0, last - now)), i);
        last = now;
    }
    if (course.ToEnd) {
        ends.insert(ends.end(), static_cast<std::size_t>(last), count);
    }
    // Those that reach in from before end first.
    for (std::size_t i = 0; i < begins.size(); ++i) {
        const std::size_t end = i + static_cast<std::size_t>(before);
        if (end < ends.size()) {
            parts.push_back({watched, begins[i], ends[end]});
        }
    }
}

} // namespace tarn
