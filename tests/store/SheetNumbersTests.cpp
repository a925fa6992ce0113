#include "base/RunTimeError.h"
#include "store/DatabaseFile.h"
#include "store/Sheets.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::ShortWait;
using testing::TestDatabase;

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
    EXPECT_EQ(testing::DatabaseErrorOf([&] { New(); }),
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

TEST_F(SheetNumbers, UnderOneTheProjectsOwnSheetOrTheFirstCounts) {
    file_.AddProject("MARCH", "A", 4, 2);
    file_.AddProject("MARCH", "p", 4, 3);
    const auto roomsOf = [&](const char* project) {
        return SheetsUnder(*connection_, 4, project).Own()->IntegerIn("ObjNum");
    };
    EXPECT_EQ(roomsOf("P"), 3);
    EXPECT_EQ(roomsOf("NONE OF THEM"), 2) << "the first";
    EXPECT_EQ(SheetsUnder(*connection_, 4, "P").OtherProjects(), std::vector<std::string>{"A"});
    EXPECT_EQ(SheetsUnder(*connection_, 5, "P").Own(), nullptr);
}

} // namespace
} // namespace tarn
