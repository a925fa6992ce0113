#include "improve/PartTurns.h"

#include "improve/StartOrders.h"

#include <algorithm>
#include <numeric>

namespace tarn {

namespace {

Long LargestMostParts(const ImproveJob& job) {
    Long most = 1;
    for (const ImproveFill& fill : job.Fills) {
        most = std::max(most, PartsAllowed(job, fill));
    }
    return most;
}

} // namespace

PartTurns::PartTurns(const ImproveJob& job)
    : job_(&job)
    , pattern_(HasPattern(job))
    , orders_(StartOrders(job)) {
    for (std::size_t i = 0; i < job.Fills.size(); ++i) {
        firstTurn_.push_back(turns_.size());
        unlaid_.push_back({turns_.size(), job.Fills[i].Length});
        const Long parts = PartsAllowed(job, job.Fills[i]);
        if (parts > 1) {
            divisible_.push_back(i);
        }
        for (Long part = 0; part < parts; ++part) {
            turns_.push_back({i, 0, PartCut::Rest, 0});
        }
    }
    firstTurn_.push_back(turns_.size());
    states_ = unlaid_;
}

std::size_t PartTurns::Orders() const {
    return orders_.size() * static_cast<std::size_t>(LargestMostParts(*job_));
}

void PartTurns::Begin(std::size_t order) {
    const auto equalParts = static_cast<Long>(order / orders_.size()) + 1;
    const std::vector<std::size_t>& fills = orders_[order % orders_.size()];
    for (std::size_t place = 0; place < fills.size(); ++place) {
        const std::size_t fill = fills[place];
        const auto turns = static_cast<Long>(firstTurn_[fill + 1] - firstTurn_[fill]);
        const Long parts = std::min(turns, equalParts);
        const Long share = (job_->Fills[fill].Length + parts - 1) / parts;
        const Long step = job_->CutStep;
        for (std::size_t turn = firstTurn_[fill]; turn < firstTurn_[fill + 1]; ++turn) {
            turns_[turn] = {fill, static_cast<Long>(place),
                            parts > 1 ? PartCut::OfLength : PartCut::Rest,
                            (share + step - 1) / step * step};
        }
    }
    changes_ = 0;
    states_ = unlaid_;
}

void PartTurns::LayNone() {
    open_.resize(job_->Fills.size());
    std::iota(open_.begin(), open_.end(), std::size_t{0});
    states_ = unlaid_;
}

void PartTurns::TakeOff(std::size_t fill, Long length) {
    Advance(fill, length);
    if (states_[fill].Rest == 0) {
        open_.erase(std::find(open_.begin(), open_.end(), fill));
    }
}

std::size_t PartTurns::SomeTurnOf(RandomSteps& random, std::size_t fill) const {
    const std::size_t first = firstTurn_[fill];
    const std::size_t last = std::min(states_[fill].Turn, firstTurn_[fill + 1] - 1);
    return first + random.Below(last - first + 1);
}

std::size_t PartTurns::SomeTurn(RandomSteps& random) const {
    return SomeTurnOf(random, random.Below(job_->Fills.size()));
}

Long PartTurns::SomeLength(RandomSteps& random, const ImproveFill& fill) const {
    const auto other = [&] { return job_->Fills[random.Below(job_->Fills.size())].Length; };
    Long length = 0;
    switch (random.Below(5)) {
    case 0:
        length = fill.Length / static_cast<Long>(2 + random.Below(3));
        break;
    case 1:
        length = other();
        break;
    case 2:
        length = fill.Length - other();
        break;
    case 3:
        length = other(); // in this order with every compiler
        length -= other();
        break;
    default:
        length = static_cast<Long>(random.Below(static_cast<std::size_t>(fill.Length)));
        break;
    }
    return std::max(job_->CutStep, WholeSteps(std::clamp(length, job_->MinPart, fill.Length)));
}

void PartTurns::ChangeRule(RandomSteps& random) {
    const std::size_t fill = divisible_[random.Below(divisible_.size())];
    const std::size_t number = SomeTurnOf(random, fill);
    changed_[0] = number;
    before_[0] = turns_[number];
    changes_ = 1;
    PartTurn& turn = turns_[number];
    turn.Rule = static_cast<PartCut>(random.Below(4));
    if (turn.Rule == PartCut::OfLength) {
        turn.Length = SomeLength(random, job_->Fills[fill]);
    }
    if (pattern_) {
        turn.FromEnd = random.Below(2) == 0;
    }
}

void PartTurns::ChangePlaces(RandomSteps& random) {
    changed_ = {SomeTurn(random), SomeTurn(random)};
    before_ = {turns_[changed_[0]], turns_[changed_[1]]};
    changes_ = 2;
    std::swap(turns_[changed_[0]].Place, turns_[changed_[1]].Place);
}

void PartTurns::Change(RandomSteps& random) {
    // How fills are divided matters more than their order, but for what a pattern leaves of that.
    constexpr std::size_t Quarters = 4;
    const auto changesRule = [&] {
        return pattern_ ? random.Below(3) == 0 : random.Below(Quarters) > 0;
    };
    if (!divisible_.empty() && changesRule()) {
        ChangeRule(random);
    } else {
        ChangePlaces(random);
    }
}

void PartTurns::Undo() {
    for (std::size_t i = changes_; i > 0; --i) {
        turns_[changed_.at(i - 1)] = before_.at(i - 1);
    }
}

} // namespace tarn
