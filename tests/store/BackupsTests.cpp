#include "store/Backups.h"
#include "store/Check.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

QDateTime At(int year, int month, int day, int hour = 12, int minute = 0, int second = 0) {
    return {QDate(year, month, day), QTime(hour, minute, second)};
}

std::string NameOf(const std::string& path) {
    return fs::path(path).filename().string();
}

Lines NamesIn(const std::string& folder) {
    Lines names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// A data folder with a database that holds one directory.
class Backups : public ::testing::Test {
  protected:
    Backups() {
        CreateDatabaseFile(Database());
        RawDatabase(Database()).Run("INSERT INTO DirTab VALUES ('HOUSES')");
    }

    std::string Database() const { return folder_.Path("data/DATA/Tarn.mdb"); }
    std::string Folder() const { return folder_.Path("data/BACKUP"); }
    Lines Names() const { return NamesIn(Folder()); }
    /// An empty file in the place of a backup.
    void Pretend(const std::string& name) const { WriteFile(Folder() + "/" + name, ""); }

    TestFolder folder_;
};

TEST_F(Backups, AreConsistentCopiesNamedByTheMomentBesideTheDataFolder) {
    const std::string made = MakeBackup(Database(), At(2026, 11, 22, 14, 5, 33));
    EXPECT_EQ(made, Folder() + "/Tarn 2026-11-22 14-05-33.mdb");
    EXPECT_EQ(CheckDatabaseFile(made), Lines{});
    EXPECT_EQ(RawDatabase(made).Rows("SELECT Directory FROM DirTab"), Lines{"HOUSES"});
    EXPECT_EQ(Names(), Lines{"Tarn 2026-11-22 14-05-33.mdb"});
    struct stat status {};
    ASSERT_EQ(stat(made.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(stat(Folder().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(Backups, OfDatabasesInFoldersBesideEachOtherAreKeptApart) {
    CreateDatabaseFile(folder_.Path("data/other/Tarn.mdb"));
    MakeBackup(Database(), At(2026, 11, 22));
    MakeBackup(folder_.Path("data/other/Tarn.mdb"), At(2026, 11, 23));
    EXPECT_EQ(Names(), (Lines{"Tarn 2026-11-22 12-00-00.mdb", "other Tarn 2026-11-23 "
                                                              "12-00-00.mdb"}));
    ASSERT_EQ(BackupsOf(Database()).size(), 1U);
    EXPECT_EQ(BackupsOf(Database()).front().Made, At(2026, 11, 22));
    ASSERT_EQ(BackupsOf(folder_.Path("data/other/Tarn.mdb")).size(), 1U);
}

TEST_F(Backups, OfALinkAreThoseOfTheFileThatItLeadsTo) {
    fs::create_symlink(Database(), folder_.Path("link.mdb"));
    EXPECT_EQ(BackupFolder(folder_.Path("link.mdb")), Folder());
    MakeBackup(folder_.Path("link.mdb"), At(2026, 11, 22));
    EXPECT_EQ(BackupsOf(Database()).size(), 1U);
}

TEST_F(Backups, OfOneSecondAreBothKept) {
    MakeBackup(Database(), At(2026, 11, 22));
    EXPECT_EQ(NameOf(MakeBackup(Database(), At(2026, 11, 22))), "Tarn 2026-11-22 12-00-01.mdb");
    EXPECT_EQ(Names().size(), 2U);
}

TEST_F(Backups, AreListedFromTheNewestWithoutOtherFiles) {
    fs::create_directory(Folder());
    for (const char* name :
         {"Tarn 2026-11-20 10-00-00.mdb", "Tarn 2026-11-21 10-00-00.mdb", "Tarn 2026-11-20.mdb",
          "Tarn 2026-11-31 10-00-00.mdb", "Tarn 2026-11-22 10-00-00.mdb.old", "Tarn.mdb",
          "tarn 2026-11-22 10-00-00.mdb", "Tarn before restoring 2026-11-22 10-00-00.mdb",
          "Tarn 2026-11-22 10-00-0.mdb", "Tarn  2026-11-22 10-00-00.mdb"}) {
        Pretend(name);
    }
    fs::create_directory(Folder() + "/Tarn 2026-11-22 11-00-00.mdb");
    fs::create_symlink(Database(), Folder() + "/Tarn 2026-11-22 12-00-00.mdb");
    Lines names;
    for (const Backup& backup : BackupsOf(Database())) {
        names.push_back(NameOf(backup.Path));
    }
    EXPECT_EQ(names, (Lines{"Tarn 2026-11-21 10-00-00.mdb", "Tarn 2026-11-20 10-00-00.mdb"}));
    EXPECT_EQ(BackupsOf(folder_.Path("no/DATA/Tarn.mdb")).size(), 0U);
}

TEST(OutdatedBackups, AreAllButTheLastTenAndTheLastOfEachOfThirtyDays) {
    const QDateTime now = At(2026, 11, 30, 18);
    std::vector<Backup> backups;
    for (int hour = 17; hour > 5; --hour) { // twelve of today
        backups.push_back({std::to_string(hour), At(2026, 11, 30, hour), 0});
    }
    for (int day = 29; day > 0; --day) { // two of each day
        backups.push_back({"late " + std::to_string(day), At(2026, 11, day, 20), 0});
        backups.push_back({"early " + std::to_string(day), At(2026, 11, day, 8), 0});
    }
    backups.push_back({"long ago", At(2026, 10, 31, 23, 59, 59), 0});
    Lines outdated;
    for (const Backup& backup : OutdatedBackups(backups, now)) {
        outdated.push_back(backup.Path);
    }
    Lines expected = {"7", "6"};
    for (int day = 29; day > 0; --day) {
        expected.push_back("early " + std::to_string(day));
    }
    expected.push_back("long ago");
    EXPECT_EQ(outdated, expected);
}

TEST(OutdatedBackups, AreNoneOfTenHoweverOld) {
    std::vector<Backup> backups;
    for (int day = 10; day > 0; --day) {
        backups.push_back({std::to_string(day), At(2001, 1, day), 0});
    }
    EXPECT_TRUE(OutdatedBackups(backups, At(2026, 11, 22)).empty());
}

TEST_F(Backups, RemovesTheOutdatedOnesAndNothingElse) {
    fs::create_directory(Folder());
    Lines kept = {"Tarn 2026-11-22 12-00-00.mdb", "notes.txt", "other Tarn 2020-01-01 00-00-00.mdb",
                  "Tarn before restoring 2020-01-01 00-00-00.mdb"};
    for (int day = 1; day <= 12; ++day) {
        const std::string name = "Tarn 2020-02-" + std::string(day < 10 ? "0" : "") +
                                 std::to_string(day) + " 10-00-00.mdb";
        Pretend(name);
        if (day > 3) {
            kept.push_back(name);
        }
    }
    for (std::size_t i = 1; i < 4; ++i) {
        Pretend(kept.at(i));
    }
    MakeBackup(Database(), At(2026, 11, 22));
    std::sort(kept.begin(), kept.end());
    EXPECT_EQ(Names(), kept);
}

TEST_F(Backups, KeepsTheOneJustMadeWhateverTheClockSays) {
    fs::create_directory(Folder());
    for (int day = 1; day <= 12; ++day) {
        Pretend("Tarn 2030-01-" + std::to_string(9 + day) + " 10-00-00.mdb");
    }
    const std::string made = MakeBackup(Database(), At(2026, 11, 22));
    EXPECT_TRUE(fs::exists(made));
}

TEST_F(Backups, LeaveNothingBehindWhenTheyCannotBeMade) {
    WriteFile(Folder(), "in the way");
    EXPECT_THROW(MakeBackup(Database(), At(2026, 11, 22)), DatabaseError);
    EXPECT_EQ(ReadFile(Folder()), "in the way");
    fs::remove(Folder());
    fs::remove(Database());
    EXPECT_THROW(MakeBackup(Database(), At(2026, 11, 22)), DatabaseError);
    EXPECT_FALSE(fs::exists(Folder()));
}

TEST_F(Backups, RemoveWhatAKilledRunLeftInTheMaking) {
    fs::create_directories(Folder() + "/.tarn-aBcD12");
    Pretend(".tarn-aBcD12/Tarn 2026-11-21 10-00-00.mdb");
    fs::create_directories(Folder() + "/.tarn-of-another");
    Pretend(".tarn-0123456789abcdef.part");
    MakeBackup(Database(), At(2026, 11, 22));
    EXPECT_EQ(Names(), (Lines{".tarn-of-another", "Tarn 2026-11-22 12-00-00.mdb"}));
}

TEST_F(Backups, AreFoundByTheirNameAlone) {
    const std::string made = MakeBackup(Database(), At(2026, 11, 22));
    EXPECT_EQ(FindBackup(NameOf(made), Database()), made);
    EXPECT_EQ(FindBackup(made, Database()), made);
    EXPECT_EQ(FindBackup("none.mdb", Database()), "none.mdb");
}

} // namespace
} // namespace tarn
