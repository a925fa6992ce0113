#include "improve/CourseSearch.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

constexpr std::size_t MostFills = 12;
constexpr std::size_t MostWatched = 3;
constexpr Long MostStates = 120;  ///< of watched fills, as if each had the roll for itself
constexpr Long WidestRoll = 4000; ///< widths are rounded down for a wider one
constexpr std::int64_t FirstPatience = 100; ///< relaxations for a state
constexpr std::int64_t PatienceGrowth = 5;
constexpr std::int64_t MostPatience = 1'000'000;
constexpr std::size_t AnyNumber = static_cast<std::size_t>(-1);

/// Whether a fill lies alone wherever it lies: nothing fits beside it.
bool LiesAlone(const ImproveJob& job, std::size_t fill) {
    const Long left = job.Width - job.Fills[fill].Width;
    return std::all_of(job.Fills.begin(), job.Fills.end(),
                       [&](const ImproveFill& other) { return other.Width > left; });
}

} // namespace

bool CourseSearch::CanTry(const ImproveJob& job) {
    return job.Fills.size() <= MostFills && AnyDivisible(job) && !HasPattern(job);
}

CourseSearch::CourseSearch(const ImproveJob& job, std::size_t number) {
    LeaveOutAlone(job);
    ChooseFills(number);
    BeginAgain();
}

void CourseSearch::BeginAgain() {
    trial_.reset();
    next_ = 0;
    pass_ = 1;
    patience_ = FirstPatience;
}

void CourseSearch::LeaveOutAlone(const ImproveJob& job) {
    // Whatever lies alone can be taken out, and what is before and behind it pushed together.
    const Long coarse = job.Width / WidestRoll + 1;
    job_.Width = job.Width / coarse;
    job_.MinPart = job.MinPart;
    job_.CutStep = job.CutStep;
    for (std::size_t i = 0; i < job.Fills.size(); ++i) {
        ImproveFill fill = job.Fills[i];
        if (LiesAlone(job, i)) {
            alone_ += fill.Length;
        } else if (fill.Width >= coarse) {
            fill.Width /= coarse;
            job_.Fills.push_back(fill);
        }
    }
}

void CourseSearch::ChooseFills(std::size_t number) {
    const std::size_t count = job_.Fills.size();
    for (std::size_t size = 1; size <= std::min(MostWatched, count); ++size) {
        const std::size_t first = choices_.size();
        std::vector<std::uint8_t> chosen(count);
        std::fill_n(chosen.begin(), size, std::uint8_t{1});
        do {
            std::vector<std::size_t> fills;
            Long states = 1;
            for (std::size_t fill = 0; fill < count && states <= MostStates; ++fill) {
                if (chosen[fill] != 0) {
                    fills.push_back(fill);
                    states *= 1 + std::min(PartsAllowed(job_, job_.Fills[fill]),
                                           job_.Width / job_.Fills[fill].Width);
                }
            }
            if (states <= MostStates) {
                choices_.push_back(std::move(fills));
            }
        } while (std::prev_permutation(chosen.begin(), chosen.end()));
        if (number % 2 == 1) {
            std::reverse(choices_.begin() + static_cast<std::ptrdiff_t>(first), choices_.end());
        }
    }
}

bool CourseSearch::ProvesLonger(Long roof, std::int64_t relaxations,
                                const std::function<bool()>& goOn) {
    const Area64 rest = roof - alone_;
    if (rest <= 0 || choices_.empty()) {
        return rest < 0 || (rest == 0 && !choices_.empty());
    }
    if (roof_ != rest) {
        roof_ = static_cast<Long>(rest);
        BeginAgain();
    }
    left_ = relaxations;
    goOn_ = &goOn;
    stopped_ = false;
    while (true) {
        if (!trial_) {
            trial_.emplace(job_, choices_[next_]);
        }
        const bool proven = TryStates();
        if (proven || stopped_) {
            return proven;
        }
        trial_.reset();
        ++next_;
        if (next_ == choices_.size() || choices_[next_].size() > pass_) {
            next_ = 0;
            ++pass_;
            patience_ = std::min(MostPatience, patience_ * PatienceGrowth);
        }
    }
}

