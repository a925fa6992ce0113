#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

/// Texts that no program should store, as the database engine is given them, and as they are shown.
struct OddText {
    std::string Stored;
    std::string Shown;
};

const std::vector<OddText> OddTexts = {
    {"CAST(x'41EFBFBE42' AS TEXT)", "A\uFFFDB"},       // U+FFFE
    {"CAST(x'41EFBFBF' AS TEXT)", "A\uFFFD"},          // U+FFFF
    {"CAST(x'41EDA08042' AS TEXT)", "A\uFFFDB"},       // half a surrogate pair
    {"CAST(x'41FF42' AS TEXT)", "A\uFFFDB"},           // not UTF-8
    {"CAST(x'4180' AS TEXT)", "A\uFFFD"},              // the rest of a character
    {"CAST(x'410042' AS TEXT)", "A\uFFFDB"},           // a zero byte
    {"CAST(x'41094209' AS TEXT)", "A\uFFFDB\uFFFD"},   // tabs
    {"CAST(x'410D0A' AS TEXT)", "A\uFFFD\uFFFD"},      // a line break
    {"CAST(x'417FC28542' AS TEXT)", "A\uFFFD\uFFFDB"}, // other controls
    {"x'41FF42'", "A\uFFFDB"},                         // no text at all
    {"x'4142'", "AB"},                                 //
    {"CAST(x'EFBBBF41' AS TEXT)", "\uFEFFA"},          // what marks an encoding elsewhere
    {"CAST(x'EFBBBFEFBBBF41' AS TEXT)", "\uFEFF\uFEFFA"},
};

class OddTextsInADatabase : public ::testing::Test {
  protected:
    /// Every text that is stored, as the bytes that it has.
    Lines TextsOfRooms() const {
        return file_.Rows("SELECT hex(RoomNoStr), hex(RoomRemark), typeof(RoomRemark) "
                          "FROM InputData ORDER BY TabIndex, ObjNum");
    }
    Lines Count() const {
        return file_.Rows("SELECT (SELECT count(*) FROM DirTab), (SELECT count(*) FROM ProjTab), "
                          "(SELECT count(*) FROM MainTab), (SELECT count(*) FROM InputData)");
    }
    static std::string Hex(const std::string& text) {
        std::string hex;
        for (const char c : text) {
            constexpr std::string_view Digits = "0123456789ABCDEF";
            const auto value = static_cast<unsigned char>(c);
            hex += Digits[value / 16U];
            hex += Digits[value % 16U];
        }
        return hex;
    }

    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
};

TEST_F(OddTextsInADatabase, OfRoomsAreShownAndStoredAsShown) {
    for (const OddText& odd : OddTexts) {
        SCOPED_TRACE(odd.Stored);
        file_.AddProject("MARCH", "P", 5, 2);
        file_.Run("UPDATE InputData SET RoomRemark = " + odd.Stored +
                  ", RoomNoStr = " + odd.Stored + " WHERE ObjNum = 1");
        const LoadedProject loaded = store_.Load("P");
        ASSERT_EQ(loaded.Value.Rooms.size(), 2U);
        EXPECT_EQ(loaded.Value.Rooms[1].Remark, odd.Shown);
        EXPECT_EQ(loaded.Value.Rooms[1].Number, odd.Shown);

        const SaveResult result = store_.Save(loaded.Value, Units::Imperial, loaded.Mark);
        EXPECT_TRUE(result.IsSaved());
        EXPECT_EQ(TextsOfRooms(),
                  (Lines{"||text", Hex(odd.Shown) + "|" + Hex(odd.Shown) + "|text"}));
        const LoadedProject again = store_.Load("P");
        EXPECT_EQ(again.Value, result.Value);
        EXPECT_EQ(again.Mark, result.Mark);
        store_.DeleteProject("P");
        EXPECT_EQ(Count(), Lines{"0|0|0|0"});
    }
}

TEST_F(OddTextsInADatabase, OfRoomsStopNeitherADeletionNorTheNextProject) {
    for (const OddText& odd : OddTexts) {
        SCOPED_TRACE(odd.Stored);
        file_.AddProject("MARCH", "P", 5, 2);
        file_.Run("UPDATE InputData SET RoomRemark = " + odd.Stored);
        store_.DeleteProject("P");
        EXPECT_EQ(Count(), Lines{"0|0|0|0"});
        store_.AddProject("MARCH", "NEW");
        Project project = store_.Load("NEW").Value;
        project.Rooms.resize(1);
        EXPECT_TRUE(store_.Save(project, Units::Imperial).IsSaved());
        store_.DeleteDirectory("MARCH");
        EXPECT_EQ(Count(), Lines{"0|0|0|0"});
    }
}

