#pragma once

#include "improve/ImproveJob.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// Whether there are parts of a watched fill beyond a course, where none reaches over its ends.
enum class Beyond : std::uint8_t { Unknown, None, Some };

/// Stretches of the roll one behind the other, along each of which the same number of parts of
/// every watched fill lie side by side. Where these numbers change a part begins or ends.
struct Course {
    std::vector<std::size_t> States; ///< of the stretches, numbers in Watch
    bool FromStart = false;          ///< the first stretch begins where the roll does
    bool ToEnd = false;              ///< the last ends where the layout does
    std::vector<Beyond> Others;      ///< by watched fill
};

/// A part that begins and ends in a course.
struct PartInCourse {
    std::size_t Watched;
    std::size_t First; ///< stretch
    std::size_t End;   ///< the stretch behind its last
};

/// Some fills of a job that are watched along the roll, and the states that there are: how many
/// parts of each of them lie side by side.
///
/// Parts of one fill count as one where the second begins as the first ends. Of parts side by side
/// the one that began first ends first: to exchange what is behind a place between them makes the
/// shorter one no shorter.
class Watch {
  public:
    /// `job` must outlive the watch.
    Watch(const ImproveJob& job, std::vector<std::size_t> fills);

    const std::vector<std::size_t>& Fills() const { return fills_; }
    std::size_t States() const { return states_.size(); }
    Long PartsIn(std::size_t state, std::size_t watched) const { return states_[state][watched]; }
    /// What is left of the roll's width in a state.
    Long Room(std::size_t state) const { return room_[state]; }
    /// The most parts of a watched fill.
    Long Most(std::size_t watched) const { return most_[watched]; }

    /// The parts of a watched fill that are in a course, wholly or not.
    Long PartsOf(const Course& course, std::size_t watched) const;
    /// Those of them that may have begun before it, or may end behind it.
    Long ReachBefore(const Course& course, std::size_t watched) const;
    Long ReachBehind(const Course& course, std::size_t watched) const;
    std::vector<PartInCourse> WholeParts(const Course& course) const;

  private:
    void AddStates(std::vector<Long>& state, std::size_t watched, Long room);
    void AddWholeParts(const Course& course, std::size_t watched,
                       std::vector<PartInCourse>& parts) const;

    const ImproveJob* job_;
    std::vector<std::size_t> fills_;
    std::vector<Long> most_;
    std::vector<std::vector<Long>> states_;
    std::vector<Long> room_;
};

} // namespace tarn
