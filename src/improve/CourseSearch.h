#pragma once

#include "improve/CourseRelaxation.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace tarn {

/// Looks for proofs that there is no layout below a roof, where fills may be divided.
///
/// The bar relaxation lays a few units of a fill wherever there is room for them. So some fills are
/// watched. For each state of them that a layout might have somewhere along the roll it is tried
/// whether that can be: what comes before and behind is tried, stretch by stretch, until a
/// relaxation says that every layout of that course is above the roof. A state for which all
/// courses end so is ruled out, which may rule out others; in the end there may be no layout
/// without those. One fill is watched after the other, then two and three of them at once.
class CourseSearch {
  public:
    /// Whether it may prove anything: some fills may be divided, they are not too many, and none
    /// has to match.
    static bool CanTry(const ImproveJob& job);

    /// Of several searches for the same job those with an odd `number` begin with the last fills.
    CourseSearch(const ImproveJob& job, std::size_t number);
    CourseSearch(const CourseSearch&) = delete;
    CourseSearch& operator=(const CourseSearch&) = delete;

    /// Whether it proves, within so many relaxations, that every layout is longer than `roof`.
    /// Asked about the same roof again it goes on where it ended. `goOn` is asked before every
    /// relaxation; when it says no the search ends.
    bool ProvesLonger(Long roof, std::int64_t relaxations, const std::function<bool()>& goOn);

  private:
    /// The fills that are watched, and how far they have been tried.
    struct Trial {
        Trial(const ImproveJob& job, const std::vector<std::size_t>& fills)
            : Watched(job, fills)
            , Relaxation(job, Watched) {}
        Watch Watched;
        CourseRelaxation Relaxation;
        std::size_t State = 0; ///< that is tried next
        bool Gained = false;   ///< a state was ruled out since all were tried
    };
    /// Which courses go on, at one of the ends of one.
    using Courses = std::vector<Course>;

    void LeaveOutAlone(const ImproveJob& job);
    void ChooseFills(std::size_t number);
    void BeginAgain();
    /// Try the states of the watched fills, until none can be ruled out any more. Whether that
    /// proves that there is no layout.
    bool TryStates();
    /// Whether no layout has a state anywhere.
    bool IsImpossible(std::size_t state);
    /// Whether no layout goes on from a course.
    bool EndsNowhere(const Course& course);
    /// The courses that are longer by one stretch, or by the roll's end, at the one side; no more
    /// than `most` are looked for.
    Courses GoingOn(const Course& course, bool behind, std::size_t most);
    /// Add a course that goes on from the one before, for all that there may be beyond it, unless
    /// there is none or it is above the roof.
    void AddIfPossible(Course course, const Course& before, Courses& courses);
    void AddByOthers(Course& course, std::size_t watched, Courses& courses);
    bool IsLonger(const Course& course);

    ImproveJob job_;
    Area64 alone_ = 0; ///< length of fills beside which nothing fits: they are left out
    std::vector<std::vector<std::size_t>> choices_; ///< of fills to be watched, the fewest first
    std::size_t next_ = 0;                          ///< choice
    std::size_t pass_ = 1;                          ///< over the choices: of so many fills at most
    std::int64_t patience_ = 0;                     ///< relaxations for a state

    std::optional<Trial> trial_;
    Long roof_ = 0;
    std::int64_t left_ = 0; ///< relaxations, for all
    std::int64_t leftOfState_ = 0;
    const std::function<bool()>* goOn_ = nullptr;
    bool stopped_ = false;
};

} // namespace tarn
