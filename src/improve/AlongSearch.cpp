#include "improve/AlongSearch.h"

#include <algorithm>

namespace tarn {

AlongSearch::AlongSearch(const ImproveJob& job)
    : job_(&job)
    , y_(job.Fills.size())
    , first_(job.Fills.size())
    , end_(job.Fills.size()) {}

void AlongSearch::Divide(const std::vector<Long>& x) {
    x_ = x;
    std::vector<Long> edges = x;
    for (std::size_t fill = 0; fill < x.size(); ++fill) {
        edges.push_back(x[fill] + job_->Fills[fill].Width);
    }
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    const auto numberOf = [&](Long edge) {
        return static_cast<std::size_t>(std::lower_bound(edges.begin(), edges.end(), edge) -
                                        edges.begin());
    };
    top_.assign(edges.size(), 0);
    rest_.assign(edges.size(), 0);
    for (std::size_t fill = 0; fill < x.size(); ++fill) {
        first_[fill] = numberOf(x[fill]);
        end_[fill] = numberOf(x[fill] + job_->Fills[fill].Width);
        for (std::size_t strip = first_[fill]; strip < end_[fill]; ++strip) {
            rest_[strip] += job_->Fills[fill].Length;
        }
    }
}

bool AlongSearch::Find(const std::vector<Long>& x, Long roof, const std::function<bool()>& goOn) {
    Divide(x);
    goOn_ = &goOn;
    stopped_ = false;
    roof_ = roof;
    std::fill(y_.begin(), y_.end(), -1);
    nexts_.clear();
    tops_.clear();
    return RestFitsAbove(0) && Lay(0, {0, 0});
}

bool AlongSearch::RestFitsAbove(Long y) const {
    for (std::size_t strip = 0; strip < top_.size(); ++strip) {
        if (rest_[strip] > 0 && std::max(top_[strip], y) + rest_[strip] > roof_) {
            return false;
        }
    }
    return true;
}

bool AlongSearch::Lay(std::size_t count, Next last) {
    if (count == y_.size()) {
        return true;
    }
    stopped_ = stopped_ || !(*goOn_)();
    if (stopped_) {
        return false;
    }
    const std::size_t begin = nexts_.size();
    for (std::size_t fill = 0; fill < y_.size(); ++fill) {
        if (y_[fill] >= 0) {
            continue;
        }
        const auto strips = top_.begin() + static_cast<std::ptrdiff_t>(first_[fill]);
        const Long y =
            *std::max_element(strips, top_.begin() + static_cast<std::ptrdiff_t>(end_[fill]));
        if (y > last.Y || (y == last.Y && (count == 0 || x_[fill] > x_[last.Fill]))) {
            nexts_.push_back({y, fill});
        }
    }
    std::sort(
        nexts_.begin() + static_cast<std::ptrdiff_t>(begin), nexts_.end(),
        [](const Next& a, const Next& b) { return a.Y != b.Y ? a.Y < b.Y : a.Fill < b.Fill; });
    bool found = false;
    for (std::size_t i = begin; i < nexts_.size() && !found && !stopped_; ++i) {
        const Next next = nexts_[i];
        if (!RestFitsAbove(next.Y)) {
            break; // those behind it lie higher still
        }
        const std::size_t kept = tops_.size();
        Put(next);
        found = Lay(count + 1, next);
        if (!found) {
            TakeBack(next, tops_.data() + kept);
            tops_.resize(kept);
        }
    }
    nexts_.resize(begin);
    return found;
}

void AlongSearch::Put(const Next& next) {
    const Long length = job_->Fills[next.Fill].Length;
    y_[next.Fill] = next.Y;
    for (std::size_t strip = first_[next.Fill]; strip < end_[next.Fill]; ++strip) {
        tops_.push_back(top_[strip]);
        top_[strip] = next.Y + length;
        rest_[strip] -= length;
    }
}

void AlongSearch::TakeBack(const Next& next, const Long* tops) {
    y_[next.Fill] = -1;
    for (std::size_t strip = first_[next.Fill]; strip < end_[next.Fill]; ++strip) {
        top_[strip] = *tops++;
        rest_[strip] += job_->Fills[next.Fill].Length;
    }
}

} // namespace tarn
