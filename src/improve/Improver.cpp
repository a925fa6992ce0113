#include "improve/Improver.h"

#include "improve/Bounds.h"
#include "improve/ColumnGeneration.h"
#include "improve/CourseSearch.h"
#include "improve/ExactSearch.h"
#include "improve/MakePlan.h"
#include "improve/PatternBounds.h"
#include "improve/Searches.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace tarn {

namespace {

constexpr Double FirstEffort = 3000;       ///< steps from one start in the first round
constexpr Double FirstPatternEffort = 500; ///< with a pattern, whose layouts take longer to try
constexpr Double EffortGrowth = 1.5;       ///< a round
constexpr Double ShortenShare = 0.05;      ///< of the steps from one start
constexpr Double PolishShare = 0.05;
constexpr Double RelaxationShare = 0.2;    ///< of the seconds of a run at most
constexpr std::size_t MostDecided = 40;    ///< fills up to which an exact search is tried
constexpr Double DecideShare = 4;          ///< of the steps from one start, for an exact search
constexpr Double RefuteShare = 1;          ///< of the steps from one start, for proofs by courses
constexpr Double FewRefuteShare = 3;       ///< where layouts are found soon, proofs later
constexpr Double FewOthersRefuteShare = 8; ///< of all searches but the first
constexpr Double MostRefutedGap = 0.01; ///< of the bound: what is farther off is not the least yet
constexpr std::size_t FillsSoonLaid = 6;
constexpr int StepsPerRelaxation = 8; ///< which takes about so much longer
constexpr std::size_t StartsPerRoof = 4;
constexpr std::size_t BestStarts = 12;     ///< that take turns
constexpr std::int64_t LastPolish = 20000; ///< steps without a gain, when no layout is shorter

class Improver {
  public:
    Improver(ImproveRun& run, std::uint64_t seed, std::size_t number)
        : run_(run)
        , number_(number)
        , next_(number * StartsPerRoof)
        , random_(seed)
        , plan_(MakePlan(run.Job())) {
        if (ExactSearch::CanDecide(run.Job()) && run.Job().Fills.size() <= MostDecided) {
            exact_.emplace(run.Job());
        }
        if (CourseSearch::CanTry(run.Job())) {
            courses_.emplace(run.Job(), number);
        }
    }

    void Search() {
        run_.RaiseBound(QuickBound(run_.Job()));
        starts_ = RankedStarts(run_, *plan_);
        if (number_ == 0 && !run_.IsLeast() && !run_.Stopped()) {
            RaiseBounds();
        }

        for (int round = static_cast<int>(number_); !run_.IsLeast() && !run_.Stopped(); ++round) {
            LowerRoof();
            DecideRoof(round);
            RefuteRoof();
            if (!run_.Stopped()) {
                ShortenStarts(round);
            }
            PolishBest(Steps(PolishShare));
            effort_ *= EffortGrowth;
        }
        PolishBest(LastPolish);
    }

  private:
    std::int64_t Steps(Double share) const { return static_cast<std::int64_t>(effort_ * share); }

    void RaiseBounds() {
        const Double seconds = run_.Limits().Seconds;
        const Double end = run_.Passed() + RelaxationShare * seconds;
        const auto goOn = [&] { return run_.Ask() && (seconds <= 0 || run_.Passed() < end); };
        if (HasPattern(run_.Job())) {
            run_.RaiseBound(PatternBound(run_.Job(), run_.Best().Length, goOn));
        }
        if (!run_.IsLeast() && !run_.Stopped()) {
            run_.RaiseBound(BarRelaxationBound(run_.Job(), run_.Bound(), goOn));
        }
    }

    /// Look for the lowest roof between the bound and the best below which all can be packed.
    void LowerRoof() {
        Long low = 0;
        while ((low = std::max(low, run_.Bound())) < run_.Best().Length && !run_.Stopped()) {
            const Long roof = low + (run_.Best().Length - 1 - low) / 2;
            if (!PackFromAny(roof)) {
                low = roof + 1;
            }
        }
    }

