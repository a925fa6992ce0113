// What a first start offers and makes, where nothing is configured.

#include "files/ModeTesting.h"
#include "store/Configuration.h"
#include "store/DataFolder.h"
#include "store/EnvironmentSetting.h"
#include "store/FirstStart.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

/// A user whose home is empty.
class FirstStarts : public ::testing::Test {
  protected:
    FirstStart Offered() { return OfferFirstStart(Directories()).value(); }
    std::vector<fs::path> Directories() const { return {Path("config/tarn"), "/etc/tarn"}; }
    fs::path Path(const std::string& name) const { return home_.Path(name); }
    fs::path Database() const { return Path(".local/share/tarn/DATA/Tarn.mdb"); }

    /// That it fails, names the path, and leaves the home as it was.
    void ExpectNothingMade(const FirstStart& start, const std::string& named) {
        const auto before = home_.Content();
        try {
            MakeFirstStart(start);
            ADD_FAILURE() << "it was made";
        } catch (const std::runtime_error& error) {
            EXPECT_NE(std::string(error.what()).find(named), std::string::npos) << error.what();
        }
        EXPECT_EQ(home_.Content(), before);
    }

  private:
    TestFolder home_;
    EnvironmentSetting homeSetting_{"HOME", home_.Path().c_str()};
    EnvironmentSetting dataSetting_{"XDG_DATA_HOME", nullptr};
};

TEST_F(FirstStarts, OfferTheUsersOwnPlaces) {
    const FirstStart start = Offered();
    EXPECT_EQ(start.DataFolder, Path(".local/share/tarn"));
    EXPECT_EQ(start.Configuration, Path("config/tarn/TarnWin.INI"));
    EXPECT_FALSE(start.HasData);
    const EnvironmentSetting elsewhere("XDG_DATA_HOME", "/elsewhere");
    EXPECT_EQ(Offered().DataFolder, fs::path("/elsewhere/tarn"));
    const EnvironmentSetting relative("XDG_DATA_HOME", "else/where");
    EXPECT_EQ(Offered().DataFolder, Path(".local/share/tarn"));
}

TEST_F(FirstStarts, AskWithBothPlaces) {
    EXPECT_EQ(QuestionAbout(Offered()), "Make a folder for the program's data?\r\n\r\n"
                                        "Data folder: " +
                                            Path(".local/share/tarn").string() +
                                            "\r\n"
                                            "It is named in a new file: " +
                                            Path("config/tarn/TarnWin.INI").string() +
                                            "\r\n\r\n"
                                            "With No nothing is made, and the program ends.");
}

TEST_F(FirstStarts, OfferNothingWhereAnyConfigurationIs) {
    fs::create_directories(Path("config/tarn"));
    WriteFile(Path("config/tarn/TarnWin.INI"), "");
    EXPECT_EQ(OfferFirstStart(Directories()), std::nullopt) << "an empty one stops the search";
    WriteFile(Path("config/tarn/TarnWin.INI"), "[TarnWin Directory]\n/data\n");
    EXPECT_EQ(OfferFirstStart(Directories()), std::nullopt);
}

TEST_F(FirstStarts, OfferNoPlaceThatIsNotTheUsers) {
    EXPECT_EQ(OfferFirstStart({"/etc/tarn"}), std::nullopt);
    EXPECT_EQ(OfferFirstStart({""}), std::nullopt);
    EXPECT_EQ(OfferFirstStart({}), std::nullopt);
    const EnvironmentSetting homeless("HOME", nullptr);
    EXPECT_EQ(OfferFirstStart(Directories()), std::nullopt);
}

TEST_F(FirstStarts, MakeADatabaseAndTheFileThatNamesIt) {
    const Umask open(0);
    MakeFirstStart(Offered());
    const auto folder = FindDataFolder(Directories());
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->Path, Path(".local/share/tarn").string());
    EXPECT_TRUE(OpenStore(*folder).Directories().empty());
    for (const char* made : {"config", "config/tarn", ".local", ".local/share/tarn/DATA"}) {
        EXPECT_EQ(ModeOf(Path(made)), "0700") << made;
    }
    EXPECT_EQ(ModeOf(Database()), "0600");
    EXPECT_EQ(ModeOf(Path("config/tarn/TarnWin.INI")), "0600");
    EXPECT_EQ(OfferFirstStart(Directories()), std::nullopt);
}

TEST_F(FirstStarts, UseTheDataThatIsThere) {
    MakeFirstStart(Offered());
    RawDatabase(Database()).Run("INSERT INTO DirTab VALUES ('KEPT')");
    fs::remove_all(Path("config"));
    const FirstStart again = Offered();
    EXPECT_TRUE(again.HasData);
    EXPECT_EQ(QuestionAbout(again).find("Use the data that is in this folder already?"), 0U);
    MakeFirstStart(again);
    EXPECT_EQ(OpenStore(*FindDataFolder(Directories())).Directories(), Lines{"KEPT"});
}

TEST_F(FirstStarts, MakeNothingWhereTheDataFolderCannotBeMade) {
    WriteFile(Path(".local"), "in the way");
    ExpectNothingMade(Offered(), Path(".local").string());
}

TEST_F(FirstStarts, MakeNothingWhereTheConfigurationCannotBeWritten) {
    WriteFile(Path("config"), "in the way");
    ExpectNothingMade(Offered(), Path("config").string());
    fs::remove(Path("config"));
    fs::create_directories(Path("config/tarn/TarnWin.INI"));
    ExpectNothingMade(Offered(), Path("config/tarn/TarnWin.INI").string());
}

TEST_F(FirstStarts, LeaveADatabaseThatCameMeanwhile) {
    const FirstStart start = Offered();
    MakeFirstStart(start);
    fs::remove_all(Path("config"));
    RawDatabase(Database()).Run("INSERT INTO DirTab VALUES ('KEPT')");
    ExpectNothingMade(start, Database().string());
    EXPECT_EQ(RawDatabase(Database()).Rows("SELECT Directory FROM DirTab"), Lines{"KEPT"});
}

TEST_F(FirstStarts, LeaveTheDataThatIsThereWhenTheConfigurationCannotBeWritten) {
    MakeFirstStart(Offered());
    fs::remove_all(Path("config"));
    WriteFile(Path("config"), "in the way");
    ExpectNothingMade(Offered(), Path("config").string());
    EXPECT_TRUE(fs::exists(Database()));
}

} // namespace
} // namespace tarn
