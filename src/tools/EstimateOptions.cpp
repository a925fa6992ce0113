#include "tools/EstimateOptions.h"

#include "base/Format.h"
#include "base/TakeNumber.h"
#include "base/Words.h"
#include "estimate/MinCuts.h"
#include "estimate/RollWidth.h"
#include "files/RoomCsv.h"
#include "improve/ImproveThreads.h"
#include "project/Project.h"
#include "tools/Files.h"
#include "tools/Refusal.h"
#include "tools/SharedOptions.h"
#include "tools/ToolMain.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

namespace tarn {

namespace {

constexpr auto EstimateDescription = Words(
    "Estimate one carpet of a project: how its rooms are cut from a roll.\n"
    "The rooms come from a database (--database and --project) or from a CSV file (--rooms).");

std::string EstimateFooter() {
    return Words(
        "A CSV file has a header line and the columns width,length,covering,base,room,remark in "
        "any\n"
        "order; the first three are required. Sizes are whole inches or text such as 12'6\" "
        "(whole\n"
        "centimetres with --metric), or numbers in the unit that a heading such as \"Width "
        "(ft)\" names;\n"
        "coverings CARPET-1 or C1, TILE-4 or T4. The base tells how many widths and lengths of "
        "the\n"
        "room take wall base: W2L1 is two widths and one length. A size of 0 is read and not "
        "cut. A\n"
        "room number has at most %1 characters, a remark %2, each in one line; of one that begins\n"
        "with ' the ' is taken off. Commas, semicolons or tabs separate. A file, no pipe or "
        "device, has at\n"
        "most %3 rooms and %4 MB.\n\n"
        "An output file takes the place of the one that is there, once it is whole and stored.\n"
        "Databases and symbolic links stay as they are without --force.\n\n"
        "Exit status: 0 done, 1 refused (the reason is on standard error), 2 wrong usage.\n\n"
        "Example:\n"
        "  tarn-estimate --rooms house.csv --carpet 1 --roll-width 12ft --max-pieces 2 --svg "
        "house.svg",
        std::to_string(MaxRoomNumberLength), std::to_string(MaxRemarkLength),
        std::to_string(RoomCapacity), std::to_string(MaxRoomCsvBytes / (std::size_t{1024} * 1024)));
}

/// "a, b or c": what `textOf` says of each minimum cut.
std::string EachMinCut(const std::function<std::string(MinCut)>& textOf) {
    std::string list = textOf(AllMinCuts.front());
    for (std::size_t i = 1; i < AllMinCuts.size(); ++i) {
        const std::string more = textOf(AllMinCuts.at(i));
        if (i < AllMinCuts.size() - 1) {
            list.append(", ").append(more);
        } else {
            list = Words("%1 or %2", list, more);
        }
    }
    return list;
}

/// The shortest parts that the search leaves.
std::string LengthsInForce(Units units) {
    return EachMinCut([&](MinCut minCut) { return MinCutInForce(minCut, units, Project().Scale); });
}

/// The shortest parts that the improving search leaves: those that the captions name.
std::string LengthsOfCaptions() {
    const auto inches = [](MinCut minCut) {
        return Format(MinCutOfCaption(minCut, Units::Imperial), "##0");
    };
    const auto metric = [](MinCut minCut) {
        return std::string(MinCutCaption(minCut, Units::Metric));
    };
    return Words("%1 inches or more (%2 with --metric)", EachMinCut(inches), EachMinCut(metric));
}

std::string MinCutDescription() {
    const auto choice = [](MinCut minCut) {
        return std::to_string(static_cast<int>(minCut)) + " = " +
               std::string(MinCutCaption(minCut, Units::Imperial));
    };
    return Words(
        "Minimum cut: %1. Despite their names these keep the parts of a divided fill at %2 "
        "or more (%3 with --metric); --improve keeps them at %4",
        EachMinCut(choice), LengthsInForce(Units::Imperial), LengthsInForce(Units::Metric),
        LengthsOfCaptions());
}

void AddInput(CLI::App& app, EstimateOptions& options) {
    AddRoomsSource(app, options.From);
    app.add_flag("--metric", options.Metric,
                 Words("The sizes are centimetres; lists and totals are metric"));
}

void AddChoices(CLI::App& app, EstimateOptions& options) {
    app.add_option("--carpet", options.Carpet, Words("Number of the carpet, 1 to 8"))
        ->required()
        ->check(CLI::Range(1, 8))
        ->type_name("N");
    app.add_option("--roll-width", options.RollWidth,
                   Words("Width of the roll: 12ft, 13.5ft, 12ft6in, 150in or 366cm"))
        ->required()
        ->type_name("WIDTH");
    app.add_option_function<std::string>(
           "--lay", [&options](const std::string& lay) { options.CrossLay = lay == "cross"; },
           Words("down: room widths across the roll; cross: room lengths"))
        ->check(CLI::IsMember({"down", "cross"}))
        ->default_str("down")
        ->type_name("down|cross");
    app.add_option("--match", options.Match,
                   Words("Pattern repeat across x along, in inches (centimetres with --metric)"))
        ->check(NotEmpty)
        ->type_name("18x24");
    app.add_option("--min-cut", options.MinCut, MinCutDescription())
        ->check(CLI::Range(0, static_cast<int>(AllMinCuts.size()) - 1))
        ->capture_default_str()
        ->type_name("N");
    app.add_option("--max-pieces", options.MaxPieces,
                   Words("Maximum number of parts into which a fill is divided, 1 to %1",
                         std::to_string(MostPiecesPerFill)))
        ->check(CLI::Range(1, static_cast<int>(MostPiecesPerFill)))
        ->capture_default_str()
        ->type_name("N");
}

void AddOutput(CLI::App& app, EstimateOptions& options) {
    AddOutputFile(
        app, "--text", options.Text,
        Words("Write the cut list to FILE, or to standard output for - (done when no other "
              "output is asked for)"));
    AddOutputFile(app, "--json", options.Json, Words("Write cuts, pieces and totals as JSON"));
    AddOutputFile(app, "--svg", options.Svg,
                  Words("Write the drawing of the layout with the cut list"));
    AddOutputFile(
        app, "--dxf", options.Dxf,
        Words("Write the whole roll, cuts and fills, true to size for a plotter or cutting "
              "table, along X, in inches (centimetres with --metric)"));
    AddOutputFile(
        app, "--pdf", options.Pdf,
        Words("Write the page that the program prints, for the paper of the default printer "
              "(A4 without one)"));
    AddForce(app, options.Over);
}

void AddImprovement(CLI::App& app, EstimateOptions& options) {
    auto* seconds =
        app.add_option("--improve", options.ImproveSeconds,
                       Words("Then look for a better layout, for so many seconds at most or until "
                             "it is the least possible, with the parts of a divided fill at %1 by "
                             "--min-cut; Ctrl+C ends that earlier and keeps the best",
                             LengthsOfCaptions()))
            ->check(AboveZero())
            ->type_name("SECONDS");
    auto* steps =
        app.add_option("--improve-steps", options.ImproveSteps,
                       Words("The same for so many steps at most, so that the result can be "
                             "repeated"))
            ->check(AboveZero())
            ->type_name("N");
    AddSeed(app, options.Seed);
    app.add_option(
           "--threads", options.Threads,
           Words("How many threads look for it (all cores, at most 8; with --improve-steps one)"))
        ->check(CLI::Range(std::size_t{1}, MostThreads))
        ->type_name("N");
    app.callback([&options, seconds, steps] {
        options.Improve = seconds->count() > 0 || steps->count() > 0;
    });
}

/// What the single options cannot tell. Raises CLI::ValidationError.
void CheckTogether(EstimateOptions& options) {
    RequireRoomsSource(options.From);
    const Outputs outputs = OutputsOf(options);
    RequireDifferentOutputs(outputs);
    if (!IsAnyAskedFor(outputs)) {
        options.Text = StandardOutput;
    }
}

} // namespace

void DescribeEstimate(CLI::App& app, EstimateOptions& options) {
    BeginOptions(app, "tarn-estimate", EstimateDescription, EstimateFooter());
    app.get_formatter()->column_width(28);
    AddInput(app, options);
    AddChoices(app, options);
    AddOutput(app, options);
    AddImprovement(app, options);
}

std::optional<EstimateOptions> ReadEstimateOptions(int argc, const char* const* argv, int& status) {
    SpeakAsAsked(argc, argv);
    CLI::App app;
    EstimateOptions options;
    DescribeEstimate(app, options);
    if (!ParseArguments(
            app, argc, argv, [&options] { CheckTogether(options); }, status)) {
        return std::nullopt;
    }
    return options;
}

Outputs OutputsOf(const EstimateOptions& options) {
    return {{"--text", options.Text},
            {"--json", options.Json},
            {"--svg", options.Svg},
            {"--dxf", options.Dxf},
            {"--pdf", options.Pdf}};
}

EstimateRequest RequestOf(const EstimateOptions& options) {
    EstimateRequest request;
    request.Carpet = static_cast<Byte>(options.Carpet - 1);
    request.Direction = options.CrossLay ? Lay::Cross : Lay::Down;
    request.In = options.Metric ? Units::Metric : Units::Imperial;
    request.ShortestPart = AllMinCuts.at(static_cast<std::size_t>(options.MinCut));
    request.PiecesPerFill = static_cast<Integer>(options.MaxPieces);
    try {
        request.RollWidth = ReadRollWidth(options.RollWidth);
    } catch (const std::invalid_argument& error) {
        throw Refusal(error.what());
    }
    return request;
}

std::optional<RepeatTexts> RepeatOf(const EstimateOptions& options) {
    if (options.Match.empty()) {
        return std::nullopt;
    }
    std::string_view rest = options.Match;
    const std::string_view across = TakeNumber(rest);
    const bool separated = rest.starts_with('x') || rest.starts_with('X');
    rest.remove_prefix(separated ? 1 : 0);
    const std::string_view along = TakeNumber(rest);
    if (across.empty() || !separated || along.empty() || !rest.empty()) {
        throw Refusal(
            Words("The match pattern \"%1\" is not readable: write it as 18x24, the repeat "
                  "across and along.",
                  options.Match));
    }
    return RepeatTexts{std::string(across), std::string(along)};
}

} // namespace tarn
