#include "improve/CourseRelaxation.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarn {

namespace {

constexpr Double WorthOfOne = 1e7; ///< prices in whole numbers
constexpr Double NegligibleLength = 1e-6;
constexpr std::size_t MostTries = 400; ///< columns
constexpr std::size_t MostKnown = 300; ///< cross sections

std::size_t AsSize(Long number) {
    return static_cast<std::size_t>(number);
}

} // namespace

CourseRelaxation::CourseRelaxation(const ImproveJob& job, const Watch& watch)
    : job_(&job)
    , watch_(&watch)
    , isWatched_(job.Fills.size())
    , out_(watch.States()) {
    for (const std::size_t fill : watch.Fills()) {
        isWatched_[fill] = 1;
    }
    for (std::size_t fill = 0; fill < job.Fills.size(); ++fill) {
        const Long width = job.Fills[fill].Width;
        most_.push_back(std::min(PartsAllowed(job, job.Fills[fill]), job.Width / width));
        Long left = isWatched_[fill] != 0 ? 0 : most_.back();
        for (Long parts = 1; left > 0; parts *= 2) {
            bundles_.push_back({fill, std::min(parts, left), std::min(parts, left) * width});
            left -= bundles_.back().Parts;
        }
    }
    taken_.resize(bundles_.size() * (AsSize(job.Width) + 1));
}

bool CourseRelaxation::IsLonger(const Course& course, Long roof) {
    LookBeyond(course);
    if (!MakeRows(course)) {
        return true;
    }
    const auto goOn = [] { return true; };
    CoveringSimplex simplex(rows_.Demand, rows_.Copies);
    for (std::size_t tries = 0; tries < MostTries; ++tries) {
        simplex.RemoveNegativePrices(rows_.Demand.size(), goOn);
        if (simplex.Total() <= roof + NegligibleLength) {
            return false;
        }
        TakePrices(simplex.Prices());
        std::optional<Best> best = BestKnown(course);
        if (!best) {
            best = BestOfAll(course);
            if (ProvesLonger(*best, roof)) {
                return true;
            }
            // Prices that no column exceeds (but for their rounding) are the least.
            const auto rounding = static_cast<std::int64_t>(rows_.Demand.size());
            if (best->Worth <= static_cast<std::int64_t>(WorthOfOne) + rounding) {
                return false;
            }
            if (known_.size() == MostKnown) {
                known_.erase(known_.begin(), known_.begin() + MostKnown / 2);
            }
            known_.push_back(best->At);
        }
        if (!simplex.Enter(ColumnOf(course, *best))) {
            return false;
        }
    }
    return false;
}

void CourseRelaxation::LookBeyond(const Course& course) {
    const std::vector<std::size_t>& fills = watch_->Fills();
    const bool isThere = !course.FromStart || !course.ToEnd;
    std::vector<Long> left;
    for (std::size_t i = 0; i < fills.size(); ++i) {
        const Long reach = std::max(watch_->ReachBefore(course, i), watch_->ReachBehind(course, i));
        const Long more = watch_->Most(i) - watch_->PartsOf(course, i) + reach;
        left.push_back(course.Others[i] == Beyond::None ? 0 : more);
    }
    beyond_.clear();
    mostBeyond_.assign(most_.size(), 0);
    for (std::size_t state = 0; isThere && state < watch_->States(); ++state) {
        bool fits = !IsOut(state);
        for (std::size_t i = 0; i < fills.size(); ++i) {
            fits = fits && watch_->PartsIn(state, i) <= left[i];
        }
        if (!fits) {
            continue;
        }
        beyond_.push_back(state);
        for (std::size_t i = 0; i < fills.size(); ++i) {
            Long& most = mostBeyond_[fills[i]];
            most = std::max(most, watch_->PartsIn(state, i));
        }
        for (const Bundle& bundle : bundles_) {
            const Long beside = watch_->Room(state) / job_->Fills[bundle.Fill].Width;
            Long& most = mostBeyond_[bundle.Fill];
            most = std::max(most, std::min(most_[bundle.Fill], beside));
        }
    }
}

