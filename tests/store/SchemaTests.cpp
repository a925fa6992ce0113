#include "store/Check.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using namespace tarn::testing;

TEST(CreateDatabaseFile, MakesEveryTableEmptyWithItsFields) {
    const TestDatabase file;
    const std::string rooms = "InputData|ObjNum INTEGER, RoomW INTEGER, RoomL INTEGER, "
                              "RoomNoStr TEXT, RoomRemark TEXT, CTType INTEGER, BaseSty INTEGER, "
                              "TabIndex INTEGER";
    const std::string sheets = "MainTab|TabIndex INTEGER, ProjName TEXT, ObjNum INTEGER, "
                               "PicScale REAL, DigScale REAL, TileLabelNUm INTEGER, "
                               "MagScale INTEGER, ScaleTop INTEGER, ScaleLeft INTEGER, "
                               "EnteredMetric INTEGER";
    EXPECT_EQ(
        file.Rows("SELECT t.name, group_concat(c.name || ' ' || c.type, ', ') "
                  "FROM sqlite_master t, pragma_table_info(t.name) c "
                  "WHERE t.type = 'table' GROUP BY t.name ORDER BY t.name"),
        (Lines{"AFillTab|TabIndex INTEGER", "AInputData|TabIndex INTEGER",
               "AngleMCut|TabIndex INTEGER", "DirTab|Directory TEXT", "ESTTab|TabIndex INTEGER",
               "FillCut|TabIndex INTEGER", rooms, sheets, "MasterCut|TabIndex INTEGER",
               "ProjTab|Dir TEXT, ProjName TEXT, DrawingNum INTEGER", "SAFill|TabIndex INTEGER",
               "SFillCut|TabIndex INTEGER"}));
    for (const std::string& table :
         file.Rows("SELECT name FROM sqlite_master WHERE type='table'")) {
        EXPECT_EQ(file.Rows("SELECT count(*) FROM " + table), Lines{"0"}) << table;
    }
}

TEST(CreateDatabaseFile, ComparesTextsWithoutRegardToTheCaseOfAToZ) {
    const TestDatabase file;
    file.AddProject("MARCH", "ABC", 1);
    EXPECT_EQ(file.Rows("SELECT count(*) FROM ProjTab WHERE Dir = 'march' AND ProjName = 'abc'"),
              Lines{"1"});
    EXPECT_EQ(file.Rows("SELECT count(*) FROM MainTab WHERE ProjName = 'abc'"), Lines{"1"});
}

TEST(CreateDatabaseFile, IndexesSheetNumbersDirectoriesAndProjects) {
    const TestDatabase file;
    const auto indexed = [&file](const std::string& table) {
        return file.Rows("SELECT c.name FROM pragma_index_list('" + table +
                         "') i, pragma_index_info(i.name) c ORDER BY c.name");
    };
    EXPECT_EQ(indexed("ProjTab"), (Lines{"Dir", "ProjName"}));
    EXPECT_EQ(indexed("MainTab"), (Lines{"ProjName", "TabIndex"}));
    for (const char* table : {"InputData", "AInputData", "ESTTab", "MasterCut", "FillCut",
                              "SFillCut", "SAFill", "AFillTab", "AngleMCut"}) {
        EXPECT_EQ(indexed(table), Lines{"TabIndex"}) << table;
    }
}

TEST(CreateDatabaseFile, DeclaresNoForeignKeyAndNothingUnique) {
    const TestDatabase file;
    for (const std::string& table :
         file.Rows("SELECT name FROM sqlite_master WHERE type='table'")) {
        EXPECT_EQ(file.Rows("SELECT * FROM pragma_foreign_key_list('" + table + "')"), Lines{});
        EXPECT_EQ(file.Rows("SELECT * FROM pragma_index_list('" + table + "') WHERE \"unique\""),
                  Lines{});
    }
}

TEST(CreateDatabaseFile, MakesTheFoldersOnTheWay) {
    const TestFolder folder;
    CreateDatabaseFile(folder.Path("new/DATA/Tarn.mdb"));
    EXPECT_EQ(CheckDatabaseFile(folder.Path("new/DATA/Tarn.mdb")), Lines{});
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path("new/DATA")), {}), 1);
}

TEST(CreateDatabaseFile, NeverTouchesWhatIsThere) {
    const TestFolder folder;
    for (const std::string& content : {std::string(), std::string("something else")}) {
        WriteFile(folder.Path("Tarn.mdb"), content);
        EXPECT_NE(DatabaseErrorOf([&] {
                      CreateDatabaseFile(folder.Path("Tarn.mdb"));
                  }).find(folder.Path("Tarn.mdb")),
                  std::string::npos);
        EXPECT_EQ(ReadFile(folder.Path("Tarn.mdb")), content);
    }
    fs::create_directory(folder.Path("folder.mdb"));
    EXPECT_THROW(CreateDatabaseFile(folder.Path("folder.mdb")), DatabaseError);
    fs::create_symlink(folder.Path("nowhere"), folder.Path("link.mdb"));
    EXPECT_THROW(CreateDatabaseFile(folder.Path("link.mdb")), DatabaseError);
    EXPECT_EQ(folder.Content(), (Lines{"Tarn.mdb", "folder.mdb", "link.mdb"}));
}

