#include "tools/EstimateTool.h"

#include "estimate/CutList.h"
#include "estimate/EstimateJson.h"
#include "estimate/LayoutDrawing.h"
#include "estimate/Svg.h"
#include "estimate/Totals.h"
#include "rooms/Coverings.h"
#include "rooms/RoomCsv.h"
#include "tools/Files.h"
#include "tools/ProjectFile.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

namespace {

void LoadRooms(SharedState& state, const EstimateOptions& options) {
    if (!options.Rooms.empty()) {
        PutRooms(state, ReadRoomFile(options.Rooms, options.Metric));
        return;
    }
    OpenForReading(state, options.Database);
    const bool enteredMetric = LoadProjectNamed(state, options.Project);
    if (enteredMetric && !options.Metric) {
        WarnOfMetric(state, "it is estimated in feet and inches. Use --metric for centimetres.");
    }
}

std::string CutListText(const SharedState& state, const EngineArrays& engine,
                        const CarpetEstimate& estimate) {
    std::string text;
    for (const std::string& line : CutListLines(state, engine, estimate)) {
        text += line + "\n";
    }
    return text;
}

std::string DrawingOf(const SharedState& state, const EngineArrays& engine,
                      const CarpetEstimate& estimate) {
    Picture picture;
    RedrawPC(picture, state, engine, estimate, PieceSizes::Shown);
    ShowECutsInfo(picture, state, engine, estimate, CutListX, CutListY);
    const std::string carpet = CoveringCaption(estimate.CarpetNo);
    return SvgDocument(picture,
                       state.CurProjName.empty() ? carpet : state.CurProjName + ", " + carpet);
}

void RequireOutputsBesideInput(const EstimateOptions& options) {
    const std::string& input = options.Rooms.empty() ? options.Database : options.Rooms;
    for (const std::string& output : {options.Svg, options.Json, options.Text}) {
        RequireOtherFile(output, input);
    }
}

void WriteOutputs(const EstimateOptions& options, const SharedState& state,
                  const EngineArrays& engine, const CarpetEstimate& estimate) {
    if (!options.Svg.empty()) {
        WriteWholeFile(options.Svg, DrawingOf(state, engine, estimate));
    }
    if (!options.Json.empty()) {
        WriteWholeFile(options.Json, EstimateJson(state, engine, estimate));
    }
    if (!options.Text.empty()) {
        WriteWholeFile(options.Text, CutListText(state, engine, estimate));
    }
}

} // namespace

void EstimateFor(const EstimateOptions& options) {
    const EstimateRequest request = RequestOf(options);
    RequireOutputsBesideInput(options);
    SharedState state;
    EngineArrays engine;
    CarpetEstimate estimate;
    LoadRooms(state, options);
    state.MetricFlag = options.Metric ? 1 : 0;
    if (!HasRooms(state, request.Carpet)) {
        throw Refusal("No room has " + CoveringCaption(request.Carpet) + ".");
    }
    SearchObserver nobody;
    if (RunEstimate(state, engine, estimate, request, nobody) == ConvertResult::Nothing) {
        std::cerr << "Warning: the rooms of " << CoveringCaption(request.Carpet)
                  << " have no area; there is nothing to cut.\n";
    }
    WriteOutputs(options, state, engine, estimate);
}

} // namespace tarn
