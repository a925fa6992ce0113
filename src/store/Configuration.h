// The configuration file TarnWin.INI: where it is looked for, what it says, how it is written.

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Name of the configuration file: UTF-8 text in which the line after a line that is exactly
/// ConfigurationHeader names the data folder.
inline constexpr std::string_view ConfigurationFileName = "TarnWin.INI";
inline constexpr std::string_view ConfigurationHeader = "[TarnWin Directory]";

/// The user's own configuration directory: $XDG_CONFIG_HOME/tarn, or ~/.config/tarn when that
/// variable is unset, empty or relative; the Windows directory on Windows. Nothing when the
/// environment names no home.
std::optional<std::filesystem::path> UserConfigurationDirectory();

/// The user's own data folder: $XDG_DATA_HOME/tarn, or ~/.local/share/tarn when that variable is
/// unset, empty or relative; tarn in the folder of local application data on Windows. Nothing when
/// the environment names no home.
std::optional<std::filesystem::path> UserDataFolder();

/// The system's configuration directory; empty on Windows.
std::filesystem::path SystemConfigurationDirectory();

/// Where the configuration file is looked for, first place first: the user's own directory, then
/// the system's (/etc/tarn; none on Windows).
std::vector<std::filesystem::path> ConfigurationDirectories();

/// What was found of the configuration file.
struct Configuration {
    enum class Finding {
        Missing, ///< no readable file in any place
        Empty,   ///< the first file found holds nothing; it stops the search all the same
        Read,
    };
    Finding Found = Finding::Missing;
    /// The file in force; empty when Missing.
    std::filesystem::path File;
    /// The data folder without blanks around it and without backslashes or native separators at its
    /// end. Empty when the file has no header, or the header stands on its last line.
    std::string DataPath;
};

/// Read the first configuration file that `directories` hold, in their order. A file that cannot be
/// read counts as missing. A byte-order mark is skipped, lines end in LF or CR LF, and of several
/// headers the first counts.
Configuration ReadConfiguration(const std::vector<std::filesystem::path>& directories);

/// Write a configuration file that names `dataFolder` into `directory`, which is made when it is
/// missing. An existing file is replaced only when it is empty. Raises std::runtime_error, with
/// nothing changed but the directory made, when there is a file already, when it cannot be written,
/// and when ReadConfiguration would not give `dataFolder` back (a line break or a blank at its
/// ends, a separator at its end, or a backslash where that is not the native separator).
void WriteConfiguration(const std::filesystem::path& directory, const std::string& dataFolder);

/// `path` with each backslash turned into the platform's separator, as it must be to open a file.
std::string WithNativeSeparators(std::string_view path);

} // namespace tarn
