// The commands of tarn-data that make and show data, each a function.

#pragma once

#include "base/Units.h"
#include "files/OutputFile.h"

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

/// Print the entered-data report of a project, with today's date. Warns on standard error when the
/// project was entered in metric and `units` are not.
void ReportProject(const std::string& database, const std::string& name, Units units);

/// What an import does.
struct ImportRequest {
    std::string Database;
    std::string Project;
    std::string Directory;      ///< for a new project; empty = the current month
    std::string Rooms;          ///< CSV file
    Units In = Units::Imperial; ///< the units of the file
    bool Replace = false;       ///< allow the rooms of an existing project to be replaced
};

/// Make the rooms of a CSV file those of a project, which is made when it is not there, in one
/// transaction: whatever fails, nothing is changed. Raises Refusal for a project with rooms unless
/// Replace is set and the file has rooms.
void ImportProject(const ImportRequest& request);

/// Write a project's rooms as CSV to a file, or to standard output for "-". The file does not tell
/// its unit: warns on standard error when it is metric. Raises Refusal, which names them, when the
/// project has rooms that ImportProject would refuse, such as one of a negative size.
void ExportProject(const std::string& database, const std::string& name, const std::string& output,
                   Overwrite over = Overwrite::Files);

} // namespace tarn
