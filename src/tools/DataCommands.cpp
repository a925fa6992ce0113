#include "tools/DataCommands.h"

#include "base/Lengths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "files/ProjectTables.h"
#include "files/RoomCsv.h"
#include "files/ShortDate.h"
#include "files/Spreadsheet.h"
#include "project/Coverings.h"
#include "project/Report.h"
#include "project/WallBase.h"
#include "store/Configuration.h"
#include "store/DataFolder.h"
#include "store/ProjectStore.h"
#include "store/Schema.h"
#include "tools/Files.h"
#include "tools/ProjectFile.h"
#include "tools/Refusal.h"
#include "tools/StandardStreams.h"

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
        throw Refusal(Words("Name the folder to be made."));
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
        const Phrase text =
            inForce.DataPath.empty()
                ? Words("The configuration file %1 is in force; it names no folder.")
                : Words("The configuration file %1 is in force; it names the folder %2.");
        std::cout << Words(text, inForce.File.string(), inForce.DataPath) << '\n';
        return;
    }
    if (directories.empty()) {
        throw Refusal(Words("There is no home directory for the configuration file; name a "
                            "directory with --config-dir."));
    }
    WriteConfiguration(directories.front(), folder.string());
    std::cout << Words("Made %1, which names the folder %2.",
                       (directories.front() / ConfigurationFileName).string(), folder.string())
              << '\n';
}

/// The projects of every directory, by directory. One that is a month has no row of its own.
std::map<std::string, std::vector<std::string>> ProjectsByDirectory(ProjectStore& store) {
    std::map<std::string, std::vector<std::string>> projects;
    for (const std::string& directory : store.Directories()) {
        projects[directory];
    }
    for (const auto& [directory, project] : store.AllProjects()) {
        projects[directory].push_back(project);
    }
    return projects;
}

std::string RoomLine(const Room& room, std::size_t number, Units units) {
    const std::string size =
        WholeLengthText(room.Width, units) + " X " + WholeLengthText(room.Length, units);
    std::string line = "    " + std::to_string(number) + ": " +
                       (units == Units::Metric ? Words("%1 CM", size) : size) + "  " +
                       CoveringCaption(room.Covering);
    for (const std::string& text : {BaseText(room.Base), room.Number, room.Remark}) {
        line += text.empty() ? "" : "  " + text;
    }
    return ShownText(line);
}

void ListRooms(std::ostream& out, const LoadedProject& loaded) {
    const std::vector<Room>& rooms = loaded.Value.Rooms;
    out << " (" << CountedWords("%n room", "%n rooms", static_cast<long long>(rooms.size()))
        << ")\n";
    for (const std::string& finding : loaded.Findings) {
        out << "    " << ShownText(finding) << '\n';
    }
    std::size_t number = 0;
    for (const Room& room : rooms) {
        out << RoomLine(room, ++number, loaded.Value.EnteredIn) << '\n';
    }
}

void ListProject(std::ostream& out, ProjectStore& store, const std::string& project) {
    const auto tellCause = [&out](const std::string& cause) {
        out << " (" << Words("cannot be loaded: %1", ShownText(cause)) << ")\n";
    };
    out << "  " << ShownText(project);
    try {
        // Without a sheet there is nothing to load, which takes longest where there are most
        // projects.
        ListRooms(out, store.SheetOf(project) ? store.Load(project) : LoadedProject());
    } catch (const DatabaseError& error) {
        tellCause(error.what());
    } catch (const RunTimeError& error) {
        tellCause(error.Sentences());
    }
}

/// Raise Refusal, which names the rooms, unless an import would take the file.
void RequireReadable(const Project& project, const std::string& file) {
    const RoomCsvReading reading = ReadRoomCsv(file, project.EnteredIn);
    if (reading.Succeeded()) {
        return;
    }
    std::string text = Words("The project %1 cannot be exported: no import would take these rooms. "
                             "Correct them in the program first; nothing was written.",
                             project.Name);
    for (const RoomCsvError& mistake : reading.Errors) {
        // Line 1 is the header, and each room has one line.
        text += "\n  " + Words("room %1: %2", TrimStr(mistake.Line - 1), mistake.Problem);
    }
    if (reading.MoreErrors > 0) {
        text += "\n  " + MoreMistakesText(reading.MoreErrors);
    }
    throw Refusal(text);
}

} // namespace

void CreateData(const std::string& folder, const std::string& configDirectory) {
    const auto path = FolderPath(folder);
    const auto database = path / WithNativeSeparators(DatabaseFileInDataFolder);
    CreateDatabaseFile(database.string());
    std::cout << Words("Made %1.", database.string()) << '\n';
    try {
        SettleConfiguration(path, configDirectory);
    } catch (const std::runtime_error& error) {
        throw Refusal(Words("%1 The database is made all the same. Write %2 yourself: the line %3, "
                            "and in the next one its folder.",
                            error.what(), ConfigurationFileName, ConfigurationHeader));
    }
}

void ListData(const std::string& database) {
    ProjectStore store(database, DatabaseAccess::ReadOnly);
    std::ostringstream out;
    for (const auto& [directory, projects] : ProjectsByDirectory(store)) {
        out << ShownText(directory) << '\n';
        for (const std::string& project : projects) {
            ListProject(out, store, project);
        }
    }
    WriteStandardOutput(out.str());
}

void ReportProject(const ReportRequest& request) {
    RequireOtherFile(request.Csv, request.Database);
    RequireOtherFile(request.Xlsx, request.Database);
    ProjectStore store(request.Database, DatabaseAccess::ReadOnly);
    const Project project = LoadProjectNamed(store, request.Project);
    if (project.EnteredIn == Units::Metric && request.In != Units::Metric) {
        WarnOfMetric(Words("Warning: the project %1 was entered in metric; its sizes are listed in "
                           "feet and inches. Use --metric for centimetres."),
                     project);
    }
    if (!request.Xlsx.empty()) {
        WriteWholeFile(request.Xlsx, XlsxOf({ReportTable(project, request.In)}), request.Over);
    }
    if (!request.Csv.empty()) {
        WriteWholeFile(request.Csv, CsvOf({ReportTable(project, request.In)}), request.Over);
    }
    if (request.Csv.empty() && request.Xlsx.empty()) {
        std::string report = MakeReport(project, request.In, ShortDateOfToday()).Text();
        report.erase(std::remove(report.begin(), report.end(), '\r'), report.end());
        WriteStandardOutput(ShownLines(report));
    }
}

void ExportProject(const ExportRequest& request) {
    const std::string csv =
        request.Csv.empty() && request.Xlsx.empty() ? StandardOutput : request.Csv;
    RequireOtherFile(csv, request.Database);
    RequireOtherFile(request.Xlsx, request.Database);
    ProjectStore store(request.Database, DatabaseAccess::ReadOnly);
    const Project project = LoadProjectNamed(store, request.Project);
    if (project.EnteredIn == Units::Metric) {
        WarnOfMetric(Words("Warning: the project %1 was entered in metric; its sizes are written "
                           "in centimetres. Use --metric to read them."),
                     project);
    }
    const std::string rooms = WriteRoomCsv(project.Rooms);
    if (!csv.empty()) {
        RequireReadable(project, rooms);
    }
    if (!request.Xlsx.empty()) {
        WriteWholeFile(request.Xlsx, XlsxOf(RoomTables(project, project.EnteredIn)), request.Over);
    }
    if (!csv.empty()) {
        WriteWholeFile(csv, rooms, request.Over);
    }
}

} // namespace tarn
