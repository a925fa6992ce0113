#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tarn {
namespace {

using namespace tarn::testing;
namespace fs = std::filesystem;

/// A store that has its file open, and another database that takes the place of that file.
class ReplacedFile : public ::testing::Test {
  protected:
    ReplacedFile() {
        file_.AddProject("MARCH", "P", 5, 3);
        LoadedProject loaded = store_.Load("P");
        project_ = loaded.Value;
        read_ = loaded.Mark;
        project_.Rooms[0].Width = 999;
        fs::copy_file(file_.Path(), other_);
    }

    /// As programs that keep folders alike put a file in its place; the one before goes to old_.
    void Replace() {
        fs::create_hard_link(file_.Path(), old_);
        fs::rename(other_, file_.Path());
    }
    void ExpectSaved() const {
        EXPECT_EQ(file_.Rows("SELECT RoomW FROM InputData ORDER BY ObjNum"),
                  (Lines{"999", "101", "102"}));
    }

    TestDatabase file_;
    const std::string other_ = file_.Folder().Path("other.mdb");
    const std::string old_ = file_.Folder().Path("old.mdb");
    ProjectStore store_ = file_.Open(ShortWait);
    Project project_;
    StoredMark read_;
};

TEST_F(ReplacedFile, IsOpenedBeforeTheNextSaveAndTheOldOneStaysAsItWas) {
    const std::string before = ReadFile(file_.Path());
    Replace();
    EXPECT_TRUE(store_.Save(project_, Units::Imperial, read_).IsSaved());
    ExpectSaved();
    EXPECT_EQ(ReadFile(old_), before);
}

TEST_F(ReplacedFile, IsWhatASaveIsComparedWith) {
    RawDatabase(other_).Run("UPDATE InputData SET RoomW = 7 WHERE ObjNum = 1");
    Replace();
    EXPECT_EQ(store_.Save(project_, Units::Imperial, read_).What, SaveResult::Outcome::Changed);
    RawDatabase(file_.Path()).Run("DELETE FROM ProjTab");
    EXPECT_EQ(store_.Save(project_, Units::Imperial, read_).What, SaveResult::Outcome::Gone);
}

TEST_F(ReplacedFile, IsReadAndChangedByEveryAction) {
    const auto replaceBy = [this](const std::string& name) {
        fs::remove(other_);
        CreateDatabaseFile(other_);
        RawDatabase(other_).Run("INSERT INTO DirTab VALUES ('" + name + "')");
        RawDatabase(other_).Run("INSERT INTO ProjTab VALUES ('" + name + "', 'P OF " + name +
                                "', 0)");
        fs::rename(other_, file_.Path());
    };
    replaceBy("A");
    EXPECT_EQ(store_.Directories(), Lines{"A"});
    replaceBy("B");
    EXPECT_EQ(store_.AllProjects(), (decltype(store_.AllProjects()){{"B", "P OF B"}}));
    replaceBy("C");
    EXPECT_EQ(store_.DirectoryOf("P OF C"), "C");
    replaceBy("D");
    EXPECT_EQ(store_.Load("P OF D").Value.Directory, "D");
    replaceBy("E");
    EXPECT_EQ(store_.Projects("E"), Lines{"P OF E"});
    replaceBy("F");
    store_.RenameDirectory("F", "G");
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"G"});
    replaceBy("H");
    store_.DeleteProject("P OF H");
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
    replaceBy("I");
    store_.AddDirectory("J");
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), (Lines{"I", "J"}));
    replaceBy("K");
    store_.InOneTransaction([this] { store_.AddProject("K", "L"); });
    EXPECT_EQ(file_.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), (Lines{"P OF K", "L"}));
}

TEST_F(ReplacedFile, IsNotOpenedWithinATransaction) {
    store_.InOneTransaction([this] {
        Replace();
        EXPECT_EQ(store_.Load("P").Value.Rooms.size(), 3U);
    });
    EXPECT_EQ(store_.Load("P").Value.Rooms.size(), 3U);
}

