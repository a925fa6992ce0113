#include "tools/EstimateTool.h"

#include "base/Words.h"
#include "estimate/CutList.h"
#include "estimate/LayoutDrawing.h"
#include "estimate/MakeEstimate.h"
#include "estimate/Totals.h"
#include "files/EstimateJson.h"
#include "files/RollDxf.h"
#include "files/ShortDate.h"
#include "files/Svg.h"
#include "paper/EstimatePage.h"
#include "paper/PdfFile.h"
#include "paper/PrinterPage.h"
#include "paper/SystemPrinter.h"
#include "project/Coverings.h"
#include "store/ProjectStore.h"
#include "tools/Files.h"
#include "tools/ImproveTool.h"
#include "tools/ProjectFile.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

namespace {

/// The project with the rooms that are to be estimated. Its name is empty when they come from a
/// file of rooms alone.
Project LoadRooms(const EstimateOptions& options) {
    if (!options.Rooms.Path.empty()) {
        Project project;
        project.Rooms =
            ReadRoomFile(options.Rooms, options.Metric ? Units::Metric : Units::Imperial);
        return project;
    }
    ProjectStore store(options.Database, DatabaseAccess::ReadOnly);
    Project project = LoadProjectNamed(store, options.Project);
    if (project.EnteredIn == Units::Metric && !options.Metric) {
        WarnOfMetric(Words("Warning: the project %1 was entered in metric; it is estimated in feet "
                           "and inches. Use --metric for centimetres."),
                     project);
    }
    return project;
}

std::string CutListText(const Estimate& estimate) {
    std::string text;
    for (const std::string& line : CutListLines(estimate)) {
        text += line + "\n";
    }
    return text;
}

Drawing DrawingOf(const Estimate& estimate, PieceSizes sizes) {
    Drawing drawing;
    DrawLayout(drawing, estimate, sizes);
    DrawCutList(drawing, estimate, CutListX, CutListY);
    return drawing;
}

std::string SvgOf(const Estimate& estimate) {
    const std::string carpet = CoveringCaption(estimate.Request.Carpet);
    return SvgDocument(DrawingOf(estimate, PieceSizes::Shown),
                       estimate.ProjectName.empty() ? carpet
                                                    : estimate.ProjectName + ", " + carpet);
}

std::string PdfOf(const Estimate& estimate) {
    SystemPrinter printer;
    const PageTwips sheet = ReadPrinterPage(printer);
    const Drawing drawing = DrawingOf(estimate, PieceSizes::Hidden);
    return EstimatePdf(
        MakeEstimatePage(estimate.ProjectName, estimate, drawing, sheet, ShortDateOfToday()));
}

void RequireOutputsBesideInput(const EstimateOptions& options) {
    const std::string& input = options.Rooms.Path.empty() ? options.Database : options.Rooms.Path;
    for (const std::string& output :
         {options.Svg, options.Dxf, options.Pdf, options.Json, options.Text}) {
        RequireOtherFile(output, input);
    }
}

void WriteOutputs(const EstimateOptions& options, const Project& project,
                  const Estimate& estimate) {
    if (!options.Svg.empty()) {
        WriteWholeFile(options.Svg, SvgOf(estimate), options.Over);
    }
    if (!options.Dxf.empty()) {
        WriteWholeFile(options.Dxf, EstimateDxf(estimate, project), options.Over);
    }
    if (!options.Pdf.empty()) {
        WriteWholeFile(options.Pdf, PdfOf(estimate), options.Over);
    }
    if (!options.Json.empty()) {
        WriteWholeFile(options.Json, EstimateJson(estimate), options.Over);
    }
    if (!options.Text.empty()) {
        WriteWholeFile(options.Text, CutListText(estimate), options.Over);
    }
}

} // namespace

void EstimateFor(const EstimateOptions& options) {
    EstimateRequest request = RequestOf(options);
    const std::optional<RepeatTexts> repeat = RepeatOf(options);
    RequireOutputsBesideInput(options);
    const Project project = LoadRooms(options);
    if (!HasRooms(project, request.Carpet)) {
        throw Refusal(Words("No room has %1.", CoveringCaption(request.Carpet)));
    }
    if (repeat) {
        request.Repeat = ReadPatternRepeat(repeat->Across, repeat->Along);
    }
    SearchObserver nobody;
    Estimate estimate = MakeEstimate(project, request, nobody);
    if (HasNothingToCut(estimate)) {
        std::cerr << Words("Warning: the rooms of %1 have no area; there is nothing to cut.",
                           CoveringCaption(request.Carpet))
                  << '\n';
    }
    if (options.Improve) {
        estimate = ImprovedFor(options, estimate);
    }
    WriteOutputs(options, project, estimate);
}

} // namespace tarn
