#include "store/Configuration.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;
using Finding = Configuration::Finding;

class ConfigurationFile : public ::testing::Test {
  protected:
    std::string File() const { return folder_.Path("TarnWin.INI"); }

    /// What is read from a file with this content.
    Configuration Read(const std::string& content) const {
        WriteFile(File(), content);
        return ReadConfiguration({folder_.Path()});
    }
    std::string FolderIn(const std::string& content) const { return Read(content).DataPath; }

    TestFolder folder_;
};

TEST_F(ConfigurationFile, NamesTheDataFolderInTheLineBehindTheHeader) {
    const Configuration read = Read("[TarnWin Directory]\nD:\\ESTDATA\n");
    EXPECT_EQ(read.Found, Finding::Read);
    EXPECT_EQ(read.File, fs::path(File()));
    EXPECT_EQ(read.DataPath, "D:\\ESTDATA");
}

TEST_F(ConfigurationFile, LosesBackslashesAndNativeSeparatorsAtTheEndOfTheFolder) {
    EXPECT_EQ(FolderIn("[TarnWin Directory]\nC:\\EST\\\\\\\n"), "C:\\EST");
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n/data/est//\n"), "/data/est");
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n/data/est/\\/\\\n"), "/data/est");
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n\\\\\n"), "");
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n/\n"), "");
}

TEST_F(ConfigurationFile, LosesBlanksAroundTheFolderOnly) {
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n   /data/my rooms/  \n"), "/data/my rooms");
}

TEST_F(ConfigurationFile, MayEndItsLinesInCrLf) {
    EXPECT_EQ(FolderIn("; notes\r\n[TarnWin Directory]\r\nC:\\EST\\\r\nmore\r\n"), "C:\\EST");
}

TEST_F(ConfigurationFile, NeedsNoLineEndAfterTheFolder) {
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n/data"), "/data");
}

TEST_F(ConfigurationFile, MayBeginWithAByteOrderMark) {
    EXPECT_EQ(FolderIn("\xEF\xBB\xBF[TarnWin Directory]\n/data"), "/data");
}

TEST_F(ConfigurationFile, IsReadAsUtf8) {
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n/данные/Möbel"), "/данные/Möbel");
}

TEST_F(ConfigurationFile, TakesOnlyTheExactHeaderLine) {
    for (const char* header :
         {"[tarnwin directory]", "[TarnWin Directory] ", " [TarnWin Directory]",
          "[TarnWin Directory]x", "[TarnWin  Directory]", "TarnWin Directory",
          "[TarnWin Directory]\t"}) {
        const Configuration read = Read(std::string(header) + "\n/data\n");
        EXPECT_EQ(read.DataPath, "") << header;
        EXPECT_EQ(read.Found, Finding::Read) << header;
    }
}

TEST_F(ConfigurationFile, TakesTheFirstOfTwoHeaders) {
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n/first\n[TarnWin Directory]\n/second\n"), "/first");
    EXPECT_EQ(FolderIn("[TarnWin Directory]\n\n[TarnWin Directory]\n/second\n"), "");
}

TEST_F(ConfigurationFile, NamesNoFolderWhenTheHeaderIsItsLastLine) {
    for (const char* content :
         {"[TarnWin Directory]", "[TarnWin Directory]\n", "a\n[TarnWin Directory]\r\n"}) {
        const Configuration read = Read(content);
        EXPECT_EQ(read.Found, Finding::Read) << content;
        EXPECT_EQ(read.DataPath, "") << content;
    }
}

TEST_F(ConfigurationFile, IsMissingWhereNoPlaceHasIt) {
    const Configuration read = ReadConfiguration({folder_.Path(), folder_.Path("nowhere")});
    EXPECT_EQ(read.Found, Finding::Missing);
    EXPECT_EQ(read.File, fs::path());
    EXPECT_EQ(ReadConfiguration({}).Found, Finding::Missing);
}

TEST_F(ConfigurationFile, IsTakenFromTheFirstPlaceThatHasIt) {
    const TestFolder none;
    const TestFolder second;
    WriteFile(File(), "[TarnWin Directory]\n/first\n");
    WriteFile(second.Path("TarnWin.INI"), "[TarnWin Directory]\n/second\n");
    EXPECT_EQ(ReadConfiguration({none.Path(), folder_.Path(), second.Path()}).DataPath, "/first");
    EXPECT_EQ(ReadConfiguration({second.Path(), folder_.Path()}).DataPath, "/second");
}

TEST_F(ConfigurationFile, ThatIsEmptyStopsTheSearch) {
    const TestFolder second;
    WriteFile(second.Path("TarnWin.INI"), "[TarnWin Directory]\n/second\n");
    for (const char* content : {"", "\xEF\xBB\xBF"}) {
        WriteFile(File(), content);
        const Configuration read = ReadConfiguration({folder_.Path(), second.Path()});
        EXPECT_EQ(read.Found, Finding::Empty);
        EXPECT_EQ(read.File, fs::path(File()));
        EXPECT_EQ(read.DataPath, "");
    }
}

TEST_F(ConfigurationFile, ThatCannotBeReadCountsAsMissing) {
    const TestFolder second;
    fs::create_directory(File());
    WriteFile(second.Path("TarnWin.INI"), "[TarnWin Directory]\n/second\n");
    EXPECT_EQ(ReadConfiguration({folder_.Path()}).Found, Finding::Missing);
    EXPECT_EQ(ReadConfiguration({folder_.Path(), second.Path()}).DataPath, "/second");
}