TEST_F(ReplacedFile, WithinATransactionNothingIsStoredInEither) {
    const std::string before = ReadFile(file_.Path());
    EXPECT_NE(DatabaseErrorOf([this] {
                  store_.InOneTransaction([this] {
                      Replace();
                      store_.AddDirectory("NEW");
                  });
              }).find("was moved, deleted or replaced while it was open"),
              std::string::npos);
    EXPECT_EQ(ReadFile(old_), before);
    EXPECT_EQ(ReadFile(file_.Path()), before);
    EXPECT_NO_THROW(store_.AddDirectory("NEW"));
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"NEW"});
}

TEST_F(ReplacedFile, ThatIsGoneIsToldAndUsedAgainWhenItIsBack) {
    const std::string before = ReadFile(file_.Path());
    fs::rename(file_.Path(), old_);
    for (int time = 0; time < 2; ++time) {
        const std::string text =
            DatabaseErrorOf([this] { store_.Save(project_, Units::Imperial, read_); });
        EXPECT_EQ(text, "The database file " + file_.Path() +
                            " is missing. Correct its path or the data folder in TarnWin.INI, or "
                            "make a new data folder with \"tarn-data create\".");
    }
    EXPECT_FALSE(fs::exists(file_.Path())) << "it is not made";
    EXPECT_EQ(ReadFile(old_), before);
    fs::rename(old_, file_.Path());
    EXPECT_TRUE(store_.Save(project_, Units::Imperial, read_).IsSaved());
    ExpectSaved();
}

TEST_F(ReplacedFile, ThatIsNoGoodIsRefusedAsAtTheStartAndLeftAlone) {
    for (const std::string& content :
         {std::string("something else"), std::string(), ReadFile(file_.Path()).substr(0, 9000)}) {
        WriteFile(other_, content);
        fs::rename(other_, file_.Path());
        const std::string text =
            DatabaseErrorOf([this] { store_.Save(project_, Units::Imperial, read_); });
        EXPECT_EQ(text, DatabaseErrorOf([this] { file_.Open(); }));
        EXPECT_EQ(ReadFile(file_.Path()), content);
    }
}

TEST_F(ReplacedFile, ByALinkToAnotherIsNoticed) {
    fs::rename(file_.Path(), old_);
    fs::create_symlink(other_, file_.Path());
    EXPECT_TRUE(store_.Save(project_, Units::Imperial, read_).IsSaved());
    EXPECT_EQ(RawDatabase(other_).Rows("SELECT RoomW FROM InputData WHERE ObjNum = 0"),
              Lines{"999"});
    EXPECT_EQ(RawDatabase(old_).Rows("SELECT RoomW FROM InputData WHERE ObjNum = 0"), Lines{"100"});
}

TEST_F(ReplacedFile, IsThatOfTheActionBeforeTheFirstChange) {
    Lines seen;
    store_.SetBeforeFirstChange([&] { seen = file_.Open(ShortWait).Directories(); });
    RawDatabase(other_).Run("INSERT INTO DirTab VALUES ('OTHER')");
    Replace();
    store_.AddDirectory("NEW");
    EXPECT_EQ(seen, Lines{"OTHER"});
}

TEST_F(ReplacedFile, TheJournalOfAnotherProgramInItIsLeftAlone) {
    Replace();
    RawDatabase writer(file_.Path());
    writer.Run("PRAGMA cache_size = 1");
    writer.Run("BEGIN IMMEDIATE");
    writer.Run("UPDATE InputData SET RoomW = 55");
    const std::string old = ReadFile(old_);
    EXPECT_EQ(store_.Load("P").Value.Rooms.size(), 3U);
    EXPECT_THROW(store_.Save(project_, Units::Imperial, read_), DatabaseError);
    writer.Run("COMMIT");
    EXPECT_EQ(ReadFile(old_), old);
    EXPECT_EQ(file_.Rows("SELECT RoomW FROM InputData"), (Lines{"55", "55", "55"}));
}

} // namespace
} // namespace tarn
