#include "files/ModeTesting.h"
#include "store/Configuration.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

/// What is kept may be read by its owner alone, whatever the umask of the process that makes it.
class DataModes : public ::testing::TestWithParam<mode_t> {
  protected:
    fs::path Path(const std::string& name) const { return folder_.Path(name); }
    /// A folder that a group shares.
    fs::path SharedFolder() const {
        fs::path folder = Path("shared");
        fs::create_directory(folder);
        fs::permissions(folder, static_cast<fs::perms>(02770));
        return folder;
    }

  private:
    TestFolder folder_;
    Umask umask_ = Umask(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Umasks, DataModes, ::testing::ValuesIn(Umasks),
                         [](const auto& each) { return "Umask" + std::to_string(each.param); });

TEST_P(DataModes, OfADatabaseAndItsFoldersAreTheOwnersAlone) {
    CreateDatabaseFile(Path("data/DATA/Tarn.mdb"));
    EXPECT_EQ(ModeOf(Path("data")), "0700");
    EXPECT_EQ(ModeOf(Path("data/DATA")), "0700");
    EXPECT_EQ(ModeOf(Path("data/DATA/Tarn.mdb")), "0600");
}

TEST_P(DataModes, OfADatabaseInASharedFolderAreTheFoldersOwn) {
    const fs::path folder = SharedFolder();
    CreateDatabaseFile(folder / "DATA/Tarn.mdb");
    EXPECT_EQ(ModeOf(folder / "DATA"), "2770");
    EXPECT_EQ(ModeOf(folder / "DATA/Tarn.mdb"), "0660");
}

TEST_P(DataModes, OfTheJournalAreThoseOfTheDatabase) {
    const fs::path shared = SharedFolder() / "Tarn.mdb";
    const fs::path own = Path("Tarn.mdb");
    for (const fs::path& file : {own, shared}) {
        CreateDatabaseFile(file);
        RawDatabase other(file);
        other.Run("BEGIN IMMEDIATE");
        other.Run("INSERT INTO DirTab VALUES ('A')");
        EXPECT_EQ(ModeOf(file.string() + "-journal"), file == own ? "0600" : "0660");
        other.Run("ROLLBACK");
    }
}

TEST_P(DataModes, OfABackupAreThoseOfADatabase) {
    CreateDatabaseFile(Path("Tarn.mdb"));
    fs::permissions(Path("Tarn.mdb"), static_cast<fs::perms>(0644));
    BackUpDatabaseFile(Path("Tarn.mdb"), Path("copies/Tarn.mdb"));
    EXPECT_EQ(ModeOf(Path("copies")), "0700");
    EXPECT_EQ(ModeOf(Path("copies/Tarn.mdb")), "0600");
    const fs::path folder = SharedFolder();
    BackUpDatabaseFile(Path("Tarn.mdb"), folder / "Tarn.mdb");
    EXPECT_EQ(ModeOf(folder / "Tarn.mdb"), "0660");
}

TEST_P(DataModes, OfTheConfigurationAreTheOwnersAlone) {
    WriteConfiguration(Path("config/tarn"), "/data");
    EXPECT_EQ(ModeOf(Path("config")), "0700");
    EXPECT_EQ(ModeOf(Path("config/tarn")), "0700");
    EXPECT_EQ(ModeOf(Path("config/tarn/TarnWin.INI")), "0600");
    WriteFile(Path("TarnWin.INI"), "");
    fs::permissions(Path("TarnWin.INI"), static_cast<fs::perms>(0666));
    WriteConfiguration(Path(""), "/data");
    EXPECT_EQ(ModeOf(Path("TarnWin.INI")), "0600");
}

} // namespace
} // namespace tarn
