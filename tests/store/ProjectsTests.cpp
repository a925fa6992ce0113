#include "store/Names.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using Pairs = std::vector<std::pair<std::string, std::string>>;

class Projects : public ::testing::Test {
  protected:
    /// Expect that `action` raises a DatabaseError whose text has that part.
    template <typename Action>
    static void ExpectError(Action&& action, const std::string& part) {
        const std::string text = DatabaseErrorOf(action);
        EXPECT_NE(text.find(part), std::string::npos) << text;
    }

    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
};

TEST_F(Projects, ADirectoryIsThereWhenARowHoldsItsName) {
    file_.AddDirectory("HOUSES");
    file_.AddDirectory("OFFICES");
    EXPECT_TRUE(store_.HasDirectory("OFFICES"));
    EXPECT_FALSE(store_.HasDirectory("SHOPS"));
}

TEST_F(Projects, NamesAreComparedInFullUpperCaseWithoutTheirBlanks) {
    file_.AddDirectory("MÜLLER");
    file_.Run("INSERT INTO ProjTab VALUES ('MÜLLER', 'квартира', 0)");
    EXPECT_TRUE(store_.HasDirectory("  müller "));
    EXPECT_EQ(store_.DirectoryOf("КВАРТИРА"), "MÜLLER");
    EXPECT_EQ(store_.DirectoryOf("Квартира "), "MÜLLER");
    EXPECT_EQ(store_.Projects("Müller"), Lines{"квартира"});
}

TEST_F(Projects, MonthsAreNoDirectories) {
    EXPECT_FALSE(store_.HasDirectory("MARCH"));
}

TEST_F(Projects, WhatOthersStoredMeanwhileIsSeen) {
    EXPECT_FALSE(store_.HasDirectory("HOUSES"));
    EXPECT_EQ(store_.DirectoryOf("A"), std::nullopt);
    file_.AddDirectory("HOUSES");
    file_.AddProject("HOUSES", "A", 1);
    EXPECT_TRUE(store_.HasDirectory("HOUSES"));
    EXPECT_EQ(store_.DirectoryOf("A"), "HOUSES");
    EXPECT_EQ(store_.Directories(), Lines{"HOUSES"});
    EXPECT_EQ(store_.Projects("HOUSES"), Lines{"A"});
}

TEST_F(Projects, AProjectKnowsItsDirectory) {
    file_.AddProject("HOUSES", "A", 1);
    file_.AddProject("OFFICES", "B", 2);
    EXPECT_EQ(store_.DirectoryOf("A"), "HOUSES");
    EXPECT_EQ(store_.DirectoryOf("B"), "OFFICES");
    EXPECT_EQ(store_.DirectoryOf("C"), std::nullopt);
}

TEST_F(Projects, DirectoriesAreListedByName) {
    for (const char* name : {"SHOPS", "houses", "OFFICES"}) {
        file_.AddDirectory(name);
    }
    EXPECT_EQ(store_.Directories(), (Lines{"houses", "OFFICES", "SHOPS"}));
}

TEST_F(Projects, ProjectsOfOneDirectoryAreListedAsStoredByTheirRows) {
    file_.AddProject("HOUSES", "Z", 1);
    file_.AddProject("OFFICES", "B", 2);
    file_.AddProject("HOUSES", "A", 3);
    EXPECT_EQ(store_.Projects("HOUSES"), (Lines{"Z", "A"}));
    EXPECT_EQ(store_.Projects("SHOPS"), Lines{});
}

TEST_F(Projects, AllOfThemAreListedWithTheirDirectoriesByTheirRows) {
    file_.AddProject("HOUSES", "Z", 1);
    file_.AddProject("offices", "B", 2);
    file_.AddProject("HOUSES", "A", 3);
    file_.Run("INSERT INTO ProjTab VALUES (NULL, 'NOWHERE', 0)");
    EXPECT_EQ(store_.AllProjects(),
              (Pairs{{"HOUSES", "Z"}, {"offices", "B"}, {"HOUSES", "A"}, {"", "NOWHERE"}}));
}

TEST_F(Projects, ADirectoryIsAddedInItsStoredForm) {
    store_.AddDirectory("  müller & söhne ");
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"MÜLLER & SÖHNE"});
    EXPECT_TRUE(store_.HasDirectory("Müller & Söhne"));
}

TEST_F(Projects, ADirectoryMayHoldADoubleQuote) {
    store_.AddDirectory("a\"b");
    EXPECT_TRUE(store_.HasDirectory("A\"B"));
    EXPECT_EQ(store_.Directories(), Lines{"A\"B"});
}

TEST_F(Projects, AProjectIsAddedInItsStoredFormWithDrawingNumberZero) {
    store_.AddProject("march", " o'hara 100%; ");
    EXPECT_EQ(file_.Rows("SELECT Dir, ProjName, DrawingNum FROM ProjTab"),
              Lines{"MARCH|O'HARA 100%;|0"});
    EXPECT_EQ(store_.DirectoryOf("O'Hara 100%;"), "MARCH");
}

