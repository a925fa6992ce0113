#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <sys/stat.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

constexpr auto EveryWrite =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

void ForbidWriting(const std::string& path) {
    fs::permissions(path, EveryWrite, fs::perm_options::remove);
}

void AllowWriting(const std::string& path) {
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
}

struct BadFile {
    const char* Name;
    std::function<void(const std::string& path)> Make;
    /// Part of the text that names the cause.
    const char* Cause;
};

/// A database file put out of order in one way.
class RefusedFile : public ::testing::TestWithParam<BadFile> {
  protected:
    RefusedFile() { GetParam().Make(file_.Path()); }

    TestDatabase file_;
};

TEST_P(RefusedFile, IsRefusedWithItsPathTheCauseAndWhatToDo) {
    for (const auto access : {DatabaseAccess::ReadWrite, DatabaseAccess::ReadOnly}) {
        const std::string text =
            DatabaseErrorOf([&] { ProjectStore(file_.Path(), access, ShortWait); });
        EXPECT_NE(text.find("The database file " + file_.Path()), std::string::npos) << text;
        EXPECT_NE(text.find(GetParam().Cause), std::string::npos) << text;
        EXPECT_NE(text.find(". "), std::string::npos) << "no second sentence: " << text;
    }
}

TEST_P(RefusedFile, IsLeftAsItIs) {
    const bool isFile = fs::is_regular_file(file_.Path());
    const std::string before = isFile ? ReadFile(file_.Path()) : std::string();
    const auto content = file_.Folder().Content();
    for (const auto access : {DatabaseAccess::ReadWrite, DatabaseAccess::ReadOnly}) {
        EXPECT_THROW(ProjectStore(file_.Path(), access, ShortWait), DatabaseError);
    }
    EXPECT_EQ(file_.Folder().Content(), content);
    if (isFile) {
        EXPECT_EQ(ReadFile(file_.Path()), before);
    }
}

INSTANTIATE_TEST_SUITE_P(
    OpeningADatabase, RefusedFile,
    ::testing::Values(
        BadFile{"Missing", [](const std::string& path) { fs::remove(path); },
                "is missing. Correct its path or the data folder in TarnWin.INI, or make a new "
                "data folder with \"tarn-data create\"."},
        BadFile{"Folder",
                [](const std::string& path) {
                    fs::remove(path);
                    fs::create_directory(path);
                },
                "is a folder. Correct its path or the data folder in TarnWin.INI."},
        BadFile{"Pipe", // which nobody writes to: to open it would wait for ever
                [](const std::string& path) {
                    fs::remove(path);
                    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
                },
                "is a pipe, a device or a socket. Correct its path or the data folder in "
                "TarnWin.INI."},
        BadFile{"Device",
                [](const std::string& path) {
                    fs::remove(path);
                    fs::create_symlink("/dev/zero", path);
                },
                "is a pipe, a device or a socket."},
        BadFile{"Empty", [](const std::string& path) { WriteFile(path, ""); },
                "is empty. Put a backup in its place with \"tarn-data restore\"."},
        BadFile{"OneByte", [](const std::string& path) { WriteFile(path, "S"); },
                "is not a database"},
        BadFile{"Foreign", [](const std::string& path) { WriteFile(path, std::string(5000, 'x')); },
                "is not a database of this program. Correct its path or the data folder in "
                "TarnWin.INI, or put a backup in its place with \"tarn-data restore\"."},
        BadFile{"OlderJet",
                [](const std::string& path) {
                    WriteFile(path, std::string("\0\1\0\0Standard Jet DB\0", 20) +
                                        std::string(4076, '\0'));
                },
                "older Jet format"},
        BadFile{"NewerJet",
                [](const std::string& path) {
                    WriteFile(path, std::string("\0\1\0\0Standard ACE DB\0", 20) +
                                        std::string(4076, '\0'));
                },
                "older Jet format"},
        BadFile{
            "DamagedInTheMiddle",
            [](const std::string& path) {
                std::string bytes = ReadFile(path);
                std::fill(bytes.begin() + 5000, bytes.begin() + 12000, 'x');
                WriteFile(path, bytes);
            },
            "). Put a backup in its place with \"tarn-data restore\", or save what can still be "
            "read of it with \"tarn-data repair\"."}),
    [](const auto& bad) { return bad.param.Name; });