    /// Look for a shorter layout, or the proof that there is none, by trying everything. The last
    /// roof below the best is asked about, and every other time, for what it is worth, the bound or
    /// one in the middle, which take less to be decided.
    void DecideRoof(int round) {
        bool goOn = exact_.has_value();
        while (goOn && !run_.IsLeast() && !run_.Stopped()) {
            const Long low = run_.Bound();
            const Long high = run_.Best().Length - 1;
            constexpr int Turns = 4;
            const Long lower = round % Turns == 1 ? low : low + (high - low) / 2;
            const Long roof = round % 2 == 0 ? high : lower;
            const std::int64_t cases = Steps(DecideShare) * ExactSearch::CasesPerStep;
            const ExactAnswer answer =
                exact_->Decide(roof, cases, [&] { return run_.Spend() && IsOpen(run_, roof); });
            if (answer == ExactAnswer::Found) {
                run_.Offer(exact_->Layout());
            } else if (answer == ExactAnswer::None) {
                run_.RaiseBound(roof + 1);
            }
            goOn = answer != ExactAnswer::Unknown || !IsOpen(run_, roof);
        }
    }

    /// Look for a proof that no layout is shorter, where fills may be divided.
    void RefuteRoof() {
        const bool few = run_.Job().Fills.size() <= FillsSoonLaid;
        const Double ofFew = number_ == 0 ? FewRefuteShare : FewOthersRefuteShare;
        const std::int64_t steps = Steps(few ? ofFew : RefuteShare);
        const Long gap = run_.Best().Length - run_.Bound();
        bool proven = courses_.has_value() && gap <= MostRefutedGap * run_.Bound();
        while (proven && !run_.IsLeast() && !run_.Stopped()) {
            const Long roof = run_.Best().Length - 1;
            const auto goOn = [&] {
                bool more = true;
                for (int step = 0; step < StepsPerRelaxation && more; ++step) {
                    more = run_.Spend();
                }
                return more && IsOpen(run_, roof);
            };
            proven = courses_->ProvesLonger(roof, steps / StepsPerRelaxation, goOn);
            if (proven) {
                run_.RaiseBound(roof + 1);
            }
        }
    }

    bool PackFromAny(Long roof) {
        const bool wasOpen = IsOpen(run_, roof);
        const auto goOn = [&] { return !run_.Stopped() && IsOpen(run_, roof) == wasOpen; };
        for (std::size_t i = 0; i < StartsPerRoof && goOn(); ++i) {
            const PlanStart& start = starts_[next_++ % std::min(BestStarts, starts_.size())];
            if (PackBelow(run_, *plan_, start, roof, Steps(1), random_)) {
                best_ = plan_->Copy();
                return true;
            }
        }
        return false;
    }

    /// Look for a better layout of the best length, where there can be one.
    void PolishBest(std::int64_t steps) {
        const LayoutMerit& best = run_.Best();
        if (best.Length < run_.RulesBound() || best.Parts == 0 || run_.Stopped()) {
            return;
        }
        if (HaveBest() && !run_.Stopped()) {
            Polish(run_, *best_, run_.Best().Length, steps, random_);
        }
    }

    /// Have a plan that packs all below the best length. The one of a roof lowered earlier may be
    /// longer than what was found since by other ways, or there was none.
    bool HaveBest() {
        const Long length = run_.Best().Length;
        return (best_ && best_->Unpacked(length, 0) == 0) || PackFromAny(length);
    }

    void ShortenStarts(int round) {
        const std::size_t count = std::min(BestStarts, starts_.size());
        const std::size_t start = static_cast<std::size_t>(round) % count;
        Shorten(run_, *plan_, starts_[start], Steps(ShortenShare), random_);
    }

    ImproveRun& run_;
    std::size_t number_; ///< of several searches
    std::size_t next_;   ///< start
    RandomSteps random_;
    std::unique_ptr<Plan> plan_;
    std::optional<ExactSearch> exact_;    ///< for small jobs
    std::optional<CourseSearch> courses_; ///< for those with divided fills
    std::vector<PlanStart> starts_;
    std::unique_ptr<Plan> best_; ///< the last that packed all below a roof
    Double effort_ = HasPattern(run_.Job()) ? FirstPatternEffort : FirstEffort;
};

} // namespace

void Improve(ImproveRun& run, std::uint64_t seed, std::size_t number) {
    if (!run.Job().Fills.empty()) {
        Improver(run, seed, number).Search();
    }
}

} // namespace tarn
