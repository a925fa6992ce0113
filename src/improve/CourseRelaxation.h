#pragma once

#include "improve/Course.h"
#include "improve/CoveringSimplex.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarn {

/// How long a roll is at least in which the watched fills of a job take a course.
///
/// As the bar relaxation, of which this is the stricter sister, but for the watched fills: along
/// each stretch of the course the cross sections have the parts of its state, a part that begins
/// and ends in the course is no shorter than the minimum part, no more parts lie beyond the course
/// than the fill has left, and those are no shorter either. Beyond the course no state occurs that
/// was ruled out. All other fills are divided at will.
///
/// The prices come from a simplex in Double; what is said is computed from them in whole numbers.
class CourseRelaxation {
  public:
    /// `job` and `watch` must outlive this. No fill is as narrow as 0.
    CourseRelaxation(const ImproveJob& job, const Watch& watch);

    void RuleOut(std::size_t state) { out_[state] = 1; }
    bool IsOut(std::size_t state) const { return out_[state] != 0; }

    /// Whether every layout with the course, which may be an empty one, is longer than `roof`.
    bool IsLonger(const Course& course, Long roof);

  private:
    /// A cross section: the parts of each fill of the job.
    struct Section {
        std::vector<Long> Parts;
        std::size_t State;
    };
    /// The rows of the linear program: the fills' lengths, the lengths of parts in the course, of
    /// fills that have some beyond it, and of the stretches.
    struct Rows {
        std::vector<PartInCourse> Whole;
        std::vector<std::size_t> Some; ///< watched
        std::vector<Double> Demand;
        std::vector<Double> Copies; ///< in a column of the one row alone
        std::size_t FirstWhole = 0;
        std::size_t FirstSome = 0;
        std::size_t FirstStretch = 0;
    };
    /// The most valuable column that is known.
    struct Best {
        std::int64_t Worth = 0;
        std::size_t Place = 0; ///< stretch, or how many there are for beyond the course
        Section At;
    };
    /// Some parts of a fill as one, for the knapsack.
    struct Bundle {
        std::size_t Fill;
        Long Parts;
        Long Width;
    };

    /// What there can be beyond the course.
    void LookBeyond(const Course& course);
    /// False when some row cannot be covered at all.
    bool MakeRows(const Course& course);
    bool AddFillRows(const Course& course);
    void AddCourseRows(const Course& course);
    /// The rows' prices, rounded down.
    void TakePrices(const std::vector<Double>& prices);
    std::int64_t WorthAt(const Course& course, std::size_t place, const Section& section) const;
    /// Of the cross sections that were found before, the best worth more than its cost.
    std::optional<Best> BestKnown(const Course& course) const;
    /// The best of all.
    Best BestOfAll(const Course& course);
    void PackUnwatched();
    void TraceBack(Long room, std::vector<Long>& parts) const;
    bool ProvesLonger(const Best& best, Long roof) const;
    std::vector<Double> ColumnOf(const Course& course, const Best& best) const;

    const ImproveJob* job_;
    const Watch* watch_;
    std::vector<std::uint8_t> isWatched_; ///< by fill
    std::vector<Long> most_;              ///< by fill: side by side
    std::vector<std::uint8_t> out_;       ///< by state: ruled out
    std::vector<Bundle> bundles_;         ///< of fills that are not watched
    std::vector<Section> known_;

    std::vector<std::size_t> beyond_; ///< states that there can be
    std::vector<Long> mostBeyond_;    ///< by fill: side by side
    Rows rows_;
    std::vector<std::int64_t> worth_;      ///< by row
    std::vector<std::int64_t> beyondMore_; ///< by watched fill: worth of a part beyond the course
    std::vector<std::int64_t> alongMore_;  ///< by stretch: worth besides its parts'
    std::vector<std::int64_t> best_;       ///< by width: of fills that are not watched
    std::vector<std::uint8_t> taken_;      ///< by bundle and width
};

} // namespace tarn