TEST(OpeningADatabase, RefusesAFileThatIsCutShortAnywhere) {
    const TestDatabase file;
    const std::string whole = ReadFile(file.Path());
    for (std::size_t length = 0; length < whole.size(); length += 1499) {
        WriteFile(file.Path(), whole.substr(0, length));
        EXPECT_THROW(file.Open(), DatabaseError) << length << " bytes";
        EXPECT_EQ(ReadFile(file.Path()).size(), length);
    }
    WriteFile(file.Path(), whole.substr(0, whole.size() - 1));
    EXPECT_THROW(file.Open(), DatabaseError);
}

TEST(OpeningADatabase, AnErrorInTheMiddleOfTheRowsIsNotTheirEnd) {
    constexpr std::size_t ChangeCounterAt = 27; // its lowest byte: SQLite reads its pages anew
    const TestDatabase file;
    file.Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
             "INSERT INTO DirTab SELECT 'NAME ' || i FROM n");
    ProjectStore store = file.Open();
    std::string bytes = ReadFile(file.Path());
    ++bytes.at(ChangeCounterAt);
    const auto middle = static_cast<std::ptrdiff_t>(bytes.find("NAME 2000"));
    std::fill(bytes.begin() + middle - 5000, bytes.begin() + middle + 5000, 'x');
    WriteFile(file.Path(), bytes);
    EXPECT_NE(DatabaseErrorOf([&] {
                  store.Directories();
              }).find("DirTab cannot be read: the database file is damaged"),
              std::string::npos);
}

TEST(OpeningADatabase, RefusesAReadOnlyFileForWritingAndOpensItForReading) {
    const TestDatabase file;
    ForbidWriting(file.Path());
    const std::string text = DatabaseErrorOf([&] { file.Open(); });
    EXPECT_EQ(text, "The database file " + file.Path() + " is read-only. Allow writing to it.");

    file.AddDirectory("MARCH");
    ProjectStore store(file.Path(), DatabaseAccess::ReadOnly);
    EXPECT_EQ(store.Directories(), Lines{"MARCH"});
    EXPECT_THROW(store.DeleteDirectory("MARCH"), DatabaseError);
    EXPECT_EQ(store.Directories(), Lines{"MARCH"});
}

TEST(OpeningADatabase, RefusesAReadOnlyFolderForWritingAndOpensItForReading) {
    const TestDatabase file;
    ForbidWriting(file.Folder().Path());
    const std::string text = DatabaseErrorOf([&] { file.Open(); });
    EXPECT_EQ(text, "The database file " + file.Path() +
                        " lies in a read-only folder. Allow writing to the folder.");
    EXPECT_NO_THROW(ProjectStore(file.Path(), DatabaseAccess::ReadOnly));
    AllowWriting(file.Folder().Path());
}

TEST(OpeningADatabase, LooksAtTheFolderThatALinkLeadsTo) {
    const TestDatabase file;
    const TestFolder links;
    fs::create_symlink(file.Path(), links.Path("Tarn.mdb"));
    EXPECT_NO_THROW(ProjectStore(links.Path("Tarn.mdb"), DatabaseAccess::ReadWrite));
    ForbidWriting(file.Folder().Path());
    EXPECT_THROW(ProjectStore(links.Path("Tarn.mdb"), DatabaseAccess::ReadWrite), DatabaseError);
    AllowWriting(file.Folder().Path());
}

TEST(OpeningADatabase, RefusesAFileThatAnotherProgramHasLocked) {
    const TestDatabase file;
    RawDatabase other(file.Path());
    other.Run("BEGIN EXCLUSIVE");
    const std::string text = DatabaseErrorOf([&] { file.Open(ShortWait); });
    EXPECT_EQ(text, "The database file " + file.Path() +
                        " cannot be opened: another program is using the database. Close that "
                        "program and try again.");
    other.Run("COMMIT");
    EXPECT_NO_THROW(file.Open(ShortWait));
}

} // namespace
} // namespace tarn