bool CourseRelaxation::MakeRows(const Course& course) {
    rows_ = Rows();
    if (!AddFillRows(course)) {
        return false;
    }
    AddCourseRows(course);
    for (const std::size_t watched : rows_.Some) {
        if (mostBeyond_[watch_->Fills()[watched]] == 0) {
            return false;
        }
    }
    return true;
}

bool CourseRelaxation::AddFillRows(const Course& course) {
    std::vector<Long> most = mostBeyond_;
    for (const std::size_t state : course.States) {
        for (std::size_t i = 0; i < watch_->Fills().size(); ++i) {
            Long& own = most[watch_->Fills()[i]];
            own = std::max(own, watch_->PartsIn(state, i));
        }
        for (const Bundle& bundle : bundles_) {
            const Long beside = watch_->Room(state) / job_->Fills[bundle.Fill].Width;
            most[bundle.Fill] = std::max(most[bundle.Fill], std::min(most_[bundle.Fill], beside));
        }
    }
    for (std::size_t fill = 0; fill < most.size(); ++fill) {
        rows_.Demand.push_back(job_->Fills[fill].Length);
        rows_.Copies.push_back(most[fill]);
    }
    return std::find(most.begin(), most.end(), 0) == most.end();
}

void CourseRelaxation::AddCourseRows(const Course& course) {
    rows_.FirstWhole = rows_.Demand.size();
    rows_.Whole = watch_->WholeParts(course);
    for (const PartInCourse& part : rows_.Whole) {
        const Long length = job_->Fills[watch_->Fills()[part.Watched]].Length;
        const bool undivided = watch_->Most(part.Watched) == 1;
        rows_.Demand.push_back(undivided ? length : std::min(length, job_->MinPart));
        rows_.Copies.push_back(1);
    }
    rows_.FirstSome = rows_.Demand.size();
    for (std::size_t i = 0; i < course.Others.size(); ++i) {
        if (course.Others[i] == Beyond::Some) {
            rows_.Some.push_back(i);
            rows_.Demand.push_back(job_->MinPart);
            rows_.Copies.push_back(std::max(1, mostBeyond_[watch_->Fills()[i]]));
        }
    }
    rows_.FirstStretch = rows_.Demand.size();
    rows_.Demand.resize(rows_.FirstStretch + course.States.size(), 1);
    rows_.Copies.resize(rows_.Demand.size(), 1);
}

void CourseRelaxation::TakePrices(const std::vector<Double>& prices) {
    worth_.clear();
    for (const Double price : prices) {
        const Double scaled = std::floor(price * WorthOfOne);
        worth_.push_back(static_cast<std::int64_t>(std::clamp(scaled, 0.0, WorthOfOne)));
    }
    beyondMore_.assign(watch_->Fills().size(), 0);
    for (std::size_t i = 0; i < rows_.Some.size(); ++i) {
        beyondMore_[rows_.Some[i]] = worth_[rows_.FirstSome + i];
    }
    alongMore_.assign(worth_.begin() + static_cast<std::ptrdiff_t>(rows_.FirstStretch),
                      worth_.end());
    for (std::size_t i = 0; i < rows_.Whole.size(); ++i) {
        const PartInCourse& part = rows_.Whole[i];
        for (std::size_t stretch = part.First; stretch < part.End; ++stretch) {
            alongMore_[stretch] += worth_[rows_.FirstWhole + i];
        }
    }
}

std::int64_t CourseRelaxation::WorthAt(const Course& course, std::size_t place,
                                       const Section& section) const {
    std::int64_t worth = 0;
    for (std::size_t fill = 0; fill < section.Parts.size(); ++fill) {
        worth += section.Parts[fill] * worth_[fill];
    }
    if (place < course.States.size()) {
        return worth + alongMore_[place];
    }
    for (std::size_t i = 0; i < beyondMore_.size(); ++i) {
        worth += watch_->PartsIn(section.State, i) * beyondMore_[i];
    }
    return worth;
}

