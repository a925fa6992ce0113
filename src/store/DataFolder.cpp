#include "store/DataFolder.h"

#include "base/Words.h"
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
        advice = Words(" No data folder is named in %1.", folder.Configuration.string());
    }
    return ProjectStore::OpenedWhenUsed(WithNativeSeparators(folder.DatabaseName),
                                        DatabaseAccess::ReadWrite, std::move(advice));
}

} // namespace tarn
