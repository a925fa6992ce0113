#include "store/Schema.h"
#include "store/SqlDatabase.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tarn {
namespace {

using testing::DatabaseErrorOf;
using testing::RawDatabase;
using testing::ShortWait;
using testing::TestDatabase;
using testing::TestFolder;

using Lines = std::vector<std::string>;

void AddDirectory(Database& database, const std::string& name) {
    const auto rows = database.OpenDynaset("SELECT * from DirTab Order by Directory");
    rows->AddNew();
    rows->SetField("Directory", name);
    rows->Update();
}

TEST(SqlDatabase, OpensAPathWithAnyCharacter) {
    const TestFolder folder;
    for (const char* name :
         {"with blanks", "100%25", "what?", "#1", "a&b=c", "a;b", "O'Hara", "\"quoted\"", "Übung",
          "проект", "床", "back\\slash", "file:x?mode=ro", "new\nline"}) {
        SCOPED_TRACE(name);
        const std::string path = folder.Path(std::string(name) + "/Tarn.mdb");
        CreateDatabaseFile(path);
        AddDirectory(*OpenSqlDatabase(path), "MARCH");
        EXPECT_EQ(RawDatabase(path).Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
    }
}

TEST(SqlDatabase, OpensARelativePath) {
    const TestDatabase file;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(file.Folder().Path());
    EXPECT_NO_THROW(AddDirectory(*OpenSqlDatabase("Tarn.mdb"), "MARCH"));
    std::filesystem::current_path(before);
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
}

TEST(SqlDatabase, EachObjectIsAConnectionOfItsOwn) {
    const TestDatabase file;
    const auto first = OpenSqlDatabase(file.Path());
    auto second = OpenSqlDatabase(file.Path());
    first->Begin();
    AddDirectory(*first, "MARCH");
    EXPECT_TRUE(second->OpenSnapshot("Select * from DirTab")->AtEnd());
    second.reset();
    first->Commit();
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
}

TEST(SqlDatabase, LeavesNoFileBesideTheDatabase) {
    const TestDatabase file;
    AddDirectory(*OpenSqlDatabase(file.Path()), "MARCH");
    EXPECT_EQ(file.Folder().Content(), Lines{"Tarn.mdb"});
}

TEST(SqlDatabase, ATransactionIsStoredByCommit) {
    const TestDatabase file;
    const auto database = OpenSqlDatabase(file.Path());
    Transaction transaction(*database);
    AddDirectory(*database, "MARCH");
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{});
    transaction.Commit();
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
}

TEST(SqlDatabase, ATransactionWithoutCommitIsTakenBack) {
    const TestDatabase file;
    file.AddDirectory("MAY");
    const auto database = OpenSqlDatabase(file.Path());
    {
        Transaction transaction(*database);
        AddDirectory(*database, "MARCH");
    }
    AddDirectory(*database, "JUNE");
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), (Lines{"MAY", "JUNE"}));
}

TEST(SqlDatabase, RefusesASecondTransactionAndKeepsTheFirst) {
    const TestDatabase file;
    const auto database = OpenSqlDatabase(file.Path());
    Transaction transaction(*database);
    AddDirectory(*database, "MARCH");
    EXPECT_THROW(database->Begin(), DatabaseError);
    transaction.Commit();
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
}

TEST(SqlDatabase, RefusesCommitWithoutATransaction) {
    const TestDatabase file;
    EXPECT_THROW(OpenSqlDatabase(file.Path())->Commit(), DatabaseError);
}

TEST(SqlDatabase, SurvivesATransactionThatTheDatabaseTookBackItself) {
    const TestDatabase file;
    file.Run("CREATE TRIGGER Stop BEFORE INSERT ON DirTab WHEN NEW.Directory = 'BAD' "
             "BEGIN SELECT RAISE(ROLLBACK, 'stop'); END");
    const auto database = OpenSqlDatabase(file.Path());
    {
        Transaction transaction(*database);
        AddDirectory(*database, "MARCH");
        EXPECT_THROW(AddDirectory(*database, "BAD"), DatabaseError);
    }
    AddDirectory(*database, "JUNE");
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"JUNE"});
}

TEST(SqlDatabase, AFailedCommitIsTakenBack) {
    const TestDatabase file;
    const auto database = OpenSqlDatabase(file.Path(), DatabaseAccess::ReadWrite, ShortWait);
    RawDatabase reader(file.Path());
    reader.Run("BEGIN");
    reader.Rows("SELECT * FROM DirTab"); // its lock for reading keeps the change out of the file
    {
        Transaction transaction(*database);
        AddDirectory(*database, "MARCH");
        EXPECT_NE(DatabaseErrorOf([&] { transaction.Commit(); }).find("another program"),
                  std::string::npos);
    }
    reader.Run("COMMIT");
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{});
    AddDirectory(*database, "JUNE");
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"JUNE"});
}

