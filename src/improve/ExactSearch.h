#pragma once

#include "improve/AlongSearch.h"
#include "improve/ImproveLayout.h"
#include "improve/LengthMeasures.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace tarn {

/// Whether a layout ends at or below a roof.
enum class ExactAnswer : std::uint8_t {
    None,   ///< there is none: the least length is above it
    Found,  ///< there is one
    Unknown ///< given up
};

/// Decides for small jobs whether there is a layout below a roof, by trying all that matters.
///
/// First the places across: from the left edge of the roll on, at every column where a fill ends,
/// which fills begin there. The fills over a column are together no longer than the roof, by every
/// one of several measures, and what the columns leave free is no more than there is to spare.
/// Fills are pushed to the left, so that each begins at the edge or where another ends; of a layout
/// and its mirror image one is tried, and of equal fills the first goes first. Then, for all places
/// across together, the places along: see AlongSearch.
class ExactSearch {
  public:
    /// Whether a job can be decided at all: none of its fills may be divided or has to match.
    static bool CanDecide(const ImproveJob& job);

    /// `job` can be decided and must outlive the search.
    explicit ExactSearch(const ImproveJob& job);
    ExactSearch(const ExactSearch&) = delete;
    ExactSearch& operator=(const ExactSearch&) = delete;

    /// Decide about a roof within so many cases; `goOn` is asked after every CasesPerStep of them.
    ExactAnswer Decide(Long roof, std::int64_t cases, const std::function<bool()>& goOn);
    /// The layout that was found.
    std::vector<ImprovePart> Layout() const;

    static constexpr std::int64_t CasesPerStep = 32;

  private:
    static constexpr std::size_t MostMeasures = 6;
    static constexpr std::size_t NoPiece = static_cast<std::size_t>(-1);

    /// Let pieces from number `first` on begin at the column `x`. True when a layout was found.
    bool Begin(std::size_t first, Long x);
    bool MayBegin(std::size_t piece, Long x) const;
    void Put(std::size_t piece, Long x);
    void TakeBack(std::size_t piece);
    /// No more pieces begin at `x`: go on where the first of those over it ends.
    bool Close(Long x);
    /// Take what the columns x .. `next` - 1 leave free off what is to spare. False when that is
    /// not enough; it is to be given back in any case.
    bool Spend(Long x, Long next);
    void GiveBack(Long x, Long next);
    /// Whether the pieces that are left may still lie from column `x` on.
    bool RestMayFit(Long x) const;
    bool GoOn(Long x);
    bool LayAlong();
    bool CountCase();

    const ImproveJob* job_;
    ImproveJob sorted_;                  ///< the fills as pieces, longest first
    std::vector<std::size_t> fillOf_;    ///< by piece
    std::vector<std::uint8_t> asBefore_; ///< by piece: equal to the one before
    std::size_t mirrored_ = NoPiece;     ///< lies in the left half, or in the middle

    Long roof_ = 0;
    std::vector<LengthMeasure> measures_;
    std::vector<Area64> load_; ///< by measure: of the pieces over the column
    std::vector<Long> x_;
    std::vector<std::uint8_t> laid_;
    std::vector<std::size_t> over_; ///< pieces over the column
    std::size_t count_ = 0;         ///< laid

    AlongSearch along_;
    std::int64_t cases_ = 0;
    std::int64_t mostCases_ = 0;
    const std::function<bool()>* goOn_ = nullptr;
    bool stopped_ = false;
    bool gaveUp_ = false; ///< on the places along of some places across
};

} // namespace tarn
