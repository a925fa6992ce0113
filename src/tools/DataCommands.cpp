#include "tools/DataCommands.h"

#include "base/Lengths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "files/RoomCsv.h"
#include "files/ShortDate.h"
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
    std::string line = "    " + std::to_string(number) + ": " + WholeLengthText(room.Width, units) +
                       " X " + WholeLengthText(room.Length, units) +
                       (units == Units::Metric ? " CM" : "") + "  " +
                       CoveringCaption(room.Covering);
    for (const std::string& text : {BaseText(room.Base), room.Number, room.Remark}) {
        line += text.empty() ? "" : "  " + text;
    }
    return ShownText(line);
}

void ListRooms(std::ostream& out, const LoadedProject& loaded) {
    const std::vector<Room>& rooms = loaded.Value.Rooms;
    out << " (" << rooms.size() << (rooms.size() == 1 ? " room" : " rooms") << ")\n";
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
        out << " (cannot be loaded: " << ShownText(cause) << ")\n";
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
    std::string text = "The project " + project.Name +
                       " cannot be exported: no import would take these rooms. Correct them in the "
                       "program first; nothing was written.";
    for (const RoomCsvError& mistake : reading.Errors) {
        // Line 1 is the header, and each room has one line.
        text += "\n  room " + TrimStr(mistake.Line - 1) + ": " + MistakeText(mistake);
    }
    throw Refusal(text + MoreMistakes(reading));
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

void ReportProject(const std::string& database, const std::string& name, Units units) {
    ProjectStore store(database, DatabaseAccess::ReadOnly);
    const Project project = LoadProjectNamed(store, name);
    if (project.EnteredIn == Units::Metric && units != Units::Metric) {
        WarnOfMetric(project, "its sizes are listed in feet and inches. Use --metric for "
                              "centimetres.");
    }
    std::string report = MakeReport(project, units, ShortDateOfToday()).Text();
    report.erase(std::remove(report.begin(), report.end(), '\r'), report.end());
    WriteStandardOutput(ShownLines(report));
}

void ExportProject(const std::string& database, const std::string& name, const std::string& output,
                   Overwrite over) {
    RequireOtherFile(output, database);
    ProjectStore store(database, DatabaseAccess::ReadOnly);
    const Project project = LoadProjectNamed(store, name);
    if (project.EnteredIn == Units::Metric) {
        WarnOfMetric(project, "its sizes are written in centimetres. Use --metric to read them.");
    }
    const std::string rooms = WriteRoomCsv(project.Rooms);
    RequireReadable(project, rooms);
    WriteWholeFile(output, rooms, over);
}

} // namespace tarn
