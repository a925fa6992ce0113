#include "improve/ExactSearch.h"

#include <algorithm>
#include <numeric>

namespace tarn {

namespace {

/// A share of the cases that one choice of places across may take for the places along.
constexpr std::int64_t AlongShare = 8;

ImproveJob Sorted(const ImproveJob& job, const std::vector<std::size_t>& order) {
    ImproveJob sorted;
    sorted.Width = job.Width;
    for (const std::size_t fill : order) {
        sorted.Fills.push_back(job.Fills[fill]);
    }
    return sorted;
}

std::vector<std::size_t> LongestFirst(const ImproveJob& job) {
    std::vector<std::size_t> order(job.Fills.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const ImproveFill& first = job.Fills[a];
        const ImproveFill& second = job.Fills[b];
        return first.Length != second.Length ? first.Length > second.Length
                                             : first.Width > second.Width;
    });
    return order;
}

bool AreEqual(const ImproveFill& a, const ImproveFill& b) {
    return a.Width == b.Width && a.Length == b.Length;
}

} // namespace

bool ExactSearch::CanDecide(const ImproveJob& job) {
    return !job.Fills.empty() && !AnyDivisible(job) && !HasPattern(job);
}

ExactSearch::ExactSearch(const ImproveJob& job)
    : job_(&job)
    , sorted_(Sorted(job, LongestFirst(job)))
    , fillOf_(LongestFirst(job))
    , asBefore_(job.Fills.size())
    , along_(sorted_) {
    // The largest that has no equal lies in the left half: the order of equals says another thing.
    Area64 largest = 0;
    for (std::size_t i = 0; i < fillOf_.size(); ++i) {
        const ImproveFill& fill = sorted_.Fills[i];
        const bool asBefore = i > 0 && AreEqual(fill, sorted_.Fills[i - 1]);
        asBefore_[i] = asBefore ? 1 : 0;
        const bool hasNext = i + 1 < fillOf_.size() && AreEqual(fill, sorted_.Fills[i + 1]);
        const Area64 area = static_cast<Area64>(fill.Width) * fill.Length;
        if (!asBefore && !hasNext && area > largest) {
            largest = area;
            mirrored_ = i;
        }
    }
}

ExactAnswer ExactSearch::Decide(Long roof, std::int64_t cases, const std::function<bool()>& goOn) {
    roof_ = roof;
    for (const ImproveFill& fill : sorted_.Fills) {
        if (fill.Length > roof || fill.Width > job_->Width) {
            return ExactAnswer::None;
        }
    }
    measures_ = LengthMeasures(sorted_, roof, MostMeasures);
    if (std::any_of(measures_.begin(), measures_.end(),
                    [](const LengthMeasure& measure) { return measure.Spare < 0; })) {
        return ExactAnswer::None;
    }
    load_.assign(measures_.size(), 0);
    x_.assign(fillOf_.size(), 0);
    laid_.assign(fillOf_.size(), 0);
    over_.clear();
    count_ = 0;
    cases_ = 0;
    mostCases_ = cases;
    goOn_ = &goOn;
    stopped_ = gaveUp_ = false;
    if (Begin(0, 0)) {
        return ExactAnswer::Found;
    }
    return stopped_ || gaveUp_ ? ExactAnswer::Unknown : ExactAnswer::None;
}

std::vector<ImprovePart> ExactSearch::Layout() const {
    std::vector<ImprovePart> parts;
    for (std::size_t piece = 0; piece < fillOf_.size(); ++piece) {
        parts.push_back(
            {fillOf_[piece], x_[piece], along_.Places()[piece], sorted_.Fills[piece].Length});
    }
    return parts;
}

bool ExactSearch::CountCase() {
    ++cases_;
    if (cases_ > mostCases_ || (cases_ % CasesPerStep == 0 && !(*goOn_)())) {
        stopped_ = true;
    }
    return !stopped_;
}

bool ExactSearch::MayBegin(std::size_t piece, Long x) const {
    const Long width = sorted_.Fills[piece].Width;
    if (laid_[piece] != 0 || x + width > job_->Width ||
        (asBefore_[piece] != 0 && laid_[piece - 1] == 0) ||
        (piece == mirrored_ && 2 * x > job_->Width - width)) {
        return false;
    }
    for (std::size_t i = 0; i < measures_.size(); ++i) {
        if (load_[i] + measures_[i].Of[piece] > measures_[i].Roof) {
            return false;
        }
    }
    return true;
}

