#include "store/FirstStart.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/Descriptor.h"
#include "files/FileModes.h"
#include "store/Configuration.h"
#include "store/DataFolder.h"
#include "store/Schema.h"

#include <stdexcept>
#include <system_error>
#include <utility>

namespace tarn {

namespace fs = std::filesystem;

namespace {

fs::path DatabaseIn(const fs::path& dataFolder) {
    return dataFolder / WithNativeSeparators(DatabaseFileInDataFolder);
}

/// Folders and files that go again unless they are kept; a folder that holds something stays.
class Making {
  public:
    Making() = default;
    ~Making() {
        for (; !made_.empty(); made_.pop_back()) {
            std::error_code ignored;
            fs::remove(made_.back(), ignored);
        }
    }
    Making(const Making&) = delete;
    Making& operator=(const Making&) = delete;

    void Folder(const fs::path& folder) {
        try {
            auto made = MakePrivateFolder(folder);
            made_.insert(made_.end(), made.begin(), made.end());
        } catch (const fs::filesystem_error& error) {
            throw std::runtime_error(
                Words("The folder %1 cannot be made: %2.", folder.string(), CauseOf(error.code())));
        }
    }
    void Database(const fs::path& file) {
        CreateDatabaseFile(file.string());
        made_.push_back(file);
    }
    void Keep() { made_.clear(); }

  private:
    std::vector<fs::path> made_; ///< in the order in which they were made
};

} // namespace

std::optional<FirstStart> OfferFirstStart(const std::vector<fs::path>& configurationDirectories) {
    const auto folder = UserDataFolder();
    const bool isMissing =
        ReadConfiguration(configurationDirectories).Found == Configuration::Finding::Missing;
    if (!folder || !isMissing || configurationDirectories.empty()) {
        return std::nullopt;
    }
    const fs::path& directory = configurationDirectories.front();
    if (directory.empty() || directory == SystemConfigurationDirectory()) {
        return std::nullopt;
    }
    std::error_code unknown;
    return FirstStart{*folder, fs::absolute(directory / ConfigurationFileName),
                      fs::exists(DatabaseIn(*folder), unknown)};
}

std::string QuestionAbout(const FirstStart& start) {
    const Phrase question = start.HasData
                                ? Words("Use the data that is in this folder already?\r\n\r\n"
                                        "Data folder: %1\r\nIt is named in a new file: %2\r\n\r\n"
                                        "With No nothing is made, and the program ends.")
                                : Words("Make a folder for the program's data?\r\n\r\n"
                                        "Data folder: %1\r\nIt is named in a new file: %2\r\n\r\n"
                                        "With No nothing is made, and the program ends.");
    return Words(question, start.DataFolder.string(), start.Configuration.string());
}

void MakeFirstStart(const FirstStart& start) {
    Making making;
    making.Folder(start.Configuration.parent_path());
    if (!start.HasData) {
        const fs::path database = DatabaseIn(start.DataFolder);
        making.Folder(database.parent_path());
        making.Database(database);
    }
    WriteConfiguration(start.Configuration.parent_path(), start.DataFolder.string());
    making.Keep();
}

} // namespace tarn
