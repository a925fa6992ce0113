#include "Sanitized.h"
#include "store/DatabaseFile.h"
#include "store/FileLock.h"
#include "store/Journal.h"
#include "store/OtherProgram.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

constexpr std::size_t PageSize = 4096;

/// What a database file holds, read apart from the store.
Lines ContentOf(const std::string& path) {
    RawDatabase raw(path);
    Lines all;
    for (const char* query : {"SELECT rowid, * FROM DirTab", "SELECT rowid, * FROM InputData",
                              "SELECT name, sql FROM sqlite_master"}) {
        const Lines rows = raw.Rows(query);
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

/// A change as it can be cut off: the file before and after it, and its journal.
struct CutOffChange {
    std::string Before;
    std::string After;
    std::string EarlyJournal; ///< before its pages are sure to be on the disk
    std::string Journal;      ///< with every page, from then on
};

/// A journal with the first bytes that the database engine gives it once the rest, `records` pages,
/// is on the disk.
std::string Sealed(std::string journal, std::size_t records) {
    journal.replace(0, 8, "\xD9\xD5\x05\xF9\x20\xA1\x63\xD7");
    for (std::size_t i = 0; i < 4; ++i) {
        journal.at(8 + i) = static_cast<char>(records >> (24 - 8 * i) & 0xFF);
    }
    return journal;
}

/// Run `statement` on the file through a connection as the program opens it, and record it.
CutOffChange RecordChange(const std::string& path, const std::string& statement) {
    constexpr std::size_t Sector = 512;
    constexpr std::size_t Head = 28;
    const std::string journal = path + "-journal";
    CutOffChange change;
    change.Before = ReadFile(path);
    const auto writer = OpenDatabaseFile(path, DatabaseAccess::ReadWrite, ShortWait);
    writer->Run("PRAGMA journal_mode = PERSIST", ""); // it stays, but for its head
    writer->Run("BEGIN", "");
    writer->Run(statement, "");
    change.EarlyJournal = ReadFile(journal);
    EXPECT_EQ(ReadFile(path), change.Before) << "nothing reaches the file before the end";
    writer->Run("COMMIT", "");
    change.After = ReadFile(path);
    const std::string persisted = ReadFile(journal);
    change.Journal = Sealed(change.EarlyJournal.substr(0, Head) + persisted.substr(Head),
                            (persisted.size() - Sector) / (PageSize + 8));
    fs::remove(journal);
    return change;
}

void FillWithRooms(const TestDatabase& file) {
    file.Run("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 450) "
             "INSERT INTO InputData SELECT i % 150, 100 + i, 200 + i, '', "
             "'remark of room ' || i, 0, 0, i / 150 FROM n");
}

constexpr const char* ManyDirectories =
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 150) "
    "INSERT INTO DirTab SELECT 'DIRECTORY ' || i FROM n";

/// One change after the other, of every kind that moves pages in another way.
constexpr std::array Changes = {
    "INSERT INTO DirTab VALUES ('MARCH')",
    "UPDATE InputData SET RoomW = RoomW + 1",
    ManyDirectories,
    "DELETE FROM InputData WHERE TabIndex = 1",
    "ALTER TABLE InputData ADD COLUMN Extra INTEGER",
    "UPDATE InputData SET RoomRemark = RoomRemark || ' and a longer remark for every one of them'",
    "DELETE FROM DirTab",
};

TEST(ACutOffChange, IsTakenBackAtEveryPointOfItsWriting) {
    const TestDatabase file;
    FillWithRooms(file);
    const TestFolder crashed;
    const std::string path = crashed.Path("Tarn.mdb");
    constexpr std::size_t Step = testing::UnlessSanitized(1, 4);
    int points = 0;
    for (const char* statement : Changes) {
        SCOPED_TRACE(statement);
        const CutOffChange change = RecordChange(file.Path(), statement);
        WriteFile(path, change.Before);
        const Lines before = ContentOf(path);
        const std::size_t pages = std::max(change.Before.size(), change.After.size()) / PageSize;
        for (std::size_t written = 0; written <= pages; written += Step) {
            // Pages are written in their order.
            const std::size_t bytes = std::min(written * PageSize, change.After.size());
            std::string state = change.After.substr(0, bytes);
            if (bytes < change.Before.size()) {
                state += change.Before.substr(bytes);
            }
            if (written > 0 && state == change.After.substr(0, (written - 1) * PageSize)) {
                continue;
            }
            WriteFile(path, state);
            WriteFile(path + "-journal", change.Journal);
            EXPECT_EQ(JournalBeside(path), JournalKind::Own) << written;
            ASSERT_NO_THROW(ProjectStore(path, DatabaseAccess::ReadWrite, ShortWait)) << written;
            ASSERT_EQ(ContentOf(path), before) << written;
            EXPECT_FALSE(fs::exists(path + "-journal"));
            ++points;
        }
        WriteFile(path, change.Before);
        WriteFile(path + "-journal", change.EarlyJournal);
        EXPECT_EQ(JournalBeside(path), JournalKind::None);
        EXPECT_NO_THROW(ProjectStore(path, DatabaseAccess::ReadWrite, ShortWait));
        EXPECT_EQ(ContentOf(path), before);
    }
    EXPECT_GT(points, testing::UnlessSanitized(40, 10));
}

TEST(ACutOffChange, IsTakenBackWhenAHeadPageIsWrittenInPart) {
    const TestDatabase file;
    FillWithRooms(file);
    const CutOffChange change = RecordChange(file.Path(), ManyDirectories);
    const TestFolder crashed;
    const std::string path = crashed.Path("Tarn.mdb");
    WriteFile(path, change.Before);
    const Lines before = ContentOf(path);
    constexpr std::size_t Sector = 512;
    for (std::size_t sectors = 0; sectors <= PageSize / Sector; ++sectors) {
        const std::size_t bytes = sectors * Sector;
        for (const std::string& state :
             {change.After.substr(0, bytes) + change.Before.substr(bytes),
              change.Before.substr(0, bytes) + change.After.substr(bytes, PageSize - bytes) +
                  change.Before.substr(PageSize)}) {
            WriteFile(path, state);
            WriteFile(path + "-journal", change.Journal);
            ASSERT_NO_THROW(ProjectStore(path, DatabaseAccess::ReadWrite, ShortWait)) << sectors;
            ASSERT_EQ(ContentOf(path), before) << sectors;
        }
    }
}

/// The path of a folder's file, with that file and a journal in it.
std::string PutBack(const TestFolder& folder, const std::string& content,
                    const std::string& journal) {
    WriteFile(folder.Path("Tarn.mdb"), content);
    WriteFile(folder.Path("Tarn.mdb-journal"), journal);
    return folder.Path("Tarn.mdb");
}

void ExpectRefusedAndUntouched(const TestFolder& folder) {
    const std::string path = folder.Path("Tarn.mdb");
    const std::string content = ReadFile(path);
    const std::string journal = ReadFile(path + "-journal");
    for (const auto access : {DatabaseAccess::ReadWrite, DatabaseAccess::ReadOnly}) {
        const std::string text = DatabaseErrorOf([&] { ProjectStore(path, access, ShortWait); });
        EXPECT_NE(text.find("another state of the file"), std::string::npos) << text;
        EXPECT_NE(text.find("tarn-data restore BACKUP --database " + path), std::string::npos)
            << text;
    }
    EXPECT_EQ(ReadFile(path), content);
    EXPECT_EQ(ReadFile(path + "-journal"), journal);
}

TEST(ABackupCopiedOverTheFile, IsNeverMixedWithTheJournalOfACrash) {
    const TestDatabase file;
    FillWithRooms(file);
    const TestFolder copies;
    Lines backups;
    int refused = 0;
    for (std::size_t i = 0; i < Changes.size(); ++i) {
        SCOPED_TRACE(Changes.at(i));
        // A backup made by the program, and a plain copy of the file while nobody used it.
        const std::string copy = copies.Path(std::to_string(i) + ".mdb");
        BackUpDatabaseFile(file.Path(), copy);
        backups.push_back(ReadFile(copy));
        if (i > 0) {
            backups.push_back(ReadFile(file.Path()));
            file.Run("UPDATE DirTab SET Directory = Directory || '.'");
        }
        const CutOffChange change = RecordChange(file.Path(), Changes.at(i));
        for (const std::string& backup : backups) {
            const TestFolder restored;
            PutBack(restored, backup, change.Journal);
            ExpectRefusedAndUntouched(restored);
            ++refused;
        }
    }
    EXPECT_GE(refused, 30);
}

TEST(ABackupCopiedOverTheFile, IsNotMixedByAProgramThatHasTheFileOpenEither) {
    const TestDatabase file;
    FillWithRooms(file);
    const std::string backup = ReadFile(file.Path());
    file.Run("UPDATE InputData SET RoomW = 1");
    const CutOffChange change = RecordChange(file.Path(), Changes[1]);
    ProjectStore store = file.Open(ShortWait);
    EXPECT_EQ(store.Directories(), Lines{});
    WriteFile(file.Path(), backup);
    WriteFile(file.Path() + "-journal", change.Journal);
    EXPECT_NE(DatabaseErrorOf([&] { store.Directories(); }).find("another state of the file"),
              std::string::npos);
    EXPECT_EQ(ReadFile(file.Path()), backup);
}

TEST(ABackupCopiedOverTheFile, IsToldApartByItsMarkAloneWhereItsCounterWouldFit) {
    const TestDatabase file; // of one change, as a backup is
    const TestFolder copies;
    BackUpDatabaseFile(file.Path(), copies.Path("Backup.mdb"));
    const CutOffChange first = RecordChange(file.Path(), ManyDirectories);
    const auto counterOf = [](const std::string& bytes) { return bytes.at(27); };
    std::string backup = ReadFile(copies.Path("Backup.mdb"));
    for (const char counter : {counterOf(first.Before), counterOf(first.After)}) {
        backup.at(27) = counter;
        backup.at(95) = counter;
        const TestFolder restored;
        PutBack(restored, backup, first.Journal);
        ExpectRefusedAndUntouched(restored);
    }
}

TEST(ABackupCopiedOverTheFile, IsNotCutToTheSizeThatAnEmptyJournalTells) {
    const TestDatabase file;
    FillWithRooms(file);
    const CutOffChange change = RecordChange(file.Path(), "INSERT INTO DirTab VALUES ('MAY')");
    file.Run("DELETE FROM InputData");
    file.Run("VACUUM");
    const CutOffChange small = RecordChange(file.Path(), "INSERT INTO DirTab VALUES ('JUNE')");
    const TestFolder restored;
    PutBack(restored, change.Before, Sealed(small.EarlyJournal, 0));
    ExpectRefusedAndUntouched(restored);
}

TEST(AJournal, ThatCountsForNothingIsNoHindrance) {
    const TestDatabase file;
    file.AddDirectory("MARCH");
    const CutOffChange change = RecordChange(file.Path(), "INSERT INTO DirTab VALUES ('MAY')");
    for (const std::string& journal :
         {std::string(), std::string(512, '\0'), std::string("not a journal"),
          change.Journal.substr(0, 20), change.EarlyJournal}) {
        const TestFolder folder;
        const std::string path = PutBack(folder, change.After, journal);
        EXPECT_EQ(JournalBeside(path), JournalKind::None);
        EXPECT_EQ(ProjectStore(path, DatabaseAccess::ReadWrite, ShortWait).Directories(),
                  (Lines{"MARCH", "MAY"}));
    }
}

TEST(AJournal, OfAnotherProgramThatIsWritingIsNoHindrance) {
    const TestDatabase file;
    FillWithRooms(file);
    const OtherProgram writer(file.Path(), {"BEGIN IMMEDIATE", "UPDATE InputData SET RoomW = 1"});
    ASSERT_TRUE(fs::exists(file.Path() + "-journal"));
    EXPECT_TRUE(FileLock(file.Path(), FileLock::Kind::Reading, ShortWait).HasWriter());
    EXPECT_NE(JournalBeside(file.Path()), JournalKind::Foreign);
    EXPECT_NO_THROW(file.Open(ShortWait));
}

TEST(AJournal, ThatIsNoFileIsNeverOpened) {
    for (const char* suffix : {"-journal", "-wal"}) {
        const TestDatabase file;
        ASSERT_EQ(mkfifo((file.Path() + suffix).c_str(), 0600), 0);
        const std::string text = DatabaseErrorOf([&] { file.Open(ShortWait); });
        EXPECT_NE(text.find(suffix), std::string::npos) << text;
        EXPECT_NE(text.find("is no file"), std::string::npos) << text;
    }
}

TEST(AKilledProgram, NeverLeavesAFileThatIsRefusedOrMixed) {
    const TestDatabase file;
    FillWithRooms(file);
    file.Run("UPDATE InputData SET RoomW = 0");
    constexpr int Trials = testing::UnlessSanitized(40, 20);
    std::mt19937 random(20261122);
    int journals = 0;
    for (int trial = 0; trial < Trials; ++trial) {
        SCOPED_TRACE(trial);
        std::array<int, 2> ready{};
        ASSERT_EQ(pipe(ready.data()), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const auto writer = OpenDatabaseFile(file.Path(), DatabaseAccess::ReadWrite, 5000);
            for (int value = 0;; ++value) {
                (void)!write(ready[1], "x", 1);
                writer->Run("BEGIN IMMEDIATE", "");
                writer->Run("UPDATE InputData SET RoomW = " + std::to_string(value), "");
                writer->Run("COMMIT", "");
            }
        }
        char told = 0;
        ASSERT_EQ(read(ready[0], &told, 1), 1);
        usleep(static_cast<useconds_t>(random() % 10000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        close(ready[0]);
        close(ready[1]);
        journals += JournalBeside(file.Path()) == JournalKind::Own ? 1 : 0;
        ASSERT_NO_THROW(file.Open());
        ASSERT_EQ(file.Rows("SELECT count(DISTINCT RoomW) FROM InputData"), Lines{"1"});
    }
    EXPECT_GT(journals, 0) << "no program was killed in the middle of a change";
}

TEST(FileLock, KeepsWritersOutAndWaitsForThem) {
    const TestDatabase file;
    {
        const FileLock lock(file.Path(), FileLock::Kind::Reading, ShortWait);
        EXPECT_FALSE(lock.HasWriter());
        const auto other = OpenDatabaseFile(file.Path(), DatabaseAccess::ReadWrite, ShortWait);
        EXPECT_THROW(other->Run("BEGIN EXCLUSIVE", ""), DatabaseError);
    }
    {
        const FileLock lock(file.Path(), FileLock::Kind::Replacing, ShortWait);
        EXPECT_THROW(file.Open(ShortWait), DatabaseError);
    }
    RawDatabase writer(file.Path());
    writer.Run("BEGIN IMMEDIATE");
    EXPECT_NE(DatabaseErrorOf([&] {
                  FileLock(file.Path(), FileLock::Kind::Replacing, ShortWait);
              }).find("another program is using the database"),
              std::string::npos);
}

} // namespace
} // namespace tarn
