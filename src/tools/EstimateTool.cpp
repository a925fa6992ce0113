#include "tools/EstimateTool.h"

#include "estimate/CutList.h"
#include "estimate/EstimateJson.h"
#include "estimate/EstimatePage.h"
#include "estimate/LayoutDrawing.h"
#include "estimate/Svg.h"
#include "estimate/Totals.h"
#include "print/PdfFile.h"
#include "print/PrinterPage.h"
#include "print/SystemPrinter.h"
#include "rooms/Coverings.h"
#include "rooms/Report.h"
#include "rooms/RoomCsv.h"
#include "tools/Files.h"
#include "tools/ImproveTool.h"
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

Picture DrawingOf(const SharedState& state, const EngineArrays& engine,
                  const CarpetEstimate& estimate, PieceSizes sizes) {
    Picture picture;
    RedrawPC(picture, state, engine, estimate, sizes);
    ShowECutsInfo(picture, state, engine, estimate, CutListX, CutListY);
    return picture;
}

std::string SvgOf(const SharedState& state, const EngineArrays& engine,
                  const CarpetEstimate& estimate) {
    const std::string carpet = CoveringCaption(estimate.CarpetNo);
    return SvgDocument(DrawingOf(state, engine, estimate, PieceSizes::Shown),
                       state.CurProjName.empty() ? carpet : state.CurProjName + ", " + carpet);
}

std::string PdfOf(SharedState& state, const EngineArrays& engine, const CarpetEstimate& estimate) {
    SystemPrinter printer;
    ReadPrinterPage(state, printer);
    const Picture drawing = DrawingOf(state, engine, estimate, PieceSizes::Hidden);
    return EstimatePdf(MakeEstimatePage(state, engine, estimate, drawing, ShortDateOfToday()));
}

void RequireOutputsBesideInput(const EstimateOptions& options) {
    const std::string& input = options.Rooms.empty() ? options.Database : options.Rooms;
    for (const std::string& output : {options.Svg, options.Pdf, options.Json, options.Text}) {
        RequireOtherFile(output, input);
    }
}

void WriteOutputs(const EstimateOptions& options, SharedState& state, const EngineArrays& engine,
                  const CarpetEstimate& estimate) {
    if (!options.Svg.empty()) {
        WriteWholeFile(options.Svg, SvgOf(state, engine, estimate));
    }
    if (!options.Pdf.empty()) {
        WriteWholeFile(options.Pdf, PdfOf(state, engine, estimate));
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
    if (options.Improve) {
        ImproveFor(options, state, engine, estimate);
    }
    WriteOutputs(options, state, engine, estimate);
}

} // namespace tarn