// --- places ---

class ConfigurationPlaces : public ::testing::Test {
  protected:
    static void Set(const char* variable, const char* value) {
        ASSERT_EQ(value == nullptr ? unsetenv(variable) : setenv(variable, value, 1), 0);
    }
    static void SetBoth(const char* configHome, const char* home) {
        Set("XDG_CONFIG_HOME", configHome);
        Set("HOME", home);
    }
};

TEST_F(ConfigurationPlaces, AreTheUsersOwnThenTheSystems) {
    SetBoth("/xdg", "/home/me");
    EXPECT_EQ(ConfigurationDirectories(), (std::vector<fs::path>{"/xdg/tarn", "/etc/tarn"}));
    EXPECT_EQ(UserConfigurationDirectory(), fs::path("/xdg/tarn"));
}

TEST_F(ConfigurationPlaces, FallBackToTheHomeDirectory) {
    for (const char* configHome : {static_cast<const char*>(nullptr), "", "relative/path"}) {
        SetBoth(configHome, "/home/me");
        EXPECT_EQ(ConfigurationDirectories(),
                  (std::vector<fs::path>{"/home/me/.config/tarn", "/etc/tarn"}));
    }
}

TEST_F(ConfigurationPlaces, AreTheSystemsAloneWithoutAHome) {
    SetBoth(nullptr, nullptr);
    EXPECT_EQ(ConfigurationDirectories(), std::vector<fs::path>{"/etc/tarn"});
    EXPECT_EQ(UserConfigurationDirectory(), std::nullopt);
}

// --- writing ---

TEST_F(ConfigurationFile, IsWrittenSoThatItReadsBack) {
    for (const char* folder :
         {"/data", "/data/my rooms", "/данные/Möbel", "/a/[TarnWin Directory]"}) {
        fs::remove(File());
        WriteConfiguration(folder_.Path(), folder);
        EXPECT_EQ(ReadConfiguration({folder_.Path()}).DataPath, folder);
        EXPECT_EQ(folder_.Content(), Lines{"TarnWin.INI"});
    }
    EXPECT_EQ(ReadFile(File()), "[TarnWin Directory]\n/a/[TarnWin Directory]\n");
}

TEST_F(ConfigurationFile, IsWrittenIntoADirectoryThatIsMadeForIt) {
    WriteConfiguration(folder_.Path("a/b"), "/data");
    EXPECT_EQ(ReadConfiguration({folder_.Path("a/b")}).DataPath, "/data");
}

TEST_F(ConfigurationFile, IsNeverOverwrittenUnlessItIsEmpty) {
    WriteFile(File(), "x");
    EXPECT_THROW(WriteConfiguration(folder_.Path(), "/data"), std::runtime_error);
    EXPECT_EQ(ReadFile(File()), "x");
    WriteFile(File(), "");
    WriteConfiguration(folder_.Path(), "/data");
    EXPECT_EQ(FolderIn(ReadFile(File())), "/data");
}

TEST_F(ConfigurationFile, IsNotWrittenForAFolderThatItCannotName) {
    for (const char* folder :
         {"", " /data", "/data ", "/data/", "/da\nta", "/data\r", "/da\\ta", "/"}) {
        try {
            WriteConfiguration(folder_.Path("new"), folder);
            ADD_FAILURE() << "written: " << folder;
        } catch (const std::runtime_error& error) {
            EXPECT_NE(std::string(error.what()).find(folder_.Path("new/TarnWin.INI")),
                      std::string::npos)
                << error.what();
        }
    }
    EXPECT_EQ(folder_.Content(), Lines{});
}

TEST_F(ConfigurationFile, ThatCannotBeWrittenIsReportedAndLeavesNothing) {
    WriteFile(folder_.Path("file"), "x");
    EXPECT_THROW(WriteConfiguration(folder_.Path("file"), "/data"), std::runtime_error);
    EXPECT_THROW(WriteConfiguration(folder_.Path("file/below"), "/data"), std::runtime_error);
    fs::create_directory(folder_.Path("TarnWin.INI.new"));
    EXPECT_THROW(WriteConfiguration(folder_.Path(), "/data"), std::runtime_error);
    EXPECT_FALSE(fs::exists(File()));
}

TEST_F(ConfigurationFile, IsWrittenOverWhatARunThatWasEndedLeft) {
    WriteFile(folder_.Path("TarnWin.INI.new"), "[TarnWin Dir");
    WriteConfiguration(folder_.Path(), "/data");
    EXPECT_EQ(folder_.Content(), Lines{"TarnWin.INI"});
    EXPECT_EQ(ReadConfiguration({folder_.Path()}).DataPath, "/data");
}

TEST(WithNativeSeparators, TurnsEveryBackslashIntoTheSeparator) {
    EXPECT_EQ(WithNativeSeparators("/data\\DATA\\Tarn.mdb"), "/data/DATA/Tarn.mdb");
    EXPECT_EQ(WithNativeSeparators("C:\\EST"), "C:/EST");
    EXPECT_EQ(WithNativeSeparators("/data/x"), "/data/x");
}

} // namespace
} // namespace tarn
