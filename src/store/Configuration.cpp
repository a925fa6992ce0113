#include "store/Configuration.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/Descriptor.h"
#include "files/FileModes.h"
#include "files/TemporaryFile.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace tarn {

namespace fs = std::filesystem;

namespace {

constexpr char NativeSeparator = static_cast<char>(fs::path::preferred_separator);

std::optional<fs::path> DirectoryFromEnvironment(const char* variable) {
    const char* value = std::getenv(variable);
    if (value == nullptr || !fs::path(value).is_absolute()) {
        return std::nullopt;
    }
    return fs::path(value);
}

/// The whole file; nothing when it cannot be read.
std::optional<std::string> ReadText(const fs::path& file) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) {
        return std::nullopt; // a folder can be opened as a stream, but not read
    }
    std::ifstream stream(file, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream.is_open() || stream.bad()) {
        return std::nullopt;
    }
    return text;
}

void SkipByteOrderMark(std::string& text) {
    constexpr std::string_view Mark = "\xEF\xBB\xBF";
    if (text.starts_with(Mark)) {
        text.erase(0, Mark.size());
    }
}

bool ReadLine(std::istream& stream, std::string& line) {
    if (!std::getline(stream, line)) {
        return false;
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return true;
}

std::string FolderOfLine(std::string_view line) {
    std::string folder = TrimStr(line);
    while (folder.ends_with('\\') || folder.ends_with(NativeSeparator)) {
        folder.pop_back();
    }
    return folder;
}

/// The data folder that the text of a configuration file names.
std::string FolderOfText(const std::string& text) {
    std::istringstream stream(text);
    std::string line;
    while (ReadLine(stream, line)) {
        if (line == ConfigurationHeader) {
            return ReadLine(stream, line) ? FolderOfLine(line) : std::string();
        }
    }
    return {};
}

std::string TextFor(const std::string& dataFolder) {
    return std::string(ConfigurationHeader) + "\n" + dataFolder + "\n";
}

[[noreturn]] void RefuseToWrite(const fs::path& file, const std::string& cause) {
    throw std::runtime_error(Words("Cannot write %1: %2.", file.string(), cause));
}

/// Fill an empty file, and have it stored on the disk. Raises std::system_error.
void FillFile(const fs::path& file, const std::string& text) {
    Descriptor stream(::open(file.c_str(), O_WRONLY | O_CLOEXEC));
    if (!stream.IsOpen()) {
        throw LastError();
    }
    WriteAll(stream, text);
    Synchronise(stream);
    stream.Close();
}

void RequireReadableBack(const fs::path& file, const std::string& dataFolder) {
    if (dataFolder.empty() || FolderOfText(TextFor(dataFolder)) != dataFolder ||
        WithNativeSeparators(dataFolder) != dataFolder) {
        RefuseToWrite(file, Words("the folder \"%1\" cannot be named in it", dataFolder));
    }
}

} // namespace

std::optional<fs::path> UserConfigurationDirectory() {
#ifdef _WIN32
    return DirectoryFromEnvironment("SystemRoot");
#else
    if (const auto configHome = DirectoryFromEnvironment("XDG_CONFIG_HOME")) {
        return *configHome / "tarn";
    }
    if (const auto home = DirectoryFromEnvironment("HOME")) {
        return *home / ".config" / "tarn";
    }
    return std::nullopt;
#endif
}

std::optional<fs::path> UserDataFolder() {
#ifdef _WIN32
    if (const auto local = DirectoryFromEnvironment("LOCALAPPDATA")) {
        return *local / "tarn";
    }
#else
    if (const auto dataHome = DirectoryFromEnvironment("XDG_DATA_HOME")) {
        return *dataHome / "tarn";
    }
    if (const auto home = DirectoryFromEnvironment("HOME")) {
        return *home / ".local" / "share" / "tarn";
    }
#endif
    return std::nullopt;
}

fs::path SystemConfigurationDirectory() {
#ifdef _WIN32
    return {};
#else
    return "/etc/tarn";
#endif
}

std::vector<fs::path> ConfigurationDirectories() {
    std::vector<fs::path> directories;
    if (auto own = UserConfigurationDirectory()) {
        directories.push_back(std::move(*own));
    }
    if (fs::path system = SystemConfigurationDirectory(); !system.empty()) {
        directories.push_back(std::move(system));
    }
    return directories;
}

Configuration ReadConfiguration(const std::vector<fs::path>& directories) {
    for (const fs::path& directory : directories) {
        const fs::path file = directory / ConfigurationFileName;
        auto text = ReadText(file);
        if (!text) {
            continue;
        }
        SkipByteOrderMark(*text);
        if (text->empty()) {
            return {Configuration::Finding::Empty, file, {}};
        }
        return {Configuration::Finding::Read, file, FolderOfText(*text)};
    }
    return {};
}

void WriteConfiguration(const fs::path& directory, const std::string& dataFolder) {
    const fs::path file = directory / ConfigurationFileName;
    RequireReadableBack(file, dataFolder);

    // Written beside and moved into place, so that no half-written file is ever in force.
    fs::path draft = file;
    draft += ".new";
    fs::path written = draft;
    std::error_code ignored;
    try {
        MakePrivateFolder(directory);
        if (fs::exists(file) && !(fs::is_regular_file(file) && fs::is_empty(file))) {
            RefuseToWrite(file, Words("it is there already"));
        }
        if (fs::is_regular_file(draft)) {
            fs::remove(draft); // of a run that was ended in the middle
        }
        MakePrivateFile(draft);
        FillFile(draft, TextFor(dataFolder));
        fs::rename(draft, file);
        written = file;
        SynchroniseEntries(directory.native());
    } catch (const std::system_error& failure) {
        fs::remove(written, ignored);
        RefuseToWrite(file, CauseOf(failure.code()));
    }
}

std::string WithNativeSeparators(std::string_view path) {
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', NativeSeparator);
    return native;
}

} // namespace tarn
