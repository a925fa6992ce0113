#include "estimate/MakeEstimate.h"

#include "estimate/MinCuts.h"
#include "estimate/Totals.h"

#include <utility>

namespace tarn {

Estimate MakeEstimate(const Project& project, const EstimateRequest& request,
                      SearchObserver& observer) {
    RoomCuts cut = CutAcrossRoll(project, request);
    Estimate estimate;
    estimate.ProjectName = project.Name;
    estimate.Request = request;
    estimate.Cuts = std::move(cut.Cuts);
    estimate.Base = TotalBase(project);
    estimate.Tiles = TileFloors(project, request.In);
    SearchJob& job = estimate.Job;
    job.RollWidth = request.RollWidth;
    job.Direction = request.Direction;
    job.Scale = project.Scale;
    job.MostParts = request.PiecesPerFill;
    if (!cut.Fills.empty()) {
        job.MinCut = MinCutUnits(request.ShortestPart, request.In, project.Scale);
        job.Pieces = std::move(cut.Fills);
        estimate.Fills = Search(job, observer);
    }
    return estimate;
}

} // namespace tarn
