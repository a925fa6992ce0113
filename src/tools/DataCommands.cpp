#include "tools/DataCommands.h"

#include "app/Configuration.h"
#include "app/Lengths.h"
#include "app/StartModule.h"
#include "app/Text.h"
#include "rooms/Coverings.h"
#include "rooms/Report.h"
#include "rooms/RoomCsv.h"
#include "rooms/RoomStore.h"
#include "rooms/WallBase.h"
#include "store/Fields.h"
#include "store/Projects.h"
#include "store/Schema.h"
#include "store/SharedRows.h"
#include "tools/Files.h"
#include "tools/ProjectFile.h"
#include "tools/Refusal.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <sstream>

namespace tarn {

namespace {

/// `folder` as an absolute path without a separator at its end.
std::filesystem::path FolderPath(const std::string& folder) {
    if (folder.empty()) {
        throw Refusal("Name the folder to be made.");
    }
    const auto path = std::filesystem::absolute(folder).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

/// Tell which configuration file is in force, or write one.
void SettleConfiguration(const std::filesystem::path& folder, const std::string& configDirectory) {
    const auto directories = configDirectory.empty()
                                 ? ConfigurationDirectories()
                                 : std::vector<std::filesystem::path>{configDirectory};
    const Configuration inForce = ReadConfiguration(directories);
    if (inForce.Found == Configuration::Finding::Read) {
        std::cout << "The configuration file " << inForce.File.string() << " is in force; it names "
                  << (inForce.DataPath.empty() ? "no folder" : "the folder " + inForce.DataPath)
                  << ".\n";
        return;
    }
    if (directories.empty()) {
        throw Refusal("There is no home directory for the configuration file; name a directory "
                      "with --config-dir.");
    }
    WriteConfiguration(directories.front(), folder.string());
    std::cout << "Made " << (directories.front() / ConfigurationFileName).string()
              << ", which names the folder " << folder.string() << ".\n";
}

/// The projects of every directory, by directory. One that is a month has no row of its own.
std::map<std::string, std::vector<std::string>> AllProjects(SharedState& state) {
    std::map<std::string, std::vector<std::string>> projects;
    for (const std::string& directory : ListDirectories(state)) {
        projects[directory];
    }
    Recordset& rows = RowsOf(state, SharedRows::Projects);
    for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext()) {
        projects[TextIn(rows, "Dir")].push_back(TextIn(rows, "ProjName"));
    }
    return projects;
}

std::string RoomLine(const SharedState& state, Integer room) {
    const auto size = [&](Integer length) { return WholeLengthText(length, state.IsMetric()); };
    std::string line = "    " + TrimStr(room + 1) + ": " + size(state.RoomWidth[room]) + " X " +
                       size(state.RoomLength[room]) + (state.IsMetric() ? " CM" : "") + "  " +
                       CoveringCaption(state.RoomCarpet[room]);
    for (const std::string& text :
         {GetBaseStr(state.RoomBase[room]), state.RoomNoStr[room], state.RoomRemark[room]}) {
        line += text.empty() ? "" : "  " + text;
    }
    return line;
}

void ListProject(std::ostream& out, SharedState& state, const std::string& project) {
    state.CurProjName = project;
    const ProjectLoad load = LoadProject(state);
    out << "  " << project;
    if (load.Result == ProjectLoad::Outcome::Failed) {
        out << " (cannot be loaded: " << load.Cause << ")\n";
        return;
    }
    state.MetricFlag = load.EnteredMetric ? 1 : 0;
    out << " (" << state.ObjNum << (state.ObjNum == 1 ? " room" : " rooms") << ")\n";
    for (const std::string& finding : load.Findings) {
        out << "    " << finding << '\n';
    }
    for (Integer room = 0; room < state.ObjNum; ++room) {
        out << RoomLine(state, room) << '\n';
    }
}

} // namespace

void CreateData(const std::string& folder, const std::string& configDirectory) {
    const auto path = FolderPath(folder);
    const auto database = path / WithNativeSeparators(DatabaseFileInDataFolder);
    CreateDatabaseFile(database.string());
    std::cout << "Made " << database.string() << ".\n";
    try {
        SettleConfiguration(path, configDirectory);
    } catch (const std::runtime_error& error) {
        throw Refusal(std::string(error.what()) + " The database is made all the same. Write " +
                      std::string(ConfigurationFileName) + " yourself: the line " +
                      std::string(ConfigurationHeader) + ", and in the next one its folder.");
    }
}

void CheckData(const std::string& database) {
    const std::vector<std::string> findings = CheckDatabaseFile(database);
    if (findings.empty()) {
        std::cout << "The database " << database << " is sound and has every table.\n";
        return;
    }
    std::string text = "The database " + database + " has faults:";
    for (const std::string& finding : findings) {
        text += "\n  " + finding;
    }
    throw Refusal(text);
}

void ListData(const std::string& database) {
    SharedState state;
    OpenForReading(state, database);
    std::ostringstream out;
    for (const auto& [directory, projects] : AllProjects(state)) {
        out << directory << '\n';
        for (const std::string& project : projects) {
            ListProject(out, state, project);
        }
    }
    WriteWholeFile(StandardOutput, out.str());
}

void ReportProject(const std::string& database, const std::string& project, bool metric) {
    SharedState state;
    OpenForReading(state, database);
    if (LoadProjectNamed(state, project) && !metric) {
        WarnOfMetric(state, "its sizes are listed in feet and inches. Use --metric for "
                            "centimetres.");
    }
    state.MetricFlag = metric ? 1 : 0;
    std::string report = LoadReport(state, ShortDateOfToday()).Text();
    report.erase(std::remove(report.begin(), report.end(), '\r'), report.end());
    WriteWholeFile(StandardOutput, report);
}

void ExportProject(const std::string& database, const std::string& project,
                   const std::string& output) {
    RequireOtherFile(output, database);
    SharedState state;
    OpenForReading(state, database);
    if (LoadProjectNamed(state, project)) {
        WarnOfMetric(state, "its sizes are written in centimetres. Use --metric to read them.");
    }
    WriteWholeFile(output, WriteRoomCsv(TakeRooms(state)));
}

void BackUpData(const std::string& database, const std::string& target) {
    BackUpDatabaseFile(database, target);
    std::cout << "Made " << target << ".\n";
}

} // namespace tarn
