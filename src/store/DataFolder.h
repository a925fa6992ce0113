// The way from the configuration file to the open database.

#pragma once

#include "base/Words.h"
#include "store/ProjectStore.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Shown when there is no configuration file, or the one found first is empty; the program then
/// ends.
inline constexpr auto ConfigurationMissingMessage = Words("Couldn't find TarnWin.ini");

/// The database file below the data folder, with a backslash as its path is kept as text.
inline constexpr std::string_view DatabaseFileInDataFolder = "DATA\\Tarn.mdb";

/// Where the program keeps its data, as the configuration says.
struct DataFolder {
    std::string Path;                    ///< without a separator at its end; empty for none named
    std::string DatabaseName;            ///< the database file, with backslashes as text
    std::filesystem::path Configuration; ///< the file that names the folder
};

/// The data folder that the first configuration file names; nothing when there is no such file or
/// the one found first is empty.
std::optional<DataFolder>
FindDataFolder(const std::vector<std::filesystem::path>& configurationDirectories);

/// The folder's database, for reading and writing. It is opened when it is first used; a store that
/// cannot be opened says why, and is tried again at its next use.
ProjectStore OpenStore(const DataFolder& folder);

} // namespace tarn
