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

#include <functional>
#include <iostream>

namespace tarn {

namespace {

/// The project with the rooms that are to be estimated. Its name is empty when they come from a
/// file of rooms alone.
Project LoadRooms(const EstimateOptions& options) {
    if (!options.From.Rooms.Path.empty()) {
        Project project;
        project.Rooms =
            ReadRoomFile(options.From.Rooms, options.Metric ? Units::Metric : Units::Imperial);
        return project;
    }
    ProjectStore store(options.From.Database, DatabaseAccess::ReadOnly);
    Project project = LoadProjectNamed(store, options.From.Project);
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
    return SvgDocument(DrawingOf(estimate, PieceSizes::Shown),
                       CoveringTitle(estimate.ProjectName, estimate.Request.Carpet));
}

std::string PdfOf(const Estimate& estimate) {
    SystemPrinter printer;
    const PageTwips sheet = ReadPrinterPage(printer);
    const Drawing drawing = DrawingOf(estimate, PieceSizes::Hidden);
    return EstimatePdf(
        MakeEstimatePage(estimate.ProjectName, estimate, drawing, sheet, ShortDateOfToday()));
}

void WriteOutputs(const EstimateOptions& options, const Project& project,
                  const Estimate& estimate) {
    const auto write = [&](const std::string& path,
                           const std::function<std::string(const Estimate&)>& contentOf) {
        if (!path.empty()) {
            WriteWholeFile(path, contentOf(estimate), options.Over);
        }
    };
    write(options.Svg, SvgOf);
    write(options.Dxf, [&project](const Estimate& of) { return EstimateDxf(of, project); });
    write(options.Pdf, PdfOf);
    write(options.Json, EstimateJson);
    write(options.Text, CutListText);
}

} // namespace

void EstimateFor(const EstimateOptions& options) {
    EstimateRequest request = RequestOf(options);
    const std::optional<RepeatTexts> repeat = RepeatOf(options);
    RequireOutputsBeside(options.From.Path(), OutputsOf(options));
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