std::optional<CourseRelaxation::Best> CourseRelaxation::BestKnown(const Course& course) const {
    const std::size_t stretches = course.States.size();
    auto most =
        static_cast<std::int64_t>(WorthOfOne) + static_cast<std::int64_t>(rows_.Demand.size());
    const Section* section = nullptr;
    std::size_t where = 0;
    for (const Section& known : known_) {
        for (std::size_t place = 0; place <= stretches; ++place) {
            const bool fits = place < stretches
                                  ? course.States[place] == known.State
                                  : std::binary_search(beyond_.begin(), beyond_.end(), known.State);
            if (!fits) {
                continue;
            }
            const std::int64_t worth = WorthAt(course, place, known);
            if (worth > most) {
                most = worth;
                section = &known;
                where = place;
            }
        }
    }
    return section != nullptr ? std::optional(Best{most, where, *section}) : std::nullopt;
}

CourseRelaxation::Best CourseRelaxation::BestOfAll(const Course& course) {
    PackUnwatched();
    const std::size_t stretches = course.States.size();
    Best best;
    const auto look = [&](std::size_t place, std::size_t state) {
        std::int64_t worth = best_[AsSize(watch_->Room(state))];
        worth += place < stretches ? alongMore_[place] : 0;
        for (std::size_t i = 0; i < watch_->Fills().size(); ++i) {
            const std::int64_t more = place < stretches ? 0 : beyondMore_[i];
            worth += watch_->PartsIn(state, i) * (worth_[watch_->Fills()[i]] + more);
        }
        if (worth > best.Worth) {
            best.Worth = worth;
            best.Place = place;
            best.At.State = state;
        }
    };
    for (std::size_t place = 0; place < stretches; ++place) {
        look(place, course.States[place]);
    }
    for (const std::size_t state : beyond_) {
        look(stretches, state);
    }
    best.At.Parts.assign(most_.size(), 0);
    if (best.Worth > 0) {
        TraceBack(watch_->Room(best.At.State), best.At.Parts);
        for (std::size_t i = 0; i < watch_->Fills().size(); ++i) {
            best.At.Parts[watch_->Fills()[i]] = watch_->PartsIn(best.At.State, i);
        }
    }
    return best;
}

void CourseRelaxation::PackUnwatched() {
    const std::size_t row = AsSize(job_->Width) + 1;
    best_.assign(row, 0);
    std::fill(taken_.begin(), taken_.end(), std::uint8_t{0});
    for (std::size_t i = 0; i < bundles_.size(); ++i) {
        const std::int64_t gain = worth_[bundles_[i].Fill] * bundles_[i].Parts;
        const std::size_t wide = AsSize(bundles_[i].Width);
        for (std::size_t width = row; gain > 0 && width-- > wide;) {
            if (best_[width - wide] + gain > best_[width]) {
                best_[width] = best_[width - wide] + gain;
                taken_[i * row + width] = 1;
            }
        }
    }
}

void CourseRelaxation::TraceBack(Long room, std::vector<Long>& parts) const {
    const std::size_t row = AsSize(job_->Width) + 1;
    for (std::size_t i = bundles_.size(); i-- > 0;) {
        if (taken_[i * row + AsSize(room)] != 0) {
            parts[bundles_[i].Fill] += bundles_[i].Parts;
            room -= bundles_[i].Width;
        }
    }
}

/// No column is worth more than the best, so that all demands take at least their worth over its.
bool CourseRelaxation::ProvesLonger(const Best& best, Long roof) const {
    std::int64_t worth = 0;
    for (std::size_t row = 0; row < worth_.size(); ++row) {
        worth += worth_[row] * static_cast<std::int64_t>(rows_.Demand[row]);
    }
    return worth > best.Worth * roof;
}

std::vector<Double> CourseRelaxation::ColumnOf(const Course& course, const Best& best) const {
    std::vector<Double> column(rows_.Demand.size());
    std::copy(best.At.Parts.begin(), best.At.Parts.end(), column.begin());
    if (best.Place < course.States.size()) {
        for (std::size_t i = 0; i < rows_.Whole.size(); ++i) {
            const PartInCourse& part = rows_.Whole[i];
            column[rows_.FirstWhole + i] =
                part.First <= best.Place && best.Place < part.End ? 1 : 0;
        }
        column[rows_.FirstStretch + best.Place] = 1;
        return column;
    }
    for (std::size_t i = 0; i < rows_.Some.size(); ++i) {
        column[rows_.FirstSome + i] = watch_->PartsIn(best.At.State, rows_.Some[i]);
    }
    return column;
}

} // namespace tarn
