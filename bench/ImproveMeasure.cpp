#include "bench/ImproveMeasure.h"

#include "estimate/ImproveEstimate.h"
#include "estimate/MakeEstimate.h"
#include "improve/ImproveThreads.h"

namespace tarn {

Long BestAfter(const PackingInstance& instance, double seconds, std::uint64_t seed) {
    const ImproveJob& job = instance.Job;
    const auto stacked = static_cast<Long>(StackedLength(job));
    const LayoutMerit start{stacked, static_cast<Long>(job.Fills.size()), 0};
    const auto goOn = [](Long /*best*/, Long /*bound*/) { return true; };
    return ImproveOnThreads(job, start, {seconds, 0, seed}, goOn).Best.Length;
}

FlooringResult MeasureFlooring(const FlooringJob& job, double seconds, std::uint64_t seed) {
    SearchObserver nobody;
    const Estimate searched = MakeEstimate(job.Rooms, job.Request, nobody);
    FlooringResult result;
    result.Fills = searched.Job.Pieces.size();
    result.MaxPieces = job.Request.PiecesPerFill;
    ImproveObserver observer;
    const ImproveResult improved = ImproveEstimate(searched, {seconds, 0, seed}, observer).Result;
    result.Searched = static_cast<double>(improved.StartLength);
    result.Improved = static_cast<double>(improved.Length);
    result.Bound = improved.Bound;
    result.StartBelowRules = improved.StartBelowRules;
    result.PiecesBefore = improved.StartPieces;
    result.Pieces = improved.Pieces;
    return result;
}

} // namespace tarn
