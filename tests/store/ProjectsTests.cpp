#include "store/Names.h"
#include "store/Projects.h"
#include "store/Renames.h"
#include "store/SharedRows.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tarn {
namespace {

using testing::RawDatabase;
using testing::ShortWait;
using testing::TestDatabase;

using Lines = std::vector<std::string>;

class Projects : public ::testing::Test {
  protected:
    Projects() { file_.OpenInto(state_, ShortWait); }

    TestDatabase file_;
    SharedState state_;
};

TEST_F(Projects, CheckDirSaysWhetherTheDirectoryExists) {
    file_.AddDirectory("HOUSES");
    file_.AddDirectory("OFFICES");
    EXPECT_TRUE(CheckDir(state_, "OFFICES"));
    EXPECT_FALSE(CheckDir(state_, "SHOPS"));
}

TEST_F(Projects, CheckProjNameSaysWhetherTheNameIsFree) {
    file_.AddProject("HOUSES", "A", 1);
    file_.AddProject("OFFICES", "B", 2);
    EXPECT_FALSE(CheckProjName(state_, "B"));
    EXPECT_TRUE(CheckProjName(state_, "C"));
}

TEST_F(Projects, NamesAreComparedInFullUpperCaseWithoutTheirBlanks) {
    file_.AddDirectory("MÜLLER");
    file_.Run("INSERT INTO ProjTab VALUES ('MÜLLER', 'квартира', 0)");
    EXPECT_TRUE(CheckDir(state_, "  müller "));
    EXPECT_FALSE(CheckProjName(state_, "КВАРТИРА"));
    EXPECT_EQ(DirectoryOf(state_, "Квартира "), "MÜLLER");
    EXPECT_EQ(ListProjects(state_, "Müller"), Lines{"квартира"});
}

TEST_F(Projects, MonthsAreNoDirectories) {
    EXPECT_FALSE(CheckDir(state_, "MARCH"));
}

TEST_F(Projects, ChecksSeeWhatOthersStoredMeanwhile) {
    EXPECT_FALSE(CheckDir(state_, "HOUSES"));
    EXPECT_TRUE(CheckProjName(state_, "A"));
    file_.AddDirectory("HOUSES");
    file_.AddProject("HOUSES", "A", 1);
    EXPECT_TRUE(CheckDir(state_, "HOUSES"));
    EXPECT_FALSE(CheckProjName(state_, "A"));
}

TEST_F(Projects, AProjectKnowsItsDirectory) {
    file_.AddProject("HOUSES", "A", 1);
    EXPECT_EQ(DirectoryOf(state_, "A"), "HOUSES");
    EXPECT_EQ(DirectoryOf(state_, "B"), std::nullopt);
}

TEST_F(Projects, DirectoriesAreListedByName) {
    for (const char* name : {"SHOPS", "HOUSES", "OFFICES"}) {
        file_.AddDirectory(name);
    }
    EXPECT_EQ(ListDirectories(state_), (Lines{"HOUSES", "OFFICES", "SHOPS"}));
}

TEST_F(Projects, ProjectsOfOneDirectoryAreListedAsStored) {
    file_.AddProject("HOUSES", "Z", 1);
    file_.AddProject("OFFICES", "B", 2);
    file_.AddProject("HOUSES", "A", 3);
    EXPECT_EQ(ListProjects(state_, "HOUSES"), (Lines{"Z", "A"}));
    EXPECT_EQ(ListProjects(state_, "SHOPS"), Lines{});
}

TEST_F(Projects, ADirectoryIsAddedInItsStoredForm) {
    EXPECT_TRUE(AddDirectory(state_, "  müller & söhne ")) << state_.DatabaseFailure;
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"MÜLLER & SÖHNE"});
    EXPECT_TRUE(CheckDir(state_, "Müller & Söhne"));
}

TEST_F(Projects, AFileThatWasMovedMeanwhileIsToldFromAReadOnlyOne) {
    const std::string away = file_.Folder().Path("away.mdb");
    std::filesystem::rename(file_.Path(), away);
    EXPECT_FALSE(AddDirectory(state_, "HOUSES"));
    EXPECT_NE(state_.DatabaseFailure.find("was moved, deleted or replaced"), std::string::npos)
        << state_.DatabaseFailure;
    std::filesystem::rename(away, file_.Path());
    EXPECT_TRUE(AddDirectory(state_, "HOUSES")) << state_.DatabaseFailure;
}

TEST_F(Projects, ADirectoryMayHoldADoubleQuote) {
    EXPECT_TRUE(AddDirectory(state_, "a\"b"));
    EXPECT_TRUE(CheckDir(state_, "A\"B"));
    EXPECT_EQ(ListDirectories(state_), Lines{"A\"B"});
}

TEST_F(Projects, AProjectIsAddedInItsStoredFormWithDrawingNumberZero) {
    EXPECT_TRUE(AddProject(state_, "march", " o'hara 100%; ")) << state_.DatabaseFailure;
    EXPECT_EQ(file_.Rows("SELECT Dir, ProjName, DrawingNum FROM ProjTab"),
              Lines{"MARCH|O'HARA 100%;|0"});
    EXPECT_FALSE(CheckProjName(state_, "O'Hara 100%;"));
}