TEST_F(OddTextsInADatabase, AreNeverStored) {
    store_.AddProject("MARCH", "P");
    Project project = store_.Load("P").Value;
    project.Rooms.resize(6);
    project.Rooms[0].Remark = std::string("a\0b", 3);
    project.Rooms[1].Remark = "tab\tbreak\r\n";
    project.Rooms[2].Remark = "\uFFFE\uFFFF";
    project.Rooms[3].Remark = "\xED\xA0\x80";
    project.Rooms[4].Number = "\xFF\xC3";
    project.Rooms[5].Remark = "\u0085 \U0001F3E0 é";
    const SaveResult result = store_.Save(project, Units::Imperial);
    ASSERT_TRUE(result.IsSaved());
    EXPECT_EQ(result.Value.Rooms[0].Remark, "a\uFFFDb");
    EXPECT_EQ(result.Value.Rooms[1].Remark, "tab\uFFFDbreak\uFFFD\uFFFD");
    EXPECT_EQ(result.Value.Rooms[2].Remark, "\uFFFD\uFFFD");
    EXPECT_EQ(result.Value.Rooms[4].Number, "\uFFFD\uFFFD");
    EXPECT_EQ(result.Value.Rooms[5].Remark, "\uFFFD \U0001F3E0 é");
    EXPECT_EQ(store_.Load("P").Value, result.Value);
    Lines texts;
    for (const Room& room : result.Value.Rooms) {
        texts.push_back(Hex(room.Number) + "|" + Hex(room.Remark) + "|text");
    }
    EXPECT_EQ(TextsOfRooms(), texts);
}

TEST_F(OddTextsInADatabase, OfNamesAreFoundRenamedAndDeletedAsTheyAreShown) {
    for (const OddText& odd : OddTexts) {
        SCOPED_TRACE(odd.Stored);
        const auto add = [&] {
            file_.AddDirectory("D");
            file_.AddProject("D", "P", 5, 2);
            file_.AddProject("D", "OTHER", 6, 1);
            file_.Run("UPDATE DirTab SET Directory = " + odd.Stored);
            file_.Run("UPDATE ProjTab SET Dir = " + odd.Stored + " WHERE ProjName = 'P'");
            file_.Run("UPDATE ProjTab SET ProjName = " + odd.Stored + " WHERE ProjName = 'P'");
            file_.Run("UPDATE MainTab SET ProjName = " + odd.Stored + " WHERE ProjName = 'P'");
        };
        add();
        EXPECT_EQ(store_.Directories(), Lines{odd.Shown});
        EXPECT_TRUE(store_.HasDirectory(odd.Shown));
        EXPECT_EQ(store_.Projects(odd.Shown), Lines{odd.Shown});
        EXPECT_EQ(store_.DirectoryOf(odd.Shown), odd.Shown);
        EXPECT_EQ(store_.SheetOf(odd.Shown), 5);
        const LoadedProject loaded = store_.Load(odd.Shown);
        EXPECT_EQ(loaded.Value.Rooms.size(), 2U);
        EXPECT_EQ(loaded.Value.Directory, odd.Shown);
        EXPECT_TRUE(store_.Save(loaded.Value, Units::Imperial, loaded.Mark).IsSaved());
        EXPECT_EQ(file_.Rows("SELECT hex(ProjName) FROM MainTab WHERE TabIndex = 5"),
                  Lines{Hex(odd.Shown)})
            << "stored as it is shown";
        EXPECT_EQ(store_.Load(odd.Shown).Value.Rooms.size(), 2U);

        store_.RenameDirectory(odd.Shown, "GOOD DIRECTORY");
        store_.RenameProject(odd.Shown, "GOOD");
        EXPECT_EQ(file_.Rows("SELECT Dir, ProjName FROM ProjTab"),
                  (Lines{"GOOD DIRECTORY|GOOD", "D|OTHER"}));
        EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"GOOD DIRECTORY"});
        EXPECT_EQ(store_.Load("GOOD").Value.Rooms.size(), 2U);
        store_.DeleteProject("GOOD");
        store_.DeleteProject("OTHER");
        store_.DeleteDirectory("GOOD DIRECTORY");

        add();
        store_.DeleteProject(odd.Shown);
        EXPECT_EQ(Count(), Lines{"1|1|1|1"}) << "the other project is left";
        store_.DeleteDirectory(odd.Shown);
        EXPECT_EQ(Count(), Lines{"0|1|1|1"});
        store_.DeleteProject("OTHER");
    }
}

