#include "engine/Search.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Words.h"
#include "engine/CaseParts.h"
#include "engine/Cases.h"
#include "engine/FinishLayout.h"
#include "engine/PiecePlacer.h"
#include "engine/PreparePieces.h"
#include "engine/ResultLength.h"

#include <limits>
#include <utility>

namespace tarn {

namespace {

/// Best length before the first case.
constexpr Long NoLength = std::numeric_limits<Integer>::max();

constexpr Long PowerCount = OrderPowers.size();

Integer CheckedMinCut(const SearchJob& job) {
    if (job.MinCut == 0) {
        RaiseDivisionByZero();
    }
    return job.MinCut;
}

/// One search: scores the cases of both passes, keeps the record of the best, and lays that out.
class CaseSearch {
  public:
    CaseSearch(const SearchJob& job, SearchObserver& observer)
        : job_(job)
        , observer_(observer)
        , pieces_(PreparePieces(job))
        , parts_(pieces_, job.Scale, CheckedMinCut(job))
        , alternatives_(AlternativesOf(pieces_, job.MostParts, job.MinCut)) {
        result_.Cases = CountCases(alternatives_);
        result_.BestLength = NoLength;
        result_.BestParts.assign(pieces_.size(), 0);
    }

    SearchResult Run() {
        observer_.Started(PowerCount * (result_.Cases + job_.MostParts));
        for (Long number = 0; number < result_.Cases; ++number) {
            TryCase(FirstPassCase(number, alternatives_, cuts_));
        }
        for (Integer most = 0; most < job_.MostParts; ++most) {
            TryCase(SecondPassCase(most, pieces_, job_.MinCut, cuts_));
        }
        LayOutBest();
        return std::move(result_);
    }

  private:
    /// Try the case in hand, which makes that many parts. One with more parts than there is room
    /// for is left out and counts as done.
    void TryCase(Long parts) {
        if (parts <= MaxPieces) {
            ScoreCase();
        } else {
            Count(PowerCount);
        }
    }

    void ScoreCase() {
        parts_.Divide(cuts_);
        for (const Integer power : OrderPowers) {
            // Given up, with any length that is not shorter, when it would not be shorter than the
            // best.
            const Long length =
                placer_.PlaceAll(parts_.SizesInOrder(power), job_.RollWidth, result_.BestLength);
            if (length < result_.BestLength) {
                result_.BestLength = length;
                result_.BestPower = power;
                result_.BestParts = cuts_;
            }
            Count(1);
        }
    }

    /// Count scored placements. Ends the search when the observer says so.
    void Count(Long placements) {
        done_ += placements;
        if (!observer_.Scored(done_)) {
            throw SearchStopped();
        }
    }

    /// Lay the best case out for good.
    void LayOutBest() {
        parts_.Divide(result_.BestParts);
        const std::vector<Piece> pieces = parts_.PiecesInOrder(result_.BestPower);
        const std::vector<PieceSize>& sizes = parts_.SizesInOrder(result_.BestPower);
        placer_.PlaceAll(sizes, job_.RollWidth, std::numeric_limits<Long>::max());
        std::vector<Placed> layout;
        for (const Box& box : placer_.Boxes()) {
            const std::size_t i = layout.size();
            layout.push_back({pieces[i], box.X1, box.Y1, sizes[i].Width, sizes[i].Length});
        }
        CheckScore(layout, pieces.size());
        FinishLayout(std::move(layout), job_, result_);
    }

    /// The layout must hold all parts and be as long as its trial said. (Without a trial below
    /// NoLength there is none.)
    void CheckScore(const std::vector<Placed>& layout, std::size_t parts) const {
        const Long length = CLng(static_cast<Double>(LengthInUse(layout)));
        if (layout.size() != parts ||
            (length != result_.BestLength && result_.BestLength != NoLength)) {
            RaiseInternal(Words("The layout is not as long as its trial and was discarded."));
        }
    }

    const SearchJob& job_;
    SearchObserver& observer_;
    const std::vector<Piece> pieces_; ///< undivided
    CaseParts parts_;
    const std::vector<Integer> alternatives_; ///< of the first pass, by undivided piece
    CaseCuts cuts_;                           ///< of the case in hand
    PiecePlacer placer_;
    SearchResult result_;
    Long done_ = 0;
};

/// Tells the observer that the search is over, in whatever way.
class EndNotice {
  public:
    explicit EndNotice(SearchObserver& observer)
        : observer_(observer) {}
    ~EndNotice() { observer_.Ended(); }
    EndNotice(const EndNotice&) = delete;
    EndNotice& operator=(const EndNotice&) = delete;

  private:
    SearchObserver& observer_;
};

} // namespace

SearchResult Search(const SearchJob& job, SearchObserver& observer) {
    const EndNotice notice(observer);
    if (job.Pieces.size() > static_cast<std::size_t>(MaxPieces)) {
        RaiseSubscript();
    }
    return CaseSearch(job, observer).Run();
}

} // namespace tarn
