#include "store/Configuration.h"

#include "Fuzzing.h"
#include "TemporaryFolder.h"

#include <fstream>
#include <stdexcept>

namespace tarn {
namespace {

namespace fs = std::filesystem;

bool CanBeWritten(const fs::path& folder, const std::string& dataFolder) {
    try {
        WriteConfiguration(folder, dataFolder);
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

void CheckConfiguration(std::string_view text) {
    static const TemporaryFolder folder;
    const fs::path file = folder.Path() / ConfigurationFileName;
    std::ofstream(file, std::ios::binary) << text;
    const Configuration read = ReadConfiguration({folder.Path()});
    Require(read.Found != Configuration::Finding::Missing, "a file that is there is found");
    Require(read.File == file, "the file in force is named");
    Require(read.Found == Configuration::Finding::Read || read.DataPath.empty(),
            "an empty file names nothing");

    const std::string& path = read.DataPath;
    Require(path.find('\n') == std::string::npos, "a path is one line");
    Require(path.empty() || (path.back() != '/' && path.back() != '\\'),
            "a path does not end in a separator");
    Require(WithNativeSeparators(path).find('\\') == std::string::npos, "no backslash is left");
    Require(WithNativeSeparators(WithNativeSeparators(path)) == WithNativeSeparators(path),
            "separators are turned once");

    // What can be written reads back; it is the input's folder, or the input itself.
    for (const std::string& named : {WithNativeSeparators(path), std::string(text)}) {
        fs::remove(file);
        if (CanBeWritten(folder.Path(), named)) {
            Require(ReadConfiguration({folder.Path()}).DataPath == named,
                    "what is written is read back");
        } else {
            Require(!fs::exists(file), "what cannot be written leaves no file");
        }
    }
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckConfiguration(tarn::TextOf(data, size));
    return 0;
}