TEST_F(Projects, NamesHoldAtMost64Characters) {
    std::string name;
    for (int i = 0; i < 64; ++i) {
        name += "ü";
    }
    store_.AddDirectory(name);
    store_.AddProject(name, name);
    ExpectError([&] { store_.AddDirectory(name + "x"); }, "more than 64");
    ExpectError([&] { store_.AddProject("D", name + "x"); }, "more than 64");
    ExpectError([&] { store_.AddProject(name + "x", "P"); }, "more than 64");
    EXPECT_EQ(file_.Rows("SELECT count(*) FROM DirTab"), Lines{"1"});
    EXPECT_EQ(file_.Rows("SELECT count(*) FROM ProjTab"), Lines{"1"});
}

TEST_F(Projects, NamesMayNotBeEmpty) {
    EXPECT_EQ(DatabaseErrorOf([&] { store_.AddDirectory("  "); }), "The directory needs a name.");
    EXPECT_EQ(DatabaseErrorOf([&] { store_.AddProject("D", ""); }), "The project needs a name.");
    EXPECT_EQ(DatabaseErrorOf([&] { store_.AddProject("", "P"); }), "The directory needs a name.");
    EXPECT_EQ(file_.Rows("SELECT * FROM DirTab"), Lines{});
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
}

TEST_F(Projects, NamesHoldNoControlCharacterAndNothingThatIsNone) {
    for (const std::string& bad :
         {std::string("\0", 1), std::string("\t"), std::string("\n"), std::string("\x1F"),
          std::string("\x7F"), std::string("\u0085"), std::string("\u2028"), std::string("\uFFFE"),
          std::string("\uFFFF"), std::string("\xED\xA0\x80"), std::string("\xFF")}) {
        const std::string name = "A" + bad + "B";
        ExpectError([&] { store_.AddProject("MARCH", name); }, "project name holds a line break");
        ExpectError([&] { store_.AddProject(name, "P"); }, "directory name holds a line break");
        ExpectError([&] { store_.AddDirectory(name); }, "directory name holds a line break");
    }
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
    EXPECT_EQ(file_.Rows("SELECT * FROM DirTab"), Lines{});
    EXPECT_NO_THROW(store_.AddProject("MARCH", "ÄÖ 浴室 \U0001F3E0"));
}

TEST_F(Projects, AProjectNameHoldsNoForbiddenCharacter) {
    EXPECT_EQ(ForbiddenInProjectName.size(), 9U);
    for (const char c : ForbiddenInProjectName) {
        ExpectError([&] { store_.AddProject("D", std::string("A") + c); }, "\\/:*?\"<>|");
    }
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
}

TEST_F(Projects, AddingToALockedDatabaseFailsWithTheCause) {
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_EQ(DatabaseErrorOf([&] { store_.AddDirectory("D"); }),
              "DirTab takes no new row: another program is using the database. Close that program "
              "and try again.");
    ExpectError([&] { store_.AddProject("D", "P"); }, "another program");
    other.Run("COMMIT");
    EXPECT_EQ(file_.Rows("SELECT * FROM DirTab"), Lines{});
    EXPECT_EQ(file_.Rows("SELECT * FROM ProjTab"), Lines{});
    EXPECT_NO_THROW(store_.AddDirectory("D"));
}

TEST_F(Projects, AMissingFieldIsNamed) {
    file_.Run("ALTER TABLE ProjTab DROP COLUMN DrawingNum");
    EXPECT_EQ(DatabaseErrorOf([&] { store_.AddProject("D", "P"); }),
              "ProjTab has no field DrawingNum.");
}

TEST_F(Projects, QuestionsAndListsRaiseWithTheCause) {
    file_.Run("ALTER TABLE DirTab RENAME TO HiddenDirs");
    file_.Run("ALTER TABLE ProjTab RENAME TO HiddenProjects");
    EXPECT_EQ(DatabaseErrorOf([&] { store_.HasDirectory("D"); }),
              "DirTab cannot be read: no such table: DirTab.");
    EXPECT_THROW(store_.Directories(), DatabaseError);
    EXPECT_THROW(store_.DirectoryOf("P"), DatabaseError);
    EXPECT_THROW(store_.Projects("D"), DatabaseError);
    EXPECT_THROW(store_.AllProjects(), DatabaseError);
    EXPECT_THROW(store_.AddDirectory("D"), DatabaseError);
    EXPECT_THROW(store_.AddProject("D", "P"), DatabaseError);

    file_.Run("ALTER TABLE HiddenDirs RENAME TO DirTab");
    file_.Run("ALTER TABLE HiddenProjects RENAME TO ProjTab");
    EXPECT_FALSE(store_.HasDirectory("D")) << "it goes on when it can";
    EXPECT_EQ(store_.DirectoryOf("P"), std::nullopt);
}

} // namespace
} // namespace tarn
