#include "tools/DataOptions.h"

#include "base/Words.h"
#include "store/Configuration.h"
#include "store/DataFolder.h"
#include "store/Names.h"
#include "tools/CareCommands.h"
#include "tools/DataCommands.h"
#include "tools/Files.h"
#include "tools/SharedOptions.h"
#include "tools/ToolMain.h"

#include <CLI/CLI.hpp>

#include <string>

namespace tarn {

namespace {

constexpr auto DataDescription = Words("Make and look after the data of the estimating program.");

std::string DataFooter() {
    return Words(
        "tarn-data COMMAND --help tells the options of a command.\n\n"
        "A name has at most %1 characters, a project's none of %2\n\n"
        "Exit status: 0 done, 1 refused or faults found (the reason is on standard error), "
        "2 wrong usage.\n\n"
        "Example:\n"
        "  tarn-data create ~/estimates\n"
        "  tarn-data import --database ~/estimates/DATA/Tarn.mdb --project \"SMITH\" "
        "house.csv",
        std::to_string(MaxNameLength), ForbiddenInProjectName);
}

void AddDatabase(CLI::App& command, DataOptions& arguments) {
    command.add_option("--database", arguments.Project.Database, Words("Database file"))
        ->required()
        ->type_name("FILE");
}

void AddProject(CLI::App& command, DataOptions& arguments) {
    AddDatabase(command, arguments);
    command.add_option("--project", arguments.Project.Project, Words("Name of the project"))
        ->required()
        ->type_name("NAME");
}

void AddMetric(CLI::App& command, DataOptions& arguments) {
    command.add_flag_callback(
        "--metric", [units = &arguments.Project.In] { *units = Units::Metric; },
        Words("The sizes are centimetres"));
}

CLI::App& AddCommand(CLI::App& app, const char* name, Phrase text, DataOptions& arguments,
                     std::function<void()> run) {
    CLI::App* command = app.add_subcommand(name, text);
    command->group(Words("Subcommands"));
    command->fallthrough(); // --language may stand behind the command, too
    command->set_help_flag("-h,--help", Words("Print this help message and exit"));
    command->callback([chosen = &arguments.Chosen, run = std::move(run)] { *chosen = run; });
    return *command;
}

void AddFileCommands(CLI::App& app, DataOptions& arguments) {
    auto& create = AddCommand(
        app, "create", Words("Make a data folder with an empty database"), arguments,
        [arguments = &arguments] { CreateData(arguments->Folder, arguments->ConfigDirectory); });
    create
        .add_option("FOLDER", arguments.Folder,
                    Words("Folder to be made; it will hold %1",
                          WithNativeSeparators(DatabaseFileInDataFolder)))
        ->required();
    create
        .add_option("--config-dir", arguments.ConfigDirectory,
                    Words("Directory of the configuration file %1", ConfigurationFileName))
        ->type_name("DIR");

    auto& list = AddCommand(app, "list", Words("List directories, projects and rooms"), arguments,
                            [arguments = &arguments] { ListData(arguments->Project.Database); });
    AddDatabase(list, arguments);
}

void AddCareCommands(CLI::App& app, DataOptions& arguments) {
    const auto* database = &arguments.Project.Database;
    const auto* target = &arguments.Target;
    const auto add = [&](const char* name, Phrase text,
                         const std::function<void()>& run) -> CLI::App& {
        auto& command = AddCommand(app, name, text, arguments, run);
        AddDatabase(command, arguments);
        return command;
    };
    add("check", Words("Check that a database is sound, and all that stands in it"),
        [database] { CheckData(*database); });
    add("repair", Words("Write a clean copy of all that can be read"),
        [database, target] { RepairData(*database, *target); })
        .add_option("--to", arguments.Target, Words("File to be made; must not exist"))
        ->required()
        ->type_name("NEW");
    add("backup", Words("Copy a database, also while the program uses it"),
        [database, target] { BackUpData(*database, *target); })
        .add_option("TARGET", arguments.Target, Words("File to be made; must not exist"))
        ->required();
    add("backups", Words("List the backups that the program made"),
        [database] { ListBackups(*database); });
    add("restore", Words("Put a backup in the place of a database; what was there is kept"),
        [database, target] { RestoreData(*target, *database); })
        .add_option("BACKUP", arguments.Target, Words("A file, or a name as \"backups\" lists it"))
        ->required();
}

void AddProjectCommands(CLI::App& app, DataOptions& arguments) {
    auto& report = AddCommand(app, "report", Words("Print the entered-data report of a project"),
                              arguments, [arguments = &arguments] {
                                  const ImportRequest& project = arguments->Project;
                                  ReportProject({project.Database, project.Project, project.In,
                                                 arguments->Csv, arguments->Xlsx, arguments->Over});
                              });
    AddProject(report, arguments);
    AddMetric(report, arguments);
    AddOutputFile(report, "--csv", arguments.Csv, Words("Write it as CSV instead"));
    AddOutputFile(report, "--xlsx", arguments.Xlsx, Words("Write it as a spreadsheet instead"));
    AddForce(report, arguments.Over);

    auto& import =
        AddCommand(app, "import", Words("Make the rooms of a CSV file those of a project"),
                   arguments, [project = &arguments.Project] { ImportProject(*project); });
    AddProject(import, arguments);
    import
        .add_option("FILE.csv", arguments.Project.Rooms.Path,
                    Words("The rooms; see tarn-estimate --help"))
        ->required();
    AddEncoding(import, arguments.Project.Rooms.Encoding);
    import
        .add_option("--directory", arguments.Project.Directory,
                    Words("Directory of a new project (default: the current month)"))
        ->type_name("NAME");
    AddMetric(import, arguments);
    import.add_flag("--replace", arguments.Project.Replace,
                    Words("Replace the rooms that the project has"));

    auto& exporting =
        AddCommand(app, "export", Words("Write a project's rooms as CSV"), arguments,
                   [arguments = &arguments] {
                       ExportProject({arguments->Project.Database, arguments->Project.Project,
                                      arguments->Csv, arguments->Xlsx, arguments->Over});
                   });
    AddProject(exporting, arguments);
    AddOutputFile(exporting, "--output", arguments.Csv,
                  Words("File to write (default: standard output)"));
    AddOutputFile(exporting, "--xlsx", arguments.Xlsx,
                  Words("Write them as a spreadsheet, with the totals by covering"));
    AddForce(exporting, arguments.Over);
}

} // namespace

void DescribeData(CLI::App& app, DataOptions& arguments) {
    BeginOptions(app, "tarn-data", DataDescription, DataFooter());
    app.require_subcommand(1);
    AddFileCommands(app, arguments);
    AddCareCommands(app, arguments);
    AddProjectCommands(app, arguments);
}

std::function<void()> ReadDataCommand(int argc, const char* const* argv, int& status) {
    SpeakAsAsked(argc, argv);
    CLI::App app;
    const auto arguments = std::make_shared<DataOptions>();
    DescribeData(app, *arguments);
    const auto check = [arguments] {
        RequireDifferentOutputs({{Words("the CSV"), arguments->Csv}, {"--xlsx", arguments->Xlsx}});
    };
    if (!ParseArguments(app, argc, argv, check, status)) {
        return {};
    }
    return [arguments] { arguments->Chosen(); };
}

} // namespace tarn
