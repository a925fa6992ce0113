#include "Sanitized.h"
#include "files/SystemCallFaults.h"
#include "store/Backups.h"
#include "store/Check.h"
#include "store/Journal.h"
#include "store/OtherProgram.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

const QDateTime Now(QDate(2026, 11, 22), QTime(14, 5, 33));

/// A database in which the directory NEW took the place of OLD after its backup was made.
class ARestoring : public ::testing::Test {
  protected:
    ARestoring() {
        CreateDatabaseFile(Database());
        RawDatabase(Database()).Run("INSERT INTO DirTab VALUES ('OLD')");
        backup_ = MakeBackup(Database(), Now.addDays(-1));
        RawDatabase(Database()).Run("UPDATE DirTab SET Directory = 'NEW'");
    }

    std::string Database() const { return folder_.Path("data/DATA/Tarn.mdb"); }
    std::string Former() const {
        return folder_.Path("data/BACKUP/Tarn before restoring 2026-11-22 14-05-33.mdb");
    }
    Restored Restore() const { return RestoreBackup(backup_, Database(), Now, ShortWait); }
    std::string RefusalText() const {
        return DatabaseErrorOf([this] { Restore(); });
    }
    static Lines DirectoriesOf(const std::string& path) {
        return ProjectStore(path, DatabaseAccess::ReadWrite, ShortWait).Directories();
    }
    Lines InDataFolder() const {
        Lines names;
        for (const auto& entry : fs::directory_iterator(folder_.Path("data/DATA"))) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }
    /// What a crash leaves in the middle of a change by another program; the change turns every one
    /// of 3000 directories NEW into HALF.
    void CutOffAChange() const {
        RawDatabase writer(Database());
        writer.Run("WITH RECURSIVE n(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                   "INSERT INTO DirTab SELECT 'NEW' FROM n");
        writer.Run("PRAGMA synchronous = FULL");
        writer.Run("PRAGMA cache_size = 1");
        writer.Run("BEGIN");
        writer.Run("UPDATE DirTab SET Directory = 'HALF'");
        const std::string content = ReadFile(Database());
        const std::string journal = ReadFile(Database() + "-journal");
        writer.Run("ROLLBACK");
        WriteFile(Database(), content);
        WriteFile(Database() + "-journal", journal);
    }

    TestFolder folder_;
    std::string backup_;
};

TEST_F(ARestoring, PutsTheBackupInPlaceAndKeepsWhatWasThere) {
    const Restored restored = Restore();
    EXPECT_EQ(restored.Former, Former());
    EXPECT_EQ(restored.Journal, "");
    EXPECT_EQ(DirectoriesOf(Database()), Lines{"OLD"});
    EXPECT_EQ(DirectoriesOf(Former()), Lines{"NEW"});
    EXPECT_EQ(DirectoriesOf(backup_), Lines{"OLD"});
    EXPECT_EQ(InDataFolder(), Lines{"Tarn.mdb"});
    EXPECT_EQ(CheckDatabaseFile(Database()), Lines{});
}

TEST_F(ARestoring, KeepsThePermissionsOfTheFile) {
    ASSERT_EQ(chmod(Database().c_str(), 0640), 0);
    Restore();
    struct stat status {};
    ASSERT_EQ(stat(Database().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST_F(ARestoring, KeepsALinkToTheFile) {
    fs::create_symlink(Database(), folder_.Path("link.mdb"));
    RestoreBackup(backup_, folder_.Path("link.mdb"), Now, ShortWait);
    EXPECT_TRUE(fs::is_symlink(folder_.Path("link.mdb")));
    EXPECT_EQ(DirectoriesOf(Database()), Lines{"OLD"});
}

TEST_F(ARestoring, MakesAFileThatIsMissing) {
    fs::remove(Database());
    const Restored restored = Restore();
    EXPECT_EQ(restored.Former, "");
    EXPECT_EQ(DirectoriesOf(Database()), Lines{"OLD"});
}

TEST_F(ARestoring, TakesTheJournalOfAMissingFileAway) {
    CutOffAChange();
    fs::remove(Database());
    const Restored restored = Restore();
    EXPECT_TRUE(fs::exists(restored.Journal));
    EXPECT_EQ(DirectoriesOf(Database()), Lines{"OLD"});
}

TEST_F(ARestoring, IsTheWayOutWhenABackupWasCopiedOverACrashedFile) {
    CutOffAChange();
    const std::string journal = ReadFile(Database() + "-journal");
    WriteFile(Database(), ReadFile(backup_));
    EXPECT_NE(DatabaseErrorOf([this] { DirectoriesOf(Database()); }).find("another state"),
              std::string::npos);
    const Restored restored = Restore();
    EXPECT_EQ(ReadFile(restored.Journal), journal);
    EXPECT_EQ(InDataFolder(), Lines{"Tarn.mdb"});
    EXPECT_EQ(DirectoriesOf(Database()), Lines{"OLD"});
    EXPECT_EQ(DirectoriesOf(restored.Former), Lines{"OLD"}) << "without the journal";
}

TEST_F(ARestoring, TakesBackWhatACrashCutOffBeforeItKeepsTheFile) {
    CutOffAChange();
    const Restored restored = Restore();
    EXPECT_EQ(restored.Journal, "");
    EXPECT_EQ(DirectoriesOf(Database()), Lines{"OLD"});
    EXPECT_EQ(DirectoriesOf(restored.Former), Lines(3000, "NEW"));
}

TEST_F(ARestoring, ReplacesADamagedFileAndKeepsIt) {
    for (const std::string& damaged :
         {std::string(), std::string(5000, 'x'), ReadFile(Database()).substr(0, 9000)}) {
        WriteFile(Database(), damaged);
        EXPECT_EQ(ReadFile(Restore().Former), damaged);
        EXPECT_EQ(DirectoriesOf(Database()), Lines{"OLD"});
    }
}

TEST_F(ARestoring, RefusesWhatIsNoSoundBackup) {
    const std::string before = ReadFile(Database());
    const std::string whole = ReadFile(backup_);
    for (const std::string& content : {std::string(), std::string(5000, 'x'), whole.substr(0, 9000),
                                       whole.substr(0, whole.size() - 1)}) {
        WriteFile(backup_, content);
        EXPECT_NE(RefusalText().find(backup_), std::string::npos) << RefusalText();
    }
    WriteFile(backup_, whole);
    RawDatabase(backup_).Run("DROP TABLE MainTab");
    EXPECT_EQ(RefusalText(), "The file " + backup_ +
                                 " is no backup of this program's data: it has no table "
                                 "MainTab.");
    fs::remove(backup_);
    EXPECT_NE(RefusalText().find("is missing"), std::string::npos);
    backup_ = Database();
    EXPECT_NE(RefusalText().find("is the database itself"), std::string::npos);
    EXPECT_EQ(ReadFile(Database()), before);
    EXPECT_FALSE(fs::exists(Former()));
    EXPECT_EQ(InDataFolder(), Lines{"Tarn.mdb"});
}

TEST_F(ARestoring, RefusesWhileAnotherProgramIsInTheMiddleOfAChange) {
    const std::string before = ReadFile(Database());
    for (const char* begin : {"BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"}) {
        const OtherProgram other(Database(), {begin});
        EXPECT_NE(RefusalText().find("another program is using the database"), std::string::npos)
            << RefusalText();
    }
    EXPECT_EQ(ReadFile(Database()), before);
    EXPECT_FALSE(fs::exists(Former()));
    EXPECT_EQ(InDataFolder(), Lines{"Tarn.mdb"});
}

TEST_F(ARestoring, PassesAProgramThatHasTheFileOpenAndDoesNothing) {
    const OtherProgram other(Database(), {"SELECT * FROM DirTab"});
    Restore();
    EXPECT_EQ(DirectoriesOf(Database()), Lines{"OLD"});
}

TEST_F(ARestoring, KeepsTheFileBesideTheDatabaseWhereNoFolderCanBeMade) {
    const std::string elsewhere = folder_.Path("elsewhere.mdb");
    fs::rename(backup_, elsewhere);
    fs::remove(folder_.Path("data/BACKUP"));
    WriteFile(folder_.Path("data/BACKUP"), "in the way");
    const Restored restored = RestoreBackup(elsewhere, Database(), Now, ShortWait);
    EXPECT_EQ(restored.Former,
              folder_.Path("data/DATA/Tarn before restoring 2026-11-22 14-05-33.mdb"));
    EXPECT_EQ(DirectoriesOf(restored.Former), Lines{"NEW"});
}

TEST_F(ARestoring, SaysThatTheDiskIsFullWhereWhatWasThereCannotBeKept) {
    const std::string elsewhere = folder_.Path("elsewhere.mdb");
    fs::rename(backup_, elsewhere);
    fs::remove(folder_.Path("data/BACKUP"));
    WriteFile(folder_.Path("data/BACKUP"), "in the way"); // there is one place left
    const std::string before = ReadFile(Database());
    const std::string kept =
        folder_.Path("data/DATA/Tarn before restoring 2026-11-22 14-05-33.mdb");
    const auto restore = [&] { RestoreBackup(elsewhere, Database(), Now, ShortWait); };
    const Lines calls = CallsOf(restore);
    int writes = 0;
    for (std::size_t place = 0; place < calls.size(); ++place) {
        if (calls.at(place) != "write") {
            continue;
        }
        SCOPED_TRACE(place);
        ++writes;
        fs::remove(kept);
        WriteFile(Database(), before);
        std::string text;
        WithFailingCall(place, ENOSPC, [&] { text = DatabaseErrorOf(restore); });
        EXPECT_EQ(text, "The file " + Database() + " cannot be kept as " + kept +
                            ": the disk is full. Free some space and try again.");
        EXPECT_EQ(ReadFile(Database()), before);
        EXPECT_EQ(InDataFolder(), Lines{"Tarn.mdb"});
    }
    EXPECT_GT(writes, 0);
}

TEST_F(ARestoring, LeavesTheOldFileOrTheNewOneWhenItIsKilledAnywhere) {
    // With the journal of a crash of an earlier state beside it: the most that there is to do.
    CutOffAChange();
    const std::string journal = ReadFile(Database() + "-journal");
    WriteFile(Database(), ReadFile(backup_));
    RawDatabase(backup_).Run("UPDATE DirTab SET Directory = 'RESTORED'");
    const std::string old = ReadFile(Database());
    const std::size_t calls = CallsOf([this] { Restore(); }).size();
    ASSERT_GT(calls, 20U);
    int untouched = 0;
    constexpr std::size_t Step = testing::UnlessSanitized(1, 4);
    for (std::size_t place = 0; place < calls; place += Step) {
        SCOPED_TRACE(place);
        fs::remove_all(folder_.Path("data/DATA"));
        fs::create_directory(folder_.Path("data/DATA"));
        WriteFile(Database(), old);
        WriteFile(Database() + "-journal", journal);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            BeforeCall(
                place, [] { kill(getpid(), SIGKILL); }, [this] { Restore(); });
            _exit(0);
        }
        waitpid(child, nullptr, 0);
        if (fs::exists(Database() + "-journal")) {
            ASSERT_EQ(ReadFile(Database()), old);
            ASSERT_EQ(ReadFile(Database() + "-journal"), journal);
            ++untouched;
        } else if (ReadFile(Database()) != old) {
            ASSERT_EQ(DirectoriesOf(Database()), Lines{"RESTORED"});
            ASSERT_EQ(CheckDatabaseFile(Database()), Lines{});
        }
        ASSERT_NO_THROW(Restore()) << "what is left is in no way of another try";
        ASSERT_EQ(DirectoriesOf(Database()), Lines{"RESTORED"});
        ASSERT_EQ(InDataFolder(), Lines{"Tarn.mdb"});
    }
    EXPECT_GT(untouched, 0);
}

} // namespace
} // namespace tarn
