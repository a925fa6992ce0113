#include "tools/OrderOptions.h"

#include "base/Words.h"
#include "project/OrderEntry.h"
#include "tools/Files.h"
#include "tools/Refusal.h"
#include "tools/SharedOptions.h"
#include "tools/ToolMain.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace tarn {

namespace {

constexpr auto OrderDescription = Words(
    "What to buy and how to cut it: compares rolls and lays, and lists the cuts of the best.\n"
    "The rooms come from a database (--database and --project) or from a CSV file (--rooms).");

constexpr auto OrderFooter = Words(
    "Lengths are written 12ft6in, 18in, 366cm or 3.66m; a bare number is in the project's units.\n"
    "All lengths of an order are whole inches, with --metric whole centimetres: roll widths are\n"
    "rounded down; trim, selvage, shortest part and step up. A pattern repeat must be whole.\n\n"
    "The repeat across is the distance to the next column of the pattern, which with --half-drop\n"
    "stands half a repeat further along: half the repeat of makers who name the whole design.\n\n"
    "Options that are given win over the request that is saved with the project.\n\n"
    "Exit status: 0 done, 1 refused, or no carpet has an order (the reason is on standard error),\n"
    "2 wrong usage.\n\n"
    "Example:\n"
    "  tarn-order --rooms house.csv --roll 12ft=18.50 --roll 15ft=19 --lay both --trim 3in");

void AddInput(CLI::App& app, OrderOptions& options) {
    AddRoomsSource(app, options.From);
    auto* metric = app.add_flag("--metric", options.Metric, Words("The sizes are centimetres"));
    app.add_flag("--feet", options.Feet,
                 Words("The sizes are inches, also of a project that was entered in metric"))
        ->excludes(metric);
    app.add_option("--carpet", options.Carpet,
                   Words("Number of the carpet, 1 to 8 (default: all of the project)"))
        ->check(CLI::Range(1, 8))
        ->type_name("N");
}

void AddRolls(CLI::App& app, OrderOptions& options) {
    app.add_option(
           "--roll", options.Rolls,
           Words("A roll to compare, with a name and a price per square yard (square metre with "
                 "--metric) if wanted; may be given several times"))
        ->check(NotEmpty)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->type_name("[NAME:]12ft[=PRICE]");
    app.add_option("--selvage", options.Selvage,
                   Words("Cut off along each edge of the roll (default 0, at most 6in or 15cm)"))
        ->check(NotEmpty)
        ->type_name("1in");
    app.add_option("--lay", options.Lay,
                   Words("down: room widths across the roll (default); cross: room lengths"))
        ->check(CLI::IsMember({"down", "cross", "both"}))
        ->type_name("down|cross|both");
    app.add_option("--step", options.Step,
                   Words("The roll is ordered in whole steps (default 3in, 5cm with --metric)"))
        ->check(NotEmpty)
        ->type_name("3in");
}

void AddCutting(CLI::App& app, OrderOptions& options) {
    app.add_option(
           "--trim", options.Trim,
           Words("More than a strip's length, at its far end (default 0, at most 24in or 60cm)"))
        ->check(NotEmpty)
        ->type_name("3in");
    app.add_option("--trim-across", options.TrimAcross,
                   Words("More than a room's width, the same bounds"))
        ->check(NotEmpty)
        ->type_name("1in");
    app.add_option(
           "--max-parts", options.MaxParts,
           Words("Most parts of a strip, 1 to %1 (default 1)", std::to_string(MostPartsOfStrip)))
        ->check(CLI::Range(1, static_cast<int>(MostPartsOfStrip)))
        ->type_name("N");
    app.add_option("--min-part", options.MinPart,
                   Words("Shortest part of a divided strip (default 3ft, 91cm with --metric)"))
        ->check(NotEmpty)
        ->type_name("3ft");
    app.add_flag("--join-rooms", options.JoinRooms,
                 Words("A room no wider than the roll may be divided, too"));
    app.add_option("--pattern", options.Pattern,
                   Words("Pattern repeat across x along, 0 for none in that direction"))
        ->check(NotEmpty)
        ->type_name("18x24");
    app.add_flag("--half-drop", options.HalfDrop,
                 Words("The next column of the pattern stands half a repeat further along"));
    app.add_option(
           "--pattern-drift", options.PatternDrift,
           Words("Percent by which repeats may come out longer (default 1 with a repeat along, "
                 "else 0; at most 10)"))
        ->type_name("P");
}

void AddSearch(CLI::App& app, OrderOptions& options) {
    app.add_option(
           "--seconds", options.Seconds,
           Words("How long to look for shorter layouts, all rows together (default 2); Ctrl+C "
                 "ends that earlier and keeps the best"))
        ->check(CLI::Range(0.0, 3600.0))
        ->type_name("S");
    app.add_option(
           "--steps", options.Steps,
           Words("So many layouts for each row instead, so that the result can be repeated"))
        ->check(AboveZero())
        ->type_name("N");
    AddSeed(app, options.Seed);
}

void AddOutput(CLI::App& app, OrderOptions& options) {
    AddOutputFile(
        app, "--text", options.Text,
        Words("Write comparison and list as text (on standard output when no other output is asked "
              "for)"));
    AddOutputFile(app, "--json", options.Json,
                  Words("Write requests, comparison and pieces as JSON"));
    AddOutputFile(app, "--csv", options.Csv, Words("Write comparison and pieces as CSV"));
    AddOutputFile(app, "--xlsx", options.Xlsx,
                  Words("Write comparison and pieces as a spreadsheet"));
    AddOutputFile(
        app, "--pdf", options.Pdf,
        Words("Write the sheet to buy and cut by, of all carpets, as it is printed; A4 unless the "
              "printer has another paper"));
    AddOutputFile(
        app, "--svg", options.Svg,
        Words("Write the pages of one carpet's sheet below each other as a drawing (with --carpet "
              "when "
              "there are several)"));
    AddOutputFile(
        app, "--dxf", options.Dxf,
        Words("Write the roll of one carpet's best row true to size for a plotter or cutting "
              "table, along X, in inches (centimetres with --metric)"));
    AddForce(app, options.Over);
}

/// What the single options cannot tell. Raises CLI::ValidationError.
void CheckTogether(OrderOptions& options) {
    RequireRoomsSource(options.From);
    const Outputs outputs = OutputsOf(options);
    RequireDifferentOutputs(outputs);
    if (!IsAnyAskedFor(outputs)) {
        options.Text = StandardOutput;
    }
}

[[noreturn]] void Refuse(const std::string& option, const std::string& value,
                         const std::string& reason) {
    throw Refusal(option + " \"" + value + "\": " + reason);
}

template <class Value>
Value Require(const std::string& option, const std::string& value, const Reading<Value>& reading) {
    if (!reading.Read) {
        Refuse(option, value, reading.Reason);
    }
    return *reading.Read;
}

void TakeLength(const std::string& option, const std::optional<std::string>& value, Units units,
                Long& length) {
    if (value) {
        length = Require(option, *value, ReadRaisedLength(*value, units));
    }
}

/// [NAME:]WIDTH[=PRICE]; a name may hold colons, but no equals sign behind the last of them.
RollChoice RollOf(const std::string& text, Units units) {
    RollChoice roll;
    std::string rest = text;
    if (const auto colon = rest.rfind(':'); colon != std::string::npos) {
        roll.Name = rest.substr(0, colon);
        rest.erase(0, colon + 1);
    }
    if (const auto equals = rest.find('='); equals != std::string::npos) {
        roll.Price = Require("--roll", text, ReadPrice(rest.substr(equals + 1)));
        rest.erase(equals);
    }
    roll.AsTyped = rest;
    roll.Width = Require("--roll", rest, ReadLength(rest, units));
    return roll;
}

Long RepeatOf(const std::string& option, const std::string& text, Units units) {
    const auto repeat = WholeRepeat(Require("--pattern", text, ReadLength(text, units)));
    if (!repeat) {
        Refuse("--pattern", text, FaultOfRepeat(option, units).Reason);
    }
    return *repeat;
}

void TakePattern(const std::optional<std::string>& text, Units units, PatternChoice& pattern) {
    if (!text) {
        return;
    }
    const auto cross = text->find_first_of("xX");
    if (cross == std::string::npos) {
        Refuse("--pattern", *text, Words("write the repeat across and along, as 18x24."));
    }
    pattern.Across = RepeatOf("pattern across", text->substr(0, cross), units);
    pattern.Along = RepeatOf("pattern along", text->substr(cross + 1), units);
}

std::vector<Lay> LaysOf(const std::string& word) {
    if (word == "both") {
        return {Lay::Down, Lay::Cross};
    }
    return {word == "cross" ? Lay::Cross : Lay::Down};
}

} // namespace

