#include "store/Check.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

TEST(BackUpDatabaseFile, CopiesEveryRow) {
    const TestDatabase file;
    const TestFolder target;
    file.AddDirectory("MARCH");
    file.AddProject("MARCH", "КВАРТИРА", 3, 2);
    BackUpDatabaseFile(file.Path(), target.Path("new/Backup.mdb"));

    EXPECT_EQ(CheckDatabaseFile(target.Path("new/Backup.mdb")), Lines{});
    RawDatabase copy(target.Path("new/Backup.mdb"));
    for (const char* table : {"DirTab", "ProjTab", "MainTab", "InputData"}) {
        const std::string query = "SELECT rowid, * FROM " + std::string(table);
        EXPECT_EQ(copy.Rows(query), file.Rows(query)) << table;
    }
    EXPECT_EQ(target.Content(), Lines{"new"});
}

TEST(BackUpDatabaseFile, CopiesWhatIsStoredWhileAnotherProgramIsInATransaction) {
    const TestDatabase file;
    const TestFolder target;
    file.AddDirectory("MARCH");
    RawDatabase writer(file.Path());
    writer.Run("BEGIN IMMEDIATE");
    writer.Run("INSERT INTO DirTab VALUES ('MAY')");
    BackUpDatabaseFile(file.Path(), target.Path("Backup.mdb"), ShortWait);
    writer.Run("COMMIT");

    EXPECT_EQ(RawDatabase(target.Path("Backup.mdb")).Rows("SELECT Directory FROM DirTab"),
              Lines{"MARCH"});
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), (Lines{"MARCH", "MAY"}));
}

TEST(BackUpDatabaseFile, CopiesAReadOnlyDatabase) {
    const TestDatabase file;
    const TestFolder target;
    file.AddDirectory("MARCH");
    fs::permissions(file.Path(), fs::perms::owner_read);
    BackUpDatabaseFile(file.Path(), target.Path("Backup.mdb"));
    EXPECT_EQ(RawDatabase(target.Path("Backup.mdb")).Rows("SELECT Directory FROM DirTab"),
              Lines{"MARCH"});
}

TEST(BackUpDatabaseFile, NeverTouchesAnExistingTarget) {
    const TestDatabase file;
    const TestFolder target;
    for (const std::string& content : {std::string(), std::string("an older backup")}) {
        WriteFile(target.Path("Backup.mdb"), content);
        EXPECT_THROW(BackUpDatabaseFile(file.Path(), target.Path("Backup.mdb")), DatabaseError);
        EXPECT_EQ(ReadFile(target.Path("Backup.mdb")), content);
    }
    const std::string before = ReadFile(file.Path());
    EXPECT_THROW(BackUpDatabaseFile(file.Path(), file.Path()), DatabaseError);
    EXPECT_EQ(ReadFile(file.Path()), before);
    EXPECT_EQ(target.Content(), Lines{"Backup.mdb"});
}

TEST(BackUpDatabaseFile, RefusesABadSourceAndLeavesNothingBehind) {
    const TestDatabase file;
    const TestFolder target;
    const std::string whole = ReadFile(file.Path());
    for (const std::string& content : {std::string(), std::string("x"), whole.substr(0, 9000),
                                       whole.substr(0, whole.size() - 1)}) {
        WriteFile(file.Path(), content);
        EXPECT_THROW(BackUpDatabaseFile(file.Path(), target.Path("new/Backup.mdb")), DatabaseError);
    }
    EXPECT_EQ(target.Content(), Lines{});
}

TEST(BackUpDatabaseFile, NeedsTheNameOfAFile) {
    const TestDatabase source;
    const TestFolder folder;
    for (const std::string& target : {std::string(), folder.Path("new") + "/"}) {
        EXPECT_EQ(DatabaseErrorOf([&] { BackUpDatabaseFile(source.Path(), target); }),
                  "The file " + target + " cannot be made: it has no name.");
    }
    EXPECT_EQ(folder.Content(), Lines{});
}

TEST(BackUpDatabaseFile, LeavesNothingBehindWhileTheSourceIsLocked) {
    const TestDatabase file;
    const TestFolder target;
    RawDatabase other(file.Path());
    other.Run("BEGIN EXCLUSIVE");
    EXPECT_THROW(BackUpDatabaseFile(file.Path(), target.Path("new/Backup.mdb"), ShortWait),
                 DatabaseError);
    EXPECT_EQ(target.Content(), Lines{});
}

} // namespace
} // namespace tarn