TEST_F(Projects, NamesHoldAtMost64Characters) {
    std::string name;
    for (int i = 0; i < 64; ++i) {
        name += "ü";
    }
    EXPECT_TRUE(AddDirectory(state_, name));
    EXPECT_TRUE(AddProject(state_, name, name));
    EXPECT_FALSE(AddDirectory(state_, name + "x"));
    EXPECT_FALSE(AddProject(state_, "D", name + "x"));
    EXPECT_FALSE(AddProject(state_, name + "x", "P"));
    EXPECT_NE(state_.DatabaseFailure.find("more than 64"), std::string::npos);
    EXPECT_EQ(file_.Rows("SELECT count(*) FROM DirTab"), Lines{"1"});
    EXPECT_EQ(file_.Rows("SELECT count(*) FROM ProjTab"), Lines{"1"});
}

TEST_F(Projects, NamesMayNotBeEmpty) {
    EXPECT_FALSE(AddDirectory(state_, "  "));
    EXPECT_EQ(state_.DatabaseFailure, "The directory needs a name.");
    EXPECT_FALSE(AddProject(state_, "D", ""));
    EXPECT_EQ(state_.DatabaseFailure, "The project needs a name.");
    EXPECT_FALSE(AddProject(state_, "", "P"));
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
}

TEST_F(Projects, AProjectNameHoldsNoControlCharacter) {
    for (const char c : {'\0', '\t', '\n', '\x1F', '\x7F'}) {
        EXPECT_FALSE(AddProject(state_, "MARCH", std::string("A") + c + "B"));
        EXPECT_NE(state_.DatabaseFailure.find("control character"), std::string::npos);
    }
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
    EXPECT_TRUE(AddProject(state_, "MARCH", "ÄÖ 浴室")) << state_.DatabaseFailure;
}

TEST_F(Projects, AProjectNameHoldsNoForbiddenCharacter) {
    EXPECT_EQ(ForbiddenInProjectName.size(), 9U);
    for (const char c : ForbiddenInProjectName) {
        EXPECT_FALSE(AddProject(state_, "D", std::string("A") + c)) << c;
    }
    EXPECT_NE(state_.DatabaseFailure.find("\\/:*?\"<>|"), std::string::npos);
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
}

TEST_F(Projects, AddingToALockedDatabaseFailsWithTheCause) {
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_FALSE(AddDirectory(state_, "D"));
    EXPECT_NE(state_.DatabaseFailure.find("another program"), std::string::npos);
    EXPECT_FALSE(AddProject(state_, "D", "P"));
    other.Run("COMMIT");
    EXPECT_EQ(file_.Rows("SELECT * FROM DirTab"), Lines{});
    EXPECT_TRUE(AddDirectory(state_, "D"));
}

TEST_F(Projects, ChecksAndListsRaiseWithTheCause) {
    file_.Run("DROP TABLE DirTab");
    file_.Run("DROP TABLE ProjTab");
    EXPECT_NE(
        testing::DatabaseErrorOf([&] { CheckDir(state_, "D"); }).find("no such table: DirTab"),
        std::string::npos);
    EXPECT_THROW(CheckProjName(state_, "P"), DatabaseError);
    EXPECT_THROW(DirectoryOf(state_, "P"), DatabaseError);
    EXPECT_THROW(ListDirectories(state_), DatabaseError);
    EXPECT_THROW(ListProjects(state_, "D"), DatabaseError);
}

TEST_F(Projects, WithoutADatabaseTheyRaiseTheReasonWhyItIsNotOpen) {
    state_.CurDB.reset();
    state_.DatabaseFailure = "It is missing.";
    EXPECT_EQ(testing::DatabaseErrorOf([&] { CheckDir(state_, "D"); }), "It is missing.");
    EXPECT_FALSE(AddProject(state_, "D", "P"));
    EXPECT_EQ(state_.DatabaseFailure, "It is missing.");
}

TEST_F(Projects, ASharedSetThatCouldNotBeOpenedIsOpenedWhenItCanBe) {
    file_.Run("ALTER TABLE DirTab RENAME TO Hidden");
    EXPECT_THROW(RowsOf(state_, SharedRows::Directories), DatabaseError);
    EXPECT_EQ(state_.DBRS[1], nullptr);
    file_.Run("ALTER TABLE Hidden RENAME TO DirTab");
    file_.AddDirectory("D");
    EXPECT_TRUE(CheckDir(state_, "D"));
    EXPECT_NE(state_.DBRS[1], nullptr);
}

TEST_F(Projects, ASharedSetReopenedStandsAtItsFirstRow) {
    file_.AddDirectory("D");
    Recordset& rows = RowsOf(state_, SharedRows::Directories);
    rows.MoveNext();
    EXPECT_TRUE(RowsOf(state_, SharedRows::Directories).AtEnd()) << "it stands where it was left";
    ReopenRows(state_, SharedRows::Directories);
    EXPECT_FALSE(RowsOf(state_, SharedRows::Directories).AtEnd());
}

} // namespace
} // namespace tarn
