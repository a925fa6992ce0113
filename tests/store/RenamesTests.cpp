#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

class Renames : public ::testing::Test {
  protected:
    Renames() {
        for (const char* directory : {"D1", "D2"}) {
            file_.AddDirectory(directory);
        }
        file_.AddProject("D1", "P1", 1);
        file_.AddProject("D2", "P2", 2);
        file_.AddProject("D1", "P3", 3);
    }

    Lines Directories() const { return file_.Rows("SELECT Directory FROM DirTab ORDER BY rowid"); }
    Lines Projects() const {
        return file_.Rows("SELECT Dir, ProjName FROM ProjTab ORDER BY rowid");
    }
    Lines Sheets() const {
        return file_.Rows("SELECT TabIndex, ProjName FROM MainTab ORDER BY rowid");
    }

    void ExpectNothingChanged() const {
        EXPECT_EQ(Directories(), (Lines{"D1", "D2"}));
        EXPECT_EQ(Projects(), (Lines{"D1|P1", "D2|P2", "D1|P3"}));
        EXPECT_EQ(Sheets(), (Lines{"1|P1", "2|P2", "3|P3"}));
    }

    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
};

TEST_F(Renames, ADirectoryTakesItsProjectsWithIt) {
    store_.RenameDirectory("D1", "NEW");
    EXPECT_EQ(Directories(), (Lines{"NEW", "D2"}));
    EXPECT_EQ(Projects(), (Lines{"NEW|P1", "D2|P2", "NEW|P3"}));
}

TEST_F(Renames, AProjectTakesItsSheetWithIt) {
    store_.RenameProject("P2", "NEW");
    EXPECT_EQ(Projects(), (Lines{"D1|P1", "D2|NEW", "D1|P3"}));
    EXPECT_EQ(Sheets(), (Lines{"1|P1", "2|NEW", "3|P3"}));
}

TEST_F(Renames, NamesMayHoldAnyCharacterButADoubleQuoteInTheOldOne) {
    std::string old = "P1";
    for (const char* name :
         {"DIR", "PROJNAME", "O'HARA", "100%", "A;B", "КВАРТИРА", "床", "?", "P1"}) {
        store_.RenameProject(old, name);
        EXPECT_EQ(Sheets().front(), "1|" + std::string(name));
        old = name;
    }
    ExpectNothingChanged();
}

TEST_F(Renames, TheNewNameIsStoredInItsStoredForm) {
    store_.RenameDirectory("D1", " müller \"x\" ");
    EXPECT_EQ(Directories().front(), "MÜLLER \"X\"");
    EXPECT_EQ(Projects().front(), "MÜLLER \"X\"|P1");
    store_.RenameProject("P1", " manor ");
    EXPECT_EQ(Projects().front(), "MÜLLER \"X\"|MANOR");
    EXPECT_EQ(Sheets().front(), "1|MANOR");
}

TEST_F(Renames, TheOldNameIsFoundAsItStandsAndInAnotherCaseOfAToZ) {
    file_.Run("UPDATE DirTab SET Directory = ' дом ' WHERE Directory = 'D1'");
    store_.RenameDirectory(" дом ", "HOUSES");
    EXPECT_EQ(Directories().front(), "HOUSES");
    store_.RenameDirectory("d2", "SHOPS");
    EXPECT_EQ(Directories().back(), "SHOPS");
}

TEST_F(Renames, ANameThatNoRowHasChangesNothing) {
    store_.RenameDirectory("NOWHERE", "NEW");
    store_.RenameProject("NOWHERE", "NEW");
    ExpectNothingChanged();
}

TEST_F(Renames, AnOldNameWithADoubleQuoteFailsAndChangesNothing) {
    file_.AddDirectory("A\"B");
    EXPECT_EQ(DatabaseErrorOf([&] { store_.RenameDirectory("A\"B", "NEW"); }),
              "The name A\"B cannot be used: a double quote stands inside it.");
    EXPECT_THROW(store_.RenameProject("X\" or \"1\"=\"1", "NEW"), DatabaseError);
    EXPECT_EQ(Directories().back(), "A\"B");
    file_.Run("DELETE FROM DirTab WHERE Directory = 'A\"B'");
    ExpectNothingChanged();
}

TEST_F(Renames, ANewNameHoldsNoControlCharacterAndNothingThatIsNone) {
    for (const char* name : {"A\tB", "A\nB", "A\uFFFE", "A\xFF"}) {
        EXPECT_EQ(DatabaseErrorOf([&] { store_.RenameDirectory("D1", name); }),
                  "The directory name holds a line break or another control character.");
        EXPECT_EQ(DatabaseErrorOf([&] { store_.RenameProject("P1", name); }),
                  "The project name holds a line break or another control character.");
    }
    ExpectNothingChanged();
}

TEST_F(Renames, AFailureInTheSecondTableTakesTheFirstBack) {
    file_.Run("CREATE TRIGGER Stop BEFORE UPDATE ON ProjTab WHEN OLD.ProjName = 'P3' "
              "BEGIN SELECT RAISE(ABORT, 'stop'); END");
    EXPECT_EQ(DatabaseErrorOf([&] { store_.RenameDirectory("D1", "NEW"); }),
              "ProjTab cannot be changed: stop.");
    ExpectNothingChanged();
    EXPECT_EQ(DatabaseErrorOf([&] { store_.RenameProject("P3", "NEW"); }),
              "ProjTab cannot be changed: stop.");
    ExpectNothingChanged();
}

TEST_F(Renames, ALockedDatabaseFailsAndWorksAgainAfterwards) {
    {
        RawDatabase other(file_.Path());
        other.Run("BEGIN IMMEDIATE");
        EXPECT_EQ(DatabaseErrorOf([&] { store_.RenameDirectory("D1", "NEW"); }),
                  "The database takes no change: another program is using the database. Close that "
                  "program and try again.");
        other.Run("COMMIT");
    }
    ExpectNothingChanged();
    store_.RenameDirectory("D1", "NEW");
    EXPECT_EQ(Directories().front(), "NEW");
}

TEST_F(Renames, AMissingTableFailsAndChangesNothing) {
    file_.Run("ALTER TABLE ProjTab RENAME TO Hidden");
    EXPECT_EQ(DatabaseErrorOf([&] { store_.RenameDirectory("D1", "NEW"); }),
              "ProjTab cannot be read: no such table: ProjTab.");
    EXPECT_THROW(store_.RenameProject("P1", "NEW"), DatabaseError);
    file_.Run("ALTER TABLE Hidden RENAME TO ProjTab");
    ExpectNothingChanged();
}

} // namespace
} // namespace tarn
