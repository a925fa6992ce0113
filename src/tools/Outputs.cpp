#include "tools/Outputs.h"

#include "tools/Files.h"

#include <CLI/CLI.hpp>

namespace tarn {

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