void ExactSearch::Put(std::size_t piece, Long x) {
    laid_[piece] = 1;
    x_[piece] = x;
    over_.push_back(piece);
    ++count_;
    for (std::size_t i = 0; i < measures_.size(); ++i) {
        load_[i] += measures_[i].Of[piece];
    }
}

void ExactSearch::TakeBack(std::size_t piece) {
    laid_[piece] = 0;
    over_.pop_back();
    --count_;
    for (std::size_t i = 0; i < measures_.size(); ++i) {
        load_[i] -= measures_[i].Of[piece];
    }
}

bool ExactSearch::Begin(std::size_t first, Long x) {
    if (!CountCase()) {
        return false;
    }
    for (std::size_t piece = first; piece < fillOf_.size(); ++piece) {
        if (!MayBegin(piece, x)) {
            continue;
        }
        Put(piece, x);
        if (Begin(piece + 1, x)) {
            return true;
        }
        TakeBack(piece);
        if (stopped_) {
            return false;
        }
    }
    return Close(x);
}

bool ExactSearch::Close(Long x) {
    if (count_ == fillOf_.size()) {
        return LayAlong();
    }
    Long next = job_->Width;
    for (const std::size_t piece : over_) {
        next = std::min(next, x_[piece] + sorted_.Fills[piece].Width);
    }
    if (over_.empty() || next >= job_->Width) {
        return false;
    }
    const bool found = Spend(x, next) && RestMayFit(next) && GoOn(next);
    GiveBack(x, next);
    return found;
}

bool ExactSearch::Spend(Long x, Long next) {
    bool enough = true;
    for (std::size_t i = 0; i < measures_.size(); ++i) {
        measures_[i].Spare -= (measures_[i].Roof - load_[i]) * (next - x);
        enough = enough && measures_[i].Spare >= 0;
    }
    return enough;
}

void ExactSearch::GiveBack(Long x, Long next) {
    for (std::size_t i = 0; i < measures_.size(); ++i) {
        measures_[i].Spare += (measures_[i].Roof - load_[i]) * (next - x);
    }
}

bool ExactSearch::RestMayFit(Long x) const {
    const Long width = job_->Width;
    for (std::size_t piece = 0; piece < fillOf_.size(); ++piece) {
        if (laid_[piece] == 0 &&
            (x + sorted_.Fills[piece].Width > width ||
             (piece == mirrored_ && 2 * x > width - sorted_.Fills[piece].Width))) {
            return false;
        }
    }
    // Pieces wider than half of what is left cover columns in its middle in any case.
    const auto covers = [&](std::size_t piece, Long column) {
        return width - sorted_.Fills[piece].Width <= column &&
               x + sorted_.Fills[piece].Width > column;
    };
    for (std::size_t wide = 0; wide < fillOf_.size(); ++wide) {
        const Long column = width - sorted_.Fills[wide].Width;
        if (laid_[wide] != 0 || !covers(wide, column)) {
            continue;
        }
        Area64 length = 0;
        for (std::size_t piece = 0; piece < fillOf_.size(); ++piece) {
            const bool isOver = laid_[piece] != 0 ? x_[piece] + sorted_.Fills[piece].Width > column
                                                  : covers(piece, column);
            length += isOver ? sorted_.Fills[piece].Length : 0;
        }
        if (length > roof_) {
            return false;
        }
    }
    return true;
}

bool ExactSearch::GoOn(Long x) {
    const std::vector<std::size_t> over = over_;
    const std::vector<Area64> load = load_;
    over_.clear();
    for (const std::size_t piece : over) {
        if (x_[piece] + sorted_.Fills[piece].Width > x) {
            over_.push_back(piece);
            continue;
        }
        for (std::size_t i = 0; i < measures_.size(); ++i) {
            load_[i] -= measures_[i].Of[piece];
        }
    }
    const bool found = Begin(0, x);
    over_ = over;
    load_ = load;
    return found;
}

bool ExactSearch::LayAlong() {
    const std::int64_t most = cases_ + mostCases_ / AlongShare;
    bool tooMany = false;
    const std::function<bool()> goOn = [&] {
        tooMany = cases_ > most;
        return !tooMany && CountCase();
    };
    const bool found = along_.Find(x_, roof_, goOn);
    gaveUp_ = gaveUp_ || tooMany;
    return found;
}

} // namespace tarn
