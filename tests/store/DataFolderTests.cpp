#include "store/DataFolder.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

/// A configuration directory and a data folder with a database.
class Start : public ::testing::Test {
  protected:
    Start() {
        CreateDatabaseFile(Database());
        Configure(Data());
    }

    std::string Data() const { return folder_.Path("my data"); }
    std::string Database() const { return folder_.Path("my data/DATA/Tarn.mdb"); }
    void Configure(const std::string& dataFolder) const {
        WriteFile(folder_.Path("TarnWin.INI"), "[TarnWin Directory]\n" + dataFolder + "\n");
    }
    std::optional<DataFolder> Find() const { return FindDataFolder({folder_.Path()}); }
    ProjectStore Open() const { return OpenStore(Find().value()); }
    /// Why a store is not open, as it says when it is used.
    static std::string ReasonOf(ProjectStore& store) {
        return DatabaseErrorOf([&] { store.Directories(); });
    }
    static void ExpectReason(ProjectStore store, const std::string& part) {
        const std::string reason = ReasonOf(store);
        EXPECT_NE(reason.find(part), std::string::npos) << reason;
    }

    TestFolder folder_;
};

TEST_F(Start, OpensTheDatabaseOfTheDataFolder) {
    RawDatabase(Database()).Run("INSERT INTO DirTab VALUES ('SHOPS'), ('HOUSES')");
    const auto found = Find();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Path, Data());
    EXPECT_EQ(found->DatabaseName, Data() + "\\DATA\\Tarn.mdb") << "backslashes stay as text";
    EXPECT_EQ(found->Configuration, folder_.Path("TarnWin.INI"));
    ProjectStore store = OpenStore(*found);
    EXPECT_EQ(store.Directories(), (Lines{"HOUSES", "SHOPS"}));
    EXPECT_NO_THROW(store.AddDirectory("BARNS")) << "it can be written";
}

TEST_F(Start, OpensAFolderWrittenWithBackslashes) {
    std::string folder = Data() + "/";
    std::replace(folder.begin(), folder.end(), '/', '\\');
    Configure(folder + "\\\\");
    const auto found = Find();
    ASSERT_TRUE(found);
    folder.pop_back();
    EXPECT_EQ(found->Path, folder);
    EXPECT_EQ(found->DatabaseName, folder + "\\DATA\\Tarn.mdb");
    EXPECT_NO_THROW(OpenStore(*found).Directories());
}

TEST_F(Start, TrailingBackslashesLeaveTheNameOfTheDatabase) {
    Configure("C:\\EST\\\\\\");
    const auto found = Find();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Path, "C:\\EST");
    EXPECT_EQ(found->DatabaseName, "C:\\EST\\DATA\\Tarn.mdb");
}

TEST_F(Start, NeedsAConfigurationFileThatIsNotEmpty) {
    WriteFile(folder_.Path("TarnWin.INI"), "");
    EXPECT_FALSE(Find());
    fs::remove(folder_.Path("TarnWin.INI"));
    EXPECT_FALSE(Find());
    EXPECT_EQ(ConfigurationMissingMessage, "Couldn't find TarnWin.ini");
}

TEST_F(Start, AMissingDatabaseDoesNotStopItAndIsNotMade) {
    Configure(folder_.Path("nowhere"));
    ExpectReason(Open(), folder_.Path("nowhere/DATA/Tarn.mdb") + " is missing");
    EXPECT_FALSE(fs::exists(folder_.Path("nowhere")));
}

TEST_F(Start, AConfigurationWithoutAFolderIsNamedInTheFailure) {
    WriteFile(folder_.Path("TarnWin.INI"), "[Something else]\n/data\n");
    const auto found = Find();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Path, "");
    EXPECT_EQ(found->DatabaseName, "\\DATA\\Tarn.mdb");
    const std::string end = " No data folder is named in " + folder_.Path("TarnWin.INI") + ".";
    ExpectReason(OpenStore(*found), end);
    ExpectReason(OpenStore(*found), end);
}

TEST_F(Start, ABadDatabaseIsKeptAsItIsAndEveryUseNamesTheCause) {
    WriteFile(Database(), "something else");
    ProjectStore store = Open();
    EXPECT_NE(ReasonOf(store).find("is not a database"), std::string::npos);
    EXPECT_EQ(DatabaseErrorOf([&] { store.HasDirectory("X"); }), ReasonOf(store));
    EXPECT_EQ(ReadFile(Database()), "something else");
}

TEST_F(Start, AMissingTableFailsWhereItIsNeededAlone) {
    RawDatabase(Database()).Run("DROP TABLE ProjTab");
    ProjectStore store = Open();
    EXPECT_NO_THROW(store.Directories());
    EXPECT_NE(DatabaseErrorOf([&] { store.AllProjects(); }).find("ProjTab"), std::string::npos);
}

TEST_F(Start, ADatabaseThatCouldNotBeOpenedIsTriedAgain) {
    const std::string away = folder_.Path("away.mdb");
    fs::rename(Database(), away);
    ProjectStore store = Open();
    EXPECT_NE(ReasonOf(store).find("is missing"), std::string::npos);
    EXPECT_FALSE(fs::exists(Database())) << "it is not made";
    fs::rename(away, Database());
    EXPECT_EQ(store.Directories(), Lines{});
}

TEST_F(Start, EachTryNamesItsOwnCause) {
    ProjectStore store = Open();
    fs::remove(Database());
    EXPECT_NE(ReasonOf(store).find("is missing"), std::string::npos);
    WriteFile(Database(), "something else");
    EXPECT_NE(ReasonOf(store).find("is not a database"), std::string::npos);
}

TEST(ProjectStores, WithoutADatabaseFailWithTheReason) {
    ProjectStore store;
    EXPECT_EQ(DatabaseErrorOf([&] { store.Load("P"); }), "No database is open.");
    ProjectStore missing = ProjectStore::Unavailable("It is missing.");
    const auto expectReason = [&](auto action) {
        EXPECT_EQ(DatabaseErrorOf(action), "It is missing.");
    };
    expectReason([&] { missing.Directories(); });
    expectReason([&] { missing.HasDirectory("D"); });
    expectReason([&] { missing.AddDirectory("D"); });
    expectReason([&] { missing.RenameDirectory("D", "E"); });
    expectReason([&] { missing.DeleteDirectory("D"); });
    expectReason([&] { missing.Projects("D"); });
    expectReason([&] { missing.AllProjects(); });
    expectReason([&] { missing.DirectoryOf("P"); });
    expectReason([&] { missing.AddProject("D", "P"); });
    expectReason([&] { missing.RenameProject("P", "Q"); });
    expectReason([&] { missing.DeleteProject("P"); });
    expectReason([&] { missing.Load("P"); });
    expectReason([&] { missing.SheetOf("P"); });
    expectReason([&] { missing.Save({}, Units::Imperial); });
    expectReason([&] { missing.InOneTransaction([] {}); });
}

} // namespace
} // namespace tarn
