#pragma once

#include "improve/ImproveJob.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace tarn {

/// Finds places along the roll for fills whose places across are given, all below a roof. The fills
/// are laid one by one, each as low as those below it let it, none lower than the one before. A
/// case is dropped as soon as there is a place across where what is still to come reaches over the
/// roof.
class AlongSearch {
  public:
    /// `job` must outlive the search.
    explicit AlongSearch(const ImproveJob& job);

    /// Find places for fills that lie at `x`. `goOn` is asked for every case; when it says no the
    /// search ends. True when places were found.
    bool Find(const std::vector<Long>& x, Long roof, const std::function<bool()>& goOn);
    const std::vector<Long>& Places() const { return y_; }

  private:
    /// The next fill to be laid, and where.
    struct Next {
        Long Y;
        std::size_t Fill;
    };

    void Divide(const std::vector<Long>& x);
    bool Lay(std::size_t count, Next last);
    /// Whether what is still to come fits below the roof when nothing more begins below `y`.
    bool RestFitsAbove(Long y) const;
    void Put(const Next& next);
    void TakeBack(const Next& next, const Long* tops);

    const ImproveJob* job_;
    const std::function<bool()>* goOn_ = nullptr;
    bool stopped_ = false;
    Long roof_ = 0;
    std::vector<Long> x_;
    std::vector<Long> y_;
    std::vector<std::size_t>
        first_; ///< by fill: the first of the strips between all edges that it covers
    std::vector<std::size_t> end_;
    std::vector<Long> top_;  ///< by strip
    std::vector<Long> rest_; ///< by strip: the length of the fills still to come
    std::vector<Next> nexts_;
    std::vector<Long> tops_; ///< of the strips below the fills that were laid, as they were before
};

} // namespace tarn