void DescribeOrder(CLI::App& app, OrderOptions& options) {
    BeginOptions(app, "tarn-order", OrderDescription, OrderFooter);
    app.get_formatter()->column_width(28);
    AddInput(app, options);
    AddRolls(app, options);
    AddCutting(app, options);
    AddSearch(app, options);
    AddOutput(app, options);
}

std::optional<OrderOptions> ReadOrderOptions(int argc, const char* const* argv, int& status) {
    SpeakAsAsked(argc, argv);
    CLI::App app;
    OrderOptions options;
    DescribeOrder(app, options);
    if (!ParseArguments(
            app, argc, argv, [&options] { CheckTogether(options); }, status)) {
        return std::nullopt;
    }
    return options;
}

Outputs OutputsOf(const OrderOptions& options) {
    return {{"--text", options.Text}, {"--json", options.Json}, {"--csv", options.Csv},
            {"--xlsx", options.Xlsx}, {"--pdf", options.Pdf},   {"--svg", options.Svg},
            {"--dxf", options.Dxf}};
}

OrderRequest RequestOf(const OrderOptions& options, Units units,
                       const std::optional<OrderRequest>& saved) {
    OrderRequest request = saved.value_or(DefaultOrderRequest(units));
    if (!options.Rolls.empty()) {
        request.Rolls.clear();
        for (const std::string& roll : options.Rolls) {
            request.Rolls.push_back(RollOf(roll, units));
        }
    }
    if (options.Lay) {
        request.Lays = LaysOf(*options.Lay);
    }
    TakeLength("--selvage", options.Selvage, units, request.Selvage);
    TakeLength("--trim", options.Trim, units, request.TrimAlong);
    TakeLength("--trim-across", options.TrimAcross, units, request.TrimAcross);
    TakeLength("--min-part", options.MinPart, units, request.ShortestPart);
    TakeLength("--step", options.Step, units, request.Step);
    TakePattern(options.Pattern, units, request.Pattern);
    request.MostParts = options.MaxParts.value_or(static_cast<int>(request.MostParts));
    request.JoinRooms = request.JoinRooms || options.JoinRooms;
    request.Pattern.HalfDrop = request.Pattern.HalfDrop || options.HalfDrop;
    request.Seconds = options.Seconds.value_or(request.Seconds);
    if (options.PatternDrift || options.Pattern) {
        request.PatternDrift = options.PatternDrift; // that of another pattern does not count
    }
    if (const auto fault = FaultOf(request)) {
        const bool isNone = fault->Option == "roll" && request.Rolls.empty();
        throw Refusal(isNone ? Words("%1 Use --roll.", fault->Reason) : fault->Reason);
    }
    return request;
}

} // namespace tarn