TEST_F(OddTextsInADatabase, OfADirectoryAreDeletedWithAllThatIsInIt) {
    for (const OddText& odd : OddTexts) {
        SCOPED_TRACE(odd.Stored);
        file_.AddDirectory("D");
        file_.AddProject("D", "P", 5, 2);
        file_.Run("UPDATE DirTab SET Directory = " + odd.Stored);
        file_.Run("UPDATE ProjTab SET Dir = " + odd.Stored + ", ProjName = " + odd.Stored);
        file_.Run("UPDATE MainTab SET ProjName = " + odd.Stored);
        store_.DeleteDirectory(odd.Shown);
        EXPECT_EQ(Count(), Lines{"0|0|0|0"});
    }
}

// Nothing, nothing that is no text, and no name at all are all shown as nothing.
TEST_F(OddTextsInADatabase, OfNoLengthAreFoundRenamedAndDeletedAsTheyAreShown) {
    for (const char* name : {"''", "x''", "NULL"}) {
        SCOPED_TRACE(name);
        const auto nameNothing = [&] {
            file_.AddProject("MARCH", "P", 5, 2);
            file_.Run(std::string("UPDATE ProjTab SET ProjName = ") + name);
            file_.Run(std::string("UPDATE MainTab SET ProjName = ") + name);
        };
        nameNothing();
        ASSERT_EQ(store_.Projects("MARCH"), Lines{""});
        EXPECT_EQ(store_.Load("").Value.Rooms.size(), 2U);
        store_.DeleteProject("");
        EXPECT_EQ(Count(), Lines{"0|0|0|0"});

        nameNothing();
        store_.RenameProject("", "NAMED");
        EXPECT_EQ(store_.Load("NAMED").Value.Rooms.size(), 2U);
        store_.DeleteProject("NAMED");
        EXPECT_EQ(Count(), Lines{"0|0|0|0"});

        nameNothing();
        file_.Run(std::string("UPDATE ProjTab SET Dir = ") + name);
        store_.DeleteDirectory("");
        EXPECT_EQ(Count(), Lines{"0|0|0|0"});
    }
}

TEST_F(OddTextsInADatabase, DoNotHideAProjectWhoseNameIsInOrder) {
    file_.AddProject("MARCH", "A\uFFFDB", 5, 2);
    EXPECT_EQ(store_.Load("A\uFFFDB").Value.Rooms.size(), 2U);
    file_.AddProject("MARCH", "AB", 6, 1);
    EXPECT_EQ(store_.Load("AB").Value.Rooms.size(), 1U);
    store_.DeleteProject("AB");
    EXPECT_EQ(store_.Load("A\uFFFDB").Value.Rooms.size(), 2U);
}

TEST_F(OddTextsInADatabase, OfSixteenBitsAreShownToo) {
    // A database of another program may hold its texts in another encoding.
    const std::string path = file_.Folder().Path("utf16.mdb");
    WriteFile(path, "");
    {
        RawDatabase raw(path);
        raw.Run("PRAGMA encoding = 'UTF-16le'");
        raw.Run("CREATE TABLE DirTab (Directory TEXT COLLATE NOCASE)");
        raw.Run("CREATE TABLE ProjTab (Dir TEXT COLLATE NOCASE, ProjName TEXT COLLATE NOCASE)");
        raw.Run("INSERT INTO DirTab VALUES (CAST(x'410000D84200' AS TEXT))");
    }
    ProjectStore store(path, DatabaseAccess::ReadWrite);
    EXPECT_EQ(store.Directories(), Lines{"A\uFFFDB"});
    store.RenameDirectory("A\uFFFDB", "C");
    EXPECT_EQ(RawDatabase(path).Rows("SELECT Directory FROM DirTab"), Lines{"C"});
}

} // namespace
} // namespace tarn
