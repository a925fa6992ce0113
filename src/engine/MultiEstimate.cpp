#include "engine/MultiEstimate.h"

#include "app/Numbers.h"
#include "engine/Cases.h"
#include "engine/Division.h"
#include "engine/FinishLayout.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"
#include "engine/RollLayout.h"
#include "engine/TrialPieces.h"

#include <array>
#include <limits>

namespace tarn {

namespace {

/// The powers of the piece order, in the order in which every case tries them: area, width, length
/// squared times width.
constexpr std::array<Integer, 3> Modes{1, 0, 2};
constexpr Long ModeCount = 3;

/// Best length before the first case.
constexpr Long NoLength = std::numeric_limits<Integer>::max();

/// One search: scores cases and keeps the record of the best.
class Search {
  public:
    Search(const SharedState& state, EngineArrays& engine, SearchObserver& observer)
        : dimScale_(state.DimScale)
        , engine_(engine)
        , observer_(observer)
        , pieces_(engine, state.DimScale) {}

    void Prepare(const SharedState& state) {
        if (engine_.LayDir == 1) {
            SwitchXY(engine_);
        }
        SwitchXY2(engine_);
        CheckLargePC(engine_, dimScale_);
        GetPieceSZ(engine_, dimScale_);
        constexpr Integer LongestFirst = 2;
        QuickSortPiece(engine_, 0, engine_.OrgCount, LongestFirst);
        CopyFillPC(engine_);
        DecodeOptions(state, engine_);
        engine_.BestLen = NoLength;
        engine_.BestMode = 0;
        engine_.BestCase.Fill(0);
        observer_.Started(ModeCount * (GetTotalCase(engine_) + engine_.MaxParts));
    }

    /// Both passes over the cases. False when the observer stopped the search.
    bool Run() {
        for (Long number = 0; number < engine_.CaseCount; ++number) {
            if (!TryCase(DecodeCase(engine_, number))) {
                return false;
            }
        }
        for (Integer most = 0; most < engine_.MaxParts; ++most) {
            if (!TryCase(DeriveCase(engine_, most))) {
                return false;
            }
        }
        return true;
    }

    /// Lay the best case out for good and hand it back in the caller's orientation.
    void LayOutBest() {
        RestoreFillPC(engine_);
        DivideAll(engine_, engine_.BestCase);
        ReorderPiece(engine_, engine_.BestMode, dimScale_);
        CheckScore();
        FinishLayout(engine_, dimScale_);
    }

  private:
    /// Try the case in CaseDigit, which makes that many parts. One with more parts than there is
    /// room for is left out and counts as done. False when the observer stopped the search.
    bool TryCase(Long parts) {
        if (parts <= MaxPiece) {
            return ScoreCase();
        }
        done_ += ModeCount;
        return observer_.Scored(done_);
    }

    bool ScoreCase() {
        pieces_.Divide();
        for (const Integer mode : Modes) {
            const Long score = GetPCSize(mode);
            if (score < engine_.BestLen) {
                engine_.BestLen = score;
                engine_.BestMode = mode;
                for (Integer k = 0; k < engine_.OrgCount; ++k) {
                    engine_.BestCase[k] = engine_.CaseDigit[k];
                }
            }
            if (!observer_.Scored(++done_)) {
                return false;
            }
        }
        return true;
    }

    /// The roll length, in whole inches, that the case in hand needs in one piece order; or, when
    /// it would not be shorter than the best, any length that is not.
    Long GetPCSize(Integer mode) {
        return trial_.PlaceAll(pieces_.InOrder(mode), UsableWidth(engine_), engine_.BestLen);
    }

    /// The layout must be as long as its trial said. (Without a trial below NoLength there is
    /// none.)
    void CheckScore() const {
        const Long length = CLng(static_cast<Double>(GetPCLen(engine_)));
        if (length != engine_.BestLen && engine_.BestLen != NoLength) {
            RaiseInternal("The layout is not as long as its trial and was discarded.");
        }
    }

    Double dimScale_;
    EngineArrays& engine_;
    SearchObserver& observer_;
    TrialPieces pieces_;
    RollLayout trial_;
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

SearchOutcome SearchAndLayOut(const SharedState& state, EngineArrays& engine,
                              SearchObserver& observer) {
    const EndNotice notice(observer);
    if (engine.PieceCount > MaxPiece) {
        RaiseSubscript();
    }
    Search search(state, engine, observer);
    search.Prepare(state);
    if (!search.Run()) {
        return SearchOutcome::Stopped;
    }
    search.LayOutBest();
    return SearchOutcome::Done;
}

} // namespace

SearchOutcome MultiEstimate(const SharedState& state, EngineArrays& engine,
                            SearchObserver& observer) {
    const SearchOutcome outcome = SearchAndLayOut(state, engine, observer);
    if (outcome == SearchOutcome::Done) {
        observer.Finished();
    }
    return outcome;
}

} // namespace tarn
