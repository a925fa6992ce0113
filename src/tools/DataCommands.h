// The commands of tarn-data that make and show data, each a function.

#pragma once

#include "base/Units.h"
#include "files/OutputFile.h"
#include "tools/SharedOptions.h"

#include <string>

namespace tarn {

/// The commands of tarn-data. Each prints what it did on standard output and raises Refusal,
/// DatabaseError, RunTimeError or OutputFileError when it cannot.

/// Make FOLDER/DATA/Tarn.mdb with every table, and a configuration file that names the folder in
/// `configDirectory` (the user's own when empty) unless one is in force already. When the
/// configuration file cannot be written the database is there all the same, and the reason says so.
void CreateData(const std::string& folder, const std::string& configDirectory);

/// Print every directory, its projects and their rooms.
void ListData(const std::string& database);

/// What a report goes to.
struct ReportRequest {
    std::string Database;
    std::string Project;
    Units In = Units::Imperial; ///< in which sizes are listed
    std::string Csv;            ///< output files, or - ; empty = not wanted
    std::string Xlsx;
    Overwrite Over = Overwrite::Files;
};

/// Print the entered-data report of a project, with today's date; or write it as the files that are
/// asked for. Warns on standard error when the project was entered in metric and the report is not.
void ReportProject(const ReportRequest& request);

/// What an import does.
struct ImportRequest {
    std::string Database;
    std::string Project;
    std::string Directory;      ///< for a new project; empty = the current month
    RoomFile Rooms;             ///< CSV file
    Units In = Units::Imperial; ///< the units of the file
    bool Replace = false;       ///< allow the rooms of an existing project to be replaced
};

/// Make the rooms of a CSV file those of a project, which is made when it is not there, in one
/// transaction: whatever fails, nothing is changed. Raises Refusal for a project with rooms unless
/// Replace is set and the file has rooms.
void ImportProject(const ImportRequest& request);

/// What an export goes to.
struct ExportRequest {
    std::string Database;
    std::string Project;
    std::string Csv;  ///< output files, or - ; without any the CSV goes to standard output
    std::string Xlsx; ///< empty = not wanted
    Overwrite Over = Overwrite::Files;
};

/// Write a project's rooms as CSV or as a spreadsheet. The CSV file does not tell its unit: warns
/// on standard error when it is metric. Raises Refusal, which names them, when the CSV is wanted
/// and the project has rooms that ImportProject would refuse, such as one of a negative size;
/// nothing is written then.
void ExportProject(const ExportRequest& request);

} // namespace tarn
