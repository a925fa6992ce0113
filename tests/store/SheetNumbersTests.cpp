#include "base/RunTimeError.h"
#include "store/DatabaseFile.h"
#include "store/Schema.h"
#include "store/Sheets.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

class SheetNumbers : public ::testing::Test {
  protected:
    Integer New() { return NewSheetNumber(*connection_); }

    TestDatabase file_;
    std::unique_ptr<Connection> connection_ =
        OpenDatabaseFile(file_.Path(), DatabaseAccess::ReadWrite, ShortWait);
};

TEST_F(SheetNumbers, BeginWithZero) {
    EXPECT_EQ(New(), 0);
    file_.AddProject("MARCH", "A", 0);
    EXPECT_EQ(New(), 1);
}

TEST_F(SheetNumbers, GoOnAboveTheGreatest) {
    file_.AddProject("MARCH", "A", 12);
    file_.AddProject("MARCH", "B", 3);
    EXPECT_EQ(New(), 13);
}

TEST_F(SheetNumbers, AreNeverNegative) {
    file_.AddProject("MARCH", "A", -5);
    EXPECT_EQ(New(), 0);
    file_.AddProject("MARCH", "B", -1);
    EXPECT_EQ(New(), 0);
}

TEST_F(SheetNumbers, CountNoRowWithoutOne) {
    file_.Run("INSERT INTO MainTab (ProjName) VALUES ('A')");
    EXPECT_EQ(New(), 0);
}

TEST_F(SheetNumbers, Past32767Overflow) {
    file_.AddProject("MARCH", "A", 32766);
    EXPECT_EQ(New(), 32767);
    file_.AddProject("MARCH", "B", 32767);
    try {
        New();
        FAIL() << "no error was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), OverflowNumber);
        EXPECT_EQ(error.Advice(), "No sheet number is left: the greatest one, 32767, is in use.");
    }
}

TEST_F(SheetNumbers, ThatAreTextsAreNone) {
    file_.AddProject("MARCH", "A", 1);
    file_.Run("UPDATE MainTab SET TabIndex = 'many'");
    EXPECT_EQ(DatabaseErrorOf([&] { New(); }),
              "The field Max(TabIndex) should hold a number and holds \"many\".");
}

TEST_F(SheetNumbers, CannotBeFoundWithoutTheTable) {
    file_.Run("DROP TABLE MainTab");
    EXPECT_THROW(New(), DatabaseError);
    EXPECT_THROW(FindSheetNumber(*connection_, "P"), DatabaseError);
}

TEST_F(SheetNumbers, OfAProjectIsThatOfItsFirstSheet) {
    file_.AddProject("MARCH", "A", 3);
    file_.AddProject("MARCH", "P", 12);
    file_.AddProject("MARCH", "P", 4);
    EXPECT_EQ(FindSheetNumber(*connection_, "P"), 12);
    EXPECT_EQ(FindSheetNumber(*connection_, "p"), 12);
    EXPECT_EQ(FindSheetNumber(*connection_, "Q"), std::nullopt);
}

TEST_F(SheetNumbers, MayBelongToSeveralProjects) {
    file_.AddProject("MARCH", "A", 4, 2);
    file_.AddProject("MARCH", "p", 4, 3);
    EXPECT_EQ(OtherProjectsUnder(*connection_, 4, "P"), Lines{"A"});
    EXPECT_EQ(OtherProjectsUnder(*connection_, 4, "NONE OF THEM"), (Lines{"A", "p"}));
    EXPECT_EQ(OtherProjectsUnder(*connection_, 5, "P"), Lines{});
}

TEST_F(SheetNumbers, PassOverThoseUnderWhichAnyTableHasRows) {
    file_.AddProject("MARCH", "A", 6);
    int number = 7;
    for (const std::string_view table : SheetTables) {
        if (table != MainTab) {
            file_.Run("INSERT INTO " + std::string(table) + " (TabIndex) VALUES (" +
                      std::to_string(number++) + ")");
        }
    }
    file_.Run("INSERT INTO InputData (TabIndex) VALUES (18), (NULL), ('many'), (99999), (-3)");
    EXPECT_EQ(New(), 16);
    file_.Run("CREATE TABLE OrderData (TabIndex INTEGER, Carpet INTEGER)");
    file_.Run("INSERT INTO OrderData VALUES (16, 0)");
    EXPECT_EQ(New(), 17);
    file_.AddProject("MARCH", "B", 17);
    EXPECT_EQ(New(), 19);
}

TEST_F(SheetNumbers, DoNotNeedTheTablesOfOlderVersions) {
    file_.AddProject("MARCH", "A", 6);
    file_.Run("DROP TABLE SAFill");
    file_.Run("ALTER TABLE ESTTab RENAME COLUMN TabIndex TO Other");
    EXPECT_EQ(New(), 7);
}

TEST_F(SheetNumbers, OverflowWhenRowsTakeTheLastOne) {
    file_.AddProject("MARCH", "A", 32766);
    file_.Run("INSERT INTO SFillCut VALUES (32767)");
    EXPECT_THROW(New(), RunTimeError);
}

} // namespace
} // namespace tarn
