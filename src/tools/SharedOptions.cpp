#include "tools/SharedOptions.h"

#include "base/Words.h"
#include "files/Language.h"
#include "tools/Files.h"

#include <CLI/CLI.hpp>

namespace tarn {

CLI::Option* AddEncoding(CLI::App& app, std::string& encoding) {
    return app
        .add_option("--encoding", encoding,
                    "Encoding of the CSV file, such as windows-1252; \"iconv -l\" lists them "
                    "(default: what its byte-order mark says, else UTF-8)")
        ->check(NotEmpty)
        ->type_name("NAME");
}

void AddRoomsSource(CLI::App& app, std::string& database, std::string& project, RoomFile& rooms) {
    auto* file =
        app.add_option("--database", database, "Database file of the project")->type_name("FILE");
    auto* name = app.add_option("--project", project, "Name of the project")->type_name("NAME");
    auto* csv =
        app.add_option("--rooms", rooms.Path, "CSV file with the rooms")->type_name("FILE.csv");
    file->needs(name);
    name->needs(file);
    csv->excludes(file)->excludes(name);
    AddEncoding(app, rooms.Encoding)->needs(csv);
}

void RequireRoomsSource(const std::string& database, const std::string& rooms) {
    if (database.empty() && rooms.empty()) {
        throw CLI::ValidationError(
            Words("either --database and --project, or --rooms is required"));
    }
}

std::string NotEmpty(const std::string& value) {
    return value.empty() ? Words("the value is empty") : Phrase();
}

void RequireDifferentOutputs(const std::vector<std::pair<std::string, std::string>>& outputs) {
    for (auto output = outputs.begin(); output != outputs.end(); ++output) {
        for (auto other = output + 1; other != outputs.end(); ++other) {
            const std::string& path = output->second;
            if (!path.empty() && !other->second.empty() && IsSameFile(path, other->second)) {
                throw CLI::ValidationError(
                    path == StandardOutput ? Words("%1 and %2 cannot both go to standard output",
                                                   output->first, other->first)
                                           : Words("%1 and %2 cannot both go to %3", output->first,
                                                   other->first, path));
            }
        }
    }
}

} // namespace tarn