TEST(CreateDatabaseFile, LeavesNothingBehindWhenItsFolderCannotBeMade) {
    const TestFolder folder;
    WriteFile(folder.Path("file"), "x");
    EXPECT_THROW(CreateDatabaseFile(folder.Path("file/DATA/Tarn.mdb")), DatabaseError);
    EXPECT_EQ(folder.Content(), Lines{"file"});
}

TEST(CreateDatabaseFile, LeavesNothingBehindWhenTheFileCannotBeMade) {
    const TestFolder folder;
    // A name as long as a file system allows: there is no room for the journal's name.
    const std::string name = std::string(251, 'x') + ".mdb";
    EXPECT_THROW(CreateDatabaseFile(folder.Path("a/b/" + name)), DatabaseError);
    EXPECT_EQ(folder.Content(), Lines{});
}

TEST(CheckDatabaseFile, FindsNothingInAGoodDatabase) {
    const TestDatabase file;
    file.AddProject("MARCH", "P", 1, 3);
    EXPECT_EQ(CheckDatabaseFile(file.Path()), Lines{});
}

TEST(CheckDatabaseFile, NamesEveryMissingTable) {
    const TestDatabase file;
    file.Run("DROP TABLE DirTab");
    file.Run("DROP TABLE SAFill");
    EXPECT_EQ(CheckDatabaseFile(file.Path()),
              (Lines{"The table DirTab is missing.", "The table SAFill is missing."}));
}

TEST(CheckDatabaseFile, NamesEveryMissingField) {
    const TestDatabase file;
    file.Run("ALTER TABLE InputData DROP COLUMN CTType");
    file.Run("ALTER TABLE MainTab DROP COLUMN MagScale");
    EXPECT_EQ(CheckDatabaseFile(file.Path()), (Lines{"The table InputData has no field CTType.",
                                                     "The table MainTab has no field MagScale."}));
}

TEST(CheckDatabaseFile, AcceptsOtherLetterCasesAndADatabaseWithoutEnteredMetric) {
    const TestDatabase file;
    file.Run("ALTER TABLE MainTab DROP COLUMN EnteredMetric");
    file.Run("ALTER TABLE ProjTab RENAME COLUMN Dir TO DIR");
    file.Run("ALTER TABLE ESTTab RENAME TO X");
    file.Run("ALTER TABLE X RENAME TO ESTTAB");
    EXPECT_EQ(CheckDatabaseFile(file.Path()), Lines{});
}

TEST(CheckDatabaseFile, ReportsDamage) {
    const TestDatabase file;
    file.AddProject("MARCH", "P", 1, 20);
    // An index that misses rows: readable, but not sound.
    RawDatabase raw(file.Path());
    raw.Run("PRAGMA writable_schema = ON");
    raw.Run("UPDATE sqlite_master SET sql = replace(sql, '(TabIndex)', '(ObjNum)') "
            "WHERE name = 'InputDataTabIndex'");
    const Lines findings = CheckDatabaseFile(file.Path());
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(findings.front().find("Damaged: "), 0U) << findings.front();
}

TEST(CheckDatabaseFile, ReportsDamageThatIsToldInSeveralLinesInOne) {
    const TestDatabase file;
    std::string bytes = ReadFile(file.Path());
    constexpr std::size_t FreePagesAt = 32; // the first one, and how many there are
    bytes.replace(FreePagesAt, 8, std::string("\0\0\0\5\0\0\0\1", 8));
    WriteFile(file.Path(), bytes);
    const Lines findings = CheckDatabaseFile(file.Path());
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(findings.front().find("Damaged: "), 0U) << findings.front();
    EXPECT_NE(findings.front().find("freelist"), std::string::npos) << findings.front();
    EXPECT_EQ(findings.front().find('\n'), std::string::npos) << findings.front();
    EXPECT_EQ(findings.front().find("\uFFFD"), std::string::npos) << findings.front();
}

TEST(CheckDatabaseFile, ReportsAFileThatCannotBeOpenedAsItsOneFinding) {
    const TestDatabase file;
    const std::string whole = ReadFile(file.Path());
    for (const std::string& content :
         {std::string(), std::string(5000, 'x'), whole.substr(0, 5000)}) {
        WriteFile(file.Path(), content);
        const Lines findings = CheckDatabaseFile(file.Path());
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_NE(findings.front().find(file.Path()), std::string::npos) << findings.front();
        EXPECT_EQ(ReadFile(file.Path()), content);
    }
}

TEST(CheckDatabaseFile, ReportsEveryFileThatCannotBeOpenedSinceItIsCutShort) {
    const TestDatabase file;
    const std::string whole = ReadFile(file.Path());
    for (const std::size_t missing : {1U, 100U, 4095U, 4096U}) {
        WriteFile(file.Path(), whole.substr(0, whole.size() - missing));
        EXPECT_NE(CheckDatabaseFile(file.Path()), Lines{}) << missing << " bytes are missing";
    }
}

TEST(CheckDatabaseFile, ReportsALock) {
    const TestDatabase file;
    RawDatabase other(file.Path());
    other.Run("BEGIN EXCLUSIVE");
    const Lines findings = CheckDatabaseFile(file.Path(), ShortWait);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_NE(findings.front().find("another program"), std::string::npos);
}

} // namespace
} // namespace tarn
