#include "store/DatabaseFile.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace tarn {
namespace {

using namespace tarn::testing;

TEST(OpeningADatabase, OpensAPathWithAnyCharacter) {
    const TestFolder folder;
    for (const char* name :
         {"with blanks", "100%25", "what?", "#1", "a&b=c", "a;b", "O'Hara", "\"quoted\"", "Übung",
          "проект", "床", "back\\slash", "file:x?mode=ro", "new\nline"}) {
        SCOPED_TRACE(name);
        const std::string path = folder.Path(std::string(name) + "/Tarn.mdb");
        CreateDatabaseFile(path);
        ProjectStore(path, DatabaseAccess::ReadWrite).AddDirectory("MARCH");
        EXPECT_EQ(RawDatabase(path).Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
    }
}

TEST(OpeningADatabase, OpensARelativePath) {
    const TestDatabase file;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(file.Folder().Path());
    EXPECT_NO_THROW(ProjectStore("Tarn.mdb", DatabaseAccess::ReadWrite).AddDirectory("MARCH"));
    std::filesystem::current_path(before);
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
}

TEST(OpeningADatabase, GivesEachStoreAConnectionOfItsOwn) {
    const TestDatabase file;
    ProjectStore first = file.Open();
    first.InOneTransaction([&] {
        first.AddDirectory("MARCH");
        EXPECT_EQ(file.Open().Directories(), Lines{});
    });
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
}

TEST(OpeningADatabase, MovesWithItsStore) {
    const TestDatabase file;
    ProjectStore store;
    store = file.Open();
    ProjectStore moved = std::move(store);
    moved.AddDirectory("MARCH");
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
}

TEST(OpeningADatabase, LeavesNoFileBesideTheDatabase) {
    const TestDatabase file;
    file.Open().AddDirectory("MARCH");
    EXPECT_EQ(file.Folder().Content(), Lines{"Tarn.mdb"});
}

// The next two settings belong to the connection: a query on it is the one way to see them.

TEST(OpeningADatabase, SynchronisesTheFolderOfTheJournalToo) {
    const TestDatabase file;
    const auto connection = OpenDatabaseFile(file.Path(), DatabaseAccess::ReadWrite, ShortWait);
    EXPECT_EQ(connection->Run("PRAGMA synchronous", "").Rows.at(0).at(0).toInt(), 3);
}

TEST(OpeningADatabase, WaitsForALockAsLongAsItIsTold) {
    const TestDatabase file;
    const auto waitOf = [&](int wait) {
        const auto connection = OpenDatabaseFile(file.Path(), DatabaseAccess::ReadWrite, wait);
        return connection->Run("PRAGMA busy_timeout", "").Rows.at(0).at(0).toInt();
    };
    EXPECT_EQ(waitOf(DefaultBusyWait), 5000);
    EXPECT_EQ(waitOf(ShortWait), ShortWait);
}

TEST(OpeningADatabase, ForReadingReadsAndRefusesEveryChange) {
    const TestDatabase file;
    file.AddDirectory("MARCH");
    ProjectStore store(file.Path(), DatabaseAccess::ReadOnly);
    EXPECT_EQ(store.Directories(), Lines{"MARCH"});
    EXPECT_NE(DatabaseErrorOf([&] { store.AddDirectory("MAY"); }).find("read-only"),
              std::string::npos);
    EXPECT_THROW(store.DeleteDirectory("MARCH"), DatabaseError);
    EXPECT_THROW(store.RenameDirectory("MARCH", "MAY"), DatabaseError);
    EXPECT_THROW(store.Save({}, Units::Imperial), DatabaseError);
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"MARCH"});
    EXPECT_EQ(file.Rows("SELECT * FROM MainTab"), Lines{});
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
            WriteFile(copy_.Path(name), ReadFile(file.Folder().Path(name)));
        }
        writer.Run("ROLLBACK");
    }

    std::string Path() const { return copy_.Path("Tarn.mdb"); }
    /// How many directories have that name; the file is opened for it.
    std::ptrdiff_t Named(const std::string& name,
                         DatabaseAccess access = DatabaseAccess::ReadWrite) const {
        const Lines names = ProjectStore(Path(), access).Directories();
        return std::count(names.begin(), names.end(), name);
    }

    TestFolder copy_;
};

TEST_F(CutOffDatabase, OpensAsItWasBeforeTheTransaction) {
    EXPECT_EQ(Named("OLD"), 3000);
    EXPECT_EQ(copy_.Content(), Lines{"Tarn.mdb"});
}

TEST_F(CutOffDatabase, OpensForReadingAsItWasBeforeTheTransaction) {
    EXPECT_EQ(Named("OLD", DatabaseAccess::ReadOnly), 3000);
}

TEST_F(CutOffDatabase, IsReallyHalfChanged) {
    std::filesystem::remove(copy_.Path("Tarn.mdb-journal"));
    EXPECT_GT(Named("NEW"), 0);
    EXPECT_GT(Named("OLD"), 0);
}

} // namespace
} // namespace tarn
