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
    std::string advice;
    if (folder.Path.empty()) {
        advice = " No data folder is named in " + folder.Configuration.string() + ".";
    }
    return ProjectStore::OpenedWhenUsed(WithNativeSeparators(folder.DatabaseName),
                                        DatabaseAccess::ReadWrite, std::move(advice));
}

} // namespace tarn
