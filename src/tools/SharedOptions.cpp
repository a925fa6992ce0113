#include "tools/SharedOptions.h"

#include "tools/Files.h"

#include <CLI/CLI.hpp>

namespace tarn {

void AddRoomsSource(CLI::App& app, std::string& database, std::string& project,
                    std::string& rooms) {
    auto* file =
        app.add_option("--database", database, "Database file of the project")->type_name("FILE");
    auto* name = app.add_option("--project", project, "Name of the project")->type_name("NAME");
    auto* csv = app.add_option("--rooms", rooms, "CSV file with the rooms")->type_name("FILE.csv");
    file->needs(name);
    name->needs(file);
    csv->excludes(file)->excludes(name);
}

void RequireRoomsSource(const std::string& database, const std::string& rooms) {
    if (database.empty() && rooms.empty()) {
        throw CLI::ValidationError("either --database and --project, or --rooms is required");
    }
}

std::string NotEmpty(const std::string& value) {
    return value.empty() ? "the value is empty" : "";
}

void RequireDifferentOutputs(const std::vector<std::pair<std::string, std::string>>& outputs) {
    for (auto output = outputs.begin(); output != outputs.end(); ++output) {
        for (auto other = output + 1; other != outputs.end(); ++other) {
            const std::string& path = output->second;
            if (!path.empty() && !other->second.empty() && IsSameFile(path, other->second)) {
                throw CLI::ValidationError(output->first + " and " + other->first +
                                           " cannot both go to " +
                                           (path == StandardOutput ? "standard output" : path));
            }
        }
    }
}

} // namespace tarn