TEST(SqlDatabase, SaysThatAnotherProgramHoldsALock) {
    const TestDatabase file;
    const auto database = OpenSqlDatabase(file.Path(), DatabaseAccess::ReadWrite, ShortWait);
    RawDatabase other(file.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_EQ(DatabaseErrorOf([&] { AddDirectory(*database, "MARCH"); }),
              "DirTab takes no new row: another program is using the database. Close that program "
              "and try again.");
    EXPECT_NE(DatabaseErrorOf([&] { database->Begin(); }).find("another program"),
              std::string::npos);
    other.Run("COMMIT");
    AddDirectory(*database, "JUNE");
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"JUNE"});
}

// The next two settings belong to the connection: a query on it is the one way to see them.

TEST(SqlDatabase, SynchronisesFully) {
    const TestDatabase file;
    const auto database = OpenSqlDatabase(file.Path());
    EXPECT_EQ(
        database->OpenSnapshot("Select synchronous from pragma_synchronous")->Field("synchronous"),
        FieldValue(std::int64_t{2}));
}

TEST(SqlDatabase, WaitsFiveSecondsForALockUnlessToldOtherwise) {
    const TestDatabase file;
    const auto waitOf = [](Database& database) {
        return database.OpenSnapshot("Select timeout from pragma_busy_timeout")->Field("timeout");
    };
    EXPECT_EQ(waitOf(*OpenSqlDatabase(file.Path())), FieldValue(std::int64_t{5000}));
    EXPECT_EQ(waitOf(*OpenSqlDatabase(file.Path(), DatabaseAccess::ReadWrite, ShortWait)),
              FieldValue(std::int64_t{ShortWait}));
}

TEST(SqlDatabase, OpenedForReadingReadsAndRefusesEveryChange) {
    const TestDatabase file;
    file.AddDirectory("MARCH");
    const auto database = OpenSqlDatabase(file.Path(), DatabaseAccess::ReadOnly);
    EXPECT_EQ(database->OpenSnapshot("Select * from DirTab")->Field("Directory"),
              FieldValue(std::string("MARCH")));
    EXPECT_NE(DatabaseErrorOf([&] { AddDirectory(*database, "MAY"); }).find("read-only"),
              std::string::npos);
    EXPECT_THROW(database->OpenDynaset("Select * from DirTab")->Delete(), DatabaseError);
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
}

/// A copy of a database and its journal, taken in the middle of another program's transaction whose
/// first changes have already reached the file: what a power cut leaves. Every one of 3000
/// directories was named OLD before; the transaction was naming them NEW.
class CutOffDatabase : public ::testing::Test {
  protected:
    CutOffDatabase() {
        const TestDatabase file;
        RawDatabase writer(file.Path());
        writer.Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                   "INSERT INTO DirTab SELECT 'OLD' FROM n");
        writer.Run("PRAGMA synchronous = FULL"); // the journal counts only when it is synchronised
        writer.Run("PRAGMA cache_size = 1");
        writer.Run("BEGIN");
        writer.Run("UPDATE DirTab SET Directory = 'NEW'");
        for (const char* name : {"Tarn.mdb", "Tarn.mdb-journal"}) {
            testing::WriteFile(copy_.Path(name), testing::ReadFile(file.Folder().Path(name)));
        }
        writer.Run("ROLLBACK");
    }

    std::string Path() const { return copy_.Path("Tarn.mdb"); }
    static int RowsNamed(Database& database, const std::string& name) {
        int count = 0;
        const auto rows =
            database.OpenSnapshot("Select * from DirTab where Directory=\"" + name + "\"");
        for (; !rows->AtEnd(); rows->MoveNext()) {
            ++count;
        }
        return count;
    }

    TestFolder copy_;
};

TEST_F(CutOffDatabase, OpensAsItWasBeforeTheTransaction) {
    EXPECT_EQ(RowsNamed(*OpenSqlDatabase(Path()), "OLD"), 3000);
    EXPECT_EQ(copy_.Content(), Lines{"Tarn.mdb"});
}

TEST_F(CutOffDatabase, OpensForReadingAsItWasBeforeTheTransaction) {
    EXPECT_EQ(RowsNamed(*OpenSqlDatabase(Path(), DatabaseAccess::ReadOnly), "OLD"), 3000);
}

TEST_F(CutOffDatabase, IsReallyHalfChanged) {
    std::filesystem::remove(copy_.Path("Tarn.mdb-journal"));
    const auto database = OpenSqlDatabase(Path());
    EXPECT_GT(RowsNamed(*database, "NEW"), 0);
    EXPECT_GT(RowsNamed(*database, "OLD"), 0);
}

} // namespace
} // namespace tarn
