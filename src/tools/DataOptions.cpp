#include "tools/DataOptions.h"

#include "store/Configuration.h"
#include "store/DataFolder.h"
#include "store/Names.h"
#include "tools/CareCommands.h"
#include "tools/DataCommands.h"
#include "tools/Files.h"
#include "tools/ProgramVersion.h"
#include "tools/ToolMain.h"

#include <CLI/CLI.hpp>

#include <string>

namespace tarn {

namespace {

constexpr const char* Description = "Make and look after the data of the estimating program.";

std::string Footer() {
    return "tarn-data COMMAND --help tells the options of a command.\n\n"
           "A name has at most " +
           std::to_string(MaxNameLength) + " characters, a project's none of " +
           std::string(ForbiddenInProjectName) +
           "\n\n"
           "Exit status: 0 done, 1 refused or faults found (the reason is on standard error), 2 "
           "wrong "
           "usage.\n\n"
           "Example:\n"
           "  tarn-data create ~/estimates\n"
           "  tarn-data import --database ~/estimates/DATA/Tarn.mdb --project \"SMITH\" house.csv";
}

void AddDatabase(CLI::App& command, DataOptions& arguments) {
    command.add_option("--database", arguments.Project.Database, "Database file")
        ->required()
        ->type_name("FILE");
}

void AddProject(CLI::App& command, DataOptions& arguments) {
    AddDatabase(command, arguments);
    command.add_option("--project", arguments.Project.Project, "Name of the project")
        ->required()
        ->type_name("NAME");
}

void AddMetric(CLI::App& command, DataOptions& arguments) {
    command.add_flag_callback(
        "--metric", [units = &arguments.Project.In] { *units = Units::Metric; },
        "The sizes are centimetres");
}

CLI::App& AddCommand(CLI::App& app, const char* name, const char* text, DataOptions& arguments,
                     std::function<void()> run) {
    CLI::App* command = app.add_subcommand(name, text);
    command->callback([chosen = &arguments.Chosen, run = std::move(run)] { *chosen = run; });
    return *command;
}

void AddFileCommands(CLI::App& app, DataOptions& arguments) {
    auto& create = AddCommand(
        app, "create", "Make a data folder with an empty database", arguments,
        [arguments = &arguments] { CreateData(arguments->Folder, arguments->ConfigDirectory); });
    create
        .add_option("FOLDER", arguments.Folder,
                    "Folder to be made; it will hold " +
                        WithNativeSeparators(DatabaseFileInDataFolder))
        ->required();
    create
        .add_option("--config-dir", arguments.ConfigDirectory,
                    "Directory of the configuration file " + std::string(ConfigurationFileName))
        ->type_name("DIR");

    auto& list = AddCommand(app, "list", "List directories, projects and rooms", arguments,
                            [arguments = &arguments] { ListData(arguments->Project.Database); });
    AddDatabase(list, arguments);
}

void AddCareCommands(CLI::App& app, DataOptions& arguments) {
    const auto* database = &arguments.Project.Database;
    const auto* target = &arguments.Target;
    const auto add = [&](const char* name, const char* text,
                         const std::function<void()>& run) -> CLI::App& {
        auto& command = AddCommand(app, name, text, arguments, run);
        AddDatabase(command, arguments);
        return command;
    };
    add("check", "Check that a database is sound, and all that stands in it",
        [database] { CheckData(*database); });
    add("repair", "Write a clean copy of all that can be read",
        [database, target] { RepairData(*database, *target); })
        .add_option("--to", arguments.Target, "File to be made; must not exist")
        ->required()
        ->type_name("NEW");
    add("backup", "Copy a database, also while the program uses it",
        [database, target] { BackUpData(*database, *target); })
        .add_option("TARGET", arguments.Target, "File to be made; must not exist")
        ->required();
    add("backups", "List the backups that the program made",
        [database] { ListBackups(*database); });
    add("restore", "Put a backup in the place of a database; what was there is kept",
        [database, target] { RestoreData(*target, *database); })
        .add_option("BACKUP", arguments.Target, "A file, or a name as \"backups\" lists it")
        ->required();
}

void AddProjectCommands(CLI::App& app, DataOptions& arguments) {
    auto& report = AddCommand(app, "report", "Print the entered-data report of a project",
                              arguments, [project = &arguments.Project] {
                                  ReportProject(project->Database, project->Project, project->In);
                              });
    AddProject(report, arguments);
    AddMetric(report, arguments);

    auto& import =
        AddCommand(app, "import", "Make the rooms of a CSV file those of a project", arguments,
                   [project = &arguments.Project] { ImportProject(*project); });
    AddProject(import, arguments);
    import.add_option("FILE.csv", arguments.Project.Rooms, "The rooms; see tarn-estimate --help")
        ->required();
    import
        .add_option("--directory", arguments.Project.Directory,
                    "Directory of a new project (default: the current month)")
        ->type_name("NAME");
    AddMetric(import, arguments);
    import.add_flag("--replace", arguments.Project.Replace,
                    "Replace the rooms that the project has");

    auto& exporting = AddCommand(
        app, "export", "Write a project's rooms as CSV", arguments, [arguments = &arguments] {
            ExportProject(arguments->Project.Database, arguments->Project.Project,
                          arguments->Output, arguments->Over);
        });
    AddProject(exporting, arguments);
    exporting.add_option("--output", arguments.Output, "File to write (default: standard output)")
        ->type_name("FILE|-");
    AddForce(exporting, arguments.Over);
}

} // namespace

void DescribeData(CLI::App& app, DataOptions& arguments) {
    app.name("tarn-data");
    app.description(Description);
    app.footer(Footer());
    app.set_version_flag("--version", VersionText(app.get_name()));
    app.require_subcommand(1);
    AddFileCommands(app, arguments);
    AddCareCommands(app, arguments);
    AddProjectCommands(app, arguments);
}

std::function<void()> ReadDataCommand(int argc, const char* const* argv, int& status) {
    CLI::App app;
    const auto arguments = std::make_shared<DataOptions>();
    DescribeData(app, *arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        status = ExplainArguments(app, error);
        return {};
    }
    return [arguments] { arguments->Chosen(); };
}

} // namespace tarn
