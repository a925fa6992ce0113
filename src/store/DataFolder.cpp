#include "store/DataFolder.h"

#include "store/Configuration.h"

namespace tarn {

std::optional<DataFolder>
FindDataFolder(const std::vector<std::filesystem::path>& configurationDirectories) {
    const Configuration configuration = ReadConfiguration(configurationDirectories);
    if (configuration.Found != Configuration::Finding::Read) {
        return std::nullopt;
    }
    return DataFolder{configuration.DataPath,
                      configuration.DataPath + "\\" + std::string(DatabaseFileInDataFolder),
                      configuration.File};
}

ProjectStore OpenStore(const DataFolder& folder) {
    try {
        return ProjectStore(WithNativeSeparators(folder.DatabaseName), DatabaseAccess::ReadWrite);
    } catch (const DatabaseError& error) {
        std::string reason = error.what();
        if (folder.Path.empty()) {
            reason += " No data folder is named in " + folder.Configuration.string() + ".";
        }
        return ProjectStore::Unavailable(std::move(reason));
    }
}

} // namespace tarn
