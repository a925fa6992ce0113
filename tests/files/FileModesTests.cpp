#include "files/FileModes.h"
#include "files/ModeTesting.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using testing::ModeOf;
using testing::Octal;

/// Each test under each umask.
class FileModes : public ::testing::TestWithParam<mode_t> {
  protected:
    fs::path Path(const std::string& name) const {
        return fs::path(folder_.path().toStdString()) / name;
    }
    /// An existing folder with these permissions.
    fs::path Folder(unsigned mode) const {
        fs::path folder = Path("there" + std::to_string(mode));
        fs::create_directory(folder);
        fs::permissions(folder, static_cast<fs::perms>(mode));
        return folder;
    }

  private:
    QTemporaryDir folder_;
    testing::Umask umask_ = testing::Umask(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Umasks, FileModes, ::testing::ValuesIn(testing::Umasks),
                         [](const auto& each) { return "Umask" + std::to_string(each.param); });

TEST_P(FileModes, AreTheOwnersAlone) {
    const fs::path folder = Path("data");
    MakePrivateFolder(folder);
    EXPECT_EQ(ModeOf(folder), "0700");
    MakePrivateFile(folder / "file");
    EXPECT_EQ(ModeOf(folder / "file"), "0600");
}

TEST_P(FileModes, AreThePrivateOnesInAFolderThatEverybodyOrNoGroupMayWriteTo) {
    for (const unsigned mode : {0700U, 0750U, 0755U, 0777U, 01777U, 02755U, 02777U}) {
        const fs::path folder = Folder(mode);
        MakePrivateFolder(folder / "below");
        MakePrivateFile(folder / "file");
        EXPECT_EQ(ModeOf(folder / "below"), "0700") << std::oct << mode;
        EXPECT_EQ(ModeOf(folder / "file"), "0600") << std::oct << mode;
        EXPECT_EQ(fs::status(folder).permissions(), static_cast<fs::perms>(mode));
    }
}

TEST_P(FileModes, AreThoseOfAFolderThatAGroupShares) {
    struct {
        unsigned Folder;
        const char* Below;
        const char* File;
    } const cases[] = {{0770, "0770", "0660"},
                       {02770, "2770", "0660"},
                       {02775, "2775", "0664"},
                       {0730, "0730", "0620"}};
    for (const auto& each : cases) {
        const fs::path folder = Folder(each.Folder);
        MakePrivateFolder(folder / "a/b");
        MakePrivateFile(folder / "file");
        MakePrivateFile(folder / "a/b/file");
        EXPECT_EQ(ModeOf(folder / "a"), each.Below);
        EXPECT_EQ(ModeOf(folder / "a/b"), each.Below);
        EXPECT_EQ(ModeOf(folder / "file"), each.File);
        EXPECT_EQ(ModeOf(folder / "a/b/file"), each.File);
    }
}

TEST_P(FileModes, OfAFolderThatIsMissingAreThoseOfTheNextAboveIt) {
    const fs::path folder = Folder(0770);
    EXPECT_EQ(Octal(PrivateFileMode(folder / "not/there")), "0660");
    EXPECT_EQ(Octal(PrivateFolderMode(folder / "not/there")), "0770");
    EXPECT_EQ(Octal(PrivateFileMode(Path("not/there"))), "0600");
    EXPECT_EQ(Octal(PrivateFolderMode(Path("not/there"))), "0700");
}

TEST_P(FileModes, AreGivenToAFileThatSomethingElseMade) {
    const fs::path file = Path("file");
    for (const unsigned mode : {0400U, 0644U, 0666U, 0777U}) {
        std::ofstream(file) << "x";
        fs::permissions(file, static_cast<fs::perms>(mode));
        SetPrivateMode(file, Folder(0700));
        EXPECT_EQ(ModeOf(file), "0600");
        SetPrivateMode(file, Folder(0770));
        EXPECT_EQ(ModeOf(file), "0660");
    }
}

TEST(MakePrivateFolder, GivesTheFoldersThatItMadeOutermostFirst) {
    const QTemporaryDir folder;
    const fs::path top(folder.path().toStdString());
    EXPECT_EQ(MakePrivateFolder(top / "a/b/c"),
              (std::vector<fs::path>{top / "a", top / "a/b", top / "a/b/c"}));
    EXPECT_EQ(MakePrivateFolder(top / "a/b/c"), std::vector<fs::path>{});
    EXPECT_EQ(MakePrivateFolder(top / "a/d"), std::vector<fs::path>{top / "a/d"});
}

TEST(MakePrivateFolder, TakesEverySpellingOfAPath) {
    const QTemporaryDir folder;
    const fs::path top(folder.path().toStdString());
    EXPECT_NO_THROW(MakePrivateFolder(top / "a/b/"));
    EXPECT_NO_THROW(MakePrivateFolder(top / "c/../d/./e"));
    EXPECT_NO_THROW(MakePrivateFolder(""));
    EXPECT_TRUE(fs::is_directory(top / "a/b"));
    EXPECT_TRUE(fs::is_directory(top / "d/e"));
}

TEST(MakePrivateFolder, LeavesNothingBehindWhenItFails) {
    const QTemporaryDir folder;
    const fs::path top(folder.path().toStdString());
    std::ofstream(top / "file") << "x";
    EXPECT_THROW(MakePrivateFolder(top / "file/below"), fs::filesystem_error);
    fs::create_symlink(top / "nowhere", top / "link");
    EXPECT_THROW(MakePrivateFolder(top / "link/below"), fs::filesystem_error);
    const std::string tooLong(300, 'x');
    try {
        MakePrivateFolder(top / "a/b" / tooLong);
        ADD_FAILURE() << "made";
    } catch (const fs::filesystem_error& error) {
        EXPECT_EQ(error.code(), std::errc::filename_too_long);
    }
    EXPECT_FALSE(fs::exists(top / "a"));
}

TEST(MakePrivateFile, RefusesWhatIsThereAndAFolderThatIsNot) {
    const QTemporaryDir folder;
    const fs::path top(folder.path().toStdString());
    std::ofstream(top / "file") << "x";
    EXPECT_THROW(MakePrivateFile(top / "file"), fs::filesystem_error);
    EXPECT_EQ(fs::file_size(top / "file"), 1U);
    fs::create_symlink(top / "nowhere", top / "link");
    EXPECT_THROW(MakePrivateFile(top / "link"), fs::filesystem_error);
    EXPECT_FALSE(fs::exists(top / "nowhere"));
    EXPECT_THROW(MakePrivateFile(top / "missing/file"), fs::filesystem_error);
}

} // namespace
} // namespace tarn
