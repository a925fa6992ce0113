#include "store/Renames.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::RawDatabase;
using testing::ShortWait;
using testing::TestDatabase;

using Lines = std::vector<std::string>;

class Renames : public ::testing::Test {
  protected:
    Renames() {
        for (const char* directory : {"D1", "D2"}) {
            file_.AddDirectory(directory);
        }
        file_.AddProject("D1", "P1", 1);
        file_.AddProject("D2", "P2", 2);
        file_.AddProject("D1", "P3", 3);
        file_.OpenInto(state_, ShortWait);
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
    SharedState state_;
};

TEST_F(Renames, ADirectoryTakesItsProjectsWithIt) {
    EXPECT_TRUE(ChangeDirName(state_, "D1", "NEW")) << state_.DatabaseFailure;
    EXPECT_EQ(Directories(), (Lines{"NEW", "D2"}));
    EXPECT_EQ(Projects(), (Lines{"NEW|P1", "D2|P2", "NEW|P3"}));
}

TEST_F(Renames, AProjectTakesItsSheetWithIt) {
    EXPECT_TRUE(ChangeProjName(state_, "P2", "NEW")) << state_.DatabaseFailure;
    EXPECT_EQ(Projects(), (Lines{"D1|P1", "D2|NEW", "D1|P3"}));
    EXPECT_EQ(Sheets(), (Lines{"1|P1", "2|NEW", "3|P3"}));
}

TEST_F(Renames, NamesMayHoldAnyCharacterButADoubleQuoteInTheOldOne) {
    std::string old = "P1";
    for (const char* name :
         {"DIR", "PROJNAME", "O'HARA", "100%", "A;B", "КВАРТИРА", "床", "?", "P1"}) {
        EXPECT_TRUE(ChangeProjName(state_, old, name)) << state_.DatabaseFailure;
        EXPECT_EQ(Sheets().front(), "1|" + std::string(name));
        old = name;
    }
    ExpectNothingChanged();
}

TEST_F(Renames, NamesAreStoredAsTheyStand) {
    EXPECT_TRUE(ChangeDirName(state_, "D1", " new \"x\" "));
    EXPECT_EQ(Directories().front(), " new \"x\" ");
    EXPECT_EQ(Projects().front(), " new \"x\" |P1");
}

TEST_F(Renames, ANameThatNoRowHasChangesNothing) {
    EXPECT_TRUE(ChangeDirName(state_, "NOWHERE", "NEW"));
    EXPECT_TRUE(ChangeProjName(state_, "NOWHERE", "NEW"));
    ExpectNothingChanged();
}

TEST_F(Renames, AnOldNameWithADoubleQuoteFailsAndChangesNothing) {
    file_.AddDirectory("A\"B");
    EXPECT_FALSE(ChangeDirName(state_, "A\"B", "NEW"));
    EXPECT_NE(state_.DatabaseFailure.find("double quote"), std::string::npos);
    EXPECT_FALSE(ChangeProjName(state_, "X\" or \"1\"=\"1", "NEW"));
    EXPECT_EQ(Directories().back(), "A\"B");
    file_.Run("DELETE FROM DirTab WHERE Directory = 'A\"B'");
    ExpectNothingChanged();
}

TEST_F(Renames, AFailureInTheSecondTableTakesTheFirstBack) {
    file_.Run("CREATE TRIGGER Stop BEFORE UPDATE ON ProjTab WHEN OLD.ProjName = 'P3' "
              "BEGIN SELECT RAISE(ABORT, 'stop'); END");
    EXPECT_FALSE(ChangeDirName(state_, "D1", "NEW"));
    EXPECT_EQ(state_.DatabaseFailure, "ProjTab cannot be changed: stop.");
    ExpectNothingChanged();
    EXPECT_FALSE(ChangeProjName(state_, "P3", "NEW"));
    ExpectNothingChanged();
}

TEST_F(Renames, ALockedDatabaseFailsAndWorksAgainAfterwards) {
    {
        RawDatabase other(file_.Path());
        other.Run("BEGIN IMMEDIATE");
        EXPECT_FALSE(ChangeDirName(state_, "D1", "NEW"));
        EXPECT_NE(state_.DatabaseFailure.find("another program"), std::string::npos);
        other.Run("COMMIT");
    }
    ExpectNothingChanged();
    EXPECT_TRUE(ChangeDirName(state_, "D1", "NEW"));
}

TEST_F(Renames, FailWithoutADatabase) {
    state_.CurDB.reset();
    EXPECT_FALSE(ChangeDirName(state_, "D1", "NEW"));
    EXPECT_FALSE(ChangeProjName(state_, "P1", "NEW"));
    EXPECT_EQ(state_.DatabaseFailure, "No database is open.");
}

} // namespace
} // namespace tarn