bool CourseSearch::TryStates() {
    Trial& trial = *trial_;
    const Course nothing{
        {}, false, false, std::vector<Beyond>(trial.Watched.Fills().size(), Beyond::Unknown)};
    while (true) {
        leftOfState_ = patience_;
        if (trial.State == 0 && IsLonger(nothing)) {
            return true;
        }
        for (; trial.State < trial.Watched.States(); ++trial.State) {
            if (trial.Relaxation.IsOut(trial.State)) {
                continue;
            }
            const bool out = IsImpossible(trial.State);
            if (stopped_) {
                return false;
            }
            if (out) {
                trial.Relaxation.RuleOut(trial.State);
                trial.Gained = true;
            }
        }
        if (!trial.Gained) {
            return false;
        }
        trial.State = 0;
        trial.Gained = false;
    }
}

bool CourseSearch::IsImpossible(std::size_t state) {
    const std::size_t watched = trial_->Watched.Fills().size();
    leftOfState_ = patience_;
    const Course course{{state}, false, false, std::vector<Beyond>(watched, Beyond::Unknown)};
    return IsLonger(course) || EndsNowhere(course);
}

bool CourseSearch::IsLonger(const Course& course) {
    stopped_ = stopped_ || --left_ < 0 || !(*goOn_)();
    return !stopped_ && --leftOfState_ >= 0 && trial_->Relaxation.IsLonger(course, roof_);
}

bool CourseSearch::EndsNowhere(const Course& course) {
    if (stopped_ || leftOfState_ < 0 || (course.FromStart && course.ToEnd)) {
        return false;
    }
    // The side is taken at which there is less to be tried.
    Courses courses;
    if (!course.ToEnd) {
        courses = GoingOn(course, true, AnyNumber);
    }
    if (!course.FromStart && (course.ToEnd || courses.size() > 1)) {
        Courses before = GoingOn(course, false, course.ToEnd ? AnyNumber : courses.size());
        if (course.ToEnd || before.size() < courses.size()) {
            courses = std::move(before);
        }
    }
    return std::all_of(courses.begin(), courses.end(),
                       [this](const Course& longer) { return EndsNowhere(longer); });
}

CourseSearch::Courses CourseSearch::GoingOn(const Course& course, bool behind, std::size_t most) {
    Courses courses;
    Course end = course;
    (behind ? end.ToEnd : end.FromStart) = true;
    AddIfPossible(std::move(end), course, courses);
    const std::size_t edge = behind ? course.States.back() : course.States.front();
    for (std::size_t state = 0; state < trial_->Watched.States() && courses.size() < most;
         ++state) {
        if (state == edge || trial_->Relaxation.IsOut(state)) {
            continue;
        }
        Course longer = course;
        longer.States.insert(behind ? longer.States.end() : longer.States.begin(), state);
        AddIfPossible(std::move(longer), course, courses);
    }
    return courses;
}

void CourseSearch::AddIfPossible(Course course, const Course& before, Courses& courses) {
    const Watch& watch = trial_->Watched;
    for (std::size_t i = 0; i < watch.Fills().size(); ++i) {
        const Long parts = watch.PartsOf(course, i);
        const bool more = parts > watch.PartsOf(before, i);
        if (parts > watch.Most(i) || (more && course.Others[i] == Beyond::None)) {
            return;
        }
        if (more) {
            course.Others[i] = Beyond::Unknown; // those beyond it may be these
        }
    }
    AddByOthers(course, 0, courses);
}

void CourseSearch::AddByOthers(Course& course, std::size_t watched, Courses& courses) {
    const Watch& watch = trial_->Watched;
    if (watched == watch.Fills().size()) {
        if (!IsLonger(course)) {
            courses.push_back(course);
        }
        return;
    }
    const bool isOpen =
        course.Others[watched] == Beyond::Unknown && watch.PartsOf(course, watched) > 0 &&
        watch.ReachBefore(course, watched) == 0 && watch.ReachBehind(course, watched) == 0;
    if (!isOpen) {
        AddByOthers(course, watched + 1, courses);
        return;
    }
    const bool mayBeMore =
        watch.PartsOf(course, watched) < watch.Most(watched) && !(course.FromStart && course.ToEnd);
    for (const Beyond others : {Beyond::None, Beyond::Some}) {
        if (others == Beyond::None || mayBeMore) {
            course.Others[watched] = others;
            AddByOthers(course, watched + 1, courses);
        }
    }
    course.Others[watched] = Beyond::Unknown;
}

} // namespace tarn
